#pragma once

/// Turns an accepted key into a slot and the slot into one more individual (one less while MinusArmed) of the
/// sample on show, with all that the observer sees at once: number, totals, bold and pale row, log line. Puts
/// it on the undo stack. Called by DispatchKey only.
/// `keyCode`: Windows virtual-key code; `shift`: modifier state, unused.
void RecordCount(int keyCode, int shift);
