#include "desktop/program_folder.h"

#include <unistd.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <filesystem>

namespace corvanda {

namespace {

// The toolkit can address nothing in a folder whose name is no UTF-8. As the working folder, which
// the game has no other use for, it needs no name.
QString Executable() {
    QString name = QCoreApplication::applicationFilePath();
    if (QFileInfo::exists(name)) return name;
    std::error_code unreadable;
    const auto real = std::filesystem::read_symlink("/proc/self/exe", unreadable);
    if (unreadable || ::chdir(real.parent_path().c_str()) != 0) return name;
    return QStringLiteral("/proc/self/cwd/") + QFile::decodeName(real.filename().c_str());
}

}  // namespace

ProgramFolder::ProgramFolder() : ProgramFolder(Executable()) {}

ProgramFolder::ProgramFolder(const QString& executable) {
    const QFileInfo info(executable);
    QString folder = info.absolutePath();
    if (folder.endsWith(QLatin1Char('/'))) folder.chop(1);  // only the root folder ends with one
    // A name such as ".game" is all extension to the toolkit, but it is the program's name.
    QString base = info.completeBaseName();
    if (base.isEmpty()) base = info.fileName();
    path = folder.toStdString();
    name = base.toStdString();
}

QString NativePath(const std::string& folder, const std::string& path) {
    const std::size_t kept = path.starts_with(folder) ? folder.size() : 0;
    QString tail = QString::fromStdString(path.substr(kept));
    tail.replace(QLatin1Char('\\'), QLatin1Char('/'));
    return QString::fromStdString(path.substr(0, kept)) + tail;
}

}  // namespace corvanda
