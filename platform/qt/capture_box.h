#pragma once

#include <QLineEdit>
#include <functional>

class MainWindow;

/// A box that takes the keys themselves: whatever is pressed in it, Tab, Enter, Esc, arrows and shortcuts
/// included, reaches its handlers and nothing else. KeyInput hands it each key once, however long it is held.
/// It is entered by the mouse: Tab would get in and never out again.
class CaptureBox : public QLineEdit {
public:
    struct Handlers {
        std::function<void(int keyCode)> keyDown;
        std::function<void(char32_t character)> keyPress;
        std::function<void(int keyCode)> keyUp;
    };
    CaptureBox(MainWindow& main, Handlers handlers);

    /// `typed`: what the key types, empty if nothing.
    void keyWentDown(int keyCode, const QString& typed);
    void keyCameUp(int keyCode);

protected:
    bool event(QEvent* event) override;

private:
    MainWindow& main_;
    Handlers handlers_;
};
