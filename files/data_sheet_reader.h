#pragma once

#include "core/fields.h"
#include "core/sheet_tables.h"

#include <cstddef>
#include <optional>
#include <string_view>

/// Bytes of the largest file that is read as a data sheet; the fullest sheet takes less than a megabyte.
constexpr std::size_t sheetLimit = 256u << 20;

/// Makes the file rows and key indexes each other's inverse where a file left them otherwise: of rows with
/// the same key index the first keeps it, and those without one (0) get the indexes that no row has, with
/// what was read of them. The last row that was given an index; 0 if none was.
int completeKeyIndexes(SheetTables& tables);

/// The layout that the second field of a file tells: 1, 2, or 3 as written; 0 if it is none of them.
int fileGeneration(std::string_view tag);

/// A percentage table has no line of notes, so that of the dates comes in its place.
bool isPercentageTable(const SheetTables& tables);

/// Reads a data sheet, an older layout of one, or a template, into the tables of a sheet.
/// docs/data-formats.md tells the lines. The file is a stream of fields: lines mean nothing to the reader,
/// and position alone gives a field its meaning. The steps are called in this order, each once; a step
/// returns false at a read failure (the end of the file, a number or place out of range), and what it had
/// read until then stays in the tables.
class DataSheetReader {
public:
    /// `text` is in the code page and must outlive the reader.
    DataSheetReader(std::string_view text, SheetTables& tables) : fields_(text), sheet_(tables) {}

    /// Reads the path that the file was saved to, and empties the counts.
    bool readPath();
    /// The rest of line 1: heads, layout and serial numbers. They tell how many samples there are; 0 is a
    /// template. SampleCount and CurrentSample follow.
    bool readSerials();
    /// Line 2: names of the subtotals and samples.
    bool readNames();
    /// One of the 135 taxon lines, 1 to 135. It is kept under its key index.
    bool readTaxon(int row);
    /// The first key index that stands in two taxon lines.
    std::optional<int> repeatedKeyIndex() const;
    /// Makes a template a sheet with one sample, so that the steps that follow skip sample columns.
    void beginFromTemplate(std::string_view sampleName);
    /// Additional info, notes and dates, as far as the layout has them. What it has not is "---".
    bool readTexts();
    /// The line of the field read last; 1 is the first.
    int line() const { return line_; }

private:
    std::optional<std::string_view> next();
    bool readText(std::string& field);
    bool readNumber(std::int32_t lowest, std::int32_t highest, std::int32_t& number);
    bool readHead(std::array<std::string, 5>& head);
    bool readSamples(std::string& (*cell)(SheetTables&, int sample, int row), int row);
    int samplesInFile() const { return sheet_.TemplateOpened ? 0 : sheet_.SampleCount; }
    bool readAdditional();
    bool readNotes();
    bool readDates();

    FieldReader fields_;
    SheetTables& sheet_;
    int line_ = 0;
};

/// A data sheet, an older layout of one, or a template, in the code page, into fresh tables. False if it ends
/// early or a key index stands twice in it; the tables agree with one another then too.
bool readDataSheet(std::string_view text, SheetTables& tables);
