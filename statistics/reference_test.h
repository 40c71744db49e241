#pragma once

#include "core/number_text.h"

#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <sstream>
#include <string>
#include <vector>

/// A row of a table of reference values, by the names of its columns.
using ReferenceRow = std::map<std::string, std::string>;

/// A table of statistics/reference, none of whose fields has quotation marks.
inline std::vector<ReferenceRow> referenceTable(const std::string& name)
{
    std::ifstream file(std::string(REFERENCE) + "/" + name);
    const auto fieldsOf = [](const std::string& line) {
        std::vector<std::string> fields;
        std::istringstream rest(line + ",");
        for (std::string field; std::getline(rest, field, ',');)
            fields.push_back(field);
        return fields;
    };
    std::string line;
    std::getline(file, line);
    const std::vector<std::string> head = fieldsOf(line);
    std::vector<ReferenceRow> rows;
    while (std::getline(file, line)) {
        const std::vector<std::string> fields = fieldsOf(line);
        EXPECT_EQ(fields.size(), head.size()) << line;
        ReferenceRow row;
        for (std::size_t column = 0; column < head.size() && column < fields.size(); ++column)
            row[head[column]] = fields[column];
        rows.push_back(row);
    }
    EXPECT_FALSE(rows.empty()) << name;
    return rows;
}

inline double number(const ReferenceRow& row, const std::string& column)
{
    return leadingNumber(row.at(column));
}

inline std::vector<std::int32_t> countsIn(const std::string& text)
{
    std::istringstream numbers(text);
    std::vector<std::int32_t> counts;
    for (std::int32_t count = 0; numbers >> count;)
        counts.push_back(count);
    return counts;
}

/// Equal to a millionth of the reference value.
#define EXPECT_MATCHES(value, reference) EXPECT_NEAR(value, reference, 1e-6 * std::abs(reference))
