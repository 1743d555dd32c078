#include "desktop/mouse_pointer.h"

#include <QCursor>
#include <QGuiApplication>

namespace corvanda {

QtMousePointer::~QtMousePointer() {
    wanted = PointerShape::Default;
    Show();
}

void QtMousePointer::SetShape(PointerShape shape) {
    wanted = shape;
    Show();
}

void QtMousePointer::Show() {
    const bool hourglass = wanted == PointerShape::Hourglass && rests == 0;
    if (hourglass == pushed) return;
    pushed = hourglass;
    if (hourglass) {
        QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
    } else {
        QGuiApplication::restoreOverrideCursor();
    }
}

QtMousePointer::Rest::Rest(QtMousePointer& owner) : pointer(owner) {
    ++pointer.rests;
    pointer.Show();
}

QtMousePointer::Rest::~Rest() {
    --pointer.rests;
    pointer.Show();
}

}  // namespace corvanda
