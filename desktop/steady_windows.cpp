#include "desktop/steady_windows.h"

#include <QApplication>
#include <QResizeEvent>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <cstdlib>
#include <utility>

namespace corvanda {

namespace {

constexpr auto not_its_own = Qt::WindowMaximized | Qt::WindowFullScreen | Qt::WindowMinimized;
constexpr int still_for = 150;  // milliseconds; a window that a person drags moves more often

void Resize(QWindow& window, const QSize& size) {
    const QRect usable = window.screen()->availableGeometry().marginsRemoved(window.frameMargins());
    QRect then({}, size.boundedTo(usable.size()).expandedTo(window.minimumSize()));
    then.moveCenter(window.geometry().center());
    // The title bar stays where it can be taken hold of.
    then.moveTop(std::max(then.top(), usable.top()));
    window.setGeometry(then);
}

}  // namespace

SteadyWindows::SteadyWindows() {
    qApp->installEventFilter(this);
    rest.setSingleShot(true);
    rest.setInterval(still_for);
    connect(&rest, &QTimer::timeout, this, &SteadyWindows::GiveSizesBack);
}

SteadyWindows::Moved* SteadyWindows::Find(const QWidget* window) {
    const auto found = std::find_if(moved.begin(), moved.end(),
                                    [=](const Moved& each) { return each.window == window; });
    return found != moved.end() ? &*found : nullptr;
}

bool SteadyWindows::eventFilter(QObject* object, QEvent* event) {
    if (!object->isWidgetType()) return false;
    auto* window = static_cast<QWidget*>(object);
    const auto kind = window->windowType();
    QWindow* native = window->windowHandle();
    if (native == nullptr || (kind != Qt::Window && kind != Qt::Dialog)) return false;
    if (event->type() == QEvent::Show) Watch(window);
    if (event->type() == QEvent::Resize)
        NoteFormer(native, static_cast<QResizeEvent*>(event)->oldSize());
    if (event->type() == QEvent::Move && Find(window) != nullptr) rest.start();
    return false;
}

// A window that is shown again may have another native one than before.
void SteadyWindows::Watch(QWidget* window) {
    QWindow* native = window->windowHandle();
    if (!watched.try_emplace(native, Watched{{}, native->devicePixelRatio()}).second) return;
    connect(native, &QWindow::screenChanged, this, [this, of = QPointer(window)] {
        if (of) Note(of);
    });
    connect(native, &QObject::destroyed, this, [this, native] { watched.erase(native); });
}

void SteadyWindows::NoteFormer(QWindow* native, const QSize& size) {
    const auto known = watched.find(native);
    if (known == watched.end()) return;
    known->second.former = size;
    const auto forget = [this, native] {
        if (const auto still = watched.find(native); still != watched.end())
            still->second.former = {};
    };
    QMetaObject::invokeMethod(this, forget, Qt::QueuedConnection);
}

// Older toolkits tell of the screen first, later ones of the size that the same pixels make there.
QSize SteadyWindows::SizeBefore(QWidget* window) {
    const qreal now = window->windowHandle()->devicePixelRatio();
    auto& [former, ratio] = watched.at(window->windowHandle());
    const QSize same_pixels = former * (std::exchange(ratio, now) / now);
    const QSize off = same_pixels - window->size();
    const bool counted_anew = std::abs(off.width()) <= 1 && std::abs(off.height()) <= 1;
    return former.isValid() && counted_anew ? former : window->size();
}

// `moved` keeps the size that the window had on the screen before.
void SteadyWindows::Note(QWidget* window) {
    rest.start();
    const QSize size = SizeBefore(window);
    Moved* known = Find(window);
    if (known == nullptr) {
        if (window->isVisible()) moved.push_back({window, size, {}});
        return;
    }
    const bool was_given = known->left_at.isValid() && known->left_at != size;
    if (was_given) known->before = size;
    known->left_at = {};
}

// A window manager may refuse while a person still holds the window, so a window that is moved on
// is tried again, until it has its size or somebody has given it another.
void SteadyWindows::GiveSizesBack() {
    std::erase_if(moved, [](const Moved& each) { return IsSettled(each); });
    // Over a copy: a window that is resized may come to yet another screen and be noted again.
    for (const Moved& each : std::vector(moved)) {
        QWindow& window = *each.window->windowHandle();
        Find(each.window)->left_at = window.size();
        Resize(window, each.before);
    }
}

bool SteadyWindows::IsSettled(const Moved& each) {
    if (!each.window || !each.window->isVisible()) return true;
    const QWindow& window = *each.window->windowHandle();
    const QSize now = window.size();
    const bool untouched = !each.left_at.isValid() || each.left_at == now;
    return window.windowStates() & not_its_own || now == each.before || !untouched;
}

}  // namespace corvanda
