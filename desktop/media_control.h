// The media control: text commands that open films, show them in a widget, play and close them.
//
// Owns the films that are open, each known by the name it was opened with; a name is the program's
// folder followed by a path with backslashes. Everything a person or a damaged file can do wrong
// becomes an error code. Used by the forms through the port. GUI thread only.
#pragma once

#include <QString>
#include <map>
#include <memory>

#include "desktop/media_command.h"
#include "desktop/media_player.h"
#include "runtime/ports.h"

namespace corvanda {

class QtMediaControl final : public MediaControl {
  public:
    /// What can go wrong; the numbers mean nothing beyond not being 0.
    enum Error : long {
        None = 0,
        NoCommand = 261,
        NotOpen = 263,
        AlreadyOpen = 265,
        NoFilm = 275,
        BadValue = 282
    };

    /// `pixels` is how many logical pixels make one of the layout's, in which destinations are
    /// given.
    QtMediaControl(std::string folder, double pixels) : folder(std::move(folder)), pixels(pixels) {}

    long mciSendString(const std::string& command, std::string& reply) override;

  private:
    long Open(const QString& name);
    long Carry(const media::Command& command, media::Player& player, std::string& reply) const;

    std::string folder;
    double pixels;
    std::map<QString, std::unique_ptr<media::Player>> devices;
};

}  // namespace corvanda
