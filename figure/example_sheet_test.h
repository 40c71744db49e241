#pragma once

#include "core/fields.h"
#include "core/number_text.h"
#include "core/sheet_state_type.h"
#include "figure/figure_data.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

/// What the tests of figures read: the delivered examples, as far as figures need them, and reference tables.

inline std::string fileText(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file.good()) << path;
    std::stringstream text;
    text << file.rdbuf();
    return text.str();
}

inline std::vector<std::vector<std::string>> tableOf(const std::string& path)
{
    const std::string text = fileText(path);
    std::vector<std::vector<std::string>> table(1);
    FieldReader fields(text);
    while (const auto field = fields.next()) {
        table.back().emplace_back(*field);
        if (fields.atLineEnd())
            table.emplace_back();
    }
    table.pop_back();
    return table;
}

inline SheetState exampleSheet(const std::string& name)
{
    const auto table = tableOf(EXAMPLES "/" + name + ".csv");
    SheetState example;
    example.SheetPath = "/" + name + ".csv";
    example.SheetHeader[2][2] = table[1][1];
    example.SheetHeader[2][3] = table[1][2];
    example.SampleCount = static_cast<int>(table[1].size()) - 4;
    for (int sample = 1; sample <= example.SampleCount; ++sample)
        example.SampleField(sample, 2) = table[1][sample + 3];
    for (int row = 1; row <= taxonSlots; ++row) {
        const auto& line = table[row + 1];
        const int slot = wholeNumber(line[0]);
        example.KeyIndexOfRow[row] = slot;
        example.RowOfKeyIndex[slot] = row;
        example.TaxonRecord[slot] = {line[0], line[0], line[1], line[2], line[3]};
        for (int sample = 1; sample <= example.SampleCount; ++sample)
            example.Count(sample, slot) = wholeNumber(line[sample + 3]);
    }
    return example;
}

inline FigureData exampleData(const std::string& name)
{
    return figureData(exampleSheet(name), "/" + name + ".csv");
}

/// Letters of one width, near that of the real ones.
inline double evenLetters(std::string_view text, bool)
{
    return 0.5 * static_cast<double>(text.size());
}
