#include "statistics/watch_counts.h"

#include "statistics/statistics_line.h"
#include "statistics/target.h"

void watchCounts()
{
    refreshStatisticsLine();
    watchTarget();
}
