#!/usr/bin/env python3
"""make_ico.py TARGET PNG...: puts square pictures into one icon file for Windows, as they are."""

import pathlib
import struct
import sys

pictures = [pathlib.Path(name).read_bytes() for name in sys.argv[2:]]
offset = 6 + 16 * len(pictures)
directory = struct.pack("<HHH", 0, 1, len(pictures))
for picture in pictures:
    (width,) = struct.unpack(">I", picture[16:20])
    directory += struct.pack("<BBBBHHII", width % 256, width % 256, 0, 0, 1, 32, len(picture), offset)
    offset += len(picture)
pathlib.Path(sys.argv[1]).write_bytes(directory + b"".join(pictures))
