#include "files/journal.h"

#include "core/number_text.h"
#include "files/proved_line.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>

namespace {

constexpr const char* headMark = "Recovery journal";
constexpr const char* lineMark = "Count";

std::uint64_t seedOf(std::uint64_t number)
{
    return checksumOf(std::to_string(number));
}

std::optional<JournalHead> readHead(std::string_view text)
{
    const auto fields = fieldsOfProvedLine(text, checksumOfNothing);
    if (!fields || fields->size() != 7 || fields->front() != headMark)
        return std::nullopt;
    const auto number = wholeField((*fields)[1]);
    const auto size = wholeField((*fields)[5]);
    const auto checksum = wholeField((*fields)[6]);
    if (!number || !size || !checksum)
        return std::nullopt;
    JournalHead head{{*number, (*fields)[3], std::nullopt, "", ""}, (*fields)[2] == "after the copy"};
    if ((*fields)[4] == "file")
        head.label.file = Fingerprint{*size, *checksum};
    return head;
}

std::optional<JournalLine> readLine(std::string_view text, std::uint64_t number)
{
    const auto fields = fieldsOfProvedLine(text, seedOf(number));
    if (!fields || fields->size() != 6 || fields->front() != lineMark)
        return std::nullopt;
    JournalLine line{(*fields)[1], (*fields)[2], 0, 0, (*fields)[5]};
    const auto slot = wholeField((*fields)[3]);
    const std::string& count = (*fields)[4];
    const bool whole =
        std::from_chars(count.data(), count.data() + count.size(), line.count).ec == std::errc();
    if (!whole || !slot || *slot < 1 || *slot > taxonSlots)
        return std::nullopt;
    line.slot = static_cast<int>(*slot);
    return line;
}

/// Column of a sample; 0 if the sheet has none and no room for one more.
int columnOf(const JournalLine& line, SheetTables& sheet)
{
    int sameSerial = 0;
    for (int sample = 1; sample <= sheet.SampleCount; ++sample)
        if (sheet.SampleField(sample, 1) == line.serial) {
            if (sheet.SampleField(sample, 2) == line.name)
                return sample;
            sameSerial = sameSerial == 0 ? sample : sameSerial;
        }
    if (sameSerial != 0 || sheet.SampleCount >= sampleLimit)
        return sameSerial;
    const int added = ++sheet.SampleCount;
    sheet.SampleField(added, 1) = line.serial;
    sheet.SampleField(added, 2) = line.name;
    for (int slot = 0; slot <= taxonSlots; ++slot)
        sheet.Count(added, slot) = 0;
    return added;
}

} // namespace

std::string journalText(const JournalHead& head)
{
    const Fingerprint file = head.label.file.value_or(Fingerprint());
    return provedLine({headMark, std::to_string(head.label.number),
                       head.overCopy ? "after the copy" : "without a copy", head.label.path,
                       head.label.file ? "file" : "no file", std::to_string(file.size),
                       std::to_string(file.checksum)},
                      checksumOfNothing);
}

std::string journalText(const JournalLine& line, std::uint64_t number)
{
    return provedLine(
        {lineMark, line.serial, line.name, decimalText(line.slot), decimalText(line.count), line.clock},
        seedOf(number));
}

std::optional<Journal> readJournal(std::string_view text, std::optional<std::uint64_t> copy)
{
    std::optional<Journal> journal;
    bool wanted = false;
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(text.size(), line.size() + 1));
        if (const auto head = readHead(line)) {
            wanted = !copy || (head->overCopy && head->label.number == *copy);
            if (wanted)
                journal = Journal{*head, {}};
        } else if (wanted) {
            if (const auto count = readLine(line, journal->head.label.number))
                journal->lines.push_back(*count);
        }
    }
    return journal;
}

BroughtCounts bringCounts(const std::vector<JournalLine>& lines, SheetTables& sheet)
{
    SampleTable<std::int32_t, taxonSlots + 1> before = sheet.Count;
    const int columnsBefore = sheet.SampleCount;
    BroughtCounts brought;
    for (const JournalLine& line : lines)
        if (const int sample = columnOf(line, sheet)) {
            sheet.Count(sample, line.slot) = line.count;
            brought.lastSample = sample;
        }
    for (int sample = 1; sample <= sheet.SampleCount; ++sample)
        for (int slot = 1; slot <= taxonSlots; ++slot)
            brought.individuals += std::abs(std::int64_t(sheet.Count(sample, slot)) -
                                            (sample > columnsBefore ? 0 : before(sample, slot)));
    return brought;
}
