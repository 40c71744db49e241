#pragma once

#include <cstdint>
#include <vector>

/// The saturation curve of the sample on show.
struct SaturationCurve {
    int DiversityNow = 0;                        ///< taxa with a count
    int DiversityTotal = 0;                      ///< individuals that the curve has reached, at most 32767
    std::vector<std::int16_t> DiversityCurve{0}; ///< at n individuals ten times the taxa seen; 0: no point
};
