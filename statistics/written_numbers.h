#pragma once

#include <string>

/// Numbers as a scientist writes them, with a point whatever the locale. What is not finite is empty.

/// One decimal, as in "5.3", "0.0", "-1.2".
std::string oneDecimal(double number);
/// Three significant digits with commas between thousands, as in "112,000", "0.0123", "3.40".
std::string threeDigits(double number);
/// A whole number with commas between thousands: "1,328".
std::string withThousands(double whole);
/// Ten significant digits, no commas, no exponent and no zeros at the end: for files.
std::string tenDigits(double number);
