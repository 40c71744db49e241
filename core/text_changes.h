#pragma once

#include <string_view>

/// Writes to those texts of the main window whose change runs a handler inside the writer. A write of the
/// text that already stands there runs nothing. These are the program's own writes: they are no edits, so
/// they leave the marks of unsaved work alone.

void setText0(std::string_view text);
void setText1(int slot, std::string_view text);
void setText2(int slot, std::string_view text);
void setText3(int total, std::string_view text);
void setLabel4(std::string_view caption);
/// "serial number of the sample/highest one of the sheet", into Label4.
void showSerial(int sample);

/// Slot of a key -> one more individual of it, or one less while MinusArmed. The one place where a slot
/// becomes a count.
void Text0_Change();
/// A name is stored; of slot 0, the sample's, it shows in the list of samples too.
void Text1_Change(int slot);
/// A count is stored. One that is no plain whole number is refused with a message and gives way to
/// PreviousCount.
void Text2_Change(int slot);
/// The all total (index 0) goes on with the saturation curve, opens the way to the next sample and stamps the
/// first individual.
void Text3_Change(int total);
/// With a second sample there is something to draw a diagram of.
void Label4_Change();
