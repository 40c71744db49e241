#pragma once

#include "platform/ports.h"

#include <QPointer>
#include <QWidget>

class MainWindow;

/// The program's message boxes and file dialogs, above the window in front.
class MessageBoxes : public Dialogs {
public:
    explicit MessageBoxes(MainWindow& window) : window_(window) {}
    Answer ask(std::string_view text, std::string_view title, Buttons buttons, Icon icon) override;
    std::optional<std::string> chooseFileToSave(const std::string& proposed) override;
    std::optional<std::string> chooseFileToOpen() override;
    std::optional<std::string> choosePictureToSave(const std::string& proposed) override;
    std::optional<std::string> chooseFigureToSave(const std::string& proposed) override;
    std::optional<Colour> chooseColour(Colour current) override;

private:
    QWidget* windowInFront();
    std::optional<std::string> choosePicture(const std::string& proposed, const QString& kinds,
                                             const QString& ending);

    MainWindow& window_;
    QPointer<QWidget> lastInFront_;
};
