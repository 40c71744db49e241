#include "tables/export_tables.h"

#include "core/number_text.h"
#include "platform/code_page.h"
#include "tables/exported_taxa.h"
#include "tables/plain_number.h"

#include <algorithm>
#include <charconv>
#include <cstring>

namespace {

constexpr std::string_view lineEnd = "\r\n";

void append(std::string& text, long long number)
{
    char digits[24];
    const auto written = std::to_chars(digits, digits + sizeof digits, number);
    text.append(digits, written.ptr);
}

/// A field of a table from a text in UTF-8.
std::string field(std::string text)
{
    if (text.find_first_of(",\"\r\n") == std::string::npos)
        return text;
    for (std::size_t at = text.find('"'); at != std::string::npos; at = text.find('"', at + 2))
        text.insert(at, 1, '"');
    return '"' + text + '"';
}

std::string fieldFromSheet(std::string_view text)
{
    return field(utf8FromCodePage(text));
}

std::string withMark(std::string text)
{
    std::uint64_t bits = 0;
    std::size_t at = 0;
    for (std::uint64_t eight = 0; at + sizeof eight <= text.size(); at += sizeof eight) {
        std::memcpy(&eight, text.data() + at, sizeof eight);
        bits |= eight;
    }
    for (; at < text.size(); ++at)
        bits |= static_cast<unsigned char>(text[at]);
    if ((bits & 0x8080808080808080) != 0)
        text.insert(0, "\xEF\xBB\xBF");
    return text;
}

/// "sample,depth," of a row. The depth is the name if that is wholly a number.
std::string sampleFields(const SheetTables& sheet, int sample)
{
    const std::string& name = sheet.SampleField(sample, 2);
    return fieldFromSheet(name) + ',' + (isPlainNumber(name, '.') ? name : std::string()) + ',';
}

std::vector<ExportedTaxon> countedTaxa(const SheetTables& sheet)
{
    std::vector<ExportedTaxon> taxa = exportedTaxa(sheet);
    taxa.erase(std::remove_if(taxa.begin(), taxa.end(),
                              [](const ExportedTaxon& taxon) { return taxon.samples == 0; }),
               taxa.end());
    return taxa;
}

int digitsOf(std::uint64_t number)
{
    int digits = 0;
    for (; number != 0; number /= 10)
        ++digits;
    return digits;
}

/// Appends `number` divided by ten to the power of `places`, without zeros at its end.
void appendDecimal(std::string& text, std::uint64_t number, int places)
{
    for (; places > 0 && number % 10 == 0; --places)
        number /= 10;
    char digits[24];
    const auto written = std::to_chars(digits, digits + sizeof digits, number);
    const int length = static_cast<int>(written.ptr - digits);
    const int whole = std::max(0, length - places);
    if (whole == 0)
        text += '0';
    text.append(digits, static_cast<std::size_t>(whole));
    if (places == 0)
        return;
    text += '.';
    text.append(static_cast<std::size_t>(std::max(0, places - length)), '0');
    text.append(digits + whole, written.ptr);
}

} // namespace

void appendPercent(std::string& text, std::int32_t count, std::int64_t total)
{
    if (count < 0)
        text += '-';
    const auto divisor = static_cast<std::uint64_t>(total);
    const std::uint64_t hundredfold = 100 * static_cast<std::uint64_t>(std::abs(std::int64_t{count}));
    std::uint64_t quotient = hundredfold / divisor;
    std::uint64_t rest = hundredfold % divisor;
    int places = 0;
    if (rest != 0) {
        constexpr int significant = 10;
        places = std::max(0, significant - digitsOf(quotient));
        if (quotient == 0)
            for (std::uint64_t first = rest * 10; first < divisor; first *= 10)
                ++places; // zeros behind the point are not significant
    }
    constexpr std::uint64_t powers[] = {1, 10, 100, 1000, 10000, 100000, 1000000, 10000000};
    for (int left = places; left > 0;) { // seven digits at a time: 24 bits more than the rest has
        const int step = std::min(left, 7);
        rest *= powers[step];
        quotient = quotient * powers[step] + rest / divisor;
        rest %= divisor;
        left -= step;
    }
    if (2 * rest > divisor || (2 * rest == divisor && quotient % 2 == 1))
        ++quotient;
    appendDecimal(text, quotient, places);
}

std::string countsTable(const SheetTables& sheet)
{
    const std::vector<ExportedTaxon> taxa = countedTaxa(sheet);
    std::string text = "sample,depth";
    text.reserve(8192 + taxa.size() * static_cast<std::size_t>(sheet.SampleCount + 20) * 5);
    for (const ExportedTaxon& taxon : taxa)
        text += ',' + fieldFromSheet(taxon.name);
    text += lineEnd;
    for (int sample = 1; sample <= sheet.SampleCount; ++sample) {
        text += sampleFields(sheet, sample);
        for (const ExportedTaxon& taxon : taxa) {
            append(text, sheet.Count(sample, taxon.keyIndex));
            text += ',';
        }
        text.pop_back();
        text += lineEnd;
    }
    return withMark(std::move(text));
}

std::string tidyTable(const SheetTables& sheet, std::string_view location)
{
    const std::vector<ExportedTaxon> taxa = countedTaxa(sheet);
    const std::string place = field(std::string(location)) + ',';
    std::vector<std::string> middles;
    std::size_t width = 0;
    for (const ExportedTaxon& taxon : taxa) {
        middles.push_back(fieldFromSheet(taxon.name) + ',' + fieldFromSheet(taxon.group) + ",,NISP,");
        width += middles.back().size() + place.size() + 48;
    }
    std::string text = "location,sample,depth,taxon,group,element,units,count,rel_abund\r\n";
    text.reserve(text.size() + width * static_cast<std::size_t>(sheet.SampleCount));
    for (int sample = 1; sample <= sheet.SampleCount; ++sample) {
        std::int64_t individuals = 0;
        for (const ExportedTaxon& taxon : taxa)
            individuals += sheet.Count(sample, taxon.keyIndex);
        const std::string start = place + sampleFields(sheet, sample);
        for (std::size_t i = 0; i < taxa.size(); ++i) {
            const std::int32_t count = sheet.Count(sample, taxa[i].keyIndex);
            text += start;
            text += middles[i];
            append(text, count);
            text += ',';
            if (individuals > 0)
                appendPercent(text, count, individuals);
            text += lineEnd;
        }
    }
    return withMark(std::move(text));
}

std::string taxaTable(const SheetTables& sheet)
{
    std::string text = "taxon,group,key_index,subtotal_1,subtotal_2,total,samples\r\n";
    for (const ExportedTaxon& taxon : exportedTaxa(sheet)) {
        const TaxonFields& fields = sheet.TaxonRecord[taxon.keyIndex];
        text += fieldFromSheet(taxon.name) + ',' + fieldFromSheet(taxon.group);
        for (const long long number :
             {static_cast<long long>(taxon.keyIndex), static_cast<long long>(wholeNumber(fields.Subtotal1)),
              static_cast<long long>(wholeNumber(fields.Subtotal2)), taxon.total,
              static_cast<long long>(taxon.samples)}) {
            text += ',';
            append(text, number);
        }
        text += lineEnd;
    }
    return withMark(std::move(text));
}
