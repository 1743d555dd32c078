#include "desktop/program_folder.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace corvanda {

ProgramFolder::ProgramFolder() : ProgramFolder(QCoreApplication::applicationFilePath()) {}

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
