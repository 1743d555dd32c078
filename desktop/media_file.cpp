#include "desktop/media_file.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QtEndian>
#include <algorithm>

namespace corvanda::media {

namespace {

constexpr qint64 largest_file = 32 * 1024 * 1024;
constexpr std::size_t most_frames = 20000;
constexpr int largest_side = 2048;
constexpr quint32 shortest_frame = 5'000;  // microseconds
constexpr quint32 longest_frame = 10'000'000;
constexpr int deepest_list = 4;  // the file, its pictures, a group of them

class Walk {
  public:
    explicit Walk(Film& film) : film(film) {}

    void List(qsizetype from, qsizetype end, int depth) {
        while (end - from >= 8) {
            const QByteArrayView id = Bytes(from, 4);
            const qsizetype size = Number(from + 4);
            const qsizetype body = from + 8;
            const qsizetype next = body + size;
            if (id == "LIST" || id == "RIFF") {
                // A list that was cut off still holds what comes before the cut.
                if (depth < deepest_list) List(body + 4, std::min(next, end), depth + 1);
            } else if (next <= end) {
                Chunk(id, body, size);
            }
            from = next + size % 2;
        }
    }

  private:
    QByteArrayView Bytes(qsizetype at, qsizetype size) const {
        return QByteArrayView(film.bytes).sliced(at, size);
    }

    qsizetype Number(qsizetype at) const {
        return qFromLittleEndian<quint32>(film.bytes.constData() + at);
    }

    void Chunk(QByteArrayView id, qsizetype body, qsizetype size) {
        if (id == "avih" && size >= 4) film.microseconds = Duration(body);
        const bool picture = id.sliced(2) == "dc" || id.sliced(2) == "db";
        if (!picture || film.frames.size() >= most_frames) return;
        if (film.frames.empty()) stream = id.first(2);
        if (id.first(2) != stream) return;
        // An empty chunk shows the picture before it once more.
        if (size > 0) {
            film.frames.push_back({body, size});
        } else if (!film.frames.empty()) {
            film.frames.push_back(film.frames.back());
        }
    }

    int Duration(qsizetype at) const {
        const auto microseconds = static_cast<quint32>(Number(at));
        const bool sensible = microseconds >= shortest_frame && microseconds <= longest_frame;
        return sensible ? static_cast<int>(microseconds) : 0;
    }

    Film& film;
    QByteArrayView stream;
};

QByteArray ReadBytes(const QString& name) {
    QFile file(name);
    // A pipe or a device might never end.
    if (!QFileInfo(name).isFile() || !file.open(QIODevice::ReadOnly)) return {};
    QByteArray bytes = file.read(std::min(file.size(), largest_file) + 1);
    return bytes.size() > largest_file ? QByteArray() : bytes;
}

}  // namespace

std::optional<Film> ReadFilm(const QString& file) {
    Film film;
    film.bytes = ReadBytes(file);
    if (!film.bytes.startsWith("RIFF") || film.bytes.mid(8, 4) != "AVI ") return {};
    Walk(film).List(0, film.bytes.size(), 0);
    if (film.microseconds == 0 || film.frames.empty()) return {};
    return film;
}

QImage Decode(const Film& film, std::size_t frame, QSize pixels) {
    if (frame >= film.frames.size()) return {};
    const auto [at, size] = film.frames[frame];
    QByteArray bytes = QByteArray::fromRawData(film.bytes.constData() + at, size);
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer, "jpeg");
    // A picture of a few bytes can claim to be enormous.
    const QSize claimed = reader.size();
    if (!claimed.isValid() || claimed.width() > largest_side || claimed.height() > largest_side)
        return {};
    if (!pixels.isEmpty()) reader.setScaledSize(pixels);
    return reader.read().convertToFormat(QImage::Format_RGB32);
}

}  // namespace corvanda::media
