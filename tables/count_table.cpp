#include "tables/count_table.h"

#include "core/number_text.h"
#include "core/sheet_size.h"
#include "core/taxon_name.h"
#include "tables/plain_number.h"
#include "tables/plain_table.h"
#include "tables/table_words.h"

#include <algorithm>
#include <limits>
#include <map>
#include <numeric>

namespace {

/// Line 0 of either side holds the heads of the other one.
class CountTableReader {
public:
    CountTableReader(std::string_view text, const TableReading& reading)
        : table_(text, separatorOf(text)), reading_(reading)
    {
        result_.separator = table_.separator();
    }
    CountTable read();

private:
    char decimalMark() const { return table_.separator() == ',' ? '.' : ','; }
    bool isTable();
    bool isRectangle();
    std::optional<Samples> toldSide() const;
    int numbersIn(bool firstRow) const;
    std::string_view at(int sample, int taxon) const
    {
        const auto [row, column] = samplesAreRows_ ? std::pair(sample, taxon) : std::pair(taxon, sample);
        return field(row, column);
    }
    std::string_view field(int row, int column) const
    {
        if (row == 0 && cornerMissing_)
            return column == 0 ? std::string_view() : table_.field(0, column - 1);
        return table_.field(row, column);
    }
    std::string lineName(bool ofTaxa, int line) const;
    bool isEmpty(bool ofTaxa, int line) const;
    void chooseNames();
    void chooseLines();
    bool readCounts();
    void refuseCell(int sample, int taxon);
    void leaveOutSum(bool ofTaxa);
    bool withinLimits();
    void leaveOutRarest(std::size_t surplus);
    void name();
    void remarkEqualNames(const std::vector<std::string>& names, const char* what);
    void refuse(std::string why) { result_.refusal = std::move(why); }
    void remark(std::string text) { result_.remarks.push_back(std::move(text)); }
    std::int64_t totalOfTaxon(std::size_t taxon) const;
    void keepTaxa(const std::vector<bool>& kept);

    PlainTable table_;
    TableReading reading_;
    CountTable result_;
    bool samplesAreRows_ = true;
    bool cornerMissing_ = false; ///< the heads are one field fewer than the rows below, as R writes them
    int width_ = 0;
    int nameLine_ = 0;             ///< taxon line that gives the names of the samples
    std::vector<int> sampleLines_; ///< lines with counts
    std::vector<int> taxonLines_;
};

bool CountTableReader::isTable()
{
    if (const auto row = table_.openQuote())
        refuse("Row " + decimalText(*row) + " has a quotation mark that is never closed.");
    else if (table_.rows() > 0 && table_.fields(0) > 3 && table_.field(0, 3) == "Serial No.")
        refuse("This is a data sheet: File > Open reads it.");
    else if (table_.rows() < 2 || std::max(table_.fields(0), table_.fields(1)) < 2)
        refuse("This is no table of counts: it has no rows and columns with names.");
    return result_.refusal.empty();
}

/// All rows have as many fields as the first; empty ones beyond it do not matter.
bool CountTableReader::isRectangle()
{
    const auto used = [this](int row) {
        int fields = table_.fields(row);
        while (fields > 0 && table_.field(row, fields - 1).empty())
            --fields;
        return fields;
    };
    for (int row = 0; row < table_.rows(); ++row)
        width_ = std::max(width_, std::min(used(row), table_.fields(0)));
    bool oneMore = true;
    bool oneMoreUsed = false;
    for (int row = 1; row < table_.rows(); ++row) {
        oneMore = oneMore && table_.fields(row) == table_.fields(0) + 1;
        oneMoreUsed = oneMoreUsed || used(row) == width_ + 1;
    }
    if (oneMore && oneMoreUsed) {
        cornerMissing_ = true;
        ++width_;
        return true;
    }
    for (int row = 1; row < table_.rows(); ++row) {
        const int fields = std::max(used(row), std::min(table_.fields(row), width_));
        if (fields != width_) {
            refuse("Row " + decimalText(table_.number(row)) + " has " + decimalText(fields) +
                   (fields == 1 ? " field" : " fields") + " instead of " + decimalText(width_) + ".");
            return false;
        }
    }
    return true;
}

/// How many heads of one side are numbers.
int CountTableReader::numbersIn(bool firstRow) const
{
    int numbers = 0;
    for (int line = 1; line < (firstRow ? width_ : table_.rows()); ++line)
        numbers += isPlainNumber(firstRow ? field(0, line) : field(line, 0), decimalMark());
    return numbers;
}

std::optional<Samples> CountTableReader::toldSide() const
{
    switch (wordOf(field(0, 0))) {
    case TableWord::sample:
    case TableWord::depth:
    case TableWord::age:
    case TableWord::id:
        return Samples::rows;
    case TableWord::taxon:
        return Samples::columns;
    default:
        break;
    }
    const int across = numbersIn(true);
    const int down = numbersIn(false);
    if (across == down)
        return std::nullopt;
    return across > down ? Samples::columns : Samples::rows;
}

/// As a person finds it in a spreadsheet: column 3 "age".
std::string CountTableReader::lineName(bool ofTaxa, int line) const
{
    const bool isRow = ofTaxa != samplesAreRows_;
    const int number = isRow ? table_.number(line) : line + 1;
    std::string_view head = ofTaxa ? at(0, line) : at(line, nameLine_);
    if (!ofTaxa && head.empty())
        head = at(line, 0);
    return (isRow ? "row " : "column ") + decimalText(number) + " \"" + cleanText(head) + '"';
}

/// A row or column that only keeps others apart.
bool CountTableReader::isEmpty(bool ofTaxa, int line) const
{
    const int length = ofTaxa == samplesAreRows_ ? table_.rows() : width_;
    for (int other = 0; other < length; ++other)
        if (!(ofTaxa ? at(other, line) : at(line, other)).empty())
            return false;
    return true;
}

/// A line called sample gives the samples their names, else one called depth, else the first line.
void CountTableReader::chooseNames()
{
    const int lines = samplesAreRows_ ? width_ : table_.rows();
    for (const TableWord wanted : {TableWord::depth, TableWord::sample})
        for (int line = lines - 1; line >= 0; --line)
            if (wordOf(at(0, line)) == wanted)
                nameLine_ = line;
}

/// Leaves out what is no taxon and no sample by its head.
void CountTableReader::chooseLines()
{
    const int taxonLines = samplesAreRows_ ? width_ : table_.rows();
    const int sampleLines = samplesAreRows_ ? table_.rows() : width_;
    for (int line = 0; line < taxonLines; ++line) {
        const std::string_view head = at(0, line);
        if (line == nameLine_ || isEmpty(true, line))
            continue;
        if (line == 0 && head.empty()) {
            remark("Left out: " + lineName(true, 0) + ", which has no head.");
            continue;
        }
        if (wordOf(head) == TableWord::none || (line != 0 && wordOf(head) == TableWord::taxon))
            taxonLines_.push_back(line);
        else
            remark("Left out: " + lineName(true, line) + ", which holds no counts of a taxon.");
    }
    for (int line = 1; line < sampleLines; ++line) {
        const TableWord word = wholeWordOf(at(line, 0));
        if (isEmpty(false, line))
            continue;
        if (word == TableWord::none || word == TableWord::taxon)
            sampleLines_.push_back(line);
        else
            remark("Left out: " + lineName(false, line) + ", which holds no counts of a sample.");
    }
}

void CountTableReader::refuseCell(int sample, int taxon)
{
    const auto [row, column] = samplesAreRows_ ? std::pair(sample, taxon) : std::pair(taxon, sample);
    refuse("Row " + decimalText(table_.number(row)) + ", column " + decimalText(column + 1) + " (cell " +
           columnLetters(column + 1) + decimalText(table_.number(row)) + ", taxon \"" +
           cleanText(at(0, taxon)) + "\", sample \"" + cleanText(at(sample, nameLine_)) + "\") holds \"" +
           cleanText(field(row, column)) + "\", which is no count. Nothing can be taken.");
}

/// The first cell, as a person reads, that holds no count refuses all.
bool CountTableReader::readCounts()
{
    result_.counts.reserve(sampleLines_.size() * taxonLines_.size());
    std::optional<std::pair<int, int>> wrong; // row and column
    for (const int sample : sampleLines_)
        for (const int taxon : taxonLines_) {
            const auto count = countOfCell(at(sample, taxon), decimalMark());
            result_.counts.push_back(count.value_or(0));
            const auto place = samplesAreRows_ ? std::pair(sample, taxon) : std::pair(taxon, sample);
            if (!count && (!wrong || place < *wrong))
                wrong = place;
        }
    if (wrong) {
        refuseCell(samplesAreRows_ ? wrong->first : wrong->second,
                   samplesAreRows_ ? wrong->second : wrong->first);
        result_.counts.clear();
    }
    return !wrong;
}

/// Leaves out the one line that is the sum of all others of its side. Two lines that are equal are taxa or
/// samples, not sums, and one equal number may be chance.
void CountTableReader::leaveOutSum(bool ofTaxa)
{
    std::vector<int>& lines = ofTaxa ? taxonLines_ : sampleLines_;
    const std::size_t across = ofTaxa ? sampleLines_.size() : taxonLines_.size();
    const std::size_t taxa = taxonLines_.size();
    const auto count = [&](std::size_t line, std::size_t other) -> std::int64_t {
        return ofTaxa ? result_.counts[other * taxa + line] : result_.counts[line * taxa + other];
    };
    std::vector<std::int64_t> sums(across);
    for (std::size_t line = 0; line < lines.size(); ++line)
        for (std::size_t other = 0; other < across; ++other)
            sums[other] += count(line, other);
    std::vector<std::size_t> found;
    for (std::size_t line = 0; line < lines.size(); ++line) {
        int equal = 0;
        bool all = true;
        for (std::size_t other = 0; all && other < across; ++other) {
            all = 2 * count(line, other) == sums[other];
            equal += sums[other] != 0;
        }
        if (all && equal > 1)
            found.push_back(line);
    }
    if (found.size() != 1)
        return;
    remark("Left out: " + lineName(ofTaxa, lines[found[0]]) + ", which equals the sum of the others.");
    std::vector<std::int32_t> kept;
    for (std::size_t i = 0; i < result_.counts.size(); ++i)
        if ((ofTaxa ? i % taxa : i / taxa) != found[0])
            kept.push_back(result_.counts[i]);
    result_.counts = std::move(kept);
    const auto place = static_cast<std::ptrdiff_t>(found[0]);
    lines.erase(lines.begin() + place);
    std::vector<std::string>& names = ofTaxa ? result_.taxa : result_.samples;
    names.erase(names.begin() + place);
}

void CountTableReader::name()
{
    for (const int line : taxonLines_) {
        result_.taxa.push_back(cleanText(at(0, line)));
        if (result_.taxa.back().empty())
            result_.taxa.back() = noText;
    }
    for (const int line : sampleLines_) {
        result_.samples.push_back(cleanText(at(line, nameLine_)));
        if (result_.samples.back().empty())
            result_.samples.back() = decimalText(static_cast<long long>(result_.samples.size())) + ": ---";
    }
}

void CountTableReader::remarkEqualNames(const std::vector<std::string>& names, const char* what)
{
    std::map<std::string, int> times;
    for (const std::string& one : names)
        ++times[one];
    for (const auto& [one, number] : times)
        if (number > 1)
            remark(decimalText(number) + " " + what + " are called \"" + one + "\".");
}

std::int64_t CountTableReader::totalOfTaxon(std::size_t taxon) const
{
    std::int64_t total = 0;
    for (std::size_t sample = 0; sample < result_.samples.size(); ++sample)
        total += result_.count(sample, taxon);
    return total;
}

void CountTableReader::keepTaxa(const std::vector<bool>& kept)
{
    std::vector<std::string> names;
    std::vector<std::int32_t> counts;
    for (std::size_t i = 0; i < result_.counts.size(); ++i)
        if (kept[i % kept.size()])
            counts.push_back(result_.counts[i]);
    for (std::size_t i = 0; i < kept.size(); ++i)
        if (kept[i])
            names.push_back(std::move(result_.taxa[i]));
    result_.taxa = std::move(names);
    result_.counts = std::move(counts);
}

/// Of taxa with equally few individuals the later ones go first.
void CountTableReader::leaveOutRarest(std::size_t surplus)
{
    std::vector<std::size_t> order(result_.taxa.size());
    std::iota(order.rbegin(), order.rend(), std::size_t{0});
    std::vector<std::int64_t> totals;
    for (std::size_t taxon = 0; taxon < order.size(); ++taxon)
        totals.push_back(totalOfTaxon(taxon));
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t one, std::size_t other) { return totals[one] < totals[other]; });
    std::vector<bool> kept(order.size(), true);
    std::int64_t lost = 0;
    std::string names;
    for (std::size_t i = 0; i < surplus; ++i) {
        kept[order[i]] = false;
        lost += totals[order[i]];
        names += (i == 0 ? " " : ", ") + result_.taxa[order[i]];
    }
    remark("Left out as the rarest taxa, with " + decimalText(lost) + " individuals in all:" + names + ".");
    keepTaxa(kept);
}

bool CountTableReader::withinLimits()
{
    if (result_.taxa.empty() || result_.samples.empty()) {
        refuse("The table has no " + std::string(result_.taxa.empty() ? "taxa." : "samples."));
        return false;
    }
    if (result_.samples.size() > sampleLimit) {
        refuse("The table has " + decimalText(static_cast<long long>(result_.samples.size())) +
               " samples; a sheet holds " + decimalText(sampleLimit) + ".");
        return false;
    }
    for (std::size_t sample = 0; sample < result_.samples.size(); ++sample) {
        const auto first = result_.counts.begin() + static_cast<std::ptrdiff_t>(sample * result_.taxa.size());
        const auto total =
            std::accumulate(first, first + static_cast<std::ptrdiff_t>(result_.taxa.size()), std::int64_t{0});
        if (total > std::numeric_limits<std::int16_t>::max()) {
            refuse("Sample \"" + result_.samples[sample] + "\" has " + decimalText(total) +
                   " individuals; a data sheet holds 32767 in a sample.");
            return false;
        }
    }
    if (result_.taxa.size() <= taxonSlots)
        return true;
    const std::size_t surplus = result_.taxa.size() - taxonSlots;
    result_.surplusTaxa = static_cast<int>(surplus);
    if (reading_.leaveOutRarest)
        leaveOutRarest(surplus);
    else
        refuse("The table has " + decimalText(static_cast<long long>(result_.taxa.size())) +
               " taxa; a sheet holds " + decimalText(taxonSlots) + ".");
    return reading_.leaveOutRarest;
}

CountTable CountTableReader::read()
{
    if (!isTable() || !isRectangle())
        return std::move(result_);
    result_.isTable = true;
    result_.samplesStand = reading_.samples ? reading_.samples : toldSide();
    samplesAreRows_ = result_.samplesStand != Samples::columns;
    chooseNames();
    chooseLines();
    name();
    if (!readCounts())
        return std::move(result_);
    leaveOutSum(true);
    leaveOutSum(false);
    if (withinLimits()) {
        remarkEqualNames(result_.taxa, "taxa");
        remarkEqualNames(result_.samples, "samples");
    }
    return std::move(result_);
}

} // namespace

CountTable readCountTable(std::string_view text, const TableReading& reading)
{
    return CountTableReader(text, reading).read();
}
