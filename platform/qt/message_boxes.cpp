#include "platform/qt/message_boxes.h"

#include "platform/qt/main_window.h"
#include "platform/qt/text.h"

#include <QAbstractButton>
#include <QFileDialog>
#include <QMessageBox>

static std::optional<std::string> chosen(const QString& path)
{
    return path.isEmpty() ? std::nullopt : std::optional(path.toStdString());
}

static const QString dataFiles = "DataFile(*.csv)";

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

std::optional<std::string> MessageBoxes::chooseFileToSave(const std::string& proposed)
{
    window_.present();
    return chosen(
        QFileDialog::getSaveFileName(&window_, "Save", QString::fromStdString(proposed), dataFiles));
}

std::optional<std::string> MessageBoxes::chooseFileToOpen()
{
    window_.present();
    return chosen(QFileDialog::getOpenFileName(&window_, "Open", {}, dataFiles));
}
