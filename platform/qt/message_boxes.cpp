#include "platform/qt/message_boxes.h"

#include "platform/qt/main_window.h"
#include "platform/qt/text.h"

#include <QAbstractButton>
#include <QMessageBox>

Answer MessageBoxes::ask(std::string_view text, std::string_view title, Buttons buttons, Icon icon)
{
    window_.present(); // the box is read against what the handler has done so far
    QMessageBox box(icon == Icon::question ? QMessageBox::Question : QMessageBox::Warning, shownText(title),
                    shownText(text),
                    buttons == Buttons::ok ? QMessageBox::Ok : QMessageBox::Yes | QMessageBox::No, &window_);
    if (buttons == Buttons::ok) {
        box.exec();
        return Answer::ok;
    }
    // A question may come while the hand plays on: no letter answers it, and Enter or Space leaves things as
    // they are.
    box.button(QMessageBox::Yes)->setText("Yes");
    box.button(QMessageBox::No)->setText("No");
    box.setDefaultButton(QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes ? Answer::yes : Answer::no;
}
