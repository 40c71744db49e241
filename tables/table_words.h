#pragma once

#include <string>
#include <string_view>

/// What the head of a row or column says about it.
enum class TableWord {
    none,
    sample,
    depth,
    age,   ///< thickness too
    id,    ///< key too
    total, ///< sum too
    taxon  ///< name and species too
};

/// Capital or small. After "sample", "depth", "age", "thickness" and "taxon" something may follow that is no
/// letter, as in "Depth (cm)" and "sample_id".
TableWord wordOf(std::string_view head);
/// The same, but nothing may follow: "Sample 1" is the name of a sample.
TableWord wholeWordOf(std::string_view head);

/// In small letters; only those of ASCII change.
std::string smallLetters(std::string_view text);

/// A text as a data sheet can hold it: apostrophes for double quotation marks, blanks for line ends and other
/// control characters.
std::string cleanText(std::string_view text);

/// What a spreadsheet calls a column: 1 is "A", 28 is "AB".
std::string columnLetters(int column);
