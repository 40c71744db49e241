#include "trials/days/broken_file.h"

#include <algorithm>

namespace {

void replaceFirst(std::string& text, std::string_view what, std::string_view with)
{
    if (const std::size_t at = text.find(what); at != std::string::npos)
        text.replace(at, what.size(), with);
}

/// Puts something else in place of one field.
void replaceField(std::string& text, std::size_t at, std::string_view with)
{
    const std::size_t begin = text.find_last_of(",\n", at);
    const std::size_t end = text.find_first_of(",\r", at);
    if (begin < end && end != std::string::npos)
        text.replace(begin + 1, end - begin - 1, with);
}

} // namespace

std::string brokenFile(std::string text, Chance& chance)
{
    if (text.empty())
        return text;
    constexpr std::string_view fields[] = {"",      "0",     "1",     "7",     "135",        "136",
                                           "-3",    "01",    "1.0",   "x",     "2147483647", "-2147483648",
                                           "1E300", "\"",    "---",   "\"a\"", "99",         "12.5",
                                           "70000", "-9999", "\"10\""};
    constexpr std::string_view tags[] = {"Saved:", "Last saved (dd/mm/yyyy):", "Backed up (dd/mm/yyyy):"};
    const auto anywhere = [&] {
        return static_cast<std::size_t>(chance.below(static_cast<int>(text.size())));
    };
    for (int accidents = chance.between(1, 3); accidents > 0 && !text.empty(); --accidents)
        switch (chance.below(7)) {
        case 0: // ends early
            text.resize(chance.oneIn(2) ? anywhere() : std::min<std::size_t>(anywhere(), 200));
            break;
        case 1: // a number or a name was edited
            replaceField(text, anywhere(), chance.oneOf(fields));
            break;
        case 2: // the same, near the heads and key indexes
            replaceField(text, std::min<std::size_t>(anywhere(), 300), chance.oneOf(fields));
            break;
        case 3: // a spreadsheet dropped the marks
            text.erase(std::remove(text.begin(), text.end(), '"'), text.end());
            break;
        case 4:
            replaceFirst(text, "Last modified (dd/mm/yyyy):", chance.oneOf(tags));
            break;
        case 5: // bytes of another file
            text.insert(anywhere(), std::string(static_cast<std::size_t>(chance.between(1, 40)),
                                                static_cast<char>(chance.below(256))));
            break;
        default: // a line went
            if (const std::size_t begin = text.find('\n', anywhere()); begin != std::string::npos)
                text.erase(begin, text.find('\n', begin + 1) - begin);
        }
    return text;
}
