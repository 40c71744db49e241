#pragma once

#include <QLineEdit>
#include <functional>

/// A box that takes the keys themselves: whatever is pressed in it, Tab, Enter, Esc, arrows and shortcuts
/// included, reaches its handlers and nothing else. KeyInput hands it each key once, however long it is held.
/// Tab only comes by: the box takes keys from a click on it, or from Enter or Space when it has the focus. In
/// the latter case one key is all, and Tab goes on. Once it has taken a key and that one is up, the focus
/// goes on to the box that its window names, in the way in which it came here.
class CaptureBox : public QLineEdit {
public:
    struct Key {
        int code;
        bool isDown;
        char32_t character; ///< what the key types; 0: nothing
    };
    CaptureBox();

    /// Who is told of the keys.
    void giveTo(std::function<void(const Key&)> taker) { taker_ = std::move(taker); }

    /// `next`: where the focus goes once a key is taken; nullptr: it stays, for another key; the box itself:
    /// it stays, and takes none.
    void goOnTo(std::function<QWidget*()> next) { next_ = std::move(next); }

    /// False while Tab has only come by.
    bool takesKeys() const { return !comesBy_; }
    /// Does a visit begin when the focus comes for this reason?
    static bool beginsVisit(Qt::FocusReason reason);

    /// `typed`: what the key types, empty if nothing.
    void keyWentDown(int keyCode, const QString& typed);
    void keyCameUp(int keyCode);

protected:
    bool event(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

private:
    void comeAnew(Qt::FocusReason reason);

    std::function<void(const Key&)> taker_ = [](const Key&) {};
    std::function<QWidget*()> next_ = [] { return nullptr; };
    bool comesBy_ = false;
    bool leavesAfterKey_ = false;
    int lastDown_ = 0;
};
