#pragma once

#include "window/form_window.h"

/// A window with a text and a button that closes it.
class AboutWindow : public FormWindow {
protected:
    AboutWindow(MainWindow& main, const char* name, const QString& title, void (*closeIt)());

    QLabel* text_;
};

class AboutAppWindow : public AboutWindow {
public:
    explicit AboutAppWindow(MainWindow& main);

protected:
    void presentMore() override;
};

class AboutKeypadWindow : public AboutWindow {
public:
    explicit AboutKeypadWindow(MainWindow& main);
};
