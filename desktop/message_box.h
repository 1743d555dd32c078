// Message boxes over the window in front.
//
// Owns nothing but the box that is open. Called by the game through MessageBoxes, from any handler
// and also from inside another box. A style number that is none of the known ones gives a box with
// Ok and no icon. Once the program's event loops have been told to end, no box waits any more: the
// call returns at once as if the box had been closed (Ok, or No to a question). GUI thread only.
//
// The application must not set an application display name: the desktop would add it to the titles.
#pragma once

#include <QPointer>
#include <QWidget>

#include "desktop/mouse_pointer.h"
#include "runtime/ports.h"

namespace corvanda {

class QtMessageBoxes final : public MessageBoxes {
  public:
    /// The pointer must outlive the boxes; its hourglass rests while one is open.
    explicit QtMessageBoxes(QtMousePointer& pointer);

    /// The window that boxes stand over when none of the program's windows is active. It may be
    /// null, hidden, or deleted later.
    void SetMainWindow(QWidget* window) { main_window = window; }

    /// The open box is a QMessageBox with the object name "MsgBox".
    Integer MsgBox(const std::string& text, Integer style, const std::string& title) override;

  private:
    QWidget* Owner() const;

    QtMousePointer& pointer;
    QPointer<QWidget> main_window;
};

}  // namespace corvanda
