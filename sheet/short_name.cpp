#include "sheet/short_name.h"

#include <algorithm>
#include <vector>

namespace {

constexpr std::size_t genusLetters = 5;

struct Word {
    std::string_view whole;
    std::size_t letters; ///< of it that are left

    bool isCut() const { return letters < whole.size(); }
    /// Letters that it loses at a time: a single one and its point would take the same room.
    std::size_t step() const { return isCut() ? 1 : 2; }
    /// Whether `least` letters are left after that.
    bool canLose(std::size_t least) const
    {
        return letters >= least + step() + (whole.front() == '(' ? 1 : 0);
    }
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

/// The word that loses letters next; nullptr if none does. Of more than two words the last one tells most
/// taxa of a genus apart.
Word* nextToCut(std::vector<Word>& words)
{
    Word& first = words.front();
    Word& last = words.back();
    if (first.canLose(genusLetters)) // known from its neighbours
        return &first;
    if (words.size() == 2) {
        Word& longer = last.letters > first.letters ? last : first;
        return longer.canLose(3) ? &longer : nullptr;
    }
    const auto middle = std::max_element(words.begin() + 1, words.end() - 1, hasFewerLetters);
    if (middle->canLose(1))
        return &*middle;
    if (first.canLose(3))
        return &first;
    if (last.canLose(4))
        return &last;
    return first.canLose(1) ? &first : nullptr;
}

} // namespace

std::string shortName(std::string_view name, const std::function<bool(const std::string&)>& fits)
{
    std::string text(name);
    std::vector<Word> words = wordsOf(name);
    while (words.size() > 1 && !fits(text)) {
        Word* const word = nextToCut(words);
        if (word == nullptr)
            break;
        word->letters -= word->step();
        text = joined(words);
    }
    return text;
}
