// The text commands of the media control: which there are and how they are written.
//
// A command is a verb, the name of a device in double quotes, and words and numbers that depend on
// the verb. Words may be in any case and any number of blanks may stand between them.
#pragma once

#include <QString>
#include <optional>
#include <string>
#include <vector>

namespace corvanda::media {

enum class Verb { Open, Window, Put, Status, Seek, Play, Close };

struct Command {
    Verb verb;
    QString name;                  ///< as it stands between the quotes
    std::vector<quint64> numbers;  ///< in the order of the text
};

/// Nothing for a text that is none of the commands.
std::optional<Command> Parse(const std::string& text);

}  // namespace corvanda::media
