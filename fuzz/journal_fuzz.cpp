// Any bytes in place of a recovery copy and a journal; and journals of any lines with one byte damaged, which
// may cost no more than the line it is in.

#include "files/journal.h"
#include "files/recovery_copy.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

/// Takes what the lines of a journal say from the bytes.
class Source {
public:
    explicit Source(std::string_view bytes) : rest_(bytes) {}

    bool empty() const { return rest_.empty(); }
    int number(int bytes)
    {
        int value = 0;
        for (; bytes > 0 && !rest_.empty(); --bytes, rest_.remove_prefix(1))
            value = value * 256 + static_cast<unsigned char>(rest_.front());
        return value;
    }
    std::string text()
    {
        const std::string taken(rest_.substr(0, static_cast<std::size_t>(number(1) % 20)));
        rest_.remove_prefix(std::min(rest_.size(), taken.size()));
        return taken;
    }

private:
    std::string_view rest_;
};

bool same(const JournalLine& one, const JournalLine& other)
{
    return one.serial == other.serial && one.name == other.name && one.slot == other.slot &&
           one.count == other.count && one.clock == other.clock;
}

void damageOneByte(Source source)
{
    const auto number = static_cast<std::uint64_t>(source.number(2));
    const int where = source.number(2);
    const int change = 1 + source.number(1) % 255;
    std::string text = journalText(JournalHead{{number, source.text(), std::nullopt, "", ""}, true});
    const std::size_t head = text.size();
    std::vector<JournalLine> lines;
    while (!source.empty() && lines.size() < 20) {
        lines.push_back({source.text(), source.text(), 1 + source.number(1) % taxonSlots,
                         source.number(3) - 1000, source.text()});
        text += journalText(lines.back(), number);
    }
    if (lines.empty())
        return;
    const auto whole = readJournal(text, number);
    if (!whole || whole->lines.size() != lines.size())
        std::abort();
    const std::size_t at = head + static_cast<std::size_t>(where) % (text.size() - head);
    text[at] = static_cast<char>(text[at] ^ change);
    const auto damaged = readJournal(text, number);
    // The end of a line takes the next one with it.
    if (!damaged || damaged->lines.size() + 2 < lines.size())
        std::abort();
    std::size_t found = 0;
    for (const JournalLine& line : lines)
        if (found < damaged->lines.size() && same(line, damaged->lines[found]))
            ++found;
    if (found != damaged->lines.size())
        std::abort(); // a line that nobody wrote
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static SheetTables sheet;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    if (const auto copy = readRecoveryCopy(bytes))
        if (!readRecoveryCopy(recoveryCopyText(copy->sheetText, copy->label)))
            std::abort();
    for (const std::optional<std::uint64_t> copy :
         {std::optional<std::uint64_t>(), std::optional<std::uint64_t>(1)})
        if (const auto journal = readJournal(bytes, copy)) {
            sheet.SampleCount = 1;
            bringCounts(journal->lines, sheet);
        }
    damageOneByte(Source(bytes));
    return 0;
}
