// One film that is played in a place of a widget.
//
// Owned by the media control, one for each open device. The pictures appear on a child of the given
// widget that takes no mouse presses; it goes when the player goes, and it is no harm when the
// widget goes first. The processor is used only while the film plays. GUI thread only.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QRect>
#include <QTimer>
#include <QWidget>

#include "desktop/media_file.h"

namespace corvanda::media {

class Player final : public QObject {
    Q_OBJECT

  public:
    /// Stands stopped at the first picture.
    explicit Player(Film film);
    ~Player() override;

    /// Where the film is shown. Until a destination is set it fills the widget.
    void SetWindow(QWidget* widget);
    void SetDestination(const QRect& place);

    bool IsPlaying() const { return clock.isActive(); }
    /// Plays from where it stands to the end and stops there, the last picture staying in view.
    void Play();
    /// Stops at a picture; the number after the last one is the end.
    bool Seek(quint64 frame);

  private:
    class Screen;

    void Advance();
    void Show(std::size_t frame);
    void Place();

    Film film;
    QPointer<Screen> screen;
    QRect destination;
    QTimer clock;
    QElapsedTimer since;       ///< runs from the start of the playing
    std::size_t position = 0;  ///< the picture that is next to end; at the end their number
    std::size_t started_at = 0;
};

}  // namespace corvanda::media
