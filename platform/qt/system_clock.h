#pragma once

#include "platform/ports.h"

#include <QDate>
#include <QLocale>
#include <QTimer>

/// A day in the locale's short form, but in Latin digits with four of the year, and with nothing but "/",
/// ".", "-" and blanks between them: a sheet outlives its century and is read everywhere. A system without a
/// form of its own gets dd/mm/yyyy, as the data sheets say.
std::string shortDate(const QLocale& locale, const QDate& day);

/// Local time.
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
