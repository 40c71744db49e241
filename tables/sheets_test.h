#pragma once

#include "core/sheet_tables.h"
#include "files/data_sheet_reader.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

inline std::string bytesOf(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

/// One of the published tables as a sheet.
inline SheetTables exampleSheet(const std::string& name)
{
    const std::string text = bytesOf(std::string(EXAMPLES) + "/" + name + ".csv");
    SheetTables tables;
    DataSheetReader reader(text, tables);
    bool whole = reader.readPath() && reader.readSerials() && reader.readNames();
    for (int row = 1; row <= taxonSlots; ++row)
        whole = whole && reader.readTaxon(row);
    EXPECT_TRUE(whole && reader.readTexts()) << name;
    return tables;
}

/// A file of this room's reference folder.
inline std::string reference(const std::string& name)
{
    return bytesOf(std::string(TABLES) + "/reference/" + name);
}
