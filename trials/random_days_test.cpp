#include "trials/days/session.h"

#include <gtest/gtest.h>

/// A short one of the sessions that trials/days/random_days.cpp makes as long as wanted.
TEST(RandomDays, leaveTheProgramSound)
{
    for (const unsigned seed : {1U, 2U, 3U}) {
        Session session(seed);
        for (int step = 1; step <= 2000; ++step)
            ASSERT_NO_THROW(session.step()) << "random_days " << seed << " " << step;
    }
}
