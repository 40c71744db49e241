#include "figure/name_runs.h"

#include <algorithm>
#include <array>

namespace {

bool endsWith(std::string_view word, std::string_view end)
{
    return word.size() >= end.size() && word.substr(word.size() - end.size()) == end;
}

bool uprightWord(std::string_view word)
{
    constexpr std::array<std::string_view, 15> words = {"var.",    "subsp.", "ssp.", "subfam.", "f.",
                                                        "fo.",     "cf.",    "aff.", "sp.",     "spp.",
                                                        "undiff.", "indet.", "type", "complex", "Other"};
    return std::find(words.begin(), words.end(), word) != words.end() || endsWith(word, "ae") ||
           endsWith(word, "ales");
}

void append(std::vector<TextRun>& runs, std::string_view text, bool italic)
{
    if (text.empty())
        return;
    if (runs.empty() || runs.back().italic != italic)
        runs.push_back({"", italic});
    runs.back().text += text;
}

/// A word without blanks, cut at slashes and before "-type" and "-complex".
void appendWord(std::vector<TextRun>& runs, std::string_view word)
{
    while (!word.empty()) {
        const std::size_t slash = std::min(word.find('/'), word.size());
        std::string_view part = word.substr(0, slash);
        std::string_view tail;
        for (const std::string_view end : {"-type", "-complex"})
            if (tail.empty() && part.size() > end.size() && endsWith(part, end)) {
                tail = part.substr(part.size() - end.size());
                part.remove_suffix(end.size());
            }
        const bool italic = !uprightWord(part);
        append(runs, part, italic);
        append(runs, tail, false);
        if (slash == word.size())
            return;
        append(runs, "/", italic && tail.empty());
        word.remove_prefix(slash + 1);
    }
}

} // namespace

std::vector<TextRun> nameRuns(std::string_view name, NameSlant slant)
{
    if (slant != NameSlant::words)
        return {{std::string(name), slant == NameSlant::italic}};
    std::vector<TextRun> runs;
    while (!name.empty()) {
        std::size_t end = name.find_first_not_of(' ');
        if (end != 0) { // blanks go with what stands before them
            end = std::min(end, name.size());
            append(runs, name.substr(0, end), !runs.empty() && runs.back().italic);
        } else if (name.front() == '(') {
            const std::size_t bracket = name.find(')');
            end = bracket == std::string_view::npos ? name.size() : bracket + 1;
            append(runs, name.substr(0, end), false);
        } else {
            end = std::min(name.find_first_of(" ("), name.size());
            appendWord(runs, name.substr(0, end));
        }
        name.remove_prefix(end);
    }
    return runs;
}
