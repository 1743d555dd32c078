#include "desktop/media_control.h"

#include <QApplication>
#include <algorithm>

#include "desktop/program_folder.h"

namespace corvanda {

namespace {

using media::Verb;

constexpr quint64 largest_coordinate = 10000;

// A number is only compared with the widgets that there are, so none can lead astray. A window
// identifier of the screen would do as well, but asking a child for one gives it, and everything
// beside and above it, a window of its own on the screen.
QWidget* WidgetOf(quint64 handle) {
    const QWidgetList all = QApplication::allWidgets();
    const auto found = std::find_if(all.begin(), all.end(), [handle](const QWidget* each) {
        return reinterpret_cast<quintptr>(each) == handle;
    });
    return found == all.end() ? nullptr : *found;
}

QRect PlaceOf(const std::vector<quint64>& numbers, double pixels) {
    const bool sane = std::all_of(numbers.begin(), numbers.end(),
                                  [](quint64 each) { return each <= largest_coordinate; });
    if (!sane) return {};
    const auto edge = [pixels](quint64 at) { return qRound(static_cast<double>(at) * pixels); };
    const QPoint corner(edge(numbers[0]), edge(numbers[1]));
    const QPoint end(edge(numbers[0] + numbers[2]), edge(numbers[1] + numbers[3]));
    return {corner, QSize(end.x() - corner.x(), end.y() - corner.y())};
}

}  // namespace

long QtMediaControl::mciSendString(const std::string& command, std::string& reply) {
    reply.clear();
    const auto parsed = media::Parse(command);
    if (!parsed) return NoCommand;
    const auto device = devices.find(parsed->name);
    if (parsed->verb == Verb::Open) {
        return device == devices.end() ? Open(parsed->name) : AlreadyOpen;
    }
    if (device == devices.end()) return NotOpen;
    if (parsed->verb != Verb::Close) return Carry(*parsed, *device->second, reply);
    devices.erase(device);
    return None;
}

long QtMediaControl::Open(const QString& name) {
    auto film = media::ReadFilm(NativePath(folder, name.toStdString()));
    // A film whose beginning cannot be seen is none, whatever comes later. A small picture tells.
    if (!film || media::Decode(*film, 0, {8, 6}).isNull()) return NoFilm;
    devices.emplace(name, std::make_unique<media::Player>(std::move(*film)));
    return None;
}

long QtMediaControl::Carry(const media::Command& command, media::Player& player,
                           std::string& reply) const {
    switch (command.verb) {
        case Verb::Window: {
            QWidget* widget = WidgetOf(command.numbers[0]);
            if (widget == nullptr) return BadValue;
            player.SetWindow(widget);
            return None;
        }
        case Verb::Put: {
            const QRect place = PlaceOf(command.numbers, pixels);
            if (!place.isValid()) return BadValue;
            player.SetDestination(place);
            return None;
        }
        case Verb::Status:
            reply = player.IsPlaying() ? "playing" : "stopped";
            return None;
        case Verb::Seek:
            return player.Seek(command.numbers[0]) ? None : BadValue;
        default:
            player.Play();
            return None;
    }
}

}  // namespace corvanda
