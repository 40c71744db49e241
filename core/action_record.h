#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// The log of all actions. Entry 0 is the start.
struct ActionRecord {
    std::vector<std::string> ActionText;
    std::vector<std::string> ActionTime;
    std::int32_t ActionCount = 0; ///< index of the last entry
};
