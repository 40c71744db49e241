#include "statistics/stat_table.h"

#include <algorithm>
#include <cmath>

void StatTable::fill(std::vector<Column> newColumns, std::vector<Row> newRows, std::string newBarsHead)
{
    columns = std::move(newColumns);
    rows = std::move(newRows);
    barsHead = std::move(newBarsHead);
    if (sortedBy >= static_cast<int>(columns.size()))
        sortedBy = -1;
    sort();
}

void StatTable::sortBy(int column)
{
    const bool again = sortedBy == column;
    descending = again ? !descending : !columns[column].isText;
    sortedBy = column;
    sort();
}

void StatTable::sort()
{
    ++revision;
    if (sortedBy < 0)
        return;
    const bool isText = columns[sortedBy].isText;
    std::stable_sort(rows.begin(), rows.end(), [&](const Row& one, const Row& other) {
        const Cell& a = one.cells[sortedBy];
        const Cell& b = other.cells[sortedBy];
        if (isText)
            return descending ? a.text > b.text : a.text < b.text;
        if (std::isnan(a.value) || std::isnan(b.value))
            return !std::isnan(a.value) && std::isnan(b.value);
        return descending ? a.value > b.value : a.value < b.value;
    });
}

double StatTable::reach() const
{
    double largest = 0;
    for (const Row& row : rows)
        for (const auto& bar : row.bars)
            if (bar)
                largest = std::max({largest, bar->value, bar->limits ? bar->limits->upper : 0});
    return largest;
}

std::string StatTable::tabbed() const
{
    std::string text;
    for (const Column& column : columns)
        text.append(text.empty() ? "" : "\t").append(column.head);
    for (const Row& row : rows) {
        text += "\r\n";
        for (std::size_t field = 0; field < row.cells.size(); ++field)
            text.append(field == 0 ? "" : "\t").append(row.cells[field].text);
    }
    return text;
}

StatTable::Cell cell(std::optional<double> value, std::string (*written)(double))
{
    return value ? StatTable::Cell{written(*value), *value} : StatTable::Cell{};
}
