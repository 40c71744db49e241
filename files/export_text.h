#pragma once

#include "core/action_record.h"
#include "core/saturation_curve.h"

#include <string>
#include <string_view>

/// The texts of the files for other programs that hold no sheet, in its code page. docs/data-formats.md tells
/// them line by line.

/// `savedAt`: the time of writing, as the log keeps times.
std::string historyText(const ActionRecord& log, std::string_view savedAt);
/// The number of taxa seen at each number of individuals up to that on show; totals without a point are left
/// out.
std::string saturationText(const SaturationCurve& curve, std::string_view sampleName);
