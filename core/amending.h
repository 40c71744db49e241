#pragma once

/// Switches between counting and "Modify template" mode, in which keys edit the sheet and do not count.
/// `turnOff`: 0 turns the mode on, anything else off. The note, the additional info and the italics are the
/// affair of the two handlers that call this (sheet/modify_mode.h).
void AmendingOnOff(int turnOff);
