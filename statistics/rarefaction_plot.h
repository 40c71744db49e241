#pragma once

#include "platform/drawing.h"

#include <cstdint>
#include <span>
#include <vector>

/// The rarefaction curve of a sample beside its saturation curve, as it was counted.
/// `members`: counts of the % basis. `live`: at n individuals ten times the taxa seen, 0 for no point. The
/// drawing is in pixels of the design from the upper left corner; empty without individuals.
Drawing planRarefaction(std::span<const std::int32_t> members, const std::vector<std::int16_t>& live,
                        float width, float height);
