// The main of all tests that need the toolkit. Nothing of the person's desktop is touched: windows
// stay off the screen unless a platform was chosen from outside, sounds go nowhere unless a driver
// was, and the configuration folder is an empty one that goes away afterwards.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir config;
    qputenv("XDG_CONFIG_HOME", config.path().toLocal8Bit());
    qputenv("LC_ALL", "C.UTF-8");
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!qEnvironmentVariableIsSet("SDL_AUDIODRIVER")) qputenv("SDL_AUDIODRIVER", "dummy");
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
