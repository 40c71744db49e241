#pragma once

#include "core/sheet_file.h"
#include "core/sheet_tables.h"

#include <vector>

/// Path of the file that holds the sheet; empty: none. A sheet begun from a template is not the template, and
/// one that was read in part is not its file.
std::string ownPath(const SheetFile& file);

/// What is on disk of a sheet, to tell what of it is not.
struct RecordedSheet {
    SampleTable<std::int32_t, taxonSlots + 1> counts;
    int samples = 0;
    std::uint64_t texts = 0;  ///< checksum of all that is no count and no stamp of counting or saving
    std::uint64_t stamps = 0; ///< checksum of those
    std::string path;         ///< of the sheet
    std::optional<Fingerprint> file;
};

RecordedSheet recordOf(const SheetTables& sheet, const SheetFile& file);

/// A count that is another one now.
struct ChangedCount {
    int sample = 0; ///< column
    int slot = 0;
};
std::vector<ChangedCount> changedCounts(const RecordedSheet& recorded, const SheetTables& sheet);
/// Names, texts, samples, taxa, or the file that the sheet belongs to.
bool isEdited(const RecordedSheet& recorded, const SheetTables& sheet, const SheetFile& file);
/// The one that the program begins with.
bool isEmptySheet(const RecordedSheet& recorded);
/// Nothing is another one now.
bool isSame(const RecordedSheet& recorded, const SheetTables& sheet, const SheetFile& file);
