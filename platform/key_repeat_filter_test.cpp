#include "platform/key_repeat_filter.h"

#include <gtest/gtest.h>

#include <ostream>
#include <vector>

namespace keycodes {

void PrintTo(const KeyEvent& event, std::ostream* out)
{
    *out << (event.isDown ? "down " : "up ") << event.code;
}

} // namespace keycodes

namespace {

using keycodes::KeyEvent;
using keycodes::KeyRepeatFilter;
using Log = std::vector<KeyEvent>;

constexpr std::uint32_t keyA = 38, keypadOne = 87;

KeyEvent downOf(int code)
{
    return {code, true};
}

KeyEvent upOf(int code)
{
    return {code, false};
}

/// Feeds a filter and writes down all that comes out.
class KeyRepeatFilterTest : public testing::Test {
protected:
    void down(std::uint32_t key, int code, std::uint64_t time, bool marked = false)
    {
        take(filter.down({key, code, time, marked}));
    }
    void up(std::uint32_t key, int code, std::uint64_t time, bool marked = false)
    {
        take(filter.up({key, code, time, marked}));
    }
    void flush() { take(filter.flush()); }

    KeyRepeatFilter filter;
    Log log;

private:
    void take(const KeyRepeatFilter::Events& events) { log.insert(log.end(), events.begin(), events.end()); }
};

TEST_F(KeyRepeatFilterTest, AReleaseComesOutOnFlushAndOnlyOnce)
{
    down(keyA, 65, 100);
    up(keyA, 65, 180);
    EXPECT_TRUE(filter.hasPending());
    EXPECT_EQ(log, Log{downOf(65)});
    flush();
    flush();
    EXPECT_FALSE(filter.hasPending());
    EXPECT_EQ(log, (Log{downOf(65), upOf(65)}));
}

TEST_F(KeyRepeatFilterTest, RepeatsMarkedAndUnmarkedAreDownsWithoutUps)
{
    down(keyA, 65, 100);
    up(keyA, 65, 600, true);
    down(keyA, 65, 600, true);
    up(keyA, 65, 640);
    down(keyA, 65, 640);
    up(keyA, 65, 700);
    flush();
    EXPECT_EQ(log, (Log{downOf(65), downOf(65), downOf(65), upOf(65)}));
}

TEST_F(KeyRepeatFilterTest, QuickPressesOfOneKeyStaySeparate)
{
    down(keyA, 65, 100);
    up(keyA, 65, 130);
    down(keyA, 65, 131);
    EXPECT_EQ(log, (Log{downOf(65), upOf(65), downOf(65)}));
}

TEST_F(KeyRepeatFilterTest, EventsWithoutTimeAreNeverARepeat)
{
    down(keyA, 65, 0);
    up(keyA, 65, 0);
    down(keyA, 65, 0);
    EXPECT_EQ(log, (Log{downOf(65), upOf(65), downOf(65)}));
}

TEST_F(KeyRepeatFilterTest, AnotherKeyLetsTheReleaseOutFirst)
{
    down(keyA, 65, 100);
    up(keyA, 65, 150);
    down(39, 83, 150);
    up(39, 83, 170);
    up(40, 68, 170, true);
    EXPECT_EQ(log, (Log{downOf(65), upOf(65), downOf(83), upOf(83)}));
}

TEST_F(KeyRepeatFilterTest, AKeyKeepsTheCodeOfItsPressUntilItIsReleased)
{
    down(keypadOne, 97, 100);
    up(keypadOne, 35, 500);
    down(keypadOne, 35, 500);
    down(keypadOne, 35, 540, true);
    up(keypadOne, 35, 600);
    flush();
    down(keypadOne, 35, 700);
    EXPECT_EQ(log, (Log{downOf(97), downOf(97), downOf(97), upOf(97), downOf(35)}));
}

TEST_F(KeyRepeatFilterTest, KeysWithOneCodeAreFollowedEachForItself)
{
    down(50, 16, 100);
    down(62, 16, 110);
    up(50, 16, 200);
    down(62, 16, 200);
    EXPECT_EQ(log, (Log{downOf(16), downOf(16), upOf(16), downOf(16)}));
}

TEST_F(KeyRepeatFilterTest, AReleaseWhosePressWasNotSeenIsDropped)
{
    up(keyA, 65, 100);
    flush();
    down(keypadOne, 97, 200);
    filter.forget();
    up(keypadOne, 97, 300);
    up(5000, 70, 500);
    flush();
    EXPECT_EQ(log, (Log{downOf(97)}));
}

} // namespace
