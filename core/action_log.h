#pragma once

#include "platform/ports.h"

#include <string>
#include <string_view>

/// The log of all actions, kept three ways: the history (Text7), the list whose text is the latest action
/// (Combo1), and ActionText / ActionTime with one time stamp an action. It is only ever appended to.

/// Adds one line to all three.
void logAction(std::string_view line);
/// Appends the text of Combo1 and the time to the log.
void StampAction();

/// Time of day to a hundredth of a second, as in "14:05:09:27".
std::string TimeStamp(const Moment& moment);
/// "15/11/2026_14:05:09:27", as the log keeps it.
std::string logTime(const Moment& moment);
/// "15/11/2026 (14:05:09)", as the sheet shows and keeps dates.
std::string dateStamp(const Moment& moment);
