#include "desktop/media_player.h"

#include <QPainter>
#include <algorithm>
#include <utility>

namespace corvanda::media {

class Player::Screen final : public QWidget {
  public:
    explicit Screen(QWidget* parent) : QWidget(parent) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_OpaquePaintEvent);
    }

    void Show(const QImage& image) {
        picture = image;
        update();
    }

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(rect(), picture);
    }

  private:
    QImage picture;
};

Player::Player(Film film) : film(std::move(film)) {
    clock.setTimerType(Qt::PreciseTimer);
    clock.setInterval(std::max(1, this->film.microseconds / 1000));
    connect(&clock, &QTimer::timeout, this, &Player::Advance);
}

Player::~Player() {
    delete screen.data();
}

void Player::SetWindow(QWidget* widget) {
    delete screen.data();
    screen = new Screen(widget);
    Show(std::min(position, film.frames.size() - 1));
    Place();
    screen->show();
}

void Player::SetDestination(const QRect& place) {
    destination = place;
    Place();
}

void Player::Place() {
    if (!screen) return;
    screen->setGeometry(destination.isValid() ? destination : screen->parentWidget()->rect());
}

void Player::Play() {
    started_at = position;
    since.start();
    clock.start();
}

bool Player::Seek(quint64 frame) {
    if (frame > film.frames.size()) return false;
    clock.stop();
    position = static_cast<std::size_t>(frame);
    Show(std::min(position, film.frames.size() - 1));
    return true;
}

// The picture whose time it is, so that a late tick leaves pictures out instead of slowing the
// film.
void Player::Advance() {
    const qint64 microseconds = since.nsecsElapsed() / 1000;
    const auto passed = (microseconds + film.microseconds / 2) / film.microseconds;
    const std::size_t now =
        std::min(started_at + static_cast<std::size_t>(passed), film.frames.size());
    if (now == film.frames.size() || !screen) clock.stop();
    if (now == position) return;
    position = now;
    Show(std::min(position, film.frames.size() - 1));
}

// A picture that cannot be decoded leaves the one before it in view.
void Player::Show(std::size_t frame) {
    if (!screen) return;
    const QSizeF pixels = QSizeF(screen->size()) * screen->devicePixelRatioF();
    const QImage picture = Decode(film, frame, pixels.toSize());
    if (!picture.isNull()) screen->Show(picture);
}

}  // namespace corvanda::media
