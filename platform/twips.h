#pragma once

/// Places and sizes of windows and controls are kept in twips.
constexpr int twipsPerPixel = 15; ///< at the design size
