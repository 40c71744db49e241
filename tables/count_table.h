#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Where the samples of a table stand.
enum class Samples { rows, columns };

/// How a table is to be read.
struct TableReading {
    std::optional<Samples> samples; ///< nothing: as the table tells by itself
    bool leaveOutRarest = false;    ///< of more taxa than a sheet holds
};

/// What a table of counts holds. Texts are in the code page of the sheets, fit for one of their files.
struct CountTable {
    bool isTable = false; ///< it has rows and columns of equal lengths, so it can be looked at though refused
    std::string refusal;  ///< why nothing can be taken; empty: all that follows can
    std::optional<Samples> samplesStand; ///< nothing: the table does not tell, read as if they were rows
    char separator = ',';
    std::vector<std::string> taxa;    ///< in the order of the table
    std::vector<std::string> samples; ///< their names, in the order of the table
    std::vector<std::int32_t> counts; ///< sample by sample, each taxon's in the order of `taxa`, none below
                                      ///< 0; empty if a cell holds no count
    std::vector<std::string> remarks; ///< what is left out and why, and what to look at; whole sentences
    int surplusTaxa = 0;              ///< more than a sheet holds; the refusal is due to them alone

    std::int32_t count(std::size_t sample, std::size_t taxon) const
    {
        return counts[sample * taxa.size() + taxon];
    }
};

/// Reads a table of counts, separated by commas, semicolons or tabs. docs/data-formats.md tells its rules.
/// `text`: in the code page.
CountTable readCountTable(std::string_view text, const TableReading& reading);
