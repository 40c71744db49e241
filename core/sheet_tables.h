#pragma once

#include "core/sample_table.h"

#include <array>
#include <cstdint>
#include <string>

/// One taxon row. All fields are text, as they go into the file.
struct TaxonFields {
    std::string RowNumber;       ///< the slot number: a stable label of the row
    std::string KeyIndex;        ///< number of the key whose press counts this row, "1" to "135"
    std::string Subtotal1 = "0"; ///< "1" if the taxon belongs to the first subtotal
    std::string Subtotal2 = "0"; ///< "1" if the taxon belongs to the second subtotal
    std::string Name = "---";    ///< "---" for a row without a taxon

    friend bool operator==(const TaxonFields&, const TaxonFields&) = default;
};

/// Share of each taxon in the % basis of each sample, as a fraction. Index (sample, slot).
using ShareTable = SampleTable<float, taxonSlots + 1>;

/// What a file keeps of a sheet. Index (sample, slot) or (sample, row); sample 1 to SampleCount is a column
/// of the sheet. The member initialisers are an empty sheet with one sample.
struct SheetTables {
    SheetTables();

    // By sample. A table more has its line in forEachSampleTable() too (core/sheet_state_type.h).
    SampleTable<std::int32_t, taxonSlots + 1> Count; ///< may be negative; slot 0 is scratch of the % basis
    SampleTable<std::string, 3> SampleField; ///< row 0 place on the depth axis, 1 serial number, 2 name
    SampleTable<std::string, 1> SampleNote;  ///< row 0: the note, "---" if there is none
    SampleTable<std::string, 4> SampleStamp; ///< rows 1 created, 2 count start, 3 last modified
    SampleTable<std::string, infoItems + 1> AdditionalInfo; ///< row = item 1 to 6; column 0: the captions

    // By taxon.
    std::array<TaxonFields, taxonSlots + 1> TaxonRecord; ///< 0: the running subtotals of the sample on show
    std::array<int, taxonSlots + 1> KeyIndexOfRow;       ///< file row 1 to 135 -> key index
    std::array<int, taxonSlots + 1> RowOfKeyIndex;       ///< the inverse

    // Heads of the file's lines.
    std::array<std::array<std::string, 5>, 3> SheetHeader;                  ///< rows 1, 2, columns 1 to 4
    std::array<std::string, 5> NoteHeader;                                  ///< columns 1 to 4
    std::array<std::array<std::string, 5>, infoItems + 1> AdditionalHeader; ///< rows 1 to 6; column 4: label
    std::array<std::array<std::string, 5>, 4> DateHeader;                   ///< rows 1 to 3

    std::array<int, sampleColumns> SampleSerial{}; ///< column -> serial number, as last read
    std::array<int, sampleColumns> SerialSample{}; ///< serial number 0 to 255 -> column
    int FileGeneration = 3;      ///< layout of the file that was read last: 0 unknown, 1, 2, or 3 as written
    bool TemplateOpened = false; ///< that file is a template; not after a save, or an opening that failed
    int SampleCount = 1;         ///< samples in the sheet, 1 to 250
    int CurrentSample = 1;       ///< column on show and being counted
    int LatestSerial = 1;        ///< highest serial number in the sheet
};
