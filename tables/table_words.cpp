#include "tables/table_words.h"

#include <algorithm>

std::string smallLetters(std::string_view text)
{
    std::string small(text);
    for (char& c : small)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return small;
}

namespace {

TableWord find(std::string_view head, bool whole)
{
    struct Word {
        std::string_view text;
        TableWord meaning;
        bool mayGoOn;
    };
    constexpr Word words[] = {{"sample", TableWord::sample, true}, {"depth", TableWord::depth, true},
                              {"age", TableWord::age, true},       {"thickness", TableWord::age, true},
                              {"id", TableWord::id, false},        {"key", TableWord::id, false},
                              {"total", TableWord::total, false},  {"sum", TableWord::total, false},
                              {"taxon", TableWord::taxon, true},   {"name", TableWord::taxon, false},
                              {"species", TableWord::taxon, false}};
    constexpr std::size_t longest = 64; // most fields of a table are counts and names
    if (head.empty() || head.size() > longest)
        return TableWord::none;
    const std::string small = smallLetters(head);
    for (const Word& word : words) {
        if (small.substr(0, word.text.size()) != word.text)
            continue;
        if (small.size() == word.text.size())
            return word.meaning;
        const char next = small[word.text.size()];
        const bool letter = (next >= 'a' && next <= 'z') || static_cast<unsigned char>(next) >= 0x80;
        if (!whole && word.mayGoOn && !letter)
            return word.meaning;
    }
    return TableWord::none;
}

} // namespace

TableWord wordOf(std::string_view head)
{
    return find(head, false);
}

TableWord wholeWordOf(std::string_view head)
{
    return find(head, true);
}

std::string cleanText(std::string_view text)
{
    std::string clean(text);
    for (char& c : clean)
        if (c == '"')
            c = '\'';
        else if (static_cast<unsigned char>(c) < ' ' || c == '\x7F')
            c = ' ';
    return clean;
}

std::string columnLetters(int column)
{
    std::string letters;
    for (; column > 0; column = (column - 1) / 26)
        letters += static_cast<char>('A' + (column - 1) % 26);
    std::reverse(letters.begin(), letters.end());
    return letters;
}
