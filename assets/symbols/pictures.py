"""Finds the picture of a name: what the table's rows, rules and operations make of the icons."""

import math
import re

import areas
import outlines
from outlines import bounds, canonical, contours_of, fitted, mapped, turned

EDGE = 0.01  # how far an outline may reach out of its box


def drawn(data):
    return canonical(contours_of(data), False)


def slash(outline):
    """A bar from the upper left to the lower right, with a gap on either side."""
    bar = drawn("M1.15 1.85a.5.5 0 0 1 .7 -.7l13 13a.5.5 0 0 1 -.7 .7z")
    return areas.minus(outline, bar, 0.85) + bar


def badge(outline, mark, x=12.25, y=12.25, size=7):
    """A second outline in the lower right, with a gap around it."""
    half = size / 2
    cut = areas.minus(outline, areas.disc(x, y, half + 0.9))
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
    "bolder": areas.bolder,
    "box": areas.box,
    "disc": areas.disc,
    "draw": drawn,
    "filled": areas.filled,
    "hollow": areas.hollow,
    "join": lambda *all_outlines: [contour for o in all_outlines for contour in o],
    "knock": knock,
    "merge": areas.merge,
    "minus": areas.minus,
    "mirror": mirror,
    "over": areas.over,
    "part": part,
    "plate": areas.plate,
    "ring": areas.ring,
    "slash": slash,
    "stroke": lambda *arguments: shrunk(areas.stroke(*arguments)),
    "turn": turn,
    "without": without,
}


class Unknown(Exception):
    """A name of which nothing is known."""


class Picture:
    def __init__(self, outline, kind):
        self.outline, self.kind = outline, kind

DRAWINGS = ("box", "disc", "draw", "plate", "ring", "stroke")


def pattern_of(name):
    """A capital letter stands for any words, and for the same where it comes again."""
    pattern = re.escape(name)
    for letter in sorted(set(re.findall("[A-Z]", name))):
        pattern = pattern.replace(letter, f"(?P<{letter}>.+)", 1)
        head, group, tail = pattern.partition(f"(?P<{letter}>.+)")
        pattern = head + group + re.sub(rf"(?<![<=]){letter}", f"(?P={letter})", tail)
    return re.compile(pattern)


class Compiler:
    """Finds the picture of a name: that of its own row, else by the first rule that fits."""

    def __init__(self, table, icons):
        self.icons, self.read = icons, {}
        self.rows, self.rules, self.known = {}, [], {}
        for number, name, expression in rows_of(table):
            if name in self.rows:
                raise ValueError(f"line {number}: {name} stands in the table already")
            if re.search("[A-Z]", name):
                self.rules.append((pattern_of(name), number, expression))
            else:
                self.rows[name] = (number, expression)

    def picture(self, name):
        """None for a name of which nothing is known."""
        if name not in self.known:
            self.known[name] = None  # what leads back to itself is not known
            self.known[name] = self.made(name)
        return self.known[name]

    def made(self, name):
        if name in self.rows:
            number, expression = self.rows[name]
            try:
                return self.evaluate(expression)
            except (Unknown, ValueError) as error:
                raise ValueError(f"line {number}: {name}: {error}") from error
        for pattern, number, expression in self.rules:
            match = pattern.fullmatch(name)
            if not match:
                continue
            words = match.groupdict()
            try:
                return self.evaluate(re.sub(r"\b[A-Z]\b(?=[^<]*>|\"\))",
                                            lambda m: words[m[0]], expression))
            except Unknown:
                continue
            except ValueError as error:
                raise ValueError(f"line {number}: {name}: {error}") from error
        return None

    def icon(self, name):
        if name not in self.read:
            path = self.icons / f"{name}.svg"
            if not path.exists():
                raise ValueError(f"there is no icon {name} in {self.icons}")
            self.read[name] = shrunk(outlines.read_icon(path))
        return self.read[name]

    def spell(self, text):
        """Letters and digits in a row, of one height."""
        glyphs = [self.picture(letter) for letter in text]
        if not text or len(text) > 3 or None in glyphs:
            raise Unknown(text)
        return beside(*[glyph.outline for glyph in glyphs])

    def evaluate(self, text):
        """An icon or the picture of another name as it is; else a composition, or a drawing where
        nothing but drawings went into it."""
        words = re.findall(r'"[^"]*"|<[^>]*>|[-\w.]+|[(),]', text)
        if "".join(words) != re.sub(r'\s+(?=(?:[^"]*"[^"]*")*[^"]*$)', "", text):
            raise ValueError(f"cannot read {text!r}")
        if len(words) == 1 and words[0][0] == "<":
            return self.named(words[0])
        kinds = set()
        bare = len(words) == 1
        outline = self.term(words, kinds)
        if words:
            raise ValueError(f"unexpected {words[0]!r}")
        if not outline:
            raise ValueError("nothing is left of it")
        l, t, r, b = bounds(outline)
        if min(l, t) < -EDGE or max(r, b) > 16 + EDGE:
            raise ValueError("reaches out of the box")
        kind = "alias" if bare else "drawing" if kinds == {"drawing"} else "composition"
        return Picture(outline, kind)

    def named(self, word):
        picture = self.picture(word[1:-1])
        if not picture:
            raise Unknown(word)
        return picture

    def term(self, words, kinds):
        if not words:
            raise ValueError("unexpected end")
        word = words.pop(0)
        if word[0] == '"':
            return word[1:-1]
        if word[0] == "<":
            picture = self.named(word)
            kinds.add(picture.kind)
            return picture.outline
        if re.fullmatch(r"-?(\d+\.?\d*|\.\d+)", word):
            return float(word)
        if not words or words[0] != "(":
            kinds.add("icon")
            return self.icon(word)
        operation = self.spell if word == "spell" else OPERATIONS.get(word)
        if not operation:
            raise ValueError(f"there is no operation {word}")
        if word in DRAWINGS:
            kinds.add("drawing")
        arguments = []
        while words and words.pop(0) in "(,":
            arguments.append(self.term(words, kinds))
        try:
            return operation(*arguments)
        except TypeError as error:
            raise ValueError(f"{word}: {error}") from error


def spread(line):
    """The two lines that one with [brackets] stands for, or the line."""
    if "[" not in line:
        return [line]
    return [re.sub(r"\[[^]]*\]", "", line), re.sub(r"[\[\]]", "", line)]


def rows_of(table):
    """(line number, name, expression); a line with [brackets] stands for two."""
    for number, line in enumerate(table.read_text().splitlines(), 1):
        line = line.split("#")[0].strip()
        if not line:
            continue
        if "=" not in line:
            raise ValueError(f"line {number}: no = in {line!r}")
        for text in spread(line):
            names, expression = (side.strip() for side in text.split("=", 1))
            for name in names.split():
                yield number, name, expression
