// The help viewer: opens the help file at the first request and shows it in one modeless window,
// which every later request brings to the front.
//
// Owns the window. Called by the main window's help commands and by F1 in the start-player dialog.
// A help file that is missing or damaged is told in a message box that names it, each time anew;
// the game goes on without help. GUI thread only.
#pragma once

#include <QString>
#include <memory>

#include "runtime/ports.h"

namespace corvanda {

class HelpWindow;

class QtHelpViewer final : public HelpViewer {
  public:
    /// `folder` is the program's folder as App::Path gives it, `title` the title of the messages
    /// and the beginning of the window's.
    QtHelpViewer(MessageBoxes& boxes, std::string folder, std::string title);
    ~QtHelpViewer() override;

    /// A context number without a topic shows the welcome page, an unknown command the contents.
    void WinHelp(const std::string& file, Integer command, Integer context) override;

  private:
    bool Open(const QString& file);
    void Refuse(const QString& text, const QString& file);

    MessageBoxes& boxes;
    std::string folder;
    std::string title;
    std::unique_ptr<HelpWindow> window;
    QString opened;  // the file that the window shows
};

}  // namespace corvanda
