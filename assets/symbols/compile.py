#!/usr/bin/env python3
"""Turns the symbol table and the icons it names into a C++ source of constant data.

Usage: compile.py TABLE ICONS_FOLDER OUTPUT
"""

import math
import re
import sys
from pathlib import Path

import outlines
from outlines import bounds, canonical, clipped, contours_of, fitted, mapped, turned

EDGE = 0.01  # how far an outline may reach out of its box


def polygon(x, y, radius, corners=12):
    angles = [2 * math.pi * (i + 0.5) / corners for i in range(corners)]
    return [(x + radius * math.cos(a), y + radius * math.sin(a)) for a in angles]


def drawn(data):
    return canonical(contours_of(data), False)


def slash(outline):
    """A bar from the upper left to the lower right, with a gap on either side."""
    gap = 0.95
    above = clipped(outline, (gap, -gap), (1, -1))
    below = clipped(outline, (-gap, gap), (-1, 1))
    return above + below + drawn("M1.15 1.85a.5.5 0 0 1 .7 -.7l13 13a.5.5 0 0 1 -.7 .7z")


def badge(outline, mark, x=12.25, y=12.25, size=7):
    """A second outline in the lower right, with a gap around it."""
    half = size / 2
    cut = outlines.outside(outline, polygon(x, y, half + 0.9))
    return cut + fitted(mark, x - half, y - half, x + half, y + half)


def beside(*all_outlines):
    """In a row, as wide as the box, all of one height, with gaps of one unit."""
    gap = 1
    boxes = [bounds(outline) for outline in all_outlines]
    shapes = [(r - l) / (b - t) for l, t, r, b in boxes]
    height = min(16, (16 - gap * (len(shapes) - 1)) / sum(shapes))
    left, result = (16 - height * sum(shapes) - gap * (len(shapes) - 1)) / 2, []
    for outline, shape in zip(all_outlines, shapes):
        result += fitted(outline, left, 8 - height / 2, left + shape * height, 8 + height / 2)
        left += shape * height + gap
    return result


def shrunk(outline):
    """The outline, made smaller if it reaches out of the box."""
    l, t, r, b = bounds(outline)
    if min(l, t) > -EDGE and max(r, b) < 16 + EDGE:
        return outline
    return fitted(outline, max(l, 0), max(t, 0), min(r, 16), min(b, 16))


def knock(outline, mark):
    return outline + turned(mark)


def turn(outline, degrees):
    cos, sin = math.cos(math.radians(degrees)), math.sin(math.radians(degrees))
    return shrunk(mapped(outline, lambda p: (8 + cos * (p[0] - 8) - sin * (p[1] - 8),
                                             8 + sin * (p[0] - 8) + cos * (p[1] - 8))))


def mirror(outline):
    return turned(mapped(outline, lambda p: (16 - p[0], p[1])))


def around(outline, count):
    return [contour for i in range(int(count)) for contour in turn(outline, 360 * i / count)]


def lies_in(contour, box):
    l, t, r, b = bounds([contour])
    return (min(l - box[0], t - box[1]) > -EDGE and max(r - box[2], b - box[3]) < EDGE)


def part(outline, *box):
    found = [contour for contour in outline if lies_in(contour, box)]
    if not found:
        raise ValueError(f"no contour lies in {box}")
    return found


def without(outline, *box):
    return [contour for contour in outline if not lies_in(contour, box)]


OPERATIONS = {
    "around": around,
    "at": fitted,
    "badge": badge,
    "beside": beside,
    "clear": lambda outline, x, y, r: outlines.outside(outline, polygon(x, y, r)),
    "draw": drawn,
    "join": lambda *all_outlines: [contour for o in all_outlines for contour in o],
    "knock": knock,
    "mirror": mirror,
    "part": part,
    "slash": slash,
    "turn": turn,
    "without": without,
}


class Compiler:
    def __init__(self, icons):
        self.icons = icons
        self.read = {}

    def icon(self, name):
        if name not in self.read:
            path = self.icons / f"{name}.svg"
            if not path.exists():
                raise ValueError(f"there is no icon {name} in {self.icons}")
            self.read[name] = shrunk(outlines.read_icon(path))
        return self.read[name]

    def evaluate(self, text):
        words = re.findall(r'"[^"]*"|[-\w.]+|[(),]', text)
        if "".join(words) != re.sub(r'\s+(?=(?:[^"]*"[^"]*")*[^"]*$)', "", text):
            raise ValueError(f"cannot read {text!r}")
        value = self.term(words)
        if words:
            raise ValueError(f"unexpected {words[0]!r}")
        return value

    def term(self, words):
        if not words:
            raise ValueError("unexpected end")
        word = words.pop(0)
        if word[0] == '"':
            return word[1:-1]
        if re.fullmatch(r"-?(\d+\.?\d*|\.\d+)", word):
            return float(word)
        if not words or words[0] != "(":
            return self.icon(word)
        if word not in OPERATIONS:
            raise ValueError(f"there is no operation {word}")
        arguments = []
        while words and words.pop(0) in "(,":
            arguments.append(self.term(words))
        try:
            return OPERATIONS[word](*arguments)
        except TypeError as error:
            raise ValueError(f"{word}: {error}") from error


def rows_of(table):
    """(line number, name, expression); a line with [brackets] stands for two."""
    for number, line in enumerate(table.read_text().splitlines(), 1):
        line = line.split("#")[0].strip()
        if not line:
            continue
        if "=" not in line:
            raise ValueError(f"line {number}: no = in {line!r}")
        wanted = [line]
        if "[" in line:
            wanted = [re.sub(r"\[[^]]*\]", "", line), re.sub(r"[\[\]]", "", line)]
        for text in wanted:
            names, expression = (side.strip() for side in text.split("=", 1))
            for name in names.split():
                yield number, name, expression


def encoded(outline):
    """The command string and the coordinates of an outline."""
    commands, points = "", []
    for contour in outline:
        commands += "M"
        points.append(contour[-1][-1])
        for segment in contour:
            commands += "L" if len(segment) == 1 else "C"
            points += segment
        commands += "Z"
    return commands, points


def lines_of(items, separator, width=96):
    line = ""
    for item in items:
        if len(line) + len(item) + len(separator) > width:
            yield line
            line = ""
        line += item + separator
    if line:
        yield line


def compile_table(table, icons, output):
    compiler, known, entries = Compiler(icons), {}, {}
    commands, points, troubles = "", [], []
    for number, name, expression in rows_of(table):
        try:
            if name in entries:
                raise ValueError("stands in the table already")
            if expression not in known:
                outline = compiler.evaluate(expression)
                l, t, r, b = bounds(outline)
                if min(l, t) < -EDGE or max(r, b) > 16 + EDGE:
                    raise ValueError("reaches out of the box")
                own_commands, own_points = encoded(outline)
                known[expression] = (len(commands), len(own_commands), len(points))
                commands += own_commands
                points += own_points
            kind = "composition" if "(" in expression else "alias"
            entries[name] = (kind, *known[expression])
        except ValueError as error:
            troubles.append(f"line {number}: {name}: {error}")
    if troubles:
        raise ValueError("\n  ".join(troubles))

    rows = [f'    {{"{name}", SymbolMatch::{kind}, {", ".join(map(str, place))}}},'
            for name, (kind, *place) in sorted(entries.items())]
    tidy = lambda value: f"{value + 0.0:.3f}".rstrip("0").rstrip(".")
    numbers = [number for p in points for number in (tidy(p[0]), tidy(p[1]))]
    floats = [number + ("F" if "." in number else ".F") for number in numbers]
    output.write_text("\n".join([
        "// Made from the symbol table by the build.",
        '#include "host/symbols/SymbolTable.h"', "",
        "namespace vitrelle::host {", "", "namespace {", "",
        "constexpr SymbolEntry entries[] = {", *rows, "};", "",
        "constexpr char commands[] =",
        *[f'    "{commands[i:i + 90]}"' for i in range(0, len(commands), 90)], "    ;", "",
        "constexpr float coordinates[] = {", *[f"    {line}" for line in lines_of(floats, ",")],
        "};", "", "} // namespace", "",
        "const SymbolTable symbolTable = {entries, commands, coordinates};", "",
        "} // namespace vitrelle::host", ""]))
    return len(entries)


if __name__ == "__main__":
    if len(sys.argv) != 4:
        sys.exit(__doc__.strip())
    try:
        compile_table(*map(Path, sys.argv[1:]))
    except (OSError, ValueError) as failure:
        sys.exit(f"{sys.argv[1]}: {failure}")
