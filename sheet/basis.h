#pragma once

#include "core/sheet_tables.h"

#include <array>
#include <cstdint>

/// The % basis: the individuals that a percentage is a share of. Basis 0 is all of them, 1 and 2 are those of
/// a subtotal. The same choice tells which total the alarm watches.

/// Weight of each taxon in the chosen basis, by slot 1 to 135; all 0 if nothing is chosen.
std::array<std::int32_t, taxonSlots + 1> basisWeights();

/// The individuals of a sample, each times its taxon's weight.
std::int32_t basisTotal(const SheetTables& tables, int sample,
                        const std::array<std::int32_t, taxonSlots + 1>& weights);

/// Stands for a share of a basis without individuals.
constexpr float noShare = 99.99F;

/// Fills `Share` of one sample, and slot 0 of its counts with the basis total. A taxon outside the basis has
/// a share too, put against a total that does not hold it, so it may pass 1. Without a total all are noShare.
void ComputePercentages(int sample);

/// Chooses a basis from the program; runs Option1_Click if it was another one.
void selectBasis(int basis);
/// "Set alarm": the user has chosen a basis. Underlines its members, arms the alarm, redraws an open diagram.
void Option1_Click(int basis);
