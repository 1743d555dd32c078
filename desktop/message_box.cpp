#include "desktop/message_box.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFontMetrics>
#include <QGridLayout>
#include <QLabel>
#include <QMainWindow>
#include <QMessageBox>
#include <QScreen>
#include <QStyle>
#include <algorithm>
#include <memory>

namespace corvanda {

namespace {

QMessageBox::Icon IconOf(Integer style) {
    switch (style) {
        case style::Critical:
            return QMessageBox::Critical;
        case style::Exclamation:
            return QMessageBox::Warning;
        case style::Information:
            return QMessageBox::Information;
        case style::QuestionYesNo:
            return QMessageBox::Question;
        default:
            return QMessageBox::NoIcon;
    }
}

constexpr int usual_columns = 60;  // of text beside and around an icon, as desktops' dialogs have
constexpr int usual_lines = 5;

// Stands in the middle of what the window under it shows, below that window's menus.
class Box final : public QMessageBox {
  public:
    using QMessageBox::QMessageBox;

  protected:
    void showEvent(QShowEvent* event) override {
        QMessageBox::showEvent(event);
        const auto* under = parentWidget() == nullptr
                                ? nullptr
                                : qobject_cast<QMainWindow*>(parentWidget()->window());
        if (under == nullptr || under->centralWidget() == nullptr) return;
        const QWidget& shown = *under->centralWidget();
        const int title = under->geometry().top() - under->frameGeometry().top();
        QRect place(QPoint(), size() + QSize(0, title));
        place.moveCenter(shown.mapToGlobal(shown.rect().center()));
        const QRect usable = screen()->availableGeometry();
        move(std::max(place.left(), usable.left()), std::max(place.top(), usable.top()));
    }
};

void AddButton(QMessageBox& box, QMessageBox::StandardButton which, const char* caption) {
    box.addButton(which);
    // The program speaks one language; without this the desktop would put in its own.
    box.button(which)->setText(QString::fromLatin1(caption));
}

void AddButtons(QMessageBox& box, bool question) {
    if (question) {
        AddButton(box, QMessageBox::Yes, "&Yes");
        AddButton(box, QMessageBox::No, "&No");
        box.setDefaultButton(QMessageBox::Yes);
        box.setEscapeButton(QMessageBox::No);
    } else {
        AddButton(box, QMessageBox::Ok, "OK");
        box.setDefaultButton(QMessageBox::Ok);
        box.setEscapeButton(QMessageBox::Ok);
    }
}

// How wide the frame draws a title only the desktop knows; most draw it bold, between an icon and
// up to three buttons.
int TitleWidth(const QMessageBox& box) {
    QFont bold = box.font();
    bold.setBold(true);
    const int buttons = 5 * box.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    return QFontMetrics(bold).horizontalAdvance(box.windowTitle()) + buttons;
}

// A box that is narrower than its title has it cut by the window's frame, and one that is only as
// large as a short text looks lost on a large board.
void Enlarge(QMessageBox& box) {
    auto* grid = qobject_cast<QGridLayout*>(box.layout());
    if (grid == nullptr) return;
    const QMargins margins = grid->contentsMargins();
    // Large fonts make a box large by themselves.
    const QSize most = box.screen()->availableSize() / 3;
    const int usual = std::min(usual_columns * box.fontMetrics().averageCharWidth(), most.width());
    const int width = std::max(TitleWidth(box), usual) - margins.left() - margins.right();
    grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
    grid->setRowMinimumHeight(
        0, std::min(usual_lines * box.fontMetrics().lineSpacing(), most.height() / 2));
    if (auto* icon = box.findChild<QLabel*>(QStringLiteral("qt_msgboxex_icon_label")))
        grid->setAlignment(icon, Qt::AlignVCenter);
}

}  // namespace

QtMessageBoxes::QtMessageBoxes(QtMousePointer& pointer) : pointer(pointer) {
    // A desktop's own box may show other texts and buttons than it was given.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

QWidget* QtMessageBoxes::Owner() const {
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    if (main_window && main_window->isVisible()) return main_window;
    return QApplication::activeWindow();
}

Integer QtMessageBoxes::MsgBox(const std::string& text, Integer style, const std::string& title) {
    const bool question = style == style::QuestionYesNo;
    const Integer otherwise = question ? button::No : button::Ok;
    const QtMousePointer::Rest rest(pointer);
    // On the heap and watched: the window it stands over may be deleted, and the box with it, by a
    // handler that runs while it is open.
    QPointer<QMessageBox> box(new Box(Owner()));
    box->setObjectName(QStringLiteral("MsgBox"));
    // The help has windows of its own, which stay usable beside the box.
    box->setWindowModality(Qt::WindowModal);
    box->setTextFormat(Qt::PlainText);
    box->setTextInteractionFlags(Qt::NoTextInteraction);
    box->setIcon(IconOf(style));
    box->setWindowTitle(QString::fromStdString(title));
    box->setText(QString::fromStdString(text));
    AddButtons(*box, question);
    Enlarge(*box);
    const int pressed = box->exec();
    delete box.data();
    return pressed == QMessageBox::Yes ? button::Yes : otherwise;
}

}  // namespace corvanda
