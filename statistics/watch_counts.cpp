#include "statistics/watch_counts.h"

#include "core/sheet_state.h"
#include "statistics/laboratory.h"
#include "statistics/recount.h"
#include "statistics/statistics_form.h"
#include "statistics/statistics_line.h"
#include "statistics/target.h"

void watchCounts()
{
    if (sheet.SheetPath.empty() && !laboratory.path.empty()) // a new sheet
        laboratory = {};
    watchRecount();
    refreshStatisticsLine();
    watchTarget();
    watchStatisticsWindow();
}
