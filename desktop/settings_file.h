// The person's settings in one JSON file: an object of applications, in each an object of sections,
// in each the keys with their texts.
//
// Copies of the program in other folders are other applications in the same file; each writes only
// its own part. Called by the main window, which reads at its start and writes at its end. A file
// that is missing, unreadable, damaged or larger than 1 MiB gives the defaults, and so does any
// part of it that has another type than expected. GUI thread only.
#pragma once

#include <QJsonObject>
#include <QString>
#include <chrono>
#include <map>
#include <optional>
#include <tuple>
#include <utility>

#include "runtime/ports.h"

namespace corvanda {

class SettingsFile final : public SettingsStore {
  public:
    /// The file under the desktop's configuration folder.
    SettingsFile();
    /// Waits so long for another program to let go of the file.
    explicit SettingsFile(QString file, std::chrono::milliseconds patience = lock_patience)
        : file(std::move(file)), patience(patience) {}

    /// Reads the file at the first call only. What SaveSetting noted is not answered before Commit.
    std::string GetSetting(const std::string& application, const std::string& section,
                           const std::string& key, const std::string& otherwise) override;
    void SaveSetting(const std::string& application, const std::string& section,
                     const std::string& key, const std::string& value) override;

    /// Reads the file again and writes it with what was noted; a kill or a full disk at any moment
    /// leaves the old file or the new one. A damaged file is first put aside under its name with
    /// ".damaged" added. After a failure what was noted stays noted. With nothing noted, the file
    /// is not touched.
    std::string Commit() override;

    QString FileName() const { return file; }

  private:
    using Address = std::tuple<QString, QString, QString>;

    static constexpr std::chrono::seconds lock_patience{2};

    QString Write();
    void Merge(QJsonObject& all) const;

    const QString file;
    const std::chrono::milliseconds patience;
    std::optional<QJsonObject> read;
    std::map<Address, QString> noted;
};

}  // namespace corvanda
