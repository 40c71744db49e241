#include "files/sheet_text.h"

#include "core/fields.h"
#include "core/number_text.h"
#include "core/taxon_name.h"

#include <cmath>

namespace {

enum class Cells { counts, countsAsText, percentages };

/// A percentage without a basis.
constexpr double noPercentage = 9999;

/// To four decimals, halves to even. Adding 0 makes a plain 0 of a negative one.
double fourDecimals(double percentage)
{
    return std::nearbyint(percentage * 10000) / 10000 + 0.0;
}

class SheetComposer {
public:
    SheetComposer(const SheetTables& sheet, int samples, Cells cells, const ShareTable* shares = nullptr)
        : sheet_(sheet), samples_(samples), cells_(cells), shares_(shares)
    {
        fields_.reserve(16000 + 1500 * static_cast<std::size_t>(samples));
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
                cell(sample, keyIndex);
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
        for (const SumLine& line : sumLines()) {
            totalHead(line.name);
            for (int sample = 1; sample <= samples_; ++sample)
                fields_.number(totals[sample].*line.sum);
            fields_.endLine();
        }
    }
    void percentages(const std::vector<SampleTotals>& totals, int basis)
    {
        const auto lines = sumLines();
        const auto whole = lines[basis == 0 ? 2 : basis - 1].sum;
        for (const SumLine& line : lines) {
            totalHead(line.name);
            for (int sample = 1; sample <= samples_; ++sample) {
                const int total = totals[sample].*whole;
                if (line.sum == whole)
                    fields_.text("100 (n=" + decimalText(total) + ")");
                else
                    fields_.decimal(total == 0 ? noPercentage
                                               : fourDecimals(100.0 * (totals[sample].*line.sum) / total));
            }
            fields_.endLine();
        }
    }
    std::string take() { return fields_.take(); }

private:
    void number(const std::string& text)
    {
        if (cells_ == Cells::countsAsText)
            fields_.text(text);
        else
            fields_.number(wholeNumber(text));
    }
    void cell(int sample, int slot)
    {
        if (cells_ == Cells::counts)
            fields_.number(sheet_.Count(sample, slot));
        else if (cells_ == Cells::countsAsText)
            fields_.text(decimalText(sheet_.Count(sample, slot)));
        else // in single precision, as the share is
            fields_.decimal(fourDecimals((*shares_)(sample, slot) * 100.0F));
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
    struct SumLine {
        std::string name;
        int SampleTotals::*sum;
    };
    /// The lines at the foot, in their order.
    std::array<SumLine, 3> sumLines() const
    {
        return {{{sheet_.SheetHeader[2][2], &SampleTotals::subtotal1},
                 {sheet_.SheetHeader[2][3], &SampleTotals::subtotal2},
                 {"All total", &SampleTotals::all}}};
    }
    void totalHead(const std::string& name) { fields_.text(noText).text(noText).text(noText).text(name); }

    const SheetTables& sheet_;
    int samples_;
    Cells cells_;
    const ShareTable* shares_; ///< of percentages
    FieldWriter fields_;
};

void fill(std::string& text)
{
    if (text.empty())
        text = noText;
}

} // namespace

std::string dataSheetText(const SheetTables& sheet, const std::vector<SampleTotals>& totals)
{
    SheetComposer composer(sheet, sheet.SampleCount, Cells::counts);
    composer.heads();
    composer.taxa();
    composer.additionalInfo();
    composer.notes();
    composer.dates();
    composer.totals(totals);
    return composer.take();
}

std::string percentageTableText(const SheetTables& sheet, const ShareTable& shares,
                                const std::vector<SampleTotals>& totals, int basis)
{
    SheetComposer composer(sheet, sheet.SampleCount, Cells::percentages, &shares);
    composer.heads();
    composer.taxa();
    composer.additionalInfo();
    composer.dates();
    composer.percentages(totals, basis);
    return composer.take();
}

std::string backupText(const SheetTables& sheet)
{
    SheetComposer composer(sheet, sheet.SampleCount, Cells::countsAsText);
    composer.heads();
    composer.taxa();
    composer.additionalInfo();
    composer.notes();
    return composer.take();
}

std::string templateText(const SheetTables& sheet)
{
    SheetComposer composer(sheet, 0, Cells::counts);
    composer.heads();
    composer.taxa();
    composer.additionalInfo();
    composer.notes();
    composer.totals({}); // only their names
    return composer.take();
}

void fillEmptyCells(SheetTables& sheet, const std::array<std::string, infoItems + 1>& captions)
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
