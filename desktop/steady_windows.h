// Keeps every window at its size when it comes to a screen of another device pixel ratio.
//
// Where sizes are counted in the screen's own pixels (X11), a window has as many of them after it
// was moved, and the toolkit leaves it so: a dialog of a fixed size would show its upper left
// quarter. Once such a window has come to rest it gets its former size back, about the same centre,
// so that it does not leave the screen again. What fills a screen is left alone. Made by the
// application, for all windows there are; where the desktop itself keeps the sizes there is nothing
// to do.
#pragma once

#include <QObject>
#include <QPointer>
#include <QSize>
#include <QTimer>
#include <QWidget>
#include <map>
#include <vector>

namespace corvanda {

class SteadyWindows final : public QObject {
  public:
    SteadyWindows();

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    struct Moved {
        QPointer<QWidget> window;
        QSize before;
        QSize left_at;  // by the toolkit; invalid until the window has come to rest
    };

    struct Watched {
        QSize former;  // before a resize of this turn of the event loop; else invalid
        qreal ratio;   // of the screen that it was on last
    };

    void Watch(QWidget* window);
    void NoteFormer(QWindow* native, const QSize& size);
    QSize SizeBefore(QWidget* window);
    void Note(QWidget* window);
    Moved* Find(const QWidget* window);
    static bool IsSettled(const Moved& each);
    void GiveSizesBack();

    std::map<const QObject*, Watched> watched;  // by native window
    std::vector<Moved> moved;                   // and not yet seen to have their sizes back
    QTimer rest;
};

}  // namespace corvanda
