#include "figure/figure_settings.h"

#include <array>

using S = FigureSettings;

const std::vector<NumberSetting> numberSettings = {
    {"width", &S::width, 30, 1200, "mm", "Width", SettingsGroup::page},
    {"height", &S::height, 30, 1200, "mm", "Height", SettingsGroup::page},
    {"left", &S::left, 0, 100, "mm", "Left margin", SettingsGroup::page},
    {"right", &S::right, 0, 100, "mm", "Right margin", SettingsGroup::page},
    {"top", &S::top, 0, 100, "mm", "Top margin", SettingsGroup::page},
    {"bottom", &S::bottom, 0, 100, "mm", "Bottom margin", SettingsGroup::page},
    {"pad", &S::pad, 0, 20, "mm", "Above and below samples", SettingsGroup::page},
    {"threshold", &S::threshold, 0, 100, "%", "Share of at least", SettingsGroup::taxa},
    {"name_points", &S::namePoints, 6, 14, "pt", "Letters of names", SettingsGroup::taxa},
    {"name_angle", &S::nameAngle, 30, 90, "\xC2\xB0", "Angle of names", SettingsGroup::taxa},
    {"gap", &S::gap, 0, 20, "mm", "Gap after each", SettingsGroup::taxa},
    {"exaggeration", &S::exaggeration, 0, 100, "times", "Exaggeration", SettingsGroup::style},
    {"below", &S::below, 0, 100, "%", "of taxa below", SettingsGroup::style},
    {"step", &S::step, 1, 50, "%", "Axes end at multiples of", SettingsGroup::axes},
    {"min_percent", &S::minPercent, 1, 100, "%", "Axes show at least", SettingsGroup::axes},
    {"label_room", &S::labelRoom, 2, 50, "mm", "Between percent labels", SettingsGroup::axes},
    {"axis", &S::axis, 8, 80, "mm", "Room for depths", SettingsGroup::axes},
    {"depth_step", &S::depthStep, 0, 1e6, "", "Step of depth labels", SettingsGroup::axes},
    {"axis2", &S::axis2, 8, 80, "mm", "Room for ages", SettingsGroup::axes},
    {"age_step", &S::ageStep, 0, 1e6, "", "Step of age labels", SettingsGroup::axes},
    {"panel_gap", &S::panelGap, 0, 30, "mm", "Gap before each", SettingsGroup::panels},
    {"cumulative", &S::cumulative, 0, 200, "mm", "Sum of groups", SettingsGroup::panels},
    {"total", &S::total, 0, 200, "mm", "Sums of individuals", SettingsGroup::panels},
    {"concentration", &S::concentration, 0, 200, "mm", "Concentration", SettingsGroup::panels},
    {"zones", &S::zones, 0, 200, "mm", "Names of zones", SettingsGroup::panels},
    {"dendrogram", &S::dendrogram, 0, 200, "mm", "Dendrogram", SettingsGroup::panels},
};

Colour groupColour(std::size_t index)
{
    constexpr std::array<Colour, 6> colours = {RGB(0x00, 0x9E, 0x73), RGB(0xE6, 0x9F, 0x00),
                                               RGB(0x56, 0xB4, 0xE9), RGB(0xCC, 0x79, 0xA7),
                                               RGB(0x00, 0x72, 0xB2), RGB(0xD5, 0x5E, 0x00)};
    return colours[index % colours.size()];
}
