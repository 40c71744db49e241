#pragma once

#include <optional>
#include <string>
#include <string_view>

/// The name of a sheet within its path: what stands between the last point (its last character aside) and the
/// folder separator before it, "\" or "/". Nothing for a path without a point.
std::optional<std::string> baseName(const std::string& path);

/// What stands behind the last folder separator.
std::string fileNameOf(const std::string& path);

/// A file of the sheet's name with another ending: "C:\Cores\Lake1.csv" with ".lab.csv" gives
/// "C:\Cores\Lake1.lab.csv". Empty for a sheet without a path.
std::string fileBeside(const std::string& sheetPath, std::string_view ending);

/// Name proposed for a copy: "C:\Cores\Lake1.csv" on 15/11/2026 gives "C:\Cores\Lake1_(15.11.2026).csv".
/// `date`: the short date; what stands between its numbers becomes a point, so that it names no folder.
std::string proposedCopyName(const std::string& path, const std::string& date);

/// Name proposed for a percentage table, beside the sheet: "C:\Cores\Lake1_percent.csv". Empty for a sheet
/// without a path.
std::string proposedTableName(const std::string& path);
