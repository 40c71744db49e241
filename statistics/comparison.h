#pragma once

#include "statistics/basis_counts.h"
#include "statistics/homogeneity.h"

#include <optional>
#include <string>

/// Whether the 95 % limits of two shares leave a gap between them. Nothing if one of them has no limits.
std::optional<bool> areApart(const std::optional<Limits>& one, const std::optional<Limits>& other);

/// What is said of two samples together, in one line.
std::string comparisonText(const BasisCounts& first, const BasisCounts& second);
