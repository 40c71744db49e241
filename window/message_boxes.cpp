#include "window/message_boxes.h"

#include "core/sheet_state.h"
#include "platform/qt/text.h"
#include "window/main_window.h"

#include <QAbstractButton>
#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QOperatingSystemVersion>
#include <QPushButton>
#include <QStandardPaths>

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

/// Beside the sheet, else where a dialog was left last, else among the user's documents.
QString MessageBoxes::startFolder() const
{
    const QFileInfo sheetFile(QString::fromStdString(sheet.SheetPath));
    if (!sheet.SheetPath.empty() && sheetFile.isAbsolute() && sheetFile.dir().exists())
        return sheetFile.path();
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return !lastFolder_.isEmpty() ? lastFolder_ : QDir(documents).exists() ? documents : QDir::homePath();
}

std::optional<std::string> MessageBoxes::run(QFileDialog& dialog)
{
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    const QString chosen = dialog.selectedFiles().constFirst(); // its folder may have been typed, too
    lastFolder_ = QFileInfo(chosen).isDir() ? chosen : QFileInfo(chosen).path();
    return nativePath(chosen);
}

/// `ending`: of a name that is typed without a point.
std::optional<std::string> MessageBoxes::choosePathToSave(std::string_view title, const QString& proposed,
                                                          const QString& kind, const char* ending)
{
    window_.present();
    const QFileInfo file(proposed);
    QFileDialog dialog(windowInFront(), shownText(title),
                       file.isAbsolute() && file.dir().exists() ? file.path() : startFolder(), kind);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(ending);
    dialog.selectFile(file.fileName());
    return run(dialog);
}

std::optional<std::string> MessageBoxes::choosePathToRead(std::string_view title, const QString& kind)
{
    window_.present();
    QFileDialog dialog(windowInFront(), shownText(title), startFolder(), kind);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return run(dialog);
}

std::optional<std::string> MessageBoxes::chooseFileToSave(std::string_view title, const std::string& proposed)
{
    return choosePathToSave(title, proposed.empty() ? "Untitled.csv" : QString::fromStdString(proposed),
                            dataFiles, "csv");
}

std::optional<std::string> MessageBoxes::chooseFileToOpen()
{
    return choosePathToRead("Open data sheet or template", dataFiles);
}

std::optional<std::string> MessageBoxes::chooseTableToOpen(std::string_view title)
{
    return choosePathToRead(title, "Tables and lists(*.csv *.txt *.tsv *.tab);;All files(*)");
}

std::optional<std::string> MessageBoxes::chooseFolder(std::string_view title)
{
    window_.present();
    QFileDialog dialog(windowInFront(), shownText(title), startFolder());
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    return run(dialog);
}

/// The formats of pictures. The dialog of Windows adds the ending of the chosen kind
/// behind any other that Windows has no program for: there each format is a kind of its own.
static QString pictureKinds(const QStringList& endings)
{
    if (QOperatingSystemVersion::currentType() != QOperatingSystemVersion::Windows)
        return "Picture(*." + endings.join(" *.") + ")";
    QStringList kinds;
    for (const QString& ending : endings)
        kinds += ending.toUpper() + "(*." + ending + ")";
    return kinds.join(";;");
}

std::optional<std::string> MessageBoxes::choosePictureToSave(const std::string& proposed)
{
    return choosePathToSave("Save picture", QString::fromStdString(proposed),
                            pictureKinds({"svg", "pdf", "png"}), "svg");
}

std::optional<std::string> MessageBoxes::chooseFigureToSave(const std::string& proposed)
{
    return choosePathToSave("Save picture", QString::fromStdString(proposed),
                            pictureKinds({"pdf", "svg", "png", "tif"}), "pdf");
}

std::optional<std::string> MessageBoxes::choosePagesToSave(const std::string& proposed)
{
    return choosePathToSave("Save pages for printing", QString::fromStdString(proposed), "Pages(*.pdf)",
                            "pdf");
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
