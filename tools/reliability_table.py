#!/usr/bin/env python3
"""Sums what sweeps of faults say of themselves in the logs of a test run: a row for each command
with its calls, faults and findings, on the host as it is and on one of other habits.

    reliability_table.py [--write] LOG...    prints the table; with --write into docs/reliability.md
    reliability_table.py --check             every command has a sweep of its allocations in some
                                             script (of its calls: tests/boundary_test.cpp)

Fails when a command is missing from the sum, or has a finding.
"""
import collections
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
DOCUMENT = ROOT / "docs" / "reliability.md"
BEGIN, END = "<!-- faults by command -->\n", "<!-- end of faults by command -->\n"
TEST = re.compile(r"^\[ RUN      \] \S*?\.(\w+)")
SWEEP = re.compile(r"^(.*:\d+): sweep of (\w+): (\d+) (calls|allocations), (\d+) faults, (\d+) bad runs$")
FIRST_RUNS = re.compile(r"^\s*sweep allocations of (\w+).*: (\d+) allocations, (\d+) first runs, "
                        r"(\d+) bad runs$")
COLUMNS = ("usual", "other", "memory")


class Row:
    """What was swept of one command; findings are runs that went wrong."""

    def __init__(self):
        self.calls = {}  # of each sweep, wherever it ran
        self.faults = collections.Counter()
        self.swept = set()  # of COLUMNS; a command without allocations has no fault in them
        self.findings = 0

    def add(self, column, faults, findings):
        self.swept.add(column)
        self.faults[column] += int(faults)
        self.findings += int(findings)

    def cells(self):
        return (sum(self.calls.values()), *(self.faults[column] for column in COLUMNS), self.findings)


def commands():
    """Those that the English README calls built, in the menu's order."""
    text = (ROOT / "README.md").read_text(encoding="utf-8")
    has_column = "| available in | built |" in text
    rows = re.findall(r"^\| \d+ \| `(\w+)` \|.*\| ([^|]*) \|$", text, re.M)
    return [name for name, last in rows if not has_column or last.strip() == "yes"]


def read_log(path, rows):
    habits = "usual"
    for line in path.read_text(encoding="utf-8", errors="replace").splitlines():
        line = line.rstrip("\r")
        if test := TEST.match(line):
            habits = "other" if test[1].endswith("OtherHabits") else "usual"
        elif sweep := SWEEP.match(line):
            place, command, count, what, faults, findings = sweep.groups()
            row = rows[command]
            if what == "calls":
                name = pathlib.PurePath(place.replace("\\", "/")).name
                row.calls[name] = max(row.calls.get(name, 0), int(count))
            row.add(habits if what == "calls" else "memory", faults, findings)
        elif runs := FIRST_RUNS.match(line):
            rows[runs[1]].add("memory", runs[3], runs[4])


def table(names, rows):
    lines = ["| command | calls | faults | faults, other habits | allocations failed | findings |",
             "|---|---:|---:|---:|---:|---:|"]
    cells = [rows[name].cells() for name in names]
    lines += [f"| `{name}` | " + " | ".join(f"{n:,}" for n in row) + " |"
              for name, row in zip(names, cells)]
    lines.append("| all | " + " | ".join(f"{sum(column):,}" for column in zip(*cells)) + " |")
    return "\n".join(lines) + "\n"


def complaints(names, rows, columns=COLUMNS):
    words = {"usual": "calls are not swept", "other": "calls are not swept with other habits",
             "memory": "allocations are not swept"}
    for name in names:
        yield from (f"{name}: {words[column]}" for column in columns if column not in rows[name].swept)
        if rows[name].findings:
            yield f"{name}: {rows[name].findings} findings"
    yield from (f"{name} is swept but no command of README.md" for name in set(rows) - set(names))


def read_scripts(rows):
    for script in (ROOT / "tests" / "scripts").rglob("*.qms"):
        text = script.read_text(encoding="utf-8")
        for command in re.findall(r"^\s*sweep allocations of (\w+)", text, re.M):
            rows[command].add("memory", 0, 0)


def write(text):
    document = DOCUMENT.read_text(encoding="utf-8")
    head, rest = document.split(BEGIN)
    DOCUMENT.write_text(head + BEGIN + text + END + rest.split(END)[1], encoding="utf-8")


def main():
    arguments = sys.argv[1:]
    rows = collections.defaultdict(Row)
    names = commands()
    if not names:
        sys.exit("README.md has no command table that this reads")
    if arguments == ["--check"]:
        read_scripts(rows)
        wrong = list(complaints(names, rows, ("memory",)))
    else:
        for name in arguments:
            if name != "--write":
                read_log(pathlib.Path(name), rows)
        found = table(names, rows)
        print(found, end="")
        wrong = list(complaints(names, rows))
        if "--write" in arguments and not wrong:
            write(found)
    if wrong:
        sys.exit("\n".join(wrong))


main()
