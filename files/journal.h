#pragma once

#include "core/sheet_tables.h"
#include "files/recovery_label.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The journal beside a recovery copy: after each key one line with what a count is now, between two copies.
/// A head tells what the lines under it go on from; each line proves itself, and one that does not is passed
/// over: as counts are told whole and not by their change, a later line makes up for it.
/// docs/data-formats.md tells the fields.

struct JournalHead {
    RecoveryLabel label;
    bool overCopy = false; ///< goes on from the recovery copy of that number; else from the sheet's own file,
                           ///< or from an empty sheet
};

/// One count as it is now.
struct JournalLine {
    std::string serial; ///< of the sample
    std::string name;   ///< of the sample, in the code page
    int slot = 0;       ///< 1 to 135
    std::int32_t count = 0;
    std::string clock; ///< date and time
};

std::string journalText(const JournalHead& head);
std::string journalText(const JournalLine& line, std::uint64_t number);

struct Journal {
    JournalHead head;
    std::vector<JournalLine> lines; ///< in the order in which they were written
};
/// `copy`: number of the copy beside it; only lines that go on from that one are read. Without a copy those
/// under the last head. Nothing if there is no such head.
std::optional<Journal> readJournal(std::string_view text, std::optional<std::uint64_t> copy);

struct BroughtCounts {
    std::int64_t individuals = 0; ///< by which the sheet differs now, more and fewer added up
    int lastSample = 0;           ///< column of the last line; 0: none
};
/// Puts the counts into a sheet. A sample is found by its serial number and name, else by its serial number;
/// one that the sheet lacks becomes a column of it as long as there is room.
BroughtCounts bringCounts(const std::vector<JournalLine>& lines, SheetTables& sheet);
