#pragma once

#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Fields that are separated by commas, semicolons or tabs, with quotation marks as RFC 4180 has them. CR, LF
/// and CR LF end a row. Fields have no blanks at their ends. Rows without a text are left out.
class PlainTable {
public:
    /// `text` must outlive the table.
    PlainTable(std::string_view text, char separator);

    int rows() const { return static_cast<int>(rows_.size()); }
    int fields(int row) const { return static_cast<int>(rows_[row].count); }
    /// `row` and `place` from 0; empty beyond the end of the row.
    std::string_view field(int row, int place) const
    {
        const Row& found = rows_[row];
        return static_cast<std::size_t>(place) < found.count ? fields_[found.first + place]
                                                             : std::string_view();
    }
    /// The row as a spreadsheet numbers it, from 1, the empty ones included.
    int number(int row) const { return rows_[row].number; }
    char separator() const { return separator_; }
    /// Number of the row in which a quotation mark opens that is never closed.
    std::optional<int> openQuote() const { return openQuote_; }

private:
    struct Row {
        int number;
        std::size_t first;
        std::size_t count;
    };
    std::string_view quotedField(std::string_view text, std::size_t& at, int row);
    void endRow(int number, std::size_t first);

    char separator_;
    std::vector<std::string_view> fields_;
    std::vector<Row> rows_;
    std::deque<std::string> unescaped_; ///< fields that do not stand in the text as they are
    std::optional<int> openQuote_;
};

/// Comma, semicolon or tab: what gives the most rows with an equal number of fields over the first 20 lines,
/// and of several the one that gives more fields. A comma where none parts a line.
char separatorOf(std::string_view text);
