#!/usr/bin/env python3
"""Turns the symbol table and the icons it names into a C++ source of constant data.

Usage: compile.py TABLE COLOURS CATALOGUE ICONS_FOLDER OUTPUT
"""

import re
import sys
from pathlib import Path

from areas import told_apart
from colours import Colours
from pictures import Compiler, Picture

ENCLOSURES = (".circle.fill", ".square.fill", ".circle", ".square")


def pictures_of(compiler, catalogue):
    """By name: the table's, and what the catalogue takes besides. Shapes around letters, or around
    a picture that is there, are left to the program."""
    wanted = dict.fromkeys(compiler.rows)
    for line in catalogue.read_text().splitlines():
        name = line.split("\t")[1]
        ending = next((e for e in ENCLOSURES if name.endswith(e)), None)
        inner = name[:-len(ending)] if ending else None
        if name in compiler.rows or not ending:
            wanted[name] = None
        elif compiler.picture(inner):
            wanted[inner] = None
        elif not re.fullmatch("[a-z0-9]{1,2}", inner):
            wanted[name] = None
    pictures = {name: compiler.picture(name) for name in wanted}
    pictures = {name: picture for name, picture in pictures.items() if picture}
    for name, picture in list(pictures.items()):
        full = pictures.get(name + ".fill")
        if full and encoded(full.outline) == encoded(picture.outline):
            one, other = told_apart(picture.outline)
            kind = "drawing" if picture.kind == "drawing" else "composition"
            pictures[name] = picture if one is picture.outline else Picture(one, kind)
            pictures[name + ".fill"] = full if other is picture.outline else Picture(other, kind)
    return pictures


def encoded(outline):
    """The command string and the points of an outline, in 1024ths of a unit."""
    commands, points = "", []
    for contour in outline:
        commands += "M"
        points.append(contour[-1][-1])
        for segment in contour:
            commands += "L" if len(segment) == 1 else "C"
            points += segment
        commands += "Z"
    return commands, [tuple(round(value * 1024) for value in point) for point in points]


def lines_of(items, separator, width=96):
    line = ""
    for item in items:
        if len(line) + len(item) + len(separator) > width:
            yield line
            line = ""
        line += item + separator
    if line:
        yield line


def quoted(text):
    return [f'    "{text[i:i + 90]}"' for i in range(0, len(text), 90)] + ["    ;"]


def compile_table(table, colour_table, catalogue, icons, output):
    pictures, colours = pictures_of(Compiler(table, icons), catalogue), Colours(colour_table)
    if unknown := colours.boxes.keys() - pictures.keys():
        raise ValueError(f"{', '.join(sorted(unknown))}: with colours, but without a picture")
    names, commands, points, places, rows = "", "", [], {}, []
    things = "-"  # the first letter stands for pictures that have no colours of their own
    for name, picture in sorted(pictures.items()):
        own_commands, own_points = encoded(picture.outline)
        key = (own_commands, *own_points)
        if key not in places:
            places[key] = f"{len(commands)}, {len(own_commands)}, {len(points)}"
            commands += own_commands
            points += own_points
        letters = colours.letters(name, picture.outline) if name in colours.boxes else ""
        first_thing = len(things) if letters else 0
        things += letters
        rows.append(f"    {{{len(names)}, {len(name)}, SymbolMatch::{picture.kind}, {places[key]},"
                    f" {first_thing}}}, // {name}")
        names += name
    numbers = [str(number) for point in points for number in point]
    output.write_text("\n".join([
        "// Made from the symbol table by the build.",
        '#include "host/symbols/SymbolTable.h"', "",
        "namespace vitrelle::host {", "", "namespace {", "",
        "constexpr SymbolEntry entries[] = {", *rows, "};", "",
        "constexpr char names[] =", *quoted(names), "",
        "constexpr char commands[] =", *quoted(commands), "",
        "constexpr char things[] =", *quoted(things), "",
        "constexpr std::uint32_t colours[] = {",
        *[f"    0x{colour:06X}, // {thing}" for thing, colour in colours.of.items()], "};", "",
        "constexpr std::int16_t coordinates[] = {",
        *[f"    {line}" for line in lines_of(numbers, ",")],
        "};", "", "} // namespace", "",
        "const SymbolTable symbolTable = {entries, names, commands, coordinates, things, colours};", "",
        "} // namespace vitrelle::host", ""]))


if __name__ == "__main__":
    if len(sys.argv) != 6:
        sys.exit(__doc__.strip())
    try:
        compile_table(*map(Path, sys.argv[1:]))
    except (OSError, ValueError) as failure:
        sys.exit(f"{sys.argv[1]}: {failure}")
