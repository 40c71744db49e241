#pragma once

#include "platform/qt/end_signals.h"
#include "platform/qt/figures.h"
#include "platform/qt/json_text.h"
#include "platform/qt/real_files.h"
#include "platform/qt/sdl_sound.h"
#include "platform/qt/system_clock.h"
#include "window/key_input.h"
#include "window/main_window.h"
#include "window/message_boxes.h"

/// The whole program on the real ports, started and on show. Needs a QApplication.
class Program {
public:
    /// `folder` holds "References" and "Sound files".
    explicit Program(const QString& folder);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    MainWindow& window() { return window_; }

private:
    void keepWork(void (*handler)());

    RealFiles files_;
    SdlSound sound_;
    SystemClock clock_;
    QtPictures pictures_;
    EventLoopTimer timer_;
    EventLoopTimer recoveryTimer_;
    EventLoopTimer journalTimer_;
    EventLoopTimer pauseTimer_;
    EventLoopTimer deadlineTimer_;
    EventLoopTimer statisticsTimer_;
    EventLoopTimer figureTimer_;
    QtJsonText json_;
    MainWindow window_;
    MessageBoxes dialogs_;
    KeyInput keys_;
    EndSignals ends_;
};
