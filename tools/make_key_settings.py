#!/usr/bin/env python3
"""Make the default key table, References/KeySetting.csv.

Usage: make_key_settings.py [target file]

Each record holds what the key types (function keys in brackets), its decimal
Windows virtual-key code, and the number of the counter it drives.
"""

import sys
from pathlib import Path

# Nine counter keys per block, three rows of three: each block lies together on
# the keyboard, so that a hand covers it without looking down.
COUNTER_KEYS = [
    ("q", 81), ("w", 87), ("e", 69), ("a", 65), ("s", 83), ("d", 68),
    ("z", 90), ("x", 88), ("c", 67),

    ("r", 82), ("t", 84), ("y", 89), ("f", 70), ("g", 71), ("h", 72),
    ("v", 86), ("b", 66), ("n", 78),

    ("u", 85), ("i", 73), ("o", 79), ("j", 74), ("k", 75), ("l", 76),
    ("m", 77), (",", 188), (".", 190),

    ("[F1]", 112), ("[F2]", 113), ("[F3]", 114), ("1", 49), ("2", 50), ("3", 51),
    ("[F4]", 115), ("[F5]", 116), ("[F6]", 117),

    ("4", 52), ("5", 53), ("6", 54), ("[F7]", 118), ("[F8]", 119), ("[F9]", 120),
    ("7", 55), ("8", 56), ("9", 57),
]

# Shift-1 and Shift-2 are neighbours that the right little finger can hold,
# singly or both, while all other fingers stay on the counter keys.  They are
# ordinary keys because a held modifier key sets off the system's own sticky
# keys, filter keys and menus.  Undo and Save lie just above, out of the way of
# the counter keys.
SHIFT_1 = (";", 186)
SHIFT_2 = ("p", 80)
UNDO = ("[BkSp]", 8)
SAVE = ("=", 187)

# The third record names Shift-1 a second time.
CONTROL_KEYS = [SHIFT_1, SHIFT_2, SHIFT_1, UNDO, SAVE]

# Keys kept for reference whose code has not been identified yet.
REFERENCE_KEYS = ["Shift", "Ctrl", "Delete", "BkSp", "Esc", "Enter",
                  "Space", "F1", "Left", "Up", "Right", "Down"]
UNIDENTIFIED = 999


def records():
    yield "Definition", "Code", "Number"
    for number, (definition, code) in enumerate(COUNTER_KEYS, start=1):
        yield definition, code, number
    for definition, code in CONTROL_KEYS:
        yield definition, code, "n/a"
    for definition in REFERENCE_KEYS:
        yield definition, UNIDENTIFIED, "n/a"


def main():
    beside_tools = Path(__file__).resolve().parent.parent / "References" / "KeySetting.csv"
    target = Path(sys.argv[1]) if len(sys.argv) > 1 else beside_tools
    target.parent.mkdir(parents=True, exist_ok=True)
    lines = [",".join(f'"{field}"' for field in record) for record in records()]
    target.write_bytes("".join(line + "\r\n" for line in lines).encode("ascii"))


if __name__ == "__main__":
    main()
