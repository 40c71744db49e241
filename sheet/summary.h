#pragma once

#include "platform/controls.h"

#include <vector>

/// "Summary": the taxa of the sample on show, ranked by their counts.
struct SummaryForm {
    bool visible = false;
    TextBox Text1; ///< one taxon a line, and "---" after the last
};
extern SummaryForm frmSummary;

/// Slots of the taxa of the sample on show with counts above 0, the largest first; taxa of equal counts in
/// the order of their slots.
std::vector<int> rankedTaxa();
/// Shows the ranking. Taxa of equal counts have a rank each.
void LaunchSummary();
/// Closing by any means.
void frmSummary_Unload();
