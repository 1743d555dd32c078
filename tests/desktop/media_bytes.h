// Films for tests: AVI files whose pictures are plain colours, so that a look at the screen tells
// which of them is shown.
#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QColor>
#include <QFile>
#include <QImage>
#include <QtEndian>
#include <vector>

namespace corvanda::pruebas {

inline QByteArray JpegBytes(const QColor& color, QSize size = {40, 30}) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPEG", 95);
    return buffer.data();
}

inline QByteArray Number(quint32 number) {
    QByteArray bytes(4, '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

inline QByteArray Chunk(const char* id, const QByteArray& body) {
    return id + Number(static_cast<quint32>(body.size())) + body +
           QByteArray(body.size() % 2, '\0');
}

inline QByteArray ListChunk(const char* id, const char* kind, const QByteArray& body) {
    return Chunk(id, kind + body);
}

inline QByteArray Header(quint32 microseconds) {
    return ListChunk("LIST", "hdrl", Chunk("avih", Number(microseconds) + QByteArray(52, '\0')));
}

/// A whole file: the header, and what stands in the list of pictures.
inline QByteArray AviBytes(quint32 microseconds, const QByteArray& movi) {
    return ListChunk("RIFF", "AVI ", Header(microseconds) + ListChunk("LIST", "movi", movi));
}

inline const std::vector<QColor> three_colors = {Qt::red, Qt::green, Qt::blue};

inline QByteArray FilmBytes(quint32 microseconds = 40'000,
                            const std::vector<QColor>& colors = three_colors) {
    QByteArray movi;
    for (const QColor& color : colors) movi += Chunk("00dc", JpegBytes(color));
    return AviBytes(microseconds, movi);
}

inline void WriteBytes(const QString& name, const QByteArray& bytes) {
    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
}

inline bool Resembles(const QColor& seen, const QColor& wanted) {
    return std::abs(seen.red() - wanted.red()) < 12 &&
           std::abs(seen.green() - wanted.green()) < 12 &&
           std::abs(seen.blue() - wanted.blue()) < 12;
}

}  // namespace corvanda::pruebas
