#include "desktop/help_browser.h"

#include <QImage>
#include <QPalette>
#include <QPixmap>
#include <algorithm>

namespace corvanda {

namespace {

constexpr QLatin1String scheme("help");
constexpr double drawn_at = 2;  // as tools/laminas draws the pictures
constexpr int margin = 14;
constexpr int columns = 80;          // of text in a line that is still read easily
constexpr int widest_picture = 560;  // logical pixels

QUrl UrlOf(const QString& address) {
    QUrl url;
    url.setScheme(scheme);
    url.setPath(QLatin1Char('/') + TopicIn(address));
    const auto anchor = address.indexOf(QLatin1Char('#'));
    if (anchor >= 0) url.setFragment(address.mid(anchor + 1));
    return url;
}

/// The name in the help file: all topics lie at its top, so a relative link needs no other base.
QString NameIn(const QUrl& url) {
    const QString path = url.path();
    return path.startsWith(QLatin1Char('/')) ? path.mid(1) : path;
}

bool IsInside(const QUrl& url) {
    return url.authority().isEmpty() && (url.isRelative() || url.scheme() == scheme);
}

/// The pages have their own paper and ink: their colours were chosen together.
QPalette Paper(QPalette palette) {
    for (const auto paper : {QPalette::Base, QPalette::Window})
        palette.setColor(paper, QColor(0xfd, 0xfa, 0xf3));
    palette.setColor(QPalette::Text, QColor(0x2b, 0x20, 0x1a));
    palette.setColor(QPalette::Link, QColor(0x8c, 0x2b, 0x14));
    palette.setColor(QPalette::LinkVisited, QColor(0x8c, 0x2b, 0x14));
    return palette;
}

}  // namespace

HelpBrowser::HelpBrowser(const HelpFile& help, QWidget* parent) : QTextBrowser(parent), help(help) {
    setObjectName(QStringLiteral("HelpPage"));
    setAccessibleName(QStringLiteral("Page"));
    setOpenLinks(false);
    setPalette(Paper(palette()));
    setAutoFillBackground(true);  // beside the page, too
    document()->setDocumentMargin(margin);
    // Where a word does not fit, the page can be scrolled.
    setWordWrapMode(QTextOption::WordWrap);
    connect(this, &QTextBrowser::anchorClicked, this, &HelpBrowser::Follow);
}

void HelpBrowser::Show(const QString& address) {
    if (help.Has(TopicIn(address))) setSource(UrlOf(address), QTextDocument::HtmlResource);
}

void HelpBrowser::Follow(const QUrl& link) {
    if (!IsInside(link)) return;
    const QString anchor = link.hasFragment() ? QLatin1Char('#') + link.fragment() : QString();
    Show(NameIn(link) + anchor);
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name) {
    if (!IsInside(name)) return {};
    const QString inside = NameIn(name);
    if (type != QTextDocument::ImageResource) return help.ReadText(inside);
    drawn.insert(name);
    return Picture(inside);
}

// In a wide window the page leaves room at its right instead of growing lines nobody can follow.
void HelpBrowser::resizeEvent(QResizeEvent* event) {
    const int page = std::max(columns * fontMetrics().averageCharWidth(), widest_picture);
    setViewportMargins(0, 0, std::max(0, contentsRect().width() - page - 2 * margin), 0);
    QTextBrowser::resizeEvent(event);
}

// The window may have come to another screen.
void HelpBrowser::paintEvent(QPaintEvent* event) {
    if (devicePixelRatioF() != drawn_for) DrawPicturesAnew();
    QTextBrowser::paintEvent(event);
}

void HelpBrowser::DrawPicturesAnew() {
    drawn_for = devicePixelRatioF();
    for (const QUrl& each : drawn)
        document()->addResource(QTextDocument::ImageResource, each, Picture(NameIn(each)));
}

QPixmap HelpBrowser::Picture(const QString& name) const {
    const QImage image = QImage::fromData(help.Read(name));
    if (image.isNull()) return {};
    const qreal ratio = devicePixelRatioF();
    const QSize size = (QSizeF(image.size()) / drawn_at * ratio).toSize();
    QImage scaled = image.convertToFormat(QImage::Format_RGB32)
                        .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    scaled.setDevicePixelRatio(ratio);
    return QPixmap::fromImage(scaled);
}

}  // namespace corvanda
