#include "platform/key_repeat_filter.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

constexpr std::uint32_t keyA = 38, keyS = 39, keypadOne = 87, leftShift = 50, rightShift = 62;
constexpr bool down = true, up = false, marked = true;

struct Step {
    bool isDown;
    std::uint32_t key;
    int code;
    std::uint64_t time;
    bool repeat = false;
};

/// All that a filter lets out, and behind the stroke what it held back. +65: the key of code 65 went down.
std::string filtered(const std::vector<Step>& steps)
{
    keycodes::KeyRepeatFilter filter;
    std::string log;
    const auto take = [&log](const keycodes::KeyRepeatFilter::Events& events) {
        for (const keycodes::KeyEvent& event : events)
            log += (event.isDown ? "+" : "-") + std::to_string(event.code);
    };
    for (const auto& [isDown, key, code, time, repeat] : steps)
        take(isDown ? filter.down({key, code, time, repeat}) : filter.up({key, code, time, repeat}));
    log += filter.hasPending() ? "|" : "";
    take(filter.flush());
    EXPECT_FALSE(filter.hasPending());
    return log;
}

TEST(KeyRepeats, AreDownsWithoutUpsAndAllElseIsNot)
{
    const std::vector<Step> markedAndNot = {{down, keyA, 65, 100},         {up, keyA, 65, 600, marked},
                                            {down, keyA, 65, 600, marked}, {up, keyA, 65, 640},
                                            {down, keyA, 65, 640},         {up, keyA, 65, 700}};
    EXPECT_EQ(filtered(markedAndNot), "+65+65+65|-65");
    const std::vector<Step> quick = {{down, keyA, 65, 100}, {up, keyA, 65, 130}, {down, keyA, 65, 131}};
    EXPECT_EQ(filtered(quick), "+65-65+65");
    const std::vector<Step> withoutTime = {{down, keyA, 65, 0}, {up, keyA, 65, 0}, {down, keyA, 65, 0}};
    EXPECT_EQ(filtered(withoutTime), "+65-65+65");
    const std::vector<Step> anotherKey = {{down, keyA, 65, 100}, {up, keyA, 65, 150}, {down, keyS, 83, 150}};
    EXPECT_EQ(filtered(anotherKey), "+65-65+83");
    const std::vector<Step> bothShifts = {{down, leftShift, 16, 100},
                                          {down, rightShift, 16, 110},
                                          {up, leftShift, 16, 200},
                                          {down, rightShift, 16, 200}};
    EXPECT_EQ(filtered(bothShifts), "+16+16-16+16");
}

TEST(KeyRepeats, KeepTheCodeOfThePressUntilARelease)
{
    const std::vector<Step> numLockChanged = {{down, keypadOne, 97, 100}, {up, keypadOne, 35, 500},
                                              {down, keypadOne, 35, 500}, {down, keypadOne, 35, 540, marked},
                                              {up, keypadOne, 35, 600},   {down, keypadOne, 35, 700}};
    EXPECT_EQ(filtered(numLockChanged), "+97+97+97-97+35");
    const std::vector<Step> pressNotSeen = {{up, keyA, 65, 100}, {up, 5000, 70, 500}};
    EXPECT_EQ(filtered(pressNotSeen), "");
    const std::vector<Step> heldSinceElsewhere = {{down, keyA, 65, 100, marked},
                                                  {up, keyA, 65, 140},
                                                  {down, keyA, 65, 140},
                                                  {up, keyA, 65, 180},
                                                  {down, keyA, 65, 200}};
    EXPECT_EQ(filtered(heldSinceElsewhere), "+65");
    keycodes::KeyRepeatFilter filter;
    filter.down({keypadOne, 97, 200, false});
    filter.forget();
    filter.up({keypadOne, 97, 300, false});
    EXPECT_FALSE(filter.hasPending());
}

} // namespace
