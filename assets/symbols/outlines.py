"""Outlines as lists of closed contours, and what can be done to them while curves stay curves.

A contour is a list of cubic or straight segments: ((x, y),) or ((x, y), (x, y), (x, y)), the last
point being the end; a contour starts where its last segment ends. An outline is canonical: no
place is wound around more than once, holes included, so it is filled by the non-zero rule and
a second outline is knocked out of it by turning that one around.
"""

import math
import re
import xml.etree.ElementTree as ElementTree

FLATNESS = 10  # straight pieces for each curve
PARAMETERS = {"M": 2, "L": 2, "H": 1, "V": 1, "C": 6, "S": 4, "Q": 4, "T": 2, "A": 7, "Z": 0}


def arc(start, rx, ry, tilt, large, sweep, end):
    """The cubic segments of an elliptical arc, by its end points."""
    if start == end:
        return []
    if rx == 0 or ry == 0:
        return [(end,)]
    rx, ry, phi = abs(rx), abs(ry), math.radians(tilt)
    cos, sin = math.cos(phi), math.sin(phi)
    dx, dy = (start[0] - end[0]) / 2, (start[1] - end[1]) / 2
    x, y = cos * dx + sin * dy, cos * dy - sin * dx
    too_small = (x / rx) ** 2 + (y / ry) ** 2
    if too_small > 1:
        rx, ry = rx * math.sqrt(too_small), ry * math.sqrt(too_small)
    denominator = (rx * y) ** 2 + (ry * x) ** 2
    factor = math.sqrt(max(0.0, (rx * ry) ** 2 / denominator - 1))
    if large == sweep:
        factor = -factor
    cx, cy = factor * rx * y / ry, -factor * ry * x / rx
    first = math.atan2((y - cy) / ry, (x - cx) / rx)
    angle = math.atan2((-y - cy) / ry, (-x - cx) / rx) - first
    if sweep and angle < 0:
        angle += 2 * math.pi
    if not sweep and angle > 0:
        angle -= 2 * math.pi
    middle = ((start[0] + end[0]) / 2, (start[1] + end[1]) / 2)

    def place(u, v):
        u, v = cx + rx * u, cy + ry * v
        return (middle[0] + cos * u - sin * v, middle[1] + sin * u + cos * v)

    count = max(1, math.ceil(abs(angle) / (math.pi / 2) - 1e-9))
    step = angle / count
    k = 4 / 3 * math.tan(step / 4)
    segments = []
    for i in range(count):
        a, b = first + i * step, first + (i + 1) * step
        segments.append((place(math.cos(a) - k * math.sin(a), math.sin(a) + k * math.cos(a)),
                         place(math.cos(b) + k * math.sin(b), math.sin(b) - k * math.cos(b)),
                         place(math.cos(b), math.sin(b))))
    segments[-1] = (*segments[-1][:2], end)
    return segments


def tokens_of(data):
    """Yields (command, numbers) of SVG path data; an arc's two flags may touch what follows."""
    number = re.compile(r"[\s,]*([-+]?(?:\d+\.?\d*|\.\d+)(?:[eE][-+]?\d+)?)")
    flag = re.compile(r"[\s,]*([01])")
    position = 0
    command = None
    while True:
        match = re.compile(r"[\s,]*([A-Za-z])").match(data, position)
        if match:
            command, position = match.group(1), match.end()
        elif not data[position:].strip(" \t\r\n,"):
            return
        numbers = []
        for i in range(PARAMETERS[command.upper()]):
            pattern = flag if command in "Aa" and i in (3, 4) else number
            match = pattern.match(data, position)
            if not match:
                raise ValueError(f"unreadable path data at {data[position:position + 20]!r}")
            numbers.append(float(match.group(1)))
            position = match.end()
        yield command, numbers
        command = {"M": "L", "m": "l"}.get(command, command)


def contours_of(data):
    """The contours of SVG path data, as they are wound there."""
    contours, current = [], []
    here = start = (0.0, 0.0)
    control, previous = here, ""

    def finish():
        nonlocal current
        if current:
            if math.dist(here, start) > 1e-6:
                current.append((start,))
            contours.append(current)
        current = []

    for command, numbers in tokens_of(data):
        kind = command.upper()
        base = here if command.islower() else (0.0, 0.0)
        if kind == "A":
            points = [(numbers[5] + base[0], numbers[6] + base[1])]
        elif kind == "H":
            points = [(numbers[0] + base[0], here[1])]
        elif kind == "V":
            points = [(here[0], numbers[0] + base[1])]
        else:
            points = [(x + base[0], y + base[1]) for x, y in zip(numbers[::2], numbers[1::2])]
        mirrored = (2 * here[0] - control[0], 2 * here[1] - control[1])
        if kind == "M":
            finish()
            here = start = points[0]
        elif kind == "Z":
            finish()
            here = start
        elif kind in "LHV":
            current.append((points[0],))
        elif kind == "C":
            current.append(tuple(points))
        elif kind == "S":
            current.append((mirrored if previous in "CS" else here, *points))
        elif kind in "QT":
            middle = points[0] if kind == "Q" else mirrored if previous in "QT" else here
            end = points[-1]
            current.append((tuple(h + 2 / 3 * (m - h) for h, m in zip(here, middle)),
                            tuple(e + 2 / 3 * (m - e) for e, m in zip(end, middle)), end))
        elif kind == "A":
            current += arc(here, *numbers[:3], numbers[3] != 0, numbers[4] != 0, points[0])
        if points:
            here = points[-1]
        control = points[-2] if kind in "CS" else middle if kind in "QT" else here
        previous = kind
    finish()
    return contours


def flatten(contour):
    """The contour's corners, curves cut into straight pieces."""
    here, corners = contour[-1][-1], []
    for segment in contour:
        if len(segment) == 1:
            corners.append(segment[0])
        else:
            for i in range(1, FLATNESS + 1):
                t = i / FLATNESS
                s = 1 - t
                weights = (s ** 3, 3 * s * s * t, 3 * s * t * t, t ** 3)
                corners.append(tuple(sum(w * p[axis] for w, p in zip(weights, (here, *segment)))
                                     for axis in (0, 1)))
        here = segment[-1]
    return corners


def area(corners):
    pairs = zip(corners, corners[1:] + corners[:1])
    return sum(a[0] * b[1] - b[0] * a[1] for a, b in pairs) / 2


def winding(corners, point):
    turns = 0
    for (ax, ay), (bx, by) in zip(corners, corners[1:] + corners[:1]):
        if (ay <= point[1]) != (by <= point[1]):
            x = ax + (point[1] - ay) * (bx - ax) / (by - ay)
            if x > point[0]:
                turns += 1 if by > ay else -1
    return turns


def turned(outline):
    """The same contours, wound the other way."""
    result = []
    for contour in outline:
        points = [contour[-1][-1]] + [p for segment in contour for p in segment]
        back, position = [], len(points) - 1
        for segment in reversed(contour):
            back.append(tuple(points[position - len(segment):position][::-1]))
            position -= len(segment)
        result.append(back)
    return result


def canonical(contours, even_odd):
    """Drops the contours inside what is filled anyway, and winds the others alike."""
    flat = [flatten(contour) for contour in contours]
    result = []
    for index, contour in enumerate(contours):
        corners = flat[index]
        size = area(corners)
        if abs(size) < 1e-4:
            continue
        (ax, ay), (bx, by) = max(zip(corners, corners[1:] + corners[:1]),
                                 key=lambda edge: math.dist(*edge))
        length, nudge = math.dist((ax, ay), (bx, by)), 1e-3 if size > 0 else -1e-3
        inside = ((ax + bx) / 2 - (by - ay) / length * nudge,
                  (ay + by) / 2 + (bx - ax) / length * nudge)
        around = sum(winding(other, inside) for i, other in enumerate(flat) if i != index)
        within = around + (1 if size > 0 else -1)
        before, after = ((around % 2, within % 2) if even_odd else (around, within))
        if bool(before) != bool(after):
            positive = bool(after)
            result += [contour] if positive == (size > 0) else turned([contour])
    return result


def read_icon(path):
    """The outline of an SVG file made of filled paths, circles and rectangles."""
    outline = []
    for element in ElementTree.parse(path).iter():
        kind = element.tag.rpartition("}")[2]
        value = lambda name: float(element.get(name, "0"))
        if kind == "path":
            data = element.get("d")
        elif kind == "circle":
            data = circle_data(value("cx"), value("cy"), value("r"))
        elif kind in ("svg", "title"):
            continue
        else:
            raise ValueError(f"{path}: cannot read <{kind}>")
        if element.get("transform"):
            raise ValueError(f"{path}: cannot read a transform")
        outline += canonical(contours_of(data), element.get("fill-rule") == "evenodd")
    return outline


def circle_data(x, y, r):
    return f"M{x - r} {y}a{r} {r} 0 1 1 {2 * r} 0a{r} {r} 0 1 1 {-2 * r} 0z"


def bounds(outline):
    """(left, top, right, bottom)"""
    points = [p for contour in outline for p in flatten(contour)]
    xs, ys = [p[0] for p in points], [p[1] for p in points]
    return (min(xs), min(ys), max(xs), max(ys))


def mapped(outline, change):
    return [[tuple(change(p) for p in segment) for segment in contour] for contour in outline]


def fitted(outline, left, top, right, bottom):
    """Scaled evenly to fill the box, in its middle."""
    l, t, r, b = bounds(outline)
    scale = min((right - left) / max(r - l, 1e-6), (bottom - top) / max(b - t, 1e-6))
    x, y = (left + right) / 2 - scale * (l + r) / 2, (top + bottom) / 2 - scale * (t + b) / 2
    return mapped(outline, lambda p: (p[0] * scale + x, p[1] * scale + y))
