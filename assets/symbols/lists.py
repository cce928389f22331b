#!/usr/bin/env python3
"""Turns the catalogue, a category and a name a line, into a C++ source of constant lists.

Usage: lists.py CATALOGUE OUTPUT
"""

import sys
from pathlib import Path


def read(catalogue):
    """The names of each category, in the file's order."""
    lists = {}
    for number, line in enumerate(catalogue.read_text().splitlines(), 1):
        category, tab, name = line.partition("\t")
        if not (category and tab and name):
            raise ValueError(f"line {number}: no category and name in {line!r}")
        names = lists.setdefault(category, {})
        if name in names:
            raise ValueError(f"line {number}: {category} has {name} already")
        names[name] = None
    return {category: list(names) for category, names in lists.items()}


def source(lists):
    """One text a list: names apart would each need an address that the loader fills in."""
    lines = ["// Made from the catalogue of symbols by the build.",
             '#include "core/pickers/SymbolLists.h"', "",
             "namespace vitrelle {", "", "namespace {", "",
             "constexpr SymbolList lists[] = {"]
    for category, names in lists.items():
        lines.append(f'    {{"{category}",')
        lines += [f'     "{name}\\n"' for name in names]
        lines.append("    },")
    lines += ["};", "", "} // namespace", "",
              "const std::span<const SymbolList> symbolLists = lists;", "",
              "} // namespace vitrelle", ""]
    return "\n".join(lines)


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__.strip())
    try:
        Path(sys.argv[2]).write_text(source(read(Path(sys.argv[1]))))
    except (OSError, ValueError) as failure:
        sys.exit(f"{sys.argv[1]}: {failure}")
