"""The manual is whole: every link, picture and place in a page that its pages name exists, every page can be reached
from its contents, no picture is left over or would show at another size than that of the window it was made from, and
no page leads out of the folder that is delivered with the program."""

import re
import sys
from pathlib import Path

docs = Path("docs").resolve()
contents = docs / "manual/index.md"
outside = [Path("README.md").resolve()]  # may lead anywhere in the source tree
faults = []


def text_of(page):
    return re.sub(r"```.*?```|`[^`\n]*`", "", page.read_text(encoding="utf-8"), flags=re.S)


def places(page):
    """Headings as links name them."""
    headings = re.findall(r"^#+ (.*)$", page.read_text(encoding="utf-8"), flags=re.M)
    return {re.sub(r"[^\w -]", "", heading.lower()).replace(" ", "-") for heading in headings}


def targets(page):
    for target in re.findall(r"\]\(([^)\s]+)\)", text_of(page)):
        if not target.startswith(("https:", "mailto:")):
            name, _, place = target.partition("#")
            yield target, (page.parent / name).resolve() if name else page, place


reached, waiting, pictures = {contents}, [contents, *outside], set()
while waiting:
    page = waiting.pop()
    for target, found, place in targets(page):
        if not found.exists():
            faults.append(f"{page.name}: {target} is not there")
        elif found.suffix == ".png":
            pictures.add(found)
        elif place and place not in places(found):
            faults.append(f"{page.name}: {target} names no heading")
        if page not in outside and docs not in found.parents:
            faults.append(f"{page.name}: {target} is not delivered with the program")
        elif page not in outside and found.suffix == ".md" and found.exists() and found not in reached:
            reached.add(found)
            waiting.append(found)

for page in (docs / "manual").rglob("*.md"):
    if page not in reached:
        faults.append(f"{page.name} cannot be reached from the contents")
for picture in (docs / "manual/pictures").glob("*"):
    if picture not in pictures:
        faults.append(f"{picture.name} is in no page")
    if b"pHYs" not in picture.read_bytes().partition(b"IDAT")[0]:
        faults.append(f"{picture.name} does not tell its density; tools/screenshots makes pictures that do")

print("\n".join(faults))
sys.exit(1 if faults else 0)
