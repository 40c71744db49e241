#include "statistics/comparison.h"

#include "core/number_text.h"
#include "statistics/written_numbers.h"

#include <span>

std::optional<bool> areApart(const std::optional<Limits>& one, const std::optional<Limits>& other)
{
    if (!one || !other)
        return {};
    return one->upper < other->lower || other->upper < one->lower;
}

static std::string pText(double p)
{
    if (p < 0.0001)
        return "p < 0.0001";
    return "p = " + threeDigits(p);
}

std::string comparisonText(const BasisCounts& first, const BasisCounts& second)
{
    const auto similarity = percentageSimilarity(first.members, second.members);
    if (!similarity)
        return "A sample without individuals of the % basis, or with a count below 0, cannot be compared.";
    std::string text = "Percentage similarity " + oneDecimal(*similarity) + " %.";
    const auto test = testHomogeneity(first.members, second.members);
    if (!test)
        return text + " Too few individuals for a chi-square test.";
    text += " Chi-square " + threeDigits(test->chiSquare) + " with " + decimalText(test->degrees) +
            (test->degrees == 1 ? " degree" : " degrees") + " of freedom, " + pText(test->p);
    if (test->pooledTaxa > 0)
        text += " (" + decimalText(test->pooledTaxa) + " rare taxa pooled)";
    return text + ".";
}
