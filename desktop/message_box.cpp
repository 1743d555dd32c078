#include "desktop/message_box.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
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
    const int pressed = box->exec();
    delete box.data();
    return pressed == QMessageBox::Yes ? button::Yes : otherwise;
}

}  // namespace corvanda
