// The one window of the help: contents and keyword index at the left, the page at the right.
//
// Made and owned by the help viewer; it has no parent, so that it outlives the dialogs it is asked
// from. Esc or its frame hide it; it keeps its page and its history until the viewer goes.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTabWidget>
#include <QTreeWidget>
#include <memory>

#include "desktop/help_browser.h"
#include "desktop/help_file.h"

class QToolBar;

namespace corvanda {

class HelpWindow final : public QDialog {
    Q_OBJECT

  public:
    /// `help` is a good file; `title` stands in the title bar.
    HelpWindow(std::unique_ptr<HelpFile> help, const QString& title);

    /// Each of these turns the window's pages and leaves showing it to Present.
    void OpenTopic(Integer context);
    void OpenContents();
    void OpenIndex();

    /// Brings the window to the front. It takes input whatever is open: the game's boxes and
    /// dialogs are modal to the game's own windows only.
    void Present();

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    QToolBar* MakeBar();
    QWidget* MakeSide();
    QTreeWidget* MakeTree();
    int SideWidth() const;
    QWidget* MakeIndex();
    void Narrow(const QString& part);
    void OpenFirstKeyword();
    void MarkInTree(const QUrl& shown);
    QListWidgetItem* FirstKeyword() const;

    const std::unique_ptr<HelpFile> help;
    HelpBrowser* page = nullptr;
    QTabWidget* tabs = nullptr;
    QTreeWidget* tree = nullptr;
    QLineEdit* filter = nullptr;
    QListWidget* keywords = nullptr;
    QLabel* nothing = nullptr;
};

}  // namespace corvanda
