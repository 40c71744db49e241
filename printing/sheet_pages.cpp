#include "printing/sheet_pages.h"

#include "core/number_text.h"
#include "core/taxon_name.h"
#include "platform/code_page.h"
#include "statistics/written_numbers.h"
#include "tables/exported_taxa.h"

#include <algorithm>
#include <cstdint>

namespace {

constexpr double longSide = 297; // mm
constexpr double shortSide = 210;
constexpr double points = 8;
constexpr double pitch = 4.2;     // mm from line to line
constexpr double gap = 3;         // mm between columns
constexpr double widestName = 75; ///< where there are more samples than fit beside it
constexpr double widestSample = 24;

/// A line of the table: a taxon or a total.
struct Row {
    std::string name; ///< UTF-8
    bool italic = false;
    std::vector<long long> values; ///< by sample, from 1
};

std::vector<Row> taxonRows(const SheetTables& sheet, bool italics)
{
    std::vector<Row> rows;
    for (const ExportedTaxon& taxon : exportedTaxa(sheet)) {
        Row row;
        row.name = utf8FromCodePage(taxon.name);
        row.italic = italics && !isFamily(taxon.name);
        for (int sample = 0; sample <= sheet.SampleCount; ++sample)
            row.values.push_back(sample == 0 ? 0 : sheet.Count(sample, taxon.keyIndex));
        rows.push_back(std::move(row));
    }
    return rows;
}

std::vector<Row> totalRows(const SheetTables& sheet, const SheetWords& words)
{
    std::vector<Row> rows(3);
    for (std::size_t total = 0; total < rows.size(); ++total) {
        rows[total].name = utf8FromCodePage(words.totals[total]);
        rows[total].values.assign(static_cast<std::size_t>(sheet.SampleCount) + 1, 0);
    }
    for (int sample = 1; sample <= sheet.SampleCount; ++sample)
        for (int slot = 1; slot <= taxonSlots; ++slot) {
            const TaxonFields& taxon = sheet.TaxonRecord[slot];
            const long long count = sheet.Count(sample, slot);
            const auto column = static_cast<std::size_t>(sample);
            rows[0].values[column] += count;
            rows[1].values[column] += count * wholeNumber(taxon.Subtotal1);
            rows[2].values[column] += count * wholeNumber(taxon.Subtotal2);
        }
    return rows;
}

std::string sampleName(const SheetTables& sheet, int sample)
{
    return utf8FromCodePage(sheet.SampleField(sample, 2));
}

/// The table of counts.
class TablePrinter {
public:
    TablePrinter(PageSet& pages, const SheetTables& sheet, const SheetWords& words)
        : pages_(pages), sheet_(sheet), taxa_(taxonRows(sheet, words.italics)),
          totals_(totalRows(sheet, words))
    {
        for (const std::vector<Row>* const rows : {&taxa_, &totals_})
            for (const Row& row : *rows)
                nameWidth_ = std::max(nameWidth_, pages.widthOf(row.name, points, row.italic));
        double samples = 0;
        for (int sample = 1; sample <= sheet.SampleCount; ++sample)
            samples += gap + columnWidth(sample);
        nameWidth_ = std::min(nameWidth_, std::max(widestName, pages.width() - samples));
    }

    void print()
    {
        for (int first = 1; first <= sheet_.SampleCount;) {
            const std::vector<double> edges = rightEdges(first);
            printSamples(first, edges);
            first += static_cast<int>(edges.size());
        }
    }

private:
    double columnWidth(int sample) const
    {
        double width = std::min(widestSample, pages_.widthOf(sampleName(sheet_, sample), points));
        for (const std::vector<Row>* const rows : {&taxa_, &totals_})
            for (const Row& row : *rows)
                width = std::max(
                    width,
                    pages_.widthOf(std::to_string(row.values[static_cast<std::size_t>(sample)]), points));
        return width;
    }

    /// Of as many columns as the page has room for, and at least one.
    std::vector<double> rightEdges(int first) const
    {
        std::vector<double> edges;
        double edge = nameWidth_;
        for (int sample = first; sample <= sheet_.SampleCount; ++sample) {
            edge += gap + columnWidth(sample);
            if (edge > pages_.width() && !edges.empty())
                break;
            edges.push_back(edge);
        }
        return edges;
    }

    void head(int first, const std::vector<double>& edges)
    {
        const int last = first + static_cast<int>(edges.size()) - 1;
        pages_.newPage("Samples " + std::to_string(first) + " to " + std::to_string(last) + " of " +
                       std::to_string(sheet_.SampleCount));
        pages_.text(0, points, "Taxon");
        double left = nameWidth_;
        int sample = first;
        for (const double edge : edges) {
            pages_.text(edge, points, pages_.fitted(sampleName(sheet_, sample++), points, edge - left - gap),
                        Anchor::end);
            left = edge;
        }
        pages_.rule(0, edges.back());
        pages_.down(1.5 * pitch);
    }

    void line(const Row& row, int first, const std::vector<double>& edges)
    {
        pages_.text(0, points, pages_.fitted(row.name, points, nameWidth_, row.italic), Anchor::start,
                    row.italic);
        auto sample = static_cast<std::size_t>(first);
        for (const double edge : edges)
            pages_.text(edge, points, std::to_string(row.values[sample++]), Anchor::end);
        pages_.down(pitch);
    }

    void printSamples(int first, const std::vector<double>& edges)
    {
        head(first, edges);
        for (const Row& row : taxa_) {
            if (pages_.linesLeft(pitch) == 0)
                head(first, edges);
            line(row, first, edges);
        }
        if (pages_.linesLeft(pitch) < static_cast<int>(totals_.size()) + 1)
            head(first, edges);
        pages_.down(0.5 * pitch);
        for (const Row& row : totals_)
            line(row, first, edges);
    }

    PageSet& pages_;
    const SheetTables& sheet_;
    std::vector<Row> taxa_;
    std::vector<Row> totals_;
    double nameWidth_ = 25;
};

/// The words of a text in lines of `room` mm; a single word may be wider.
std::vector<std::string> wrapped(const PageSet& pages, const std::string& text, double room)
{
    std::vector<std::string> lines(1);
    std::size_t at = 0;
    while (at < text.size()) {
        const std::size_t end = std::min(text.find_first_of(" \r\n", at), text.size());
        const std::string word = text.substr(at, end - at);
        at = end + 1;
        if (word.empty())
            continue;
        std::string& line = lines.back();
        const std::string longer = line.empty() ? word : line + ' ' + word;
        if (line.empty() || pages.widthOf(longer, points) <= room)
            line = longer;
        else
            lines.push_back(word);
    }
    return lines;
}

void printRemarks(PageSet& pages, const SheetTables& sheet, const SheetWords& words)
{
    constexpr const char* subtitle = "Notes and additional info";
    bool begun = false;
    for (int sample = 1; sample <= sheet.SampleCount; ++sample) {
        std::vector<std::pair<std::string, std::string>> remarks = {{"Note", sheet.SampleNote(sample, 0)}};
        for (int item = 1; item <= infoItems; ++item)
            remarks.emplace_back(words.infoNames[static_cast<std::size_t>(item)],
                                 sheet.AdditionalInfo(sample, item));
        std::string name = sampleName(sheet, sample);
        for (auto& [caption, text] : remarks) {
            if (text.empty() || text == noText)
                continue;
            if (!begun)
                pages.newPage(subtitle);
            begun = true;
            constexpr double captionAt = 30;
            constexpr double textAt = 75;
            for (const std::string& line : wrapped(pages, utf8FromCodePage(text), pages.width() - textAt)) {
                if (pages.linesLeft(pitch) == 0)
                    pages.newPage(subtitle);
                pages.text(0, points, pages.fitted(name, points, captionAt - gap));
                pages.text(captionAt, points,
                           pages.fitted(utf8FromCodePage(caption), points, textAt - captionAt - gap));
                pages.text(textAt, points, pages.fitted(line, points, pages.width() - textAt));
                pages.down(pitch);
                name.clear();
                caption.clear();
            }
        }
    }
}

} // namespace

std::vector<Page> sheetPages(const SheetTables& sheet, const SheetWords& words,
                             const LetterWidth& letterWidth)
{
    PageSet pages(longSide, shortSide, words.title, letterWidth);
    TablePrinter(pages, sheet, words).print();
    printRemarks(pages, sheet, words);
    return pages.finished();
}

std::vector<Page> summaryPages(const SheetTables& sheet, int sample, const std::vector<int>& ranked,
                               const SheetWords& words, const LetterWidth& letterWidth)
{
    constexpr double nameAt = 15;
    constexpr double countAt = 125;
    constexpr double shareAt = 150;
    PageSet pages(shortSide, longSide, words.title, letterWidth);
    const std::string subtitle = "Summary of sample " + sampleName(sheet, sample);
    const auto head = [&] {
        pages.newPage(subtitle);
        pages.text(nameAt - gap, points, "Rank", Anchor::end);
        pages.text(nameAt, points, "Taxon");
        pages.text(countAt, points, "Count", Anchor::end);
        pages.text(shareAt, points, "% of all", Anchor::end);
        pages.rule(0, shareAt);
        pages.down(1.5 * pitch);
    };
    long long all = 0;
    for (int slot = 1; slot <= taxonSlots; ++slot)
        all += sheet.Count(sample, slot);
    head();
    int rank = 1;
    for (const int slot : ranked) {
        if (pages.linesLeft(pitch) == 0)
            head();
        const std::string& held = sheet.TaxonRecord[slot].Name;
        const bool italic = words.italics && !isFamily(held);
        const std::int32_t count = sheet.Count(sample, slot);
        pages.text(nameAt - gap, points, std::to_string(rank++), Anchor::end);
        pages.text(nameAt, points,
                   pages.fitted(utf8FromCodePage(held), points, countAt - nameAt - 20, italic), Anchor::start,
                   italic);
        pages.text(countAt, points, std::to_string(count), Anchor::end);
        if (all > 0)
            pages.text(shareAt, points, oneDecimal(100.0 * count / static_cast<double>(all)), Anchor::end);
        pages.down(pitch);
    }
    return pages.finished();
}
