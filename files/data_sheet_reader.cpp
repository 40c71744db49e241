#include "files/data_sheet_reader.h"

#include "core/number_text.h"
#include "core/taxon_name.h"
#include "files/note_migration.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace {

constexpr int lastColumn = sampleColumns - 1;

int within16Bits(double number)
{
    return static_cast<int>(std::clamp(std::nearbyint(number), -32768.0, 32767.0));
}

std::string& infoCell(SheetTables& tables, int sample, int row)
{
    return tables.AdditionalInfo(sample, row);
}
std::string& noteCell(SheetTables& tables, int sample, int row)
{
    return tables.SampleNote(sample, row);
}
std::string& stampCell(SheetTables& tables, int sample, int row)
{
    return tables.SampleStamp(sample, row);
}
std::string& fieldCell(SheetTables& tables, int sample, int row)
{
    return tables.SampleField(sample, row);
}

} // namespace

int fileGeneration(std::string_view tag)
{
    return tag == "Saved:"                        ? 1
           : tag == "Last saved (dd/mm/yyyy):"    ? 2
           : tag == "Last modified (dd/mm/yyyy):" ? 3
                                                  : 0;
}

bool isPercentageTable(const SheetTables& tables)
{
    return tables.FileGeneration == 3 && tables.NoteHeader[4] == "Created:";
}

int completeKeyIndexes(SheetTables& tables)
{
    std::array<int, taxonSlots + 1> rowOf{};
    for (int row = 1; row <= taxonSlots; ++row) {
        int& first = rowOf[tables.KeyIndexOfRow[row]];
        if (first == 0)
            first = row;
    }
    int completed = 0;
    int missing = 0;
    for (int row = 1; row <= taxonSlots; ++row) {
        int& keyIndex = tables.KeyIndexOfRow[row];
        if (keyIndex != 0 && rowOf[keyIndex] == row)
            continue;
        do
            ++missing;
        while (rowOf[missing] != 0);
        tables.TaxonRecord[missing] = {decimalText(missing), decimalText(missing), "0", "0", noText};
        if (keyIndex == 0 && rowOf[0] == row) {
            std::swap(tables.TaxonRecord[missing].Name, tables.TaxonRecord[0].Name);
            tables.TaxonRecord[missing].Subtotal1 = tables.TaxonRecord[0].Subtotal1;
            tables.TaxonRecord[missing].Subtotal2 = tables.TaxonRecord[0].Subtotal2;
        }
        for (int sample = 0; sample <= tables.SampleCount; ++sample)
            tables.Count(sample, missing) =
                keyIndex == 0 && rowOf[0] == row ? std::exchange(tables.Count(sample, 0), 0) : 0;
        rowOf[missing] = row;
        keyIndex = missing;
        completed = row;
    }
    tables.KeyIndexOfRow[0] = tables.RowOfKeyIndex[0] = 0;
    for (int row = 1; row <= taxonSlots; ++row)
        tables.RowOfKeyIndex[tables.KeyIndexOfRow[row]] = row;
    return completed;
}

/// A quotation mark inside a field without them would end the field when the sheet is saved again.
static std::string heldText(std::string_view field)
{
    std::string text(field);
    std::replace(text.begin(), text.end(), '"', '\'');
    return text;
}

std::optional<std::string_view> DataSheetReader::next()
{
    if (fields_.atLineEnd())
        ++line_;
    return fields_.next();
}

bool DataSheetReader::readText(std::string& field)
{
    const auto text = next();
    if (text)
        field = heldText(*text);
    return text.has_value();
}

bool DataSheetReader::readNumber(std::int32_t lowest, std::int32_t highest, std::int32_t& number)
{
    const auto text = next();
    if (!text)
        return false;
    const double read = std::nearbyint(leadingNumber(*text));
    if (read < lowest || read > highest)
        return false;
    number = static_cast<std::int32_t>(read);
    return true;
}

bool DataSheetReader::readHead(std::array<std::string, 5>& head)
{
    for (int column = 1; column <= 4; ++column)
        if (!readText(head[column]))
            return false;
    return true;
}

bool DataSheetReader::readSamples(std::string& (*cell)(SheetTables&, int, int), int row)
{
    for (int sample = 1; sample <= samplesInFile(); ++sample)
        if (!readText(cell(sheet_, sample, row)))
            return false;
    return true;
}

bool DataSheetReader::readPath()
{
    sheet_.TemplateOpened = false;
    if (!readText(sheet_.SheetHeader[1][1]))
        return false; // an empty file costs no count
    for (int slot = 0; slot <= taxonSlots; ++slot)
        for (int sample = 0; sample <= sheet_.SampleCount; ++sample)
            sheet_.Count(sample, slot) = 0;
    return true;
}

bool DataSheetReader::readSerials()
{
    auto& head = sheet_.SheetHeader[1];
    if (!readText(head[2]) || !readText(head[3]) || !readText(head[4]))
        return false;
    if (head[4] != "Serial No." && !readText(head[4])) // one field more may stand there, and only one
        return false;
    sheet_.FileGeneration = fileGeneration(head[2]);

    // The serial numbers end at the first text that is no plain number; that is field 1 of line 2.
    int count = 0;
    double latest = -9999;
    sheet_.SampleSerial.fill(0);
    sheet_.SerialSample.fill(0);
    for (;;) {
        const auto field = next();
        if (!field)
            return false;
        const double serial = leadingNumber(*field);
        if (*field != plainDecimal(serial)) {
            sheet_.SheetHeader[2][1] = heldText(*field);
            break;
        }
        if (++count > lastColumn)
            return false;
        sheet_.SampleField(count, 1) = *field;
        sheet_.SampleSerial[count] = within16Bits(serial);
        if (serial >= 0 && serial <= lastColumn)
            sheet_.SerialSample[within16Bits(serial)] = count;
        latest = std::max(latest, serial);
    }
    sheet_.SampleCount = sheet_.CurrentSample = count;
    sheet_.LatestSerial = latest > -9999 ? within16Bits(latest) : 0;
    return true;
}

bool DataSheetReader::readNames()
{
    for (int column = 2; column <= 4; ++column)
        if (!readText(sheet_.SheetHeader[2][column]))
            return false;
    return readSamples(fieldCell, 2);
}

bool DataSheetReader::readTaxon(int row)
{
    constexpr std::int32_t lowest = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t highest = std::numeric_limits<std::int32_t>::max();
    std::int32_t keyIndex = 0;
    std::int32_t subtotal1 = 0;
    std::int32_t subtotal2 = 0;
    std::string name;
    if (!readNumber(0, taxonSlots, keyIndex))
        return false;
    sheet_.KeyIndexOfRow[row] = keyIndex;
    sheet_.RowOfKeyIndex[keyIndex] = row;
    if (!readNumber(lowest, highest, subtotal1) || !readNumber(lowest, highest, subtotal2) || !readText(name))
        return false;
    sheet_.TaxonRecord[keyIndex] = {decimalText(keyIndex), decimalText(keyIndex), decimalText(subtotal1),
                                    decimalText(subtotal2), name};
    for (int sample = 1; sample <= samplesInFile(); ++sample)
        if (!readNumber(lowest, highest, sheet_.Count(sample, keyIndex)))
            return false;
    return true;
}

std::optional<int> DataSheetReader::repeatedKeyIndex() const
{
    const auto& keyIndexes = sheet_.KeyIndexOfRow;
    for (int row = 2; row <= taxonSlots; ++row)
        if (std::find(keyIndexes.begin() + 1, keyIndexes.begin() + row, keyIndexes[row]) !=
            keyIndexes.begin() + row)
            return keyIndexes[row];
    return std::nullopt;
}

void DataSheetReader::beginFromTemplate(std::string_view sampleName)
{
    sheet_.TemplateOpened = true;
    sheet_.SampleCount = sheet_.CurrentSample = 1;
    sheet_.SampleField(1, 1) = "1";
    sheet_.SampleField(1, 2) = sampleName;
}

bool DataSheetReader::readTexts()
{
    for (int column = 1; column <= 3; ++column) {
        for (auto& head : sheet_.AdditionalHeader)
            head[column] = noText;
        for (auto& head : sheet_.DateHeader)
            head[column] = noText;
    }
    // No leftovers of the sheet before: neither what this layout has no lines for, nor what a template leaves
    // out.
    for (int sample = 1; sample <= sheet_.SampleCount; ++sample) {
        for (int item = 1; item <= infoItems; ++item)
            sheet_.AdditionalInfo(sample, item) = noText;
        sheet_.SampleNote(sample, 0) = noText;
        for (int date = 1; date <= 3; ++date)
            sheet_.SampleStamp(sample, date) = noText;
    }
    return readAdditional() && readNotes() && readDates();
}

bool DataSheetReader::readAdditional()
{
    if (sheet_.FileGeneration < 2)
        return true;
    for (int item = 1; item <= infoItems; ++item)
        if (!readHead(sheet_.AdditionalHeader[item]) || !readSamples(infoCell, item))
            return false;
    return true;
}

bool DataSheetReader::readNotes()
{
    if (!readHead(sheet_.NoteHeader) || !readSamples(noteCell, 0))
        return false;
    if (sheet_.FileGeneration < 3) {
        NoteMigration migration;
        for (int sample = 1; sample <= samplesInFile(); ++sample)
            migration.clean(sheet_.SampleNote(sample, 0), sheet_.SampleStamp(sample, 1),
                            sheet_.SampleStamp(sample, 3));
    }
    return true;
}

bool DataSheetReader::readDates()
{
    if (sheet_.FileGeneration != 3)
        return true;
    for (int date = 1; date <= 3; ++date)
        if (!readHead(sheet_.DateHeader[date]) || !readSamples(stampCell, date))
            return false;
    return true;
}

static bool readWhole(DataSheetReader& reader, SheetTables& tables)
{
    if (!reader.readPath() || !reader.readSerials() || !reader.readNames())
        return false;
    for (int row = 1; row <= taxonSlots; ++row)
        if (!reader.readTaxon(row))
            return false;
    if (reader.repeatedKeyIndex())
        return false;
    completeKeyIndexes(tables);
    if (tables.SampleCount == 0)
        reader.beginFromTemplate("-9999");
    return reader.readTexts();
}

bool readDataSheet(std::string_view text, SheetTables& tables)
{
    DataSheetReader reader(text, tables);
    const bool whole = readWhole(reader, tables);
    completeKeyIndexes(tables);
    return whole;
}
