#pragma once

#include "statistics/limits.h"

#include <array>
#include <limits>
#include <optional>
#include <string>
#include <vector>

/// A table as the window shows it: texts, and what they are sorted by.
struct StatTable {
    struct Column {
        std::string head;
        std::string tip;     ///< how the column is computed, by whom, and where it does not hold
        bool isText = false; ///< stands to the left and is sorted as a text
    };
    struct Cell {
        std::string text;
        double value = std::numeric_limits<double>::quiet_NaN(); ///< of a number; none: sorted last
    };
    /// A share with its limits, as the column of pictures draws it. Fractions.
    struct Bar {
        double value = 0;
        std::optional<Limits> limits;
    };
    struct Row {
        std::vector<Cell> cells;
        std::array<std::optional<Bar>, 2> bars; ///< of the first and the second sample
    };

    std::vector<Column> columns;
    std::vector<Row> rows;
    std::string barsHead; ///< head of a column of pictures at the right end; empty: there is none
    int sortedBy = -1;    ///< column; -1: the order of the sheet
    bool descending = false;
    int revision = 0; ///< goes up with each change, so that a view need not compare

    /// Puts a new content in place; it is sorted as the old one was.
    void fill(std::vector<Column> newColumns, std::vector<Row> newRows, std::string newBarsHead = {});
    /// A click on a head: numbers fall, texts rise; the next click turns the order around.
    void sortBy(int column);
    /// The largest upper limit or share of the pictures; 0 if there is none.
    double reach() const;
    /// Lines of fields with tabs between them, the heads first: what a spreadsheet takes from the clipboard.
    std::string tabbed() const;

private:
    void sort();
};

/// A number with the text that shows it; nothing: an empty cell.
StatTable::Cell cell(std::optional<double> value, std::string (*written)(double));
