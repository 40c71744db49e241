#include "figure/name_runs.h"

#include <gtest/gtest.h>

/// Italic letters between stars.
static std::string shown(std::string_view name)
{
    std::string text;
    for (const TextRun& run : nameRuns(name, NameSlant::words))
        text += run.italic ? "*" + run.text + "*" : run.text;
    return text;
}

TEST(NameRuns, followTheWords)
{
    EXPECT_EQ(shown("Ulmus/Zelkova"), "*Ulmus/Zelkova*");
    EXPECT_EQ(shown("Juniperus-type"), "*Juniperus*-type");
    EXPECT_EQ(shown("Rosaceae (operculate)"), "Rosaceae (operculate)");
    EXPECT_EQ(shown("Compositae subfam. Asteroideae"), "Compositae subfam. Asteroideae");
    EXPECT_EQ(shown("Pinus sp."), "*Pinus *sp.");
    EXPECT_EQ(shown("Nitzschia cf. palea var. minuta"), "*Nitzschia *cf. *palea *var. *minuta*");
    EXPECT_EQ(shown("Poaceae/Zea"), "Poaceae/*Zea*");
    EXPECT_EQ(shown("Other"), "Other");
    EXPECT_EQ(shown("Bad (bracket"), "*Bad *(bracket");
    EXPECT_EQ(shown(""), "");
}
