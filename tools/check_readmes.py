#!/usr/bin/env python3
"""Checks that README.zh.md says what README.md says: the same code blocks, the same rows of the
command table, the same pictures and documents.

Code blocks are compared character by character, so what explains them stands in the text around.
Of the command table number, command and label are compared; the help texts are those of the two
languages.
"""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
NAMES = ("README.md", "README.zh.md")


def code_blocks(text):
    return re.findall(r"^```[^\n]*\n.*?^```$", text, re.M | re.S)


def command_rows(text):
    rows = re.findall(r"^\| (\d+) \| `(\w+)` \| ([^|]*) \| [^|]* \| [^|]* \|$", text, re.M)
    return [" ".join(row) for row in rows]


def pictures(text):
    return re.findall(r"!\[[^\]]*\]\(([^)]*)\)", text)


def mentioned(text):
    """Commands, options, files and the like: what stands in backquotes outside of the table."""
    prose = re.sub(r"^(```.*?^```|\|.*?)$", "", text, flags=re.M | re.S)
    return sorted(set(re.findall(r"`([^`]+)`", prose)))


def differences(what, ours, theirs):
    """The first difference; those after it mostly follow from it."""
    if not ours:
        yield f"{NAMES[0]} has no {what}: is it still written in the way that this check reads?"
    for place, (one, other) in enumerate(zip(ours, theirs), 1):
        if one != other:
            yield f"{what} {place} differs:\n  {NAMES[0]}: {one}\n  {NAMES[1]}: {other}"
            break
    if len(ours) != len(theirs):
        yield f"{what}: {len(ours)} in {NAMES[0]}, {len(theirs)} in {NAMES[1]}"


def main():
    missing = [name for name in NAMES if not (ROOT / name).exists()]
    if missing:
        sys.exit(f"{', '.join(missing)}: not there")
    english, chinese = ((ROOT / name).read_text(encoding="utf-8") for name in NAMES)
    found = []
    for what, read in (("code block", code_blocks), ("row of the command table", command_rows),
                       ("picture", pictures), ("word in backquotes", mentioned)):
        found += differences(what, read(english), read(chinese))
    if found:
        sys.exit("\n".join(found))


main()
