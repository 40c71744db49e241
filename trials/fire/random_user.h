#pragma once

#include "trials/fire/trial.h"
#include "trials/x_hand.h"

#include <chrono>
#include <random>

/// Whoever types fast, clicks anywhere, opens and closes whatever there is, resizes and walks away, through
/// the X server alone. Now and then they come to rest and look whether all is as it should be.
class RandomUser {
public:
    RandomUser(unsigned seed, int seconds) : random_(seed), end_(Clock::now() + std::chrono::seconds(seconds))
    {
    }

    void live();
    long keys = 0, clicks = 0, menus = 0, resizes = 0, losses = 0, rests = 0;
    double slowestKey = 0; ///< milliseconds from the X server to the total on show

private:
    using Clock = std::chrono::steady_clock;
    std::mt19937 random_;
    Clock::time_point end_;
    XHand hand_;
    int dayOfLines_ = 0;

    int number(int from, int to) { return std::uniform_int_distribution<>(from, to)(random_); }
    bool chance(int percent) { return number(1, 100) <= percent; }

    void doSomething();
    int anyKey();
    /// 30 keys a second; each is held for a while, so that up to four are down at once.
    void type(int milliseconds);
    void clickAbout(const Seen& seen);
    void openFromMenu();
    void answerFileDialog();
    void resize(const Seen& seen);
    void loseKeyboard();
    /// Lets everything go, closes what is open, and looks whether the window counts as it did at the start.
    void comeToRest();
    /// A key counts one, or asks about an older sample.
    void tryOneKey(const Seen& before);
    /// File, Quit, Yes.
    void endDay();
};
