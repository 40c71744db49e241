// "Concentration": how much is there in a unit of sediment?

#include "core/number_text.h"
#include "core/sheet_state.h"
#include "sheet/basis.h"
#include "statistics/chosen_basis.h"
#include "statistics/csv_line.h"
#include "statistics/laboratory.h"
#include "statistics/recount.h"
#include "statistics/sheet_concentrations.h"
#include "statistics/statistics_form.h"
#include "statistics/statistics_pages.h"
#include "statistics/written_numbers.h"

#include <algorithm>
#include <cmath>

namespace {

const char* const noMarker = "(none)";

/// Concentration or influx in four cells: value, error, limits.
void addCells(StatTable::Row& row, const std::optional<Concentration>& found)
{
    using Value = std::optional<double>;
    row.cells.push_back(cell(found ? Value(found->value) : std::nullopt, threeDigits));
    const bool hasError = found && found->value > 0;
    row.cells.push_back(cell(hasError ? Value(found->standardError) : std::nullopt, threeDigits));
    row.cells.push_back(cell(hasError ? Value(100 * found->relativeError) : std::nullopt, oneDecimal));
    const bool hasLimits = found && found->limits;
    row.cells.push_back(cell(hasLimits ? Value(found->limits->lower) : std::nullopt, threeDigits));
    row.cells.push_back(cell(hasLimits ? Value(found->limits->upper) : std::nullopt, threeDigits));
}

/// " per ml", if the samples in view have one unit of the quantity.
std::string perUnit()
{
    std::string unit;
    for (const int sample : samplesInView()) {
        const std::string& here = labFields(sample)[labQuantityUnit];
        if (!unit.empty() && !here.empty() && here != unit)
            return {};
        if (unit.empty())
            unit = here;
    }
    return unit.empty() ? unit : " per " + unit;
}

std::vector<StatTable::Column> columns(bool all)
{
    std::vector<StatTable::Column> made;
    if (all)
        made.push_back({"Sample", "", true});
    const auto add = [&](const std::string& what, const std::string& how) {
        made.push_back({what, how});
        made.push_back({"Error", "Standard error (Stockmarr 1971): of the counts of taxon and marker, of the "
                                 "tablets and of the quantity."});
        made.push_back({"Error %", "Standard error in percent of the value."});
        made.push_back({"Lower", "Lower 95 % limit (after Maher 1981). None below 4 markers or without a "
                                 "count."});
        made.push_back({"Upper", "Upper 95 % limit (after Maher 1981)."});
    };
    made.push_back({"Taxon", "", true});
    made.push_back({"Count", "Individuals; the sums leave the marker out."});
    add("Concentration" + perUnit(),
        "Count / markers x marker grains added / quantity (Stockmarr 1971). It does not hold "
        "where markers and individuals were lost differently.");
    add("Influx",
        "Concentration x accumulation: depth a year from the depths and ages of the sample. It means "
        "something for a volume only. Errors of depths and ages are not in it.");
    return made;
}

/// What the page says of the sample on show.
std::string advice(int marker)
{
    if (!laboratory.trouble.empty())
        return laboratory.trouble;
    if (laboratory.path.empty())
        return "Save the sheet first: laboratory data lie in a file beside it.";
    if (laboratory.marker.empty())
        return "Choose the taxon that was added as a marker.";
    if (marker == 0)
        return "The marker " + laboratory.marker + " is no taxon of this sheet.";
    if (areSumsHidden())
        return "The sums of the recount stay hidden until it is finished.";
    const int sample = sheet.CurrentSample;
    const double y = sheet.Count(sample, marker);
    std::string said = "Markers: " + withThousands(y) + ".";
    if (y < leastMarkers)
        said += " Too few markers.";
    else if (y < advisedMarkers)
        said += " Fewer than 20 markers: the limits are wide.";
    const Preparation made = preparationOf(labFields(sample));
    const double x = countedIn(sample, exportedTaxa(sheet), marker)[0].x;
    const double wanted = leadingNumber(frmStatistics.Text4.text);
    if (concentrationOf(x, y, made) && wanted > 0) {
        const auto needed = markersNeeded(x, y, made, wanted / 100);
        const std::string error = " for an error of " + plainDecimal(wanted) + " % of the all total";
        if (!needed && x > 0)
            said += " No count is enough" + error + ": tablets and quantity are less sure than that.";
        else if (needed)
            said += " " + withThousands(std::max(0.0, std::ceil(*needed) - y)) + " to go" + error + ".";
    } else if (y > 0) {
        said += " Tablets, grains a tablet and quantity are needed.";
    }
    if (basisWeights()[marker] != 0)
        said += " The marker is inside the % basis " + sumName(chosenBasis()) + ".";
    return said;
}

void listMarkers(const std::vector<ExportedTaxon>& taxa)
{
    std::vector<std::string> names = {noMarker};
    for (const ExportedTaxon& taxon : taxa)
        names.push_back(sheet.TaxonRecord[taxon.keyIndex].Name);
    ComboBox& combo = frmStatistics.Combo2;
    if (combo.items != names) {
        combo.items = names;
        ++combo.itemsRevision;
    }
    combo.text = laboratory.marker.empty() ? noMarker : laboratory.marker;
}

} // namespace

void fillConcentration()
{
    const std::vector<ExportedTaxon> taxa = exportedTaxa(sheet);
    listMarkers(taxa);
    const int marker = markerSlot();
    const bool all = frmStatistics.Option1[1].selected;
    frmStatistics.Label3.caption = advice(marker);
    frmStatistics.labSerial = wholeNumber(sheet.SampleField(sheet.CurrentSample, 1));
    const bool mayEdit = !laboratory.path.empty() && laboratory.trouble.empty();
    for (int column = 0; column < labColumns; ++column) {
        frmStatistics.Text3[column].text = labFields(sheet.CurrentSample)[column];
        frmStatistics.Text3[column].enabled = mayEdit;
    }
    frmStatistics.Command5.enabled = mayEdit && labFields(sheet.CurrentSample) != LabFields();

    std::vector<StatTable::Row> rows;
    bool hasInflux = false;
    if (marker != 0)
        for (const int sample : samplesInView()) {
            const LabFields& fields = labFields(sample);
            const Preparation made = preparationOf(fields);
            const auto growth = accumulationOf(fields);
            hasInflux = hasInflux || growth;
            const double y = sheet.Count(sample, marker);
            for (const Counted& one : countedIn(sample, taxa, marker)) {
                StatTable::Row row;
                if (all)
                    row.cells.push_back({sheet.SampleField(sample, 2)});
                row.cells.push_back({one.name});
                row.cells.push_back(cell(one.x, withThousands));
                addCells(row, concentrationOf(one.x, y, made));
                addCells(row, growth ? influxOf(one.x, y, made, *growth) : std::nullopt);
                rows.push_back(std::move(row));
            }
        }
    std::vector<StatTable::Column> heads = columns(all);
    if (!hasInflux) { // most sheets have no ages
        heads.resize(heads.size() - 5);
        for (StatTable::Row& row : rows)
            row.cells.resize(heads.size());
    }
    frmStatistics.tables[concentrationPage].fill(std::move(heads), std::move(rows));
}

std::string concentrationCsv()
{
    CsvLines lines("sample,taxon,x,y,concentration,standard_error,relative_error,lower,upper");
    const int marker = markerSlot();
    const std::vector<ExportedTaxon> taxa = exportedTaxa(sheet);
    if (marker == 0)
        return lines.take();
    for (const int sample : samplesInView()) {
        const Preparation made = preparationOf(labFields(sample));
        const double y = sheet.Count(sample, marker);
        for (const Counted& one : countedIn(sample, taxa, marker)) {
            using Value = std::optional<double>;
            const auto found = concentrationOf(one.x, y, made);
            const bool hasError = found && found->value > 0;
            const bool hasLimits = found && found->limits;
            lines.text(sheet.SampleField(sample, 2)).text(one.name).number(one.x).number(y);
            lines.number(found ? Value(found->value) : std::nullopt)
                .number(hasError ? Value(found->standardError) : std::nullopt)
                .number(hasError ? Value(found->relativeError) : std::nullopt)
                .number(hasLimits ? Value(found->limits->lower) : std::nullopt)
                .number(hasLimits ? Value(found->limits->upper) : std::nullopt)
                .endLine();
        }
    }
    return lines.take();
}
