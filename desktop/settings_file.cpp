#include "desktop/settings_file.h"

#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QSaveFile>
#include <QStandardPaths>
#include <cerrno>
#include <filesystem>

#include "desktop/folder_lock.h"

namespace corvanda {

namespace {

constexpr qint64 largest_file = 1 << 20;

constexpr QLatin1StringView no_room("there is no room left on the disk");
constexpr QLatin1StringView no_folder("the folder cannot be written");
constexpr QLatin1StringView no_write("the file cannot be written");
constexpr QLatin1StringView half_written("the disk is full or cannot be written");
constexpr QLatin1StringView no_file("the link there leads to what is no ordinary file");
constexpr QLatin1StringView too_large("the file would become too large");
constexpr QLatin1StringView locked("another program keeps the file locked");

struct Contents {
    QJsonObject all;
    bool damaged = false;
    bool dense = false;  ///< written with less white space than this program uses
};

QByteArray Bytes(const QJsonObject& all, bool dense) {
    return QJsonDocument(all).toJson(dense ? QJsonDocument::Compact : QJsonDocument::Indented);
}

Contents ReadContents(const QString& name) {
    const QFileInfo info(name);
    if (!info.exists()) return {};
    QFile file(name);
    // Anything but an ordinary file might never end, or never begin.
    if (!info.isFile() || !file.open(QIODevice::ReadOnly)) return {{}, true};
    const QByteArray bytes = file.read(largest_file + 1);
    if (bytes.size() > largest_file) return {{}, true};
    const QJsonDocument document = QJsonDocument::fromJson(bytes);
    const QJsonObject all = document.object();
    return {all, !document.isObject(), bytes.size() < Bytes(all, false).size()};
}

/// Where a link leads, over others if need be: what it stands for is to be replaced, not the link.
QString Followed(const QString& name) {
    const QFileInfo info(name);
    if (!info.isSymLink()) return name;
    return info.exists() ? info.canonicalFilePath() : info.symLinkTarget();
}

/// A device or a pipe that somebody keeps behind a link serves others, too, and stays as it is.
bool LeadsAstray(const QString& name) {
    const QFileInfo info(name);
    return info.isSymLink() && info.exists() && !info.isFile();
}

/// The folder of a user's settings. A relative one in the environment is to be ignored.
QString ConfigFolder() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return QDir::isAbsolutePath(folder) ? folder : QDir::homePath() + QStringLiteral("/.config");
}

/// What a program that was killed between its first byte and its last has left beside the file.
/// Only whoever holds the lock may ask for this.
void SweepUp(const QString& name) {
    static const QRegularExpression leftover(QStringLiteral("\\.[A-Za-z]{6}$"));
    const QFileInfo info(name);
    const QStringList beside =
        info.dir().entryList({info.fileName() + QStringLiteral(".??????")}, QDir::Files);
    for (const QString& each : beside) {
        if (each.contains(leftover)) QFile::remove(info.dir().filePath(each));
    }
}

QString WhyNot(const QSaveFile& save) {
    return save.error() == QFileDevice::ResourceError ? no_room : no_write;
}

/// A write that stopped half-way leaves no better reason than this.
QString WhyNotWritten(const QSaveFile& save) {
    return save.error() == QFileDevice::ResourceError ? no_room : half_written;
}

/// Forces the bytes to the disk, where a file system that puts its work off says at last that it
/// has no room. One that knows no such call is believed.
QString Synchronise(const QSaveFile& save) {
    if (::fsync(save.handle()) == 0 || errno == EINVAL || errno == ENOSYS) return {};
    return errno == ENOSPC || errno == EDQUOT ? no_room : no_write;
}

/// Replaces the file whole or leaves it as it is; `aside` moves the old one out of the way first.
QString Replace(const QString& name, const QByteArray& bytes, bool aside) {
    QSaveFile save(name);
    if (!save.open(QIODevice::WriteOnly)) return WhyNot(save);
    // commit() alone reports success on a full disk and leaves an empty file: the last bytes are
    // still in the buffer when it asks for errors.
    if (save.write(bytes) != bytes.size() || !save.flush()) return WhyNotWritten(save);
    if (QString failure = Synchronise(save); !failure.isEmpty()) return failure;
    if (aside) {
        std::error_code ignored;  // a file that cannot be kept must not hinder the new one
        std::filesystem::rename(QFile::encodeName(name).toStdString(),
                                QFile::encodeName(name + QStringLiteral(".damaged")).toStdString(),
                                ignored);
    }
    return save.commit() ? QString() : WhyNot(save);
}

}  // namespace

SettingsFile::SettingsFile()
    : SettingsFile(ConfigFolder() + QStringLiteral("/corvanda/settings.json")) {}

std::string SettingsFile::GetSetting(const std::string& application, const std::string& section,
                                     const std::string& key, const std::string& otherwise) {
    if (!read) read = ReadContents(file).all;
    const QJsonValue value = read->value(QString::fromStdString(application))
                                 .toObject()
                                 .value(QString::fromStdString(section))
                                 .toObject()
                                 .value(QString::fromStdString(key));
    return value.isString() ? value.toString().toStdString() : otherwise;
}

void SettingsFile::SaveSetting(const std::string& application, const std::string& section,
                               const std::string& key, const std::string& value) {
    noted[{QString::fromStdString(application), QString::fromStdString(section),
           QString::fromStdString(key)}] = QString::fromStdString(value);
}

std::string SettingsFile::Commit() {
    if (noted.empty()) return {};
    const QString failure = Write();
    if (failure.isEmpty()) {
        noted.clear();
        return {};
    }
    return QStringLiteral("The settings could not be saved in %1: %2.")
        .arg(QDir::toNativeSeparators(file), failure)
        .toStdString();
}

QString SettingsFile::Write() {
    if (LeadsAstray(file)) return no_file;
    const QString target = Followed(file);
    if (!QDir().mkpath(QFileInfo(target).path())) return no_folder;
    // Another copy of the program may be between its reading and its writing just now.
    const FolderLock lock(QFileInfo(target).path(), patience);
    if (!lock.Held()) return locked;
    SweepUp(target);
    Contents contents = ReadContents(target);
    Merge(contents.all);
    const QByteArray bytes = Bytes(contents.all, contents.dense);
    if (bytes.size() > largest_file) return too_large;
    QString failure = Replace(target, bytes, contents.damaged);
    if (failure.isEmpty()) read = contents.all;
    return failure;
}

void SettingsFile::Merge(QJsonObject& all) const {
    for (const auto& [address, text] : noted) {
        const auto& [application, section, key] = address;
        QJsonObject sections = all.value(application).toObject();
        QJsonObject keys = sections.value(section).toObject();
        keys[key] = text;
        sections[section] = keys;
        all[application] = sections;
    }
}

}  // namespace corvanda
