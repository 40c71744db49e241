#pragma once

/// The keyboard as an instrument: what is held, and what the next key does.
struct KeyboardState {
    int Layer = 0; ///< 0 neutral, 1 "Shift 1 or 2", 2 "Shift 1 and 2"
    bool Shift1Down = false;
    bool Shift2Down = false;
    bool RepeatGuard = false; ///< Timer1 runs: the same key is not taken again
    int LastKey = 0;          ///< last key that was no shift key
    int MinusState = 0;       ///< 0 idle, 1 Undo key down, above 1 a counter key went down meanwhile
    bool MinusArmed = false;  ///< the key in work counts in reverse
    bool KeysActive = true;   ///< false while the % button is held: nothing counts, nothing is stored
};
