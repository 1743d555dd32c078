// The main of all tests that need the toolkit. Nothing of the person's desktop is touched: windows
// stay off the screen unless a platform was chosen from outside, sounds go nowhere unless a driver
// was, and the configuration folder is an empty one that goes away afterwards. Nor does the desktop
// change what is drawn: style, fonts and their smoothing are always the same. Off the screen there
// are two: the platform's usual one, where windows begin, and to its right one that is as large in
// twice as many pixels.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QTemporaryDir>
#include <csignal>

namespace {

void Write(const QString& name, const char* text) {
    QFile file(name);
    file.open(QIODevice::WriteOnly);
    file.write(text);
}

// The letters of the packages that tools/paquetes.txt names, smoothed as most desktops do.
void UsualFonts(const QString& configuration) {
    Write(configuration, R"(<fontconfig>
        <dir>/usr/share/fonts</dir>
        <cachedir>/var/cache/fontconfig</cachedir>
        <cachedir prefix="xdg">fontconfig</cachedir>
        <match target="pattern"><edit name="family" mode="append_last">
            <string>DejaVu Sans</string></edit></match>
        <match target="pattern"><edit name="hintstyle" mode="assign">
            <const>hintslight</const></edit></match>
        </fontconfig>)");
    qputenv("FONTCONFIG_FILE", configuration.toLocal8Bit());
}

void TwoScreens(const QString& configuration) {
    Write(configuration, R"({"screens": [
        {"name": "left", "width": 800, "height": 800, "x": 0},
        {"name": "right", "width": 1600, "height": 1600, "x": 800}]})");
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + configuration.toLocal8Bit());
    qputenv("QT_SCREEN_SCALE_FACTORS", "left=1;right=2");
}

}  // namespace

int main(int argc, char** argv) {
    std::signal(SIGHUP, SIG_DFL);  // nohup ignores it, and so would the program
    testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir config;
    qputenv("XDG_CONFIG_HOME", config.path().toLocal8Bit());
    qputenv("LC_ALL", "C.UTF-8");
    const QString platform = qEnvironmentVariable("QT_QPA_PLATFORM", "offscreen");
    UsualFonts(config.filePath("fonts.conf"));
    if (platform == "offscreen") TwoScreens(config.filePath("screens.json"));
    if (!qEnvironmentVariableIsSet("SDL_AUDIODRIVER")) qputenv("SDL_AUDIODRIVER", "dummy");
    const QApplication application(argc, argv);
    QApplication::setStyle("Fusion");
    QApplication::setFont(QFont("DejaVu Sans", 10));
    QApplication::setCursorFlashTime(0);
    return RUN_ALL_TESTS();
}
