#pragma once

#include "platform/ports.h"

#include <QDate>
#include <QTimer>

/// Local time, with the date in the system's short form but always four digits of the year. A system without
/// a form of its own gets dd/mm/yyyy, as the data sheets say.
class SystemClock : public Clock {
public:
    Moment now() override;

private:
    QDate day_;
    std::string dayText_; ///< of day_: composing it costs more than the rest of a key press
};

/// A one-shot timer of the event loop. `whenDone` runs its handler.
class EventLoopTimer : public OneShotTimer {
public:
    template <class Handler>
    explicit EventLoopTimer(Handler whenDone)
    {
        timer_.setSingleShot(true);
        timer_.setTimerType(Qt::PreciseTimer);
        QObject::connect(&timer_, &QTimer::timeout, whenDone);
    }
    void start(int milliseconds) override { timer_.start(milliseconds); }
    void stop() override { timer_.stop(); }

private:
    QTimer timer_;
};
