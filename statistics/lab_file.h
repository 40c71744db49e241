#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

/// The file of laboratory data beside a sheet. docs/data-formats.md tells its lines.

/// Columns of a row, after the name of the sample.
enum LabColumn {
    labTablets,
    labTabletMean,
    labTabletSd,
    labQuantity,
    labQuantityUnit, ///< any text; the others are numbers
    labQuantitySd,
    labDepthTop,
    labDepthBottom,
    labAgeTop,
    labAgeBottom,
    labColumns
};

/// What was noted of one sample, as it was typed; empty where nothing was.
using LabFields = std::array<std::string, labColumns>;

struct LabRow {
    std::string sample; ///< its name
    LabFields fields;
};

/// Texts are in the code page of the sheets.
struct LabTable {
    std::string marker; ///< name of the taxon that was added; empty: none
    std::vector<LabRow> rows;
    std::string fault; ///< why the text cannot be taken, line and content; empty: it was read to its end
};

LabTable readLabText(std::string_view text);
/// UTF-8, with a byte order mark only if a character beyond ASCII occurs.
std::string labText(const std::string& marker, const std::vector<LabRow>& rows);

/// True if a column may hold the text: any for the unit, else nothing or a number with a point, not negative
/// but for depths and ages.
bool isLabEntry(LabColumn column, std::string_view text);
