#pragma once

#include <string_view>

/// Stands for a taxon, note, info or date that is not there, on the screen and in the files.
constexpr char noText[] = "---";

/// Families end in "ae" and are written upright; all other taxa are in italics.
constexpr bool isFamily(std::string_view name)
{
    return name.ends_with("ae") || name.ends_with("AE");
}
