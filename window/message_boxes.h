#pragma once

#include "platform/ports.h"

#include <QPointer>
#include <QWidget>

class MainWindow;
class QFileDialog;

/// The program's message boxes and file dialogs, above the window in front.
class MessageBoxes : public Dialogs {
public:
    explicit MessageBoxes(MainWindow& window) : window_(window) {}
    Answer ask(std::string_view text, std::string_view title, Buttons buttons, Icon icon) override;
    std::optional<std::string> chooseFileToSave(std::string_view title, const std::string& proposed) override;
    std::optional<std::string> chooseFileToOpen() override;
    std::optional<std::string> chooseTableToOpen(std::string_view title) override;
    std::optional<std::string> chooseFolder(std::string_view title) override;
    std::optional<std::string> choosePictureToSave(const std::string& proposed) override;
    std::optional<std::string> chooseFigureToSave(const std::string& proposed) override;
    std::optional<std::string> choosePagesToSave(const std::string& proposed) override;
    std::optional<Colour> chooseColour(Colour current) override;

private:
    QWidget* windowInFront();
    QString startFolder() const;
    std::optional<std::string> run(QFileDialog& dialog);
    std::optional<std::string> choosePathToRead(std::string_view title, const QString& kind);
    std::optional<std::string> choosePathToSave(std::string_view title, const QString& proposed,
                                                const QString& kind, const char* ending);

    MainWindow& window_;
    QString lastFolder_; ///< where a file dialog was left in this run
    QPointer<QWidget> lastInFront_;
};
