#include "desktop/silent_buses.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QByteArray>
#include <QDeadlineTimer>
#include <QList>
#include <algorithm>
#include <cstddef>
#include <cstring>
#include <optional>

namespace corvanda {

namespace {

constexpr int patience = 400;  // milliseconds for one bus

/// The file or abstract name of the first unix socket of an address, as the kernel wants it.
QByteArray SocketOf(const QByteArray& address) {
    for (const QByteArray& way : address.split(';')) {
        if (!way.startsWith("unix:")) continue;
        for (const QByteArray& part : way.mid(5).split(',')) {
            if (part.startsWith("path=")) return QByteArray::fromPercentEncoding(part.mid(5));
            if (part.startsWith("abstract="))
                return '\0' + QByteArray::fromPercentEncoding(part.mid(9));
        }
    }
    return {};
}

/// A connection, or -1. Nothing here waits, not even for a full queue.
int Connect(const QByteArray& socket) {
    sockaddr_un to{};
    to.sun_family = AF_UNIX;
    if (socket.isEmpty() || socket.size() >= static_cast<qsizetype>(sizeof to.sun_path)) return -1;
    std::copy(socket.begin(), socket.end(), to.sun_path);
    const auto size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path)) +
                      static_cast<socklen_t>(socket.size());
    const int connection = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (::connect(connection, reinterpret_cast<const sockaddr*>(&to), size) == 0) return connection;
    ::close(connection);
    return -1;
}

/// Says something and collects what comes back, until one of two marks is in it or the other end
/// closes. Nothing when that takes too long.
std::optional<QByteArray> Ask(int connection, const QByteArray& words, const char* one,
                              const char* other) {
    ::send(connection, words.constData(), static_cast<std::size_t>(words.size()), MSG_NOSIGNAL);
    QByteArray heard;
    const QDeadlineTimer end(patience);
    while (!heard.contains(one) && !heard.contains(other)) {
        pollfd answer{connection, POLLIN, 0};
        if (::poll(&answer, 1, static_cast<int>(end.remainingTime())) <= 0) return {};
        char some[1024];
        const auto count = ::recv(connection, some, sizeof some, 0);
        if (count <= 0) break;
        heard.append(some, static_cast<qsizetype>(count));
    }
    return heard;
}

/// A bus's first question to whoever connects, and its answer: nothing from a silent one.
std::optional<QByteArray> Greet(int connection) {
    const QByteArray user = QByteArray::number(::getuid()).toHex();
    return Ask(connection, '\0' + ("AUTH EXTERNAL " + user) + "\r\n", "\r\n", "\n");
}

void Put(QByteArray& message, quint32 number) {
    message.append(reinterpret_cast<const char*>(&number), sizeof number);
}

/// A call without arguments, as the buses' protocol writes it in this machine's byte order. It
/// starts no program that would answer it.
QByteArray Call(quint32 serial, const char* to, const char* object, const char* interface,
                const char* method) {
    QByteArray fields;
    const auto put = [&](char code, char kind, const char* text) {
        fields.resize((fields.size() + 7) / 8 * 8, '\0');
        fields.append(code).append('\1').append(kind).append('\0');
        Put(fields, static_cast<quint32>(std::strlen(text)));
        fields.append(text).append('\0');
    };
    put(1, 'o', object);
    put(2, 's', interface);
    put(3, 's', method);
    put(6, 's', to);
    constexpr char no_auto_start = 2;
    QByteArray message;
    message.append(QSysInfo::ByteOrder == QSysInfo::LittleEndian ? 'l' : 'B');
    message.append('\1').append(no_auto_start).append('\1');
    Put(message, 0);
    Put(message, serial);
    Put(message, static_cast<quint32>(fields.size()));
    message += fields;
    message.resize((message.size() + 7) / 8 * 8, '\0');
    return message;
}

/// Where screen readers have their bus, as the session's bus knows it; empty where there is none.
QByteArray AskForAccessibilityBus(int connection) {
    const QByteArray calls =
        "BEGIN\r\n" +
        Call(1, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "Hello") +
        Call(2, "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress");
    const QByteArray heard = Ask(connection, calls, "unix:", ".Error.").value_or(QByteArray());
    const auto begin = heard.indexOf("unix:");
    return begin < 0 ? QByteArray() : QByteArray(heard.constData() + begin);
}

bool IsSilent(const QByteArray& address) {
    const int connection = Connect(SocketOf(address));
    if (connection < 0) return false;  // the toolkit finds that out at once
    const bool silent = !Greet(connection);
    ::close(connection);
    return silent;
}

QByteArray SessionBus() {
    const QByteArray given = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    return given.isEmpty() ? "unix:path=" + qgetenv("XDG_RUNTIME_DIR") + "/bus" : given;
}

// "disabled:" is no way to reach a bus, which the toolkit sees at once. Without the session's bus
// it does not look for the screen readers' either.
QByteArray AccessibilityBus() {
    QByteArray given = qgetenv("AT_SPI_BUS_ADDRESS");
    const int session = Connect(SocketOf(SessionBus()));
    if (session < 0) return given;
    QByteArray found;
    if (!Greet(session)) {
        qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    } else if (given.isEmpty()) {
        found = AskForAccessibilityBus(session);
    }
    ::close(session);
    return given.isEmpty() ? found : given;
}

}  // namespace

void LeaveOutSilentBuses() {
    if (IsSilent(AccessibilityBus())) qputenv("AT_SPI_BUS_ADDRESS", "disabled:");
}

}  // namespace corvanda
