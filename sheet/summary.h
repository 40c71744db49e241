#pragma once

#include "platform/controls.h"

/// "Summary": the taxa of the sample on show, ranked by their counts.
struct SummaryForm {
    bool visible = false;
    TextBox Text1; ///< one taxon a line, and "---" after the last
};
extern SummaryForm frmSummary;

/// Ranks the counts above 0, the largest first. Taxa of equal counts follow in the order of their slots, each
/// with a rank of its own.
void LaunchSummary();
/// Closing by any means.
void frmSummary_Unload();
