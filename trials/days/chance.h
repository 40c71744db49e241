#pragma once

#include <iterator>
#include <random>

/// What is left to chance in a random session. The same seed gives the same on every computer.
class Chance {
public:
    explicit Chance(unsigned seed) : engine_(seed) {}

    /// 0 to limit - 1.
    int below(int limit) { return static_cast<int>(engine_() % static_cast<unsigned>(limit)); }
    int between(int lowest, int highest) { return lowest + below(highest - lowest + 1); }
    bool oneIn(int times) { return below(times) == 0; }
    /// 0 up to but not 1.
    float fraction() { return static_cast<float>(below(1 << 20)) / (1 << 20); }
    template <class List>
    const auto& oneOf(const List& list)
    {
        return *std::next(std::begin(list), below(static_cast<int>(std::size(list))));
    }

private:
    std::mt19937 engine_;
};
