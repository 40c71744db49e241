// "Richness": is the sample enough?

#include "core/number_text.h"
#include "core/sheet_name.h"
#include "core/sheet_state.h"
#include "platform/code_page.h"
#include "statistics/csv_line.h"
#include "statistics/rarefaction_plot.h"
#include "statistics/recount.h"
#include "statistics/richness.h"
#include "statistics/statistics_form.h"
#include "statistics/statistics_pages.h"
#include "statistics/written_numbers.h"

namespace {

constexpr int rarefiedTo[] = {50, 100, 200, 300};

struct Measure {
    std::string name;
    std::string how;
    std::string (*written)(double);
    std::optional<double> value;
};

Measure rarefaction(const SlotCounts& members, double m)
{
    return {
        "E(S) at " + withThousands(m),
        "Taxa expected among " + withThousands(m) +
            " individuals drawn from the sample (Hurlbert 1971): compares samples of different sums. None "
            "beyond the sum. It does not hold where individuals cling together.",
        oneDecimal, rarefiedTaxa(members, m)};
}

/// The figures of one sample, in the order of the page. Without individuals, or with a count below 0, they
/// have no values.
std::vector<Measure> measuresOf(const SlotCounts& members)
{
    const auto found = measureRichness(members);
    const auto of = [&](double Richness::*part) {
        return found ? std::optional(*found.*part) : std::nullopt;
    };
    const auto hill = [&](int order) { return found ? std::optional(found->hill[order]) : std::nullopt; };
    std::vector<Measure> measures = {
        {"Individuals", "Individuals of the % basis, without the marker.", withThousands,
         of(&Richness::individuals)},
        {"Taxa (Hill 0)", "Taxa of the % basis with a count. It grows with the sum.", withThousands,
         of(&Richness::taxa)},
        {"Singletons", "f1, taxa seen once.", withThousands, of(&Richness::singletons)},
        {"Doubletons", "f2, taxa seen twice.", withThousands, of(&Richness::doubletons)},
        {"Chao1",
         "Taxa seen and at least so many unseen: S + (n-1)/n f1^2 / 2 f2 (Chao 1984). A lower bound; it does "
         "not hold where rare taxa were lumped or passed over.",
         oneDecimal, of(&Richness::chao1)},
        {"Coverage %",
         "Share of the assemblage that the taxa seen make up (Chao & Jost 2012). 100 % without a singleton, "
         "and with a single one and no doubleton.",
         oneDecimal, found ? std::optional(100 * found->coverage) : std::nullopt},
        {"New in next 100",
         "Taxa that the next 100 individuals are expected to add (Shen, Chao & Lin 2003). Good to about as "
         "many more as have been counted.",
         oneDecimal, found ? std::optional(found->newTaxa(100)) : std::nullopt},
        {"Hill 1", "exp(-sum p ln p): so many equally common taxa would be as diverse (Hill 1973).",
         threeDigits, hill(1)},
        {"Hill 2", "1 / sum p^2: the same with more weight on common taxa (Hill 1973).", threeDigits,
         hill(2)},
    };
    for (const int m : rarefiedTo)
        measures.push_back(rarefaction(members, m));
    if (const int own = wholeNumber(frmStatistics.Text1.text); own > 0)
        measures.push_back(rarefaction(members, own));
    return measures;
}

StatTable::Cell textCell(const std::string& text)
{
    return {text};
}

void fillOneSample(const std::vector<int>& samples)
{
    std::vector<StatTable::Row> rows;
    for (const int sample : samples)
        for (const Measure& measure : measuresOf(countsOf(sample).members))
            rows.push_back(
                {{textCell(measure.name), cell(measure.value, measure.written), textCell(measure.how)}, {}});
    frmStatistics.tables[richnessPage].fill(
        {{"Figure", "", true}, {"Value", ""}, {"How it is computed, and where it does not hold", "", true}},
        std::move(rows));
}

void fillAllSamples(const std::vector<int>& samples)
{
    std::vector<StatTable::Column> columns = {{"Sample", "", true}};
    for (const Measure& measure : measuresOf({}))
        columns.push_back({measure.name, measure.how});
    std::vector<StatTable::Row> rows;
    for (const int sample : samples) {
        StatTable::Row row;
        row.cells.push_back({sheet.SampleField(sample, 2)});
        for (const Measure& measure : measuresOf(countsOf(sample).members))
            row.cells.push_back(cell(measure.value, measure.written));
        rows.push_back(std::move(row));
    }
    frmStatistics.tables[richnessPage].fill(std::move(columns), std::move(rows));
}

} // namespace

void plotRarefaction()
{
    Surface& picture = frmStatistics.Picture1;
    picture.scale = {0, 0, picture.width, picture.height};
    picture.setPicture(areSumsHidden()
                           ? Drawing()
                           : planRarefaction(countsOf(sheet.CurrentSample).members, sheet.DiversityCurve,
                                             picture.width, picture.height));
}

void fillRichness()
{
    const std::vector<int> samples = samplesInView();
    if (frmStatistics.Option1[1].selected) {
        fillAllSamples(samples);
        return;
    }
    fillOneSample(samples);
    plotRarefaction();
}

std::string richnessCsv()
{
    CsvLines lines("sheet,sample,name,n,taxa,f1,f2,chao1,chao1_bias_corrected,good_coverage,coverage,hill0,"
                   "hill1,hill2,rare50,rare100,rare200,rare300,new_in_next_50,new_in_next_100");
    const std::string name = toCodePageFromUtf8(baseName(sheet.SheetPath).value_or("Untitled"));
    for (const int sample : samplesInView()) {
        const SlotCounts members = countsOf(sample).members;
        const auto found = measureRichness(members);
        lines.text(name).number(sample).text(sheet.SampleField(sample, 2));
        const auto add = [&](std::optional<double> value) { lines.number(found ? value : std::nullopt); };
        const Richness r = found.value_or(Richness());
        for (const double value :
             {r.individuals, r.taxa, r.singletons, r.doubletons, r.chao1, r.chao1BiasCorrected,
              r.goodCoverage, r.coverage, r.hill[0], r.hill[1], r.hill[2]})
            add(value);
        for (const int m : rarefiedTo)
            add(rarefiedTaxa(members, m));
        add(r.newTaxa(50));
        add(r.newTaxa(100));
        lines.endLine();
    }
    return lines.take();
}
