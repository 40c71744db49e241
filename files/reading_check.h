#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// Why a file is no whole data sheet. The reader itself takes one field after the other and knows nothing of
/// lines, so what stands behind a line with other than the expected fields would be counts of wrong taxa.

/// The first line that is not as a data sheet has it.
struct LineFault {
    int line = 1;          ///< 1 for the first
    int fields = 0;        ///< that it has
    int expected = 0;      ///< that it should have; 0: it is not even a first line
    std::size_t begin = 0; ///< of the line in the text
    bool ends = false;     ///< the text ends with it, before a data sheet is complete
};

/// `text`: in the code page. Nothing for a data sheet, an older layout of one, a backup or a template.
std::optional<LineFault> firstLineFault(std::string_view text);

/// Whether a text can be read to its end as a data sheet or template. A percentage table can, but what it
/// holds is no counts.
enum class Contents { dataSheet, percentageTable, repeatedKeyIndex, other };
Contents contentsOf(std::string_view text);

/// The line at the foot for a file that was read in part.
std::string tellFault(std::string_view text, const LineFault& fault);
/// The same where all lines have their fields.
std::string tellUnreadLine(int line);
