#include "statistics/statistics_form.h"

#include "core/editing.h"
#include "core/forms.h"
#include "core/main_screen.h"
#include "core/messages.h"
#include "core/number_text.h"
#include "core/sheet_state.h"
#include "platform/code_page.h"
#include "platform/ports.h"
#include "sheet/basis.h"
#include "statistics/chosen_basis.h"
#include "statistics/csv_line.h"
#include "statistics/laboratory.h"
#include "statistics/recount.h"
#include "statistics/statistics_line.h"
#include "statistics/statistics_pages.h"

StatisticsForm frmStatistics;
static const Form form("frmStatistics", frmStatistics.visible, frmStatistics_Unload, Form::Stands::beside);

namespace {

constexpr int pauseMilliseconds = 300;

/// What the figures depend on; the window is up to date while it is as it was.
struct Seen {
    SampleTable<std::int32_t, taxonSlots + 1> counts;
    SampleTable<std::string, 3> samples;
    std::array<TaxonFields, taxonSlots + 1> taxa;
    std::array<std::int32_t, taxonSlots + 1> weights{};
    int sampleCount = 0;
    int currentSample = 0;
    int hiddenSerial = 0;
    std::string labPath;
    std::optional<Fingerprint> labFile;
};
Seen seen;

bool isAsSeen()
{
    if (seen.sampleCount != sheet.SampleCount || seen.currentSample != sheet.CurrentSample ||
        seen.hiddenSerial != recount.hiddenSerial || seen.labPath != laboratory.path ||
        seen.labFile != laboratory.known || seen.weights != basisWeights())
        return false;
    for (int slot = 1; slot <= taxonSlots; ++slot) // slot 0 is a running sum
        if (seen.taxa[slot].Name != sheet.TaxonRecord[slot].Name)
            return false;
    for (int slot = 1; slot <= taxonSlots; ++slot)
        for (int sample = 1; sample <= sheet.SampleCount; ++sample)
            if (seen.counts(sample, slot) != sheet.Count(sample, slot))
                return false;
    for (int sample = 1; sample <= sheet.SampleCount; ++sample)
        if (seen.samples(sample, 2) != sheet.SampleField(sample, 2))
            return false;
    return true;
}

void look()
{
    seen = {sheet.Count,         sheet.SampleField,    sheet.TaxonRecord, basisWeights(),  sheet.SampleCount,
            sheet.CurrentSample, recount.hiddenSerial, laboratory.path,   laboratory.known};
}

std::string proposedPath()
{
    constexpr const char* endings[] = {"_richness.csv", "_limits.csv", "_compare.csv", "_concentration.csv"};
    if (sheet.SheetPath.size() <= 4)
        return {};
    return sheet.SheetPath.substr(0, sheet.SheetPath.size() - 4) + endings[frmStatistics.SSTab1];
}

std::string tableOfPage()
{
    switch (frmStatistics.SSTab1) {
    case richnessPage:
        return richnessCsv();
    case limitsPage:
        return limitsCsv();
    case comparePage:
        return comparisonCsv();
    default:
        return concentrationCsv();
    }
}

void describe()
{
    std::string& said = frmStatistics.Label1.caption;
    said = "% basis: " + sumName(chosenBasis());
    if (!frmStatistics.Option1[1].selected && frmStatistics.SSTab1 != comparePage)
        said = "Sample " + sheet.SampleField(sheet.CurrentSample, 2) + ", " + said;
    if (const int marker = markerSlot(); marker != 0)
        said += basisWeights()[marker] != 0 ? "; the marker " + laboratory.marker +
                                                  " is inside it, and left out of richness and coverage"
                                            : "; without the marker " + laboratory.marker;
    if (areSumsHidden())
        said += "; the recount is hidden until it is finished";
}

} // namespace

BasisCounts countsOf(int sample)
{
    return basisCounts(sheet, sample, basisWeights(), markerSlot());
}

std::vector<int> samplesInView()
{
    std::vector<int> samples;
    for (int sample = 1; sample <= sheet.SampleCount; ++sample)
        if ((frmStatistics.Option1[1].selected || sample == sheet.CurrentSample) && !isHidden(sample))
            samples.push_back(sample);
    return samples;
}

void refreshStatistics()
{
    takeLaboratoryEntries(); // before those of another sample come into the boxes
    frmStatistics.stale = false;
    look();
    describe();
    constexpr void (*fillPage[])() = {fillRichness, fillLimits, fillComparison, fillConcentration};
    fillPage[frmStatistics.SSTab1]();
}

void mnuStatistics_Click()
{
    if (!frmStatistics.visible) {
        frmStatistics.visible = true;
        frmStatistics.Text2.text = plainDecimal(statisticsLine.halfWidth);
    }
    ++frmStatistics.forwardRevision;
    refreshStatistics();
}

void frmStatistics_Unload()
{
    takeLaboratoryEntries();
    frmStatistics.labSerial = 0;
    frmStatistics.visible = false;
}

void frmStatistics_SSTab1_Click(int page)
{
    takeLaboratoryEntries();
    frmStatistics.labSerial = 0; // the boxes are out of sight
    frmStatistics.SSTab1 = page;
    refreshStatistics();
}

void frmStatistics_Option1_Click(int scope)
{
    for (int option = 0; option < 2; ++option)
        frmStatistics.Option1[option].selected = option == scope;
    refreshStatistics();
}

void frmStatistics_Picture1_Resize()
{
    if (frmStatistics.visible && frmStatistics.SSTab1 == richnessPage)
        plotRarefaction();
}

void sortStatistics(int column)
{
    frmStatistics.tables[frmStatistics.SSTab1].sortBy(column);
}

void frmStatistics_Command1_Click()
{
    const auto path = ports.dialogs->chooseFileToSave("Save table", proposedPath());
    if (path && !ports.files->write(*path, utf8WithMark(tableOfPage())))
        tellFileInUse();
}

std::string copiedStatistics()
{
    return frmStatistics.tables[frmStatistics.SSTab1].tabbed();
}

void frmStatistics_Text1_Edited(std::string_view text, int caret)
{
    typeInto(frmStatistics.Text1, text, caret);
    refreshStatistics();
}

void frmStatistics_Text2_Edited(std::string_view text, int caret)
{
    typeInto(frmStatistics.Text2, text, caret);
    if (const double percent = leadingNumber(frmStatistics.Text2.text); percent > 0 && percent < 100) {
        chooseHalfWidth(percent);
        refreshStatistics();
    }
}

void frmStatistics_Text4_Edited(std::string_view text, int caret)
{
    typeInto(frmStatistics.Text4, text, caret);
    refreshStatistics();
}

void pickFirstSample(std::string_view name)
{
    frmStatistics.Combo1[0].text = name;
    refreshStatistics();
}

void pickSecondSample(std::string_view name)
{
    frmStatistics.Combo1[1].text = name;
    refreshStatistics();
}

void pickMarker(std::string_view name)
{
    chooseMarker(name == frmStatistics.Combo2.items.front() ? std::string() : std::string(name));
    refreshStatistics();
}

void takeLaboratoryEntries()
{
    bool refused = false;
    for (int sample = 1; sample <= sheet.SampleCount; ++sample) {
        if (wholeNumber(sheet.SampleField(sample, 1)) != frmStatistics.labSerial)
            continue;
        for (int column = 0; column < labColumns; ++column) {
            std::string& typed = frmStatistics.Text3[column].text;
            refused = !setLabField(sample, static_cast<LabColumn>(column), typed) || refused;
            typed = labFields(sample)[column];
        }
        break;
    }
    if (refused)
        ports.dialogs->ask("Please input digit(s).", "Error", Buttons::ok, Icon::exclamation);
}

void frmStatistics_Text3_LostFocus()
{
    takeLaboratoryEntries();
    refreshStatistics();
}

void frmStatistics_Command5_Click()
{
    copyPreparation(sheet.CurrentSample);
    refreshStatistics();
}

void frmStatistics_Command3_Click()
{
    const std::string counted = sheet.SampleField(sheet.CurrentSample, 2);
    countAgain();
    frmStatistics.Combo1[0].text = counted;
    refreshStatistics();
}

void frmStatistics_Command4_Click()
{
    for (int sample = 1; sample <= sheet.SampleCount; ++sample)
        if (isHidden(sample))
            frmStatistics.Combo1[1].text = sheet.SampleField(sample, 2);
    finishRecount();
    refreshStatistics();
}

void watchStatisticsWindow()
{
    if (!frmStatistics.visible || isAsSeen())
        return;
    frmStatistics.stale = true;
    ports.statisticsTimer->start(pauseMilliseconds);
}

void StatisticsTimer_Timer()
{
    if (frmStatistics.visible && frmStatistics.stale)
        refreshStatistics();
}
