#include "desktop/message_box.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFontMetrics>
#include <QGridLayout>
#include <QMessageBox>
#include <QStyle>
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

// A box that is narrower than its title has it cut by the window's frame. How wide the frame draws
// it only the desktop knows; most draw it bold, between an icon and up to three buttons.
void WidenToTitle(QMessageBox& box) {
    QFont bold = box.font();
    bold.setBold(true);
    const int buttons = 5 * box.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    const int title = QFontMetrics(bold).horizontalAdvance(box.windowTitle()) + buttons;
    auto* grid = qobject_cast<QGridLayout*>(box.layout());
    if (grid == nullptr) return;
    const QMargins margins = grid->contentsMargins();
    grid->addItem(new QSpacerItem(title - margins.left() - margins.right(), 0), grid->rowCount(), 0,
                  1, grid->columnCount());
}

}  // namespace

QtMessageBoxes::QtMessageBoxes(QtMousePointer& pointer) : pointer(pointer) {
    // A desktop's own box may show other texts and buttons than it was given.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

QWidget* QtMessageBoxes::Owner() const {
    // The desktop tells late which window is active; what is modal is known at once.
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    if (QWidget* active = QApplication::activeWindow()) return active;
    return main_window && main_window->isVisible() ? main_window.data() : nullptr;
}

Integer QtMessageBoxes::MsgBox(const std::string& text, Integer style, const std::string& title) {
    const bool question = style == style::QuestionYesNo;
    const Integer otherwise = question ? button::No : button::Ok;
    const QtMousePointer::Rest rest(pointer);
    // On the heap and watched: the window it stands over may be deleted, and the box with it, by a
    // handler that runs while it is open.
    QPointer<QMessageBox> box(new QMessageBox(Owner()));
    box->setObjectName(QStringLiteral("MsgBox"));
    box->setWindowModality(Qt::ApplicationModal);
    box->setTextFormat(Qt::PlainText);
    box->setTextInteractionFlags(Qt::NoTextInteraction);
    box->setIcon(IconOf(style));
    box->setWindowTitle(QString::fromStdString(title));
    box->setText(QString::fromStdString(text));
    AddButtons(*box, question);
    WidenToTitle(*box);
    const int pressed = box->exec();
    delete box.data();
    return pressed == QMessageBox::Yes ? button::Yes : otherwise;
}

}  // namespace corvanda
