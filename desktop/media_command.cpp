#include "desktop/media_command.h"

#include <QStringList>

namespace corvanda::media {

namespace {

// What follows the name; # stands for a whole number.
struct Form {
    Verb verb;
    const char* word;
    const char* rest;
};

constexpr Form forms[] = {
    {Verb::Open, "open", ""},
    {Verb::Open, "open", "wait"},
    {Verb::Window, "window", "handle #"},
    {Verb::Put, "put", "destination at # # # #"},
    {Verb::Status, "status", "mode"},
    {Verb::Seek, "seek", "to #"},
    {Verb::Play, "play", ""},
    {Verb::Close, "close", ""},
};

QStringList WordsOf(const QString& text) {
    return text.simplified().toLower().split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

std::optional<std::vector<quint64>> Match(const QStringList& form, const QStringList& words) {
    if (form.size() != words.size()) return {};
    std::vector<quint64> numbers;
    for (int i = 0; i < form.size(); ++i) {
        if (form[i] != QLatin1String("#")) {
            if (form[i] != words[i]) return {};
            continue;
        }
        bool is_number = false;
        numbers.push_back(words[i].toULongLong(&is_number));
        if (!is_number) return {};
    }
    return numbers;
}

}  // namespace

std::optional<Command> Parse(const std::string& text) {
    const QString line = QString::fromStdString(text);
    // Only one name is ever quoted, so it reaches to the last quote: a folder's own name may hold
    // quotes here, even though it may not where these commands come from.
    const auto opening = line.indexOf(QLatin1Char('"'));
    const auto closing = line.lastIndexOf(QLatin1Char('"'));
    if (opening < 0 || closing <= opening + 1) return {};
    const QString verb = line.left(opening).trimmed().toLower();
    const QStringList rest = WordsOf(line.mid(closing + 1));
    for (const Form& form : forms) {
        if (verb != QLatin1String(form.word)) continue;
        const auto numbers = Match(WordsOf(QLatin1String(form.rest)), rest);
        if (numbers)
            return Command{form.verb, line.mid(opening + 1, closing - opening - 1), *numbers};
    }
    return {};
}

}  // namespace corvanda::media
