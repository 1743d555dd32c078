#include "desktop/help_file.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QResource>
#include <algorithm>

namespace corvanda {

namespace {

constexpr qint64 largest_file = 16 * 1024 * 1024;
constexpr qsizetype seal_length = 64;
constexpr int indent = 2;  // blanks of one depth in the contents

/// The bytes in front of the seal, empty when it is broken.
QByteArray Unsealed(const QByteArray& sealed) {
    if (sealed.size() <= seal_length) return {};
    const QByteArray bytes = sealed.chopped(seal_length);
    const QByteArray seal = QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
    return seal == sealed.last(seal_length) ? bytes : QByteArray();
}

QStringList LinesOf(const QString& text) {
    return text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

}  // namespace

HelpFile::HelpFile(const QString& file)
    : prefix(QStringLiteral("/help-%1").arg(reinterpret_cast<quintptr>(this), 0, 16)),
      condition(Load(file)) {}

HelpFile::~HelpFile() {
    Unregister();
}

HelpFile::Condition HelpFile::Load(const QString& name) {
    QFile file(name);
    // Anything but an ordinary file might never end, or never begin.
    if (!QFileInfo(name).isFile() || !file.open(QIODevice::ReadOnly)) return Condition::Missing;
    const QByteArray sealed = file.read(std::min(file.size(), largest_file) + 1);
    if (sealed.isEmpty() && file.error() != QFileDevice::NoError) return Condition::Missing;
    if (sealed.size() > largest_file) return Condition::Damaged;
    bytes = Unsealed(sealed);
    if (bytes.isEmpty()) return Condition::Damaged;
    const auto* data = reinterpret_cast<const uchar*>(bytes.constData());
    registered = QResource::registerResource(data, prefix);
    if (registered && ReadLists()) return Condition::Good;
    Unregister();
    return Condition::Damaged;
}

void HelpFile::Unregister() {
    if (!registered) return;
    QResource::unregisterResource(reinterpret_cast<const uchar*>(bytes.constData()), prefix);
    registered = false;
}

// A file that names a topic it does not hold is as bad as a broken one.
bool HelpFile::ReadLists() {
    ReadContents();
    ReadKeywords();
    ReadContexts();
    const auto held = [this](const QString& address) { return Has(TopicIn(address)); };
    return !contents.empty() &&
           std::all_of(contents.begin(), contents.end(),
                       [&](const HelpTopic& topic) { return held(topic.name); }) &&
           std::all_of(keywords.begin(), keywords.end(),
                       [&](const HelpKeyword& keyword) { return held(keyword.address); }) &&
           std::all_of(contexts.begin(), contexts.end(),
                       [&](const auto& context) { return held(context.second); });
}

void HelpFile::ReadContents() {
    for (const QString& line : LinesOf(ReadText(QStringLiteral("contents.txt")))) {
        const QString name = line.trimmed();
        const auto blanks = static_cast<int>(line.indexOf(name));
        contents.push_back({name, TitleOf(name), blanks / indent});
    }
}

void HelpFile::ReadKeywords() {
    for (const QString& line : LinesOf(ReadText(QStringLiteral("keywords.txt")))) {
        const auto middle = line.lastIndexOf(QLatin1Char('='));
        if (middle < 0) continue;
        keywords.push_back({line.left(middle).trimmed(), line.mid(middle + 1).trimmed()});
    }
    std::sort(keywords.begin(), keywords.end(), [](const HelpKeyword& one, const HelpKeyword& two) {
        return one.word.compare(two.word, Qt::CaseInsensitive) < 0;
    });
}

void HelpFile::ReadContexts() {
    for (const QString& line : LinesOf(ReadText(QStringLiteral("contexts.txt")))) {
        const QString number = line.section(QLatin1Char(' '), 0, 0);
        contexts[number.toShort()] = line.section(QLatin1Char(' '), 1).trimmed();
    }
}

QString HelpFile::TitleOf(const QString& name) const {
    static const QRegularExpression title(QStringLiteral("<title>(.*?)</title>"));
    return title.match(ReadText(name)).captured(1);
}

QString HelpFile::TopicOf(Integer context) const {
    const auto found = contexts.find(context);
    if (found != contexts.end()) return found->second;
    return contents.empty() ? QString() : contents.front().name;
}

bool HelpFile::Has(const QString& name) const {
    // The toolkit would follow ".." out of the file.
    if (!registered || name.isEmpty() || name.contains(QLatin1String(".."))) return false;
    const QResource resource(Inside(name));
    return resource.isValid() && resource.size() > 0;
}

QByteArray HelpFile::Read(const QString& name) const {
    return Has(name) ? QResource(Inside(name)).uncompressedData() : QByteArray();
}

QString HelpFile::ReadText(const QString& name) const {
    return QString::fromUtf8(Read(name));
}

QString TopicIn(const QString& address) {
    return address.section(QLatin1Char('#'), 0, 0);
}

}  // namespace corvanda
