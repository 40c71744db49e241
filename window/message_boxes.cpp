#include "window/message_boxes.h"

#include "platform/qt/text.h"
#include "window/main_window.h"

#include <QAbstractButton>
#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

static std::optional<std::string> chosen(const QString& path)
{
    return path.isEmpty() ? std::nullopt : std::optional(path.toStdString());
}

static const QString dataFiles = "DataFile(*.csv)";

/// The window that the user looks at: a box above another one would bring that one forward. For a moment
/// after a dialog no window has the keyboard; a message that follows it belongs where the dialog was.
QWidget* MessageBoxes::windowInFront()
{
    if (QWidget* const active = QApplication::activeWindow())
        lastInFront_ = active;
    return lastInFront_ != nullptr && lastInFront_->isVisible() ? lastInFront_.data() : &window_;
}

Answer MessageBoxes::ask(std::string_view text, std::string_view title, Buttons buttons, Icon icon)
{
    window_.present(); // the box is read against what the handler has done so far
    constexpr QMessageBox::Icon pictures[] = {QMessageBox::Warning, QMessageBox::Question,
                                              QMessageBox::Information};
    QMessageBox box(pictures[static_cast<int>(icon)], shownText(title), shownText(text),
                    QMessageBox::NoButton, windowInFront());
    // A question may come while the hand plays on: no letter answers it, and Enter, Space and Esc never lose
    // anything.
    struct Choice {
        QMessageBox::StandardButton button;
        const char* text;
        Answer answer;
    };
    const QList<Choice> choices =
        buttons == Buttons::ok ? QList<Choice>{{QMessageBox::Ok, "OK", Answer::ok}}
        : buttons == Buttons::yesNo
            ? QList<Choice>{{QMessageBox::Yes, "Yes", Answer::yes}, {QMessageBox::No, "No", Answer::no}}
            : QList<Choice>{{QMessageBox::Yes, "Yes", Answer::yes},
                            {QMessageBox::No, "No", Answer::no},
                            {QMessageBox::Cancel, "Cancel", Answer::cancel}};
    for (const Choice& choice : choices)
        box.addButton(choice.button)->setText(choice.text);
    box.setDefaultButton(choices.back().button);
    box.setEscapeButton(choices.back().button);
    const int pressed = box.exec();
    for (const Choice& choice : choices)
        if (choice.button == pressed)
            return choice.answer;
    return choices.back().answer;
}

std::optional<std::string> MessageBoxes::chooseFileToSave(const std::string& proposed)
{
    window_.present();
    return chosen(
        QFileDialog::getSaveFileName(windowInFront(), "Save", QString::fromStdString(proposed), dataFiles));
}

std::optional<std::string> MessageBoxes::chooseFileToOpen()
{
    window_.present();
    return chosen(QFileDialog::getOpenFileName(windowInFront(), "Open", {}, dataFiles));
}

std::optional<std::string> MessageBoxes::choosePictureToSave(const std::string& proposed)
{
    return choosePicture(proposed, "Picture(*.svg *.pdf *.png)", "svg");
}

std::optional<std::string> MessageBoxes::chooseFigureToSave(const std::string& proposed)
{
    return choosePicture(proposed, "Picture(*.pdf *.svg *.png *.tif)", "pdf");
}

std::optional<std::string> MessageBoxes::choosePicture(const std::string& proposed, const QString& kinds,
                                                       const QString& ending)
{
    window_.present();
    QFileDialog dialog(windowInFront(), "Save picture", {}, kinds);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(ending);
    dialog.selectFile(QString::fromStdString(proposed));
    return dialog.exec() == QDialog::Accepted ? chosen(dialog.selectedFiles().value(0)) : std::nullopt;
}

std::optional<Colour> MessageBoxes::chooseColour(Colour current)
{
    window_.present();
    const QColor chosenColour =
        QColorDialog::getColor(QColor(current.red, current.green, current.blue), windowInFront(), "Colour");
    if (!chosenColour.isValid())
        return std::nullopt;
    return RGB(static_cast<std::uint8_t>(chosenColour.red()), static_cast<std::uint8_t>(chosenColour.green()),
               static_cast<std::uint8_t>(chosenColour.blue()));
}
