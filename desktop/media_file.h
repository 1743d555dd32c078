// Films as AVI files of motion JPEG: the container is walked here, the pictures are decoded one by
// one by the toolkit.
//
// Free functions without state, used by the media player. Nothing in a file is trusted: sizes that
// lead out of it end the walk, and what was whole before that can be played.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>
#include <optional>
#include <vector>

namespace corvanda::media {

struct Film {
    struct Frame {
        qsizetype at;
        qsizetype size;
    };

    QByteArray bytes;           ///< the whole file
    std::vector<Frame> frames;  ///< where in it the pictures stand
    int microseconds = 0;       ///< how long each of them is shown
};

/// The film in a file. Nothing for a file that is missing, not an ordinary file, larger than
/// 32 MiB, or in which no picture or no sensible duration is found.
std::optional<Film> ReadFilm(const QString& file);

/// One picture, brought to a size in device pixels when one is given; or a null image where it
/// cannot be decoded.
QImage Decode(const Film& film, std::size_t frame, QSize pixels = {});

}  // namespace corvanda::media
