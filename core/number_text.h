#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// Numbers that the user sees or that go into a file are kept as text and parsed at use, always by these.

/// The number that a text begins with: blanks, a sign, digits, a point, digits. What stands behind it is
/// ignored; a text that begins with no number is 0. There is no exponent: "12E1" is the code of a sample, not
/// a hundred and twenty.
double leadingNumber(std::string_view text);

/// The leading number rounded to a whole one, halves to even, held within 32 bits.
std::int32_t wholeNumber(std::string_view text);

/// True if the text is the plain decimal writing of its whole number: no blanks, plus sign, point or zeros
/// in front.
bool isWholeNumber(std::string_view text);

/// Held within 32 bits, the width of counts and totals.
std::int32_t within32Bits(std::int64_t number);

std::string decimalText(long long number);

/// The plain decimal writing of a number: the shortest that gives it back, a digit before the point, no
/// exponent and no zeros at the end, as in "0.5", "12.5", "-3".
std::string plainDecimal(double number);
std::string plainDecimal(float number);
