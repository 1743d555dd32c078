// Message buses that answer, and some that do not.
#include "desktop/silent_buses.h"

#include <QLocalServer>
#include <QLocalSocket>
#include <thread>

#include "tests/desktop/desk.h"

namespace corvanda::pruebas {
namespace {

/// A bus as far as it is greeted: it says that a user is welcome, and where the other bus is.
void Answer(const QString& name, const QByteArray& other, const std::stop_token& stop) {
    QLocalServer bus;
    ASSERT_TRUE(bus.listen(name));
    while (!stop.stop_requested()) {
        if (!bus.waitForNewConnection(20)) continue;
        QLocalSocket* caller = bus.nextPendingConnection();
        for (const QByteArray& words : {QByteArray("OK 1234\r\n"), other + '\0'}) {
            if (!caller->waitForReadyRead(20000)) break;
            caller->readAll();
            caller->write(words);
            caller->flush();
        }
        caller->waitForDisconnected(20000);
    }
}

TEST(SilentBuses, are_taken_out_of_the_environment_and_others_are_kept) {
    const QTemporaryDir folder;
    const auto at = [&](const char* name) {
        return "unix:path=" + QFile::encodeName(folder.filePath(name)) + ",guid=1";
    };
    QLocalServer silent;  // the kernel takes connections in its name, and nobody looks at them
    ASSERT_TRUE(silent.listen(folder.filePath("silent")));
    std::jthread alone(
        [&](const std::stop_token& stop) { Answer(folder.filePath("alone"), ".Error.", stop); });
    std::jthread leads(
        [&](const std::stop_token& stop) { Answer(folder.filePath("leads"), at("silent"), stop); });
    ASSERT_TRUE(QTest::qWaitFor([&] {
        return QFile::exists(folder.filePath("alone")) && QFile::exists(folder.filePath("leads"));
    }));
    const char* const names[] = {"DBUS_SESSION_BUS_ADDRESS", "AT_SPI_BUS_ADDRESS"};
    const QByteArray before[] = {qgetenv(names[0]), qgetenv(names[1])};
    const struct {
        QByteArray session, readers, session_then, readers_then;
    } table[] = {
        {at("silent"), "", "disabled:", ""},
        {at("alone"), "", at("alone"), ""},
        {at("leads"), "", at("leads"), "disabled:"},
        {at("alone"), at("silent"), at("alone"), "disabled:"},
        {at("missing"), at("alone"), at("missing"), at("alone")},
        {"tcp:host=localhost;unix:abstract=", "disabled:", "tcp:host=localhost;unix:abstract=",
         "disabled:"},
    };
    for (const auto& row : table) {
        qputenv(names[0], row.session);
        qputenv(names[1], row.readers);
        LeaveOutSilentBuses();
        EXPECT_EQ(qgetenv(names[0]), row.session_then) << row.session.constData();
        EXPECT_EQ(qgetenv(names[1]), row.readers_then) << row.session.constData();
    }
    for (int i : {0, 1}) before[i].isNull() ? qunsetenv(names[i]) : qputenv(names[i], before[i]);
}

}  // namespace
}  // namespace corvanda::pruebas
