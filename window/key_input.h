#pragma once

#include "platform/key_repeat_filter.h"

#include <QObject>
#include <QSet>
#include <QTimer>
#include <memory>

class MainWindow;
class QKeyEvent;
class SystemKeys;

/// The way of real keys into the program. The main window's keys are seen before any widget of it: a key that
/// is bound goes no further, so it moves no focus, presses no button and opens no menu, and as the focus
/// rests on a widget without text input, no input method sees it. Ctrl and a letter is left to the shortcuts.
/// A capture box takes every key, and keeps it until it comes up: a key that is held while the focus goes on
/// to a button must not press it.
class KeyInput : public QObject {
public:
    explicit KeyInput(MainWindow& window);
    ~KeyInput() override;

protected:
    bool eventFilter(QObject* target, QEvent* event) override;

private:
    bool isForCounting(const QObject* target) const;
    bool isForDiagnosis(const QObject* target) const;
    keycodes::RawKey rawKey(const QKeyEvent& event, int code) const;
    bool takesKey(QKeyEvent& event);
    bool isCaptured(QKeyEvent& event);
    void deliver(const keycodes::KeyRepeatFilter::Events& events, int shift);
    void deliver(const keycodes::KeyEvent& key, int shift);
    void keyboardLost();

    MainWindow& window_;
    std::unique_ptr<SystemKeys> keys_;
    keycodes::KeyRepeatFilter repeats_;
    QSet<int> captured_;     ///< codes of the keys that went down in a capture box and are still down
    bool inDiagram_ = false; ///< the last key went to the diagram's window
    QTimer heldRelease_;     ///< a release waits this long for the press that would make it a repeat
};
