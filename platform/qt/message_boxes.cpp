#include "platform/qt/message_boxes.h"

#include "platform/qt/main_window.h"
#include "platform/qt/text.h"

#include <QMessageBox>

Answer MessageBoxes::ask(std::string_view text, std::string_view title, Buttons buttons, Icon icon)
{
    window_.present(); // the box is read against what the handler has done so far
    QMessageBox box(icon == Icon::question ? QMessageBox::Question : QMessageBox::Warning, shownText(title),
                    shownText(text), buttons == Buttons::ok ? QMessageBox::Ok : QMessageBox::Yes | QMessageBox::No,
                    &window_);
    if (buttons == Buttons::ok) {
        box.exec();
        return Answer::ok;
    }
    box.setEscapeButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes ? Answer::yes : Answer::no;
}
