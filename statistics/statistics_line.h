#pragma once

#include "platform/controls.h"
#include "statistics/basis_counts.h"

#include <array>
#include <string>
#include <string_view>

/// The line under the sums of the main window: what the sample on show is worth so far, of the % basis and of
/// the taxon counted last. It is off until it is asked for.
struct StatisticsLine {
    StatisticsLine();

    MenuEntry mnuStatisticsLine;           ///< checked while the line is on
    Label Label1;                          ///< the line; empty where there is nothing to say
    double halfWidth = 1;                  ///< of the limits that "more" counts up to, percent
    std::array<MenuEntry, 6> mnuHalfWidth; ///< pop-up of the line, an entry for each of halfWidths
};
extern StatisticsLine statisticsLine;

/// Half-widths that a click on the line offers, percent.
constexpr std::array<double, 6> halfWidths = {0.5, 1, 2, 3, 5, 10};

/// The text of the line. `slot`: the taxon counted last, 0 if there is none; `name`: its name. Empty below
/// 20 individuals and if a count is negative.
std::string statisticsLineText(const BasisCounts& counts, int slot, std::string_view name, double halfWidth);

void mnuStatisticsLine_Click();
/// A press on the line: true, its pop-up opens.
bool StatisticsLine_MouseDown(int index, bool rightButton);
void mnuHalfWidth_Click(int index);
void chooseHalfWidth(double percent);
/// Brings the text up to date with the sheet; does nothing while the line is off.
void refreshStatisticsLine();
