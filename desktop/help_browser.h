// The page of the help window: shows topics of the help file and keeps the way back through them.
//
// It follows links to other topics of the same file and no others: nothing is fetched from a
// network or another file, and no program is started. Pictures are drawn at one and a half pixels
// for each pixel of their place on an ordinary screen, and are scaled for the screen they are on.
#pragma once

#include <QSet>
#include <QTextBrowser>
#include <QUrl>

#include "desktop/help_file.h"

namespace corvanda {

class HelpBrowser final : public QTextBrowser {
    Q_OBJECT

  public:
    /// The file must outlive the browser.
    HelpBrowser(const HelpFile& help, QWidget* parent);

    /// Shows a topic, at an anchor if the address has one. An address of nothing is ignored.
    void Show(const QString& address);
    /// The name of the topic that is shown.
    QString Topic() const { return source().fileName(); }

    /// Answers for topics and pictures of the help file only.
    QVariant loadResource(int type, const QUrl& name) override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void Follow(const QUrl& link);
    void DrawPicturesAnew();
    QPixmap Picture(const QString& name) const;

    const HelpFile& help;
    QSet<QUrl> drawn;                       // all pictures so far
    qreal drawn_for = devicePixelRatioF();  // what they were scaled for
};

}  // namespace corvanda
