// Random days: sessions of whatever a user can do, by chance. After each event what must always be true is
// looked at.
//   random_days SEED STEPS
// A seed gives the same session each time, so a fault that is found can be found again.

#include "trials/days/session.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fputs("random_days SEED STEPS\n", stderr);
        return 2;
    }
    const auto seed = static_cast<unsigned>(std::strtoul(argv[1], nullptr, 10));
    const long steps = std::strtol(argv[2], nullptr, 10);
    const auto begin = std::chrono::steady_clock::now();
    Session session(seed);
    for (long step = 1; step <= steps; ++step) {
        try {
            session.step();
        } catch (const BrokenRule& broken) {
            std::printf("seed %u, step %ld: %s\nafter:\n", seed, step, broken.what());
            for (const std::string& event : session.latestEvents())
                std::printf("  %s\n", event.c_str());
            return 1;
        }
    }
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;
    std::printf("seed %u: %ld steps, %.0f a second\n", seed, steps,
                static_cast<double>(steps) / took.count());
    return 0;
}
