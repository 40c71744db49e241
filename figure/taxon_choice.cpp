#include "figure/taxon_choice.h"

#include <algorithm>
#include <set>
#include <unordered_map>

FigureShares figureShares(const FigureData& data, FigureBasis basis)
{
    FigureShares shares;
    const std::size_t samples = data.samples.size();
    shares.sums.assign(samples, 0);
    for (const FigureTaxon& taxon : data.taxa) {
        const bool in = basis == FigureBasis::all || (basis == FigureBasis::sub1 && taxon.inSubtotal1) ||
                        (basis == FigureBasis::sub2 && taxon.inSubtotal2);
        shares.inBasis.push_back(in);
        for (std::size_t i = 0; in && i < samples; ++i)
            shares.sums[i] += taxon.counts[i];
    }
    for (const FigureTaxon& taxon : data.taxa) {
        std::vector<double>& row = shares.percent.emplace_back(samples);
        for (std::size_t i = 0; i < samples; ++i)
            row[i] = shares.sums[i] > 0 ? 100 * taxon.counts[i] / shares.sums[i] : 0;
        shares.largest.push_back(samples == 0 ? 0 : *std::max_element(row.begin(), row.end()));
    }
    return shares;
}

std::vector<ShownGroup> figureGroups(const FigureData& data, const std::vector<FigureGroup>& groups)
{
    std::vector<ShownGroup> shown;
    std::unordered_map<std::string, std::size_t> groupOf;
    for (const FigureGroup& group : groups) {
        for (const std::string& taxon : group.taxa)
            groupOf.emplace(taxon, shown.size()); // the first group that names it has it
        shown.push_back({group.name, group.colour, {}});
    }
    const bool told = groups.empty();
    if (told)
        shown = {{data.totals[1], groupColour(0), {}}, {data.totals[2], groupColour(1), {}}};
    const std::size_t rest = shown.size();
    shown.push_back({told ? "Outside both" : "Other taxa", groupColour(rest), {}});
    for (int i = 0; i < static_cast<int>(data.taxa.size()); ++i) {
        const FigureTaxon& taxon = data.taxa[i];
        const auto found = groupOf.find(taxon.name);
        const std::size_t group = told                     ? (taxon.inSubtotal1   ? 0
                                                              : taxon.inSubtotal2 ? 1
                                                                                  : 2)
                                  : found != groupOf.end() ? found->second
                                                           : rest;
        shown[group].taxa.push_back(i);
    }
    shown.erase(
        std::remove_if(shown.begin(), shown.end(), [](const auto& group) { return group.taxa.empty(); }),
        shown.end());
    return shown;
}

/// The depth of each taxon as the average of all samples, weighted with its shares.
static std::vector<double> averageDepths(const FigureData& data, const FigureShares& shares)
{
    std::vector<double> averages;
    for (const std::vector<double>& row : shares.percent) {
        double sum = 0;
        double weighted = 0;
        for (std::size_t i = 0; i < row.size(); ++i) {
            sum += row[i];
            weighted += row[i] * data.samples[i].depth;
        }
        averages.push_back(sum > 0 ? weighted / sum : 0);
    }
    return averages;
}

std::vector<ShownTaxon> shownTaxa(const FigureData& data, const FigureShares& shares,
                                  const std::vector<ShownGroup>& groups, const FigureSettings& settings)
{
    std::vector<int> groupOf(data.taxa.size());
    for (int group = 0; group < static_cast<int>(groups.size()); ++group)
        for (const int taxon : groups[group].taxa)
            groupOf[taxon] = group;
    std::vector<ShownTaxon> shown;
    if (settings.taxa) {
        std::unordered_map<std::string, int> place;
        for (int i = 0; i < static_cast<int>(data.taxa.size()); ++i)
            place.emplace(data.taxa[i].name, i);
        for (const std::string& name : *settings.taxa) {
            const auto found = place.find(name);
            if (found == place.end())
                continue;
            shown.push_back({found->second, groupOf[found->second]});
            place.erase(found); // once only
        }
        return shown;
    }

    for (int i = 0; i < static_cast<int>(data.taxa.size()); ++i) {
        const auto& row = shares.percent[i];
        const auto reached =
            std::count_if(row.begin(), row.end(), [&](double p) { return p >= settings.threshold && p > 0; });
        if (reached >= settings.samples)
            shown.push_back({i, groupOf[i]});
    }
    const bool grouped = settings.order == TaxonOrder::group || settings.order == TaxonOrder::groupWa;
    const bool averaged = settings.order == TaxonOrder::wa || settings.order == TaxonOrder::groupWa;
    const std::vector<double> average = averageDepths(data, shares);
    std::stable_sort(shown.begin(), shown.end(), [&](const ShownTaxon& a, const ShownTaxon& b) {
        if (grouped && a.group != b.group)
            return a.group < b.group;
        return averaged && average[a.taxon] > average[b.taxon];
    });
    return shown;
}

bool groupsStandTogether(const std::vector<ShownTaxon>& taxa)
{
    std::set<int> seen;
    for (std::size_t i = 0; i < taxa.size(); ++i)
        if ((i == 0 || taxa[i].group != taxa[i - 1].group) && !seen.insert(taxa[i].group).second)
            return false;
    return seen.size() > 1;
}

FigureData samplesBetween(const FigureData& data, std::optional<double> from, std::optional<double> to)
{
    const auto inside = [&](const FigureSample& sample) {
        return (!from || sample.depth >= *from) && (!to || sample.depth <= *to);
    };
    if (!data.byDepth || std::all_of(data.samples.begin(), data.samples.end(), inside))
        return data;
    FigureData kept = data;
    kept.samples.clear();
    for (FigureTaxon& taxon : kept.taxa)
        taxon.counts.clear();
    for (std::size_t i = 0; i < data.samples.size(); ++i) {
        if (!inside(data.samples[i]))
            continue;
        kept.samples.push_back(data.samples[i]);
        for (std::size_t t = 0; t < data.taxa.size(); ++t)
            kept.taxa[t].counts.push_back(data.taxa[t].counts[i]);
    }
    return kept;
}
