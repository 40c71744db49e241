#include "figure/figure_data.h"

#include "core/number_text.h"
#include "core/sample_names.h"
#include "core/sheet_name.h"
#include "core/taxon_name.h"
#include "platform/code_page.h"

#include <algorithm>
#include <map>

namespace {

/// A name that stands twice gets a number, so that settings can tell the taxa apart.
std::string uniqueName(std::map<std::string, int>& seen, const std::string& name)
{
    const int times = ++seen[name];
    return times == 1 ? name : uniqueName(seen, name + " (" + decimalText(times) + ")");
}

/// "12.5 recount" or "12.5 recount 2" beside "12.5": a check of the counting, no sample of the core.
bool isRecount(const SheetTables& sheet, const std::string& name)
{
    constexpr std::string_view again = " recount";
    const std::size_t end = name.rfind(again);
    if (end == std::string::npos)
        return false;
    const std::string_view number = std::string_view(name).substr(end + again.size());
    if (!number.empty() && (number.size() < 2 || number.front() != ' ' ||
                            number.find_first_not_of("0123456789", 1) != std::string_view::npos))
        return false;
    for (int column = 1; column <= sheet.SampleCount; ++column)
        if (sheet.SampleField(column, 2) == name.substr(0, end))
            return true;
    return false;
}

void collectSamples(FigureData& data, const SheetTables& sheet)
{
    data.byDepth = true;
    for (int column = 1; column <= sheet.SampleCount; ++column) {
        const std::string& name = sheet.SampleField(column, 2);
        if (isRecount(sheet, name))
            continue;
        data.byDepth = data.byDepth && isDepth(name);
        data.samples.push_back({utf8FromCodePage(name), leadingNumber(name), column, {}});
    }
    const auto shallower = [](const FigureSample& a, const FigureSample& b) { return a.depth < b.depth; };
    const auto [least, most] = std::minmax_element(data.samples.begin(), data.samples.end(), shallower);
    data.byDepth = data.byDepth && least != data.samples.end() &&
                   (data.samples.size() == 1 || least->depth < most->depth);
    if (data.byDepth)
        std::stable_sort(data.samples.begin(), data.samples.end(), shallower);
    else
        for (FigureSample& sample : data.samples)
            sample.depth = sample.column;
}

} // namespace

FigureData figureData(const SheetTables& sheet, const std::string& path)
{
    FigureData data;
    collectSamples(data, sheet);
    std::map<std::string, int> seen;
    for (int row = 1; row <= taxonSlots; ++row) {
        const int slot = sheet.KeyIndexOfRow[row];
        const TaxonFields& fields = sheet.TaxonRecord[slot];
        FigureTaxon taxon;
        taxon.counts.reserve(data.samples.size());
        bool counted = false;
        for (const FigureSample& sample : data.samples) {
            taxon.counts.push_back(std::max(0, sheet.Count(sample.column, slot))); // no share is below 0
            counted = counted || taxon.counts.back() > 0;
        }
        if (!counted)
            continue;
        const bool named = !fields.Name.empty() && fields.Name != noText;
        taxon.name = uniqueName(seen, named ? utf8FromCodePage(fields.Name) : "Unnamed " + decimalText(slot));
        taxon.inSubtotal1 = fields.Subtotal1 == "1";
        taxon.inSubtotal2 = fields.Subtotal2 == "1";
        data.taxa.push_back(std::move(taxon));
    }
    data.totals = {"all individuals", utf8FromCodePage(sheet.SheetHeader[2][2]),
                   utf8FromCodePage(sheet.SheetHeader[2][3])};
    data.sheetName = path.size() < 4 ? "" : baseName(path).value_or("");
    return data;
}

bool hasConcentrations(const FigureData& data)
{
    return std::any_of(data.samples.begin(), data.samples.end(),
                       [](const FigureSample& sample) { return sample.concentration.has_value(); });
}
