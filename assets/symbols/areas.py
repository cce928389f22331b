"""What takes boolean geometry, and so turns curves into straight pieces: lines with a width, solid
and hollow pictures, one thing in front of another."""

from shapely.geometry import LinearRing, LineString, Point, Polygon
from shapely.geometry import box as rectangle
from shapely.geometry.polygon import orient
from shapely.ops import unary_union
from shapely.validation import make_valid

from outlines import contours_of, fitted, flatten

FINE = 0.02  # how far a corner may lie off the line to be left out; a tenth of a pixel at 28 points
CORNER = 6  # straight pieces of a quarter circle
VISIBLE = 1.5  # the difference in area by which two pictures are told apart


def area_of(outline):
    area = Polygon()
    for contour in outline:
        area = area.symmetric_difference(make_valid(Polygon(flatten(contour))).buffer(0))
    return area


def outline_of(area):
    outline = []
    for polygon in parts(area.simplify(FINE)):
        polygon = orient(polygon, 1)
        for ring in (polygon.exterior, *polygon.interiors):
            if Polygon(ring).area > FINE:
                outline.append([(point,) for point in ring.coords[1:]])
    return outline


def parts(area):
    if isinstance(area, Polygon):
        return [] if area.is_empty else [area]
    return [part for part in getattr(area, "geoms", []) if isinstance(part, Polygon)]


def grown(area, distance):
    return area.buffer(distance, resolution=CORNER)


def stroke(data, width=1):
    """The lines of SVG path data, with round ends and corners."""
    areas = []
    for text in data.split("M")[1:]:
        contour = contours_of("M" + text)[0]
        points = [contour[-1][-1]] + flatten(contour)
        if "z" in text.lower():
            line = LinearRing(points[:-1])
        else:
            # The last piece leads back to the start, where it was not drawn so.
            line = LineString(points[:-1] if len(contour[-1]) == 1 and len(points) > 2 else points)
        areas.append(grown(line, width / 2))
    return outline_of(unary_union(areas))


def disc(x, y, radius):
    return outline_of(grown(Point(x, y), radius))


def ring(x, y, radius, width=1):
    """`radius` is that of its outer edge."""
    circle = grown(Point(x, y), radius)
    return outline_of(circle.difference(grown(Point(x, y), radius - width)))


def plate(left, top, right, bottom, radius=1):
    """A solid rectangle with round corners."""
    corner = min(radius, (right - left) / 2 - 0.01, (bottom - top) / 2 - 0.01)
    inner = rectangle(left + corner, top + corner, right - corner, bottom - corner)
    return outline_of(grown(inner, corner) if corner > 0 else inner)


def box(left, top, right, bottom, radius=1, width=1):
    """The edge of such a rectangle."""
    return minus(plate(left, top, right, bottom, radius),
                 plate(left + width, top + width, right - width, bottom - width,
                       max(radius - width, 0)))


def merge(*outlines):
    return outline_of(unary_union([area_of(outline) for outline in outlines]))


def minus(outline, other, gap=0):
    return outline_of(area_of(outline).difference(grown(area_of(other), gap)))


def solid(area):
    return unary_union([Polygon(part.exterior) for part in parts(area)])


def over(outline, front, gap=0.9):
    """Both, the second in front and opaque, with a gap around it."""
    behind = area_of(outline).difference(grown(solid(area_of(front)), gap))
    return outline_of(behind) + front


def filled(outline):
    """Solid, with what stood within its lines as holes."""
    all_parts = parts(area_of(outline))
    solids = [Polygon(part.exterior) for part in all_parts]
    within = [all_parts[i] for i, inner in enumerate(solids)
              if any(j != i and outer.contains(inner) for j, outer in enumerate(solids))]
    return outline_of(unary_union(solids).difference(unary_union(within)))


def hollow(outline, width=0.9):
    """The edge of it alone."""
    area = area_of(outline)
    return outline_of(area.difference(grown(area, -width)))


def bolder(outline, by=0.45):
    return fitted(outline_of(grown(area_of(outline), by)), 0, 0, 16, 16)


def told_apart(outline):
    """The picture and its filled variant, for a thing that has one picture."""
    area = area_of(outline).area
    full = filled(outline)
    if abs(area_of(full).area - area) > VISIBLE:
        return outline, full
    thin = hollow(outline)
    if area - area_of(thin).area > VISIBLE:
        return thin, outline
    return outline, bolder(outline)
