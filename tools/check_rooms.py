#!/usr/bin/env python3
"""Fails when an include goes against the rooms and arrows that stand at the top of docs/architecture.md, or when
something else than a .cpp of a handler reaches for the program's own records, or when an object of the whole process
is missing there."""

import pathlib
import re
import sys

root = pathlib.Path(__file__).resolve().parent.parent
arrows = {}
for line in (root / "docs/architecture.md").read_text().splitlines():
    room = re.fullmatch(r"(\S+)/ .*\[(.*)\]", line)
    if room:
        arrows[room[1]] = set(room[2].split())
assert len(arrows) > 5, "no list of rooms found in docs/architecture.md"

instances = {"core/sheet_state.h", "core/main_screen.h"}
faults = []


def room_of(path):
    folders = path.split("/")[:-1]
    while folders and "/".join(folders) not in arrows:
        folders.pop()
    return "/".join(folders)


sources = [f for f in root.glob("*/**/*") if f.suffix in (".cpp", ".h")]
for source in sources:
    path = source.relative_to(root).as_posix()
    here = room_of(path)
    if not here:
        continue
    for included in re.findall(r'^#include "(.+)"', source.read_text(encoding="utf-8"), re.M):
        there = room_of(included)
        if not (root / included).exists():
            faults.append(f"{path}: includes {included}, which is not named from the project's top")
        elif there != here and there not in arrows[here] and "all" not in arrows[here]:
            faults.append(f"{path}: {here} may not include {there} ({included})")
        if included in instances and path.endswith(".h") and not path.endswith("_test.h"):
            faults.append(f"{path}: a header may not reach for the program's records ({included})")

page = (root / "docs/architecture.md").read_text()
for header in root.glob("*/**/*.h"):
    for kind, name in re.findall(r"^extern (?!const )(\w+) (\w+);", header.read_text(encoding="utf-8"), re.M):
        if room_of(header.relative_to(root).as_posix()) not in ("", "trials") and f"`{name}`" not in page:
            faults.append(f"{header.relative_to(root)}: {name} is missing among the objects of docs/architecture.md")

computing = re.findall(r"^- `(\S+)`", (root / "docs/architecture.md").read_text(), re.M)
assert computing, "no list of computing files found in docs/architecture.md"
for name in computing:
    for source in root.glob(name + ".*"):
        for included in re.findall(r'^#include "(.+)"', source.read_text(encoding="utf-8"), re.M):
            if included in instances or included == "core/hooks.h":
                faults.append(f"{source.relative_to(root)}: computing code may not include {included}")

# The tests of a room are found by their names; those of trials/ stand in its list.
listed = (root / "trials/CMakeLists.txt").read_text()
for test in root.glob("trials/*_test.cpp"):
    if test.name not in listed:
        faults.append(f"trials/{test.name}: no test program runs it")

for fault in faults:
    print(fault)
sys.exit(1 if faults else 0)
