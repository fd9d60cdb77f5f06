#!/usr/bin/env python3
"""Checks that sources lie in the rooms of docs/architecture.md and that no include climbs a wall.

The rooms, what each may know and what each is for stand in tables of that document whose rows read
"| `src/frame/text/` | one sentence | `src/toolkit/`, ... |". A room may include from itself and from
the rooms in its third column, each of which must stand above it.
"""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
DOCUMENT = ROOT / "docs" / "architecture.md"
ROW = re.compile(r"^\| `((?:src|workbench)/[\w/]*)` \| ([^|]+) \| ([^|]+) \|$", re.M)
INCLUDE = re.compile(r'^#include "([^"]+)"', re.M)
MOST_FILES = 30  # of sources in one folder; a room that grows beyond wants to be two


def rooms(text):
    """Gives the rooms in order: name -> the rooms it may know."""
    known = {}
    problems = []
    for name, sentence, knows in ROW.findall(text):
        allowed = re.findall(r"`([^`]+)`", knows)
        problems += [f"{DOCUMENT.name}: {name} knows {other}, which stands below it or nowhere"
                     for other in allowed if other not in known]
        if not sentence.strip().endswith("."):
            problems.append(f"{DOCUMENT.name}: {name}: its rule is one sentence")
        known[name] = set(allowed)
    return known, problems


def room_of(path):
    return str(path.parent.relative_to(ROOT)) + "/"


def included(name):
    """The file behind an include: src/ and the root are the include folders."""
    for folder in (ROOT, ROOT / "src"):
        if (folder / name).is_file():
            return folder / name
    return None


def walls(source, known):
    own = room_of(source)
    text = source.read_text(encoding="utf-8")
    for match in INCLUDE.finditer(text):
        target = included(match.group(1))
        line = f"{source.relative_to(ROOT)}:{text[:match.start()].count(chr(10)) + 1}"
        if target is None:
            yield f'{line}: there is no "{match.group(1)}"'
        elif room_of(target) != own and room_of(target) not in known[own]:
            yield f"{line}: {own} does not know {room_of(target)}"


def sources():
    for top in ("src", "workbench"):
        for path in sorted((ROOT / top).rglob("*")):
            if path.suffix in (".h", ".cpp"):
                yield path


def crowded():
    folders = {}
    for top in ("src", "workbench", "tests"):
        for path in (ROOT / top).rglob("*"):
            if path.suffix in (".h", ".cpp"):
                folders[path.parent] = folders.get(path.parent, 0) + 1
    return [f"{folder.relative_to(ROOT)}: {count} sources, more than {MOST_FILES}"
            for folder, count in sorted(folders.items()) if count > MOST_FILES]


def main():
    known, problems = rooms(DOCUMENT.read_text(encoding="utf-8"))
    used = set()
    for source in sources():
        room = room_of(source)
        if room not in known:
            problems.append(f"{source.relative_to(ROOT)}: {room} is no room of {DOCUMENT.name}")
            continue
        used.add(room)
        problems += walls(source, known)
    problems += [f"{DOCUMENT.name}: {room} holds no source" for room in known if room not in used]
    problems += crowded()
    if problems:
        sys.exit("\n".join(problems))


main()
