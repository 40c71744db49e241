#include "files/recorded_sheet.h"

#include <algorithm>
#include <functional>

namespace {

class TextSum {
public:
    void add(const std::string& text) { add(hash_(text)); }
    void add(std::uint64_t number) { sum_ = (sum_ ^ number) * 0x9e3779b97f4a7c15 + (sum_ >> 29U); }
    std::uint64_t take() const { return sum_; }

private:
    std::hash<std::string> hash_;
    std::uint64_t sum_ = 0;
};

std::uint64_t textsOf(const SheetTables& sheet)
{
    TextSum sum;
    sum.add(static_cast<std::uint64_t>(sheet.SampleCount));
    for (int sample = 0; sample <= sheet.SampleCount; ++sample) {
        sum.add(sheet.SampleField(sample, 1));
        sum.add(sheet.SampleField(sample, 2));
        sum.add(sheet.SampleNote(sample, 0));
        sum.add(sheet.SampleStamp(sample, 1));
        for (int item = 1; item <= infoItems; ++item)
            sum.add(sheet.AdditionalInfo(sample, item));
    }
    for (int slot = 1; slot <= taxonSlots; ++slot) {
        const TaxonFields& taxon = sheet.TaxonRecord[slot];
        sum.add(taxon.KeyIndex);
        sum.add(taxon.Subtotal1);
        sum.add(taxon.Subtotal2);
        sum.add(taxon.Name);
        sum.add(static_cast<std::uint64_t>(sheet.KeyIndexOfRow[slot]));
    }
    for (int column = 1; column <= 4; ++column)
        sum.add(sheet.SheetHeader[2][column]);
    return sum.take();
}

std::uint64_t stampsOf(const SheetTables& sheet)
{
    TextSum sum;
    for (int sample = 1; sample <= sheet.SampleCount; ++sample)
        for (int stamp = 2; stamp <= 3; ++stamp)
            sum.add(sheet.SampleStamp(sample, stamp));
    return sum.take();
}

} // namespace

std::string ownPath(const SheetFile& file)
{
    return file.NotItsFile ? std::string() : file.SheetPath;
}

RecordedSheet recordOf(const SheetTables& sheet, const SheetFile& file)
{
    return {sheet.Count, sheet.SampleCount, textsOf(sheet), stampsOf(sheet), ownPath(file), file.KnownFile};
}

std::vector<ChangedCount> changedCounts(const RecordedSheet& recorded, const SheetTables& sheet)
{
    std::vector<ChangedCount> changed;
    for (int slot = 1; slot <= taxonSlots; ++slot) {
        const std::int32_t* const now = &sheet.Count(0, slot);
        const std::int32_t* const then = &recorded.counts(0, slot);
        if (std::equal(now + 1, now + 1 + sheet.SampleCount, then + 1))
            continue;
        for (int sample = 1; sample <= sheet.SampleCount; ++sample)
            if (now[sample] != then[sample])
                changed.push_back({sample, slot});
    }
    return changed;
}

bool isEdited(const RecordedSheet& recorded, const SheetTables& sheet, const SheetFile& file)
{
    return recorded.path != ownPath(file) || recorded.file != file.KnownFile ||
           recorded.samples != sheet.SampleCount || recorded.texts != textsOf(sheet);
}

bool isSame(const RecordedSheet& recorded, const SheetTables& sheet, const SheetFile& file)
{
    return !isEdited(recorded, sheet, file) && recorded.stamps == stampsOf(sheet) &&
           changedCounts(recorded, sheet).empty();
}

bool isEmptySheet(const RecordedSheet& recorded)
{
    const SheetTables empty;
    return recorded.path.empty() && !isEdited(recorded, empty, {}) && changedCounts(recorded, empty).empty();
}
