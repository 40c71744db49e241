#include "sheet/short_name.h"

#include <algorithm>
#include <vector>

namespace {

constexpr std::size_t leastLetters = 3;
constexpr std::size_t genusLetters = 5; ///< of the first word, before another one is cut

struct Word {
    std::string_view whole;
    std::size_t letters; ///< of it that are left

    bool isCut() const { return letters < whole.size(); }
};

bool hasFewerLetters(const Word& one, const Word& other)
{
    return one.letters < other.letters;
}

std::vector<Word> wordsOf(std::string_view name)
{
    std::vector<Word> words;
    for (std::size_t begin = 0; begin < name.size();) {
        const std::size_t end = std::min(name.find(' ', begin), name.size());
        if (end > begin)
            words.push_back({name.substr(begin, end - begin), end - begin});
        begin = end + 1;
    }
    return words;
}

std::string joined(const std::vector<Word>& words)
{
    std::string text;
    for (const Word& word : words) {
        text += text.empty() ? "" : " ";
        text += word.whole.substr(0, word.letters);
        if (word.isCut())
            text += '.';
    }
    return text;
}

} // namespace

std::string shortName(std::string_view name, const std::function<bool(const std::string&)>& fits)
{
    std::string text(name);
    std::vector<Word> words = wordsOf(name);
    while (words.size() > 1 && !fits(text)) {
        Word& longest = words.front().letters > genusLetters
                            ? words.front() // known from its neighbours
                            : *std::max_element(words.begin(), words.end(), hasFewerLetters);
        // A single letter and its point would take the same room.
        const std::size_t less = longest.isCut() ? 1 : 2;
        if (longest.letters < leastLetters + less)
            break;
        longest.letters -= less;
        text = joined(words);
    }
    return text;
}
