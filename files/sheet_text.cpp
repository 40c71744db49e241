#include "files/sheet_text.h"

#include "core/fields.h"
#include "core/number_text.h"

namespace {

enum class Numbers { bare, asText };

class SheetComposer {
public:
    SheetComposer(const SheetState& sheet, int samples, Numbers numbers)
        : sheet_(sheet), samples_(samples), numbers_(numbers)
    {
        fields_.reserve(static_cast<std::size_t>(16000 + 1500 * samples));
    }

    void heads()
    {
        for (int row = 1; row <= 2; ++row) {
            head(sheet_.SheetHeader[row]);
            for (int sample = 1; sample <= samples_; ++sample)
                fields_.text(sheet_.SampleField(sample, row));
            fields_.endLine();
        }
    }
    void taxa()
    {
        for (int row = 1; row <= taxonSlots; ++row) {
            const int keyIndex = sheet_.KeyIndexOfRow[row];
            const TaxonFields& taxon = sheet_.TaxonRecord[keyIndex];
            number(taxon.KeyIndex);
            number(taxon.Subtotal1);
            number(taxon.Subtotal2);
            fields_.text(taxon.Name);
            for (int sample = 1; sample <= samples_; ++sample)
                if (numbers_ == Numbers::bare)
                    fields_.number(sheet_.Count(sample, keyIndex));
                else
                    fields_.text(decimalText(sheet_.Count(sample, keyIndex)));
            fields_.endLine();
        }
    }
    void additionalInfo()
    {
        for (int item = 1; item <= infoItems; ++item)
            textLine(sheet_.AdditionalHeader[item], sheet_.AdditionalInfo, item);
    }
    void notes() { textLine(sheet_.NoteHeader, sheet_.SampleNote, 0); }
    void dates()
    {
        for (int date = 1; date <= 3; ++date)
            textLine(sheet_.DateHeader[date], sheet_.SampleStamp, date);
    }
    void totals(const std::vector<SampleTotals>& totals)
    {
        totalLine(sheet_.SheetHeader[2][2], totals, &SampleTotals::subtotal1);
        totalLine(sheet_.SheetHeader[2][3], totals, &SampleTotals::subtotal2);
        totalLine("All total", totals, &SampleTotals::all);
    }
    std::string take() { return fields_.take(); }

private:
    void number(const std::string& text)
    {
        if (numbers_ == Numbers::bare)
            fields_.number(wholeNumber(text));
        else
            fields_.text(text);
    }
    void head(const std::array<std::string, 5>& texts)
    {
        for (int column = 1; column <= 4; ++column)
            fields_.text(texts[column]);
    }
    template <int Rows>
    void textLine(const std::array<std::string, 5>& texts, const SampleTable<std::string, Rows>& cells,
                  int row)
    {
        head(texts);
        for (int sample = 1; sample <= samples_; ++sample)
            fields_.text(cells(sample, row));
        fields_.endLine();
    }
    void totalLine(const std::string& name, const std::vector<SampleTotals>& totals,
                   std::int16_t SampleTotals::*sum)
    {
        fields_.text("---").text("---").text("---").text(name);
        for (int sample = 1; sample <= samples_; ++sample)
            fields_.number(totals[sample].*sum);
        fields_.endLine();
    }

    const SheetState& sheet_;
    int samples_;
    Numbers numbers_;
    FieldWriter fields_;
};

void fill(std::string& text)
{
    if (text.empty())
        text = "---";
}

} // namespace

std::string dataSheetText(const SheetState& sheet, const std::vector<SampleTotals>& totals)
{
    SheetComposer composer(sheet, sheet.SampleCount, Numbers::bare);
    composer.heads();
    composer.taxa();
    composer.additionalInfo();
    composer.notes();
    composer.dates();
    composer.totals(totals);
    return composer.take();
}

std::string backupText(const SheetState& sheet)
{
    SheetComposer composer(sheet, sheet.SampleCount, Numbers::asText);
    composer.heads();
    composer.taxa();
    composer.additionalInfo();
    composer.notes();
    return composer.take();
}

std::string templateText(const SheetState& sheet)
{
    SheetComposer composer(sheet, 0, Numbers::bare);
    composer.heads();
    composer.taxa();
    composer.additionalInfo();
    composer.notes();
    composer.totals({}); // only their names
    return composer.take();
}

void fillEmptyCells(SheetState& sheet, const std::array<std::string, infoItems + 1>& captions)
{
    constexpr const char* dateNames[] = {"", "Created:", "Count start:", "Last modified:"};
    for (int item = 1; item <= infoItems; ++item) {
        std::string label = captions[item];
        if (!label.empty() && label.back() == ':')
            label.pop_back();
        sheet.AdditionalHeader[item][4] = label.empty() ? "Additional info-" + decimalText(item) : label;
    }
    for (int date = 1; date <= 3; ++date)
        sheet.DateHeader[date][4] = dateNames[date];
    sheet.NoteHeader[4] = "Note: "; // a spreadsheet drops its trailing blank
    for (int column = 1; column <= 4; ++column) {
        for (int item = 1; item <= infoItems; ++item)
            fill(sheet.AdditionalHeader[item][column]);
        fill(sheet.NoteHeader[column]);
        for (int date = 1; date <= 3; ++date)
            fill(sheet.DateHeader[date][column]);
    }
    for (int sample = 1; sample <= sheet.SampleCount; ++sample) {
        for (int item = 1; item <= infoItems; ++item)
            fill(sheet.AdditionalInfo(sample, item));
        fill(sheet.SampleNote(sample, 0));
        for (int date = 1; date <= 3; ++date)
            fill(sheet.SampleStamp(sample, date));
    }
}
