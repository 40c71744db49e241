#pragma once

#include "platform/ports.h"

class MainWindow;

/// The program's message boxes, above its main window.
class MessageBoxes : public Dialogs {
public:
    explicit MessageBoxes(MainWindow& window) : window_(window) {}
    Answer ask(std::string_view text, std::string_view title, Buttons buttons, Icon icon) override;

private:
    MainWindow& window_;
};
