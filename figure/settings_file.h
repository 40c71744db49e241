#pragma once

#include "figure/figure_settings.h"
#include "platform/json.h"

/// Settings of a figure as they are kept beside the sheet; docs/data-formats.md tells the keys.

/// Writes all settings over those of `kept` (an object, or null); what else it holds stays.
Json settingsToJson(const FigureSettings& settings, Json kept);

struct ReadSettings {
    FigureSettings settings;
    std::vector<std::string> findings; ///< what was ignored, a sentence each
    bool foreign = false;              ///< no settings of a figure at all
};
/// What is missing, of the wrong kind or out of its limits stays as it is by default.
ReadSettings settingsFromJson(const Json& json);
