// What the tests of the desktop share: files in folders that go away, what accidents leave of
// files, and the form of sound and film files.
#pragma once

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QtEndian>
#include <functional>
#include <memory>
#include <random>

namespace corvanda::pruebas {

inline void WriteBytes(const QString& name, const QByteArray& bytes) {
    QDir().mkpath(QFileInfo(name).path());
    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

inline QByteArray ReadBytes(const QString& name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
}

/// Some bytes of the first ones changed, and now and then the rest cut off.
inline QByteArray Damaged(QByteArray bytes, unsigned seed, qsizetype reach) {
    std::mt19937 random(seed);
    const auto below = [&](qsizetype end) { return static_cast<qsizetype>(random()) % end; };
    for (unsigned i = 0; i <= seed % 9; ++i) bytes[below(reach)] = static_cast<char>(below(256));
    return seed % 5 == 0 ? bytes.left(below(bytes.size())) : bytes;
}

inline QByteArray Noise(qsizetype size) {
    std::mt19937 random(7);
    QByteArray bytes(size, '\0');
    for (char& each : bytes) each = static_cast<char>(random());
    return bytes;
}

inline QByteArray Number(quint32 number, int width = 4) {
    QByteArray bytes(4, '\0');
    qToLittleEndian(number, bytes.data());
    return bytes.left(width);
}

inline QByteArray Chunk(const char* id, const QByteArray& body) {
    return id + Number(static_cast<quint32>(body.size())) + body +
           QByteArray(body.size() % 2, '\0');
}

}  // namespace corvanda::pruebas
