#!/usr/bin/env python3
"""Writes the two colour tables of BatchColor into install/QMconfig: QmUGColor.ini, 217 colours that
go round the hues, and QmOptiColor.ini, 201 colours of which any two differ visibly. The same run
gives the same files; with --check they are compared with those that are there.

Differences are distances in CIE L*a*b* (D65): CIE76. Some 2.3 of it is the least that a trained eye
tells apart side by side; parts that lie apart in a picture want several times as much.
"""
import itertools
import math
import pathlib
import sys

FOLDER = pathlib.Path(__file__).resolve().parent.parent / "install" / "QMconfig"
HUES, SHADES = 31, 7  # 217 colours
DISTINCT = 201
DARKEST, BRIGHTEST = 32.0, 88.0  # L* of colours that are neither near black nor near white
LEAST, LEAST_OF_NEIGHBOURS = 8.0, 50.0  # differences of any two of the 217, and of neighbours


def linear(channel):
    share = channel / 255
    return share / 12.92 if share <= 0.04045 else ((share + 0.055) / 1.055) ** 2.4


def lab(rgb):
    red, green, blue = (linear(channel) for channel in rgb)
    xyz = (0.4124 * red + 0.3576 * green + 0.1805 * blue,
           0.2126 * red + 0.7152 * green + 0.0722 * blue,
           0.0193 * red + 0.1192 * green + 0.9505 * blue)
    x, y, z = (root(value / white) for value, white in zip(xyz, (0.9505, 1.0, 1.089)))
    return 116 * y - 16, 500 * (x - y), 200 * (y - z)


def root(value):
    return value ** (1 / 3) if value > 216 / 24389 else (24389 / 27 * value + 16) / 116


def difference(a, b):
    return math.dist(a, b)


def from_hue(hue, saturation, value):
    """Red, green and blue of a hue in degrees, as painters' wheels have it."""
    def channel(offset):
        k = (offset + hue / 60) % 6
        return round(255 * (value - value * saturation * max(0.0, min(k, 4 - k, 1.0))))
    return channel(5), channel(3), channel(1)


def with_lightness(hue, saturation, lightness):
    """The colour of this hue and saturation that comes nearest to a lightness."""
    steps = [from_hue(hue, saturation, value / 255) for value in range(60, 256)]
    return min(steps, key=lambda rgb: abs(lab(rgb)[0] - lightness))


def shades_near(hue, saturation, lightness):
    """Colours of a hue, those that are most like the wanted shade first."""
    offsets = [(ds / 20, dl) for ds in range(-6, 7) for dl in range(-24, 25, 2)]
    for ds, dl in sorted(offsets, key=lambda by: abs(by[0]) * 40 + abs(by[1])):
        if 0.3 <= saturation + ds <= 1 and DARKEST <= lightness + dl <= BRIGHTEST:
            yield with_lightness(hue, saturation + ds, lightness + dl)


def fits(rgb, seen):
    """Whether a colour differs enough from those before it, from the last one above all."""
    here = lab(rgb)
    return (DARKEST <= here[0] <= BRIGHTEST
            and all(difference(here, other) >= LEAST for other in seen)
            and (not seen or difference(here, seen[-1]) >= LEAST_OF_NEIGHBOURS))


def hue_table():
    """Seven shades of 31 hues that lie evenly on the wheel; neighbours in the table are far apart."""
    shades = [(0.95, 50), (0.55, 72), (0.80, 40), (0.40, 82), (0.95, 62), (0.60, 48), (0.75, 76)]
    colours = []
    for number in range(HUES * SHADES):
        # Both steps have no divisor in common with what they go through.
        hue = number * 12 % HUES * 360 / HUES
        seen = [lab(rgb) for rgb in colours]
        # Two shades of a hue may end at the brightest that it has: then another one is taken.
        colours.append(next(rgb for rgb in shades_near(hue, *shades[number * 3 % SHADES])
                            if fits(rgb, seen)))
    return colours


def distinct_table():
    """Always the candidate that is furthest from all chosen ones."""
    levels = range(0, 256, 15)
    candidates = [rgb for rgb in itertools.product(levels, repeat=3)
                  if DARKEST <= lab(rgb)[0] <= BRIGHTEST]
    seen = {rgb: lab(rgb) for rgb in candidates}
    chosen = [min(candidates, key=lambda rgb: difference(seen[rgb], (55.0, 60.0, 40.0)))]
    nearest = {rgb: difference(seen[rgb], seen[chosen[0]]) for rgb in candidates}
    while len(chosen) < DISTINCT:
        best = max(candidates, key=nearest.get)
        chosen.append(best)
        for rgb in candidates:
            nearest[rgb] = min(nearest[rgb], difference(seen[rgb], seen[best]))
    return chosen


def text_of(colours, *head):
    lines = [f"; {line}" for line in head]
    for number, colour in enumerate(colours):
        lines += [f"[{number}]", "value=" + ".".join(map(str, colour))]
    return "\n".join(lines) + "\n"


def least(colours):
    seen = [lab(rgb) for rgb in colours]
    return min(difference(a, b) for a, b in itertools.combinations(seen, 2))


def least_of_neighbours(colours):
    seen = [lab(rgb) for rgb in colours]
    return min(difference(a, b) for a, b in zip(seen, seen[1:]))


def main():
    hues = hue_table()
    distinct = distinct_table()
    tables = {
        "QmUGColor.ini": text_of(
            hues,
            "批量着色颜色表：217种颜色，色相均匀分布，编号相邻的颜色相差较大。格式：红.绿.蓝，各为0到255。",
            f"相邻颜色的最小色差（CIE76）：{least_of_neighbours(hues):.1f}"),
        "QmOptiColor.ini": text_of(
            distinct,
            "批量着色颜色表：201种颜色，任意两种都能区分。格式：红.绿.蓝，各为0到255。",
            f"任意两种颜色的最小色差（CIE76，即CIE L*a*b*中的距离，D65）：{least(distinct):.1f}"),
    }
    print(f"217 hues: neighbours differ by {least_of_neighbours(hues):.1f} at least, any two by "
          f"{least(hues):.1f}; 201 colours: any two by {least(distinct):.1f}")
    for name, text in tables.items():
        if "--check" not in sys.argv[1:]:
            (FOLDER / name).write_text(text, encoding="utf-8")
        elif (FOLDER / name).read_text(encoding="utf-8") != text:
            sys.exit(f"{name} is not what this script writes")


if __name__ == "__main__":
    main()
