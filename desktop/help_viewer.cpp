#include "desktop/help_viewer.h"

#include <QDir>
#include <utility>

#include "desktop/help_window.h"
#include "desktop/program_folder.h"

namespace corvanda {

QtHelpViewer::QtHelpViewer(MessageBoxes& boxes, std::string folder, std::string title)
    : boxes(boxes), folder(std::move(folder)), title(std::move(title)) {}

QtHelpViewer::~QtHelpViewer() = default;

void QtHelpViewer::WinHelp(const std::string& file, Integer command, Integer context) {
    if (!Open(NativePath(folder, file))) return;
    switch (command) {
        case help::Context:
            window->OpenTopic(context);
            break;
        case help::Key:
            window->OpenIndex();
            break;
        default:
            window->OpenContents();
            break;
    }
    window->Present();
}

bool QtHelpViewer::Open(const QString& file) {
    if (window != nullptr && opened == file) return true;
    auto help = std::make_unique<HelpFile>(file);
    switch (help->State()) {
        case HelpFile::Condition::Missing:
            Refuse(QStringLiteral("The help file %1 cannot be opened."), file);
            return false;
        case HelpFile::Condition::Damaged:
            Refuse(QStringLiteral("The help file %1 is damaged."), file);
            return false;
        case HelpFile::Condition::Good:
            break;
    }
    window = std::make_unique<HelpWindow>(std::move(help),
                                          QString::fromStdString(title) + QStringLiteral(" Help"));
    opened = file;
    return true;
}

void QtHelpViewer::Refuse(const QString& text, const QString& file) {
    const QString told = text.arg(QDir::toNativeSeparators(file));
    boxes.MsgBox(told.toStdString(), style::Exclamation, title);
}

}  // namespace corvanda
