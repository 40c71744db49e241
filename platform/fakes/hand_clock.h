#pragma once

#include "platform/ports.h"

/// A clock that stands until a test sets it.
class HandClock : public Clock {
public:
    Moment moment{"15/11/2026", 14, 5, 9, 274};

    Moment now() override { return moment; }
};

/// A timer that a test lets run out by hand.
class HandTimer : public OneShotTimer {
public:
    int milliseconds = 0; ///< 0: not running
    int starts = 0;

    void start(int interval) override
    {
        milliseconds = interval;
        ++starts;
    }
    void stop() override { milliseconds = 0; }
};
