# SPDX-FileCopyrightText: 2026 Korvanta contributors
# SPDX-License-Identifier: MIT
"""Plane shapes that can be joined, cut and turned, and their outlines.

A shape is written in a square of 100 by 100 units with its middle at 0,0 and y upwards. Joining
(a | b), cutting (a - b) and common ground (a & b) only note what is wanted; Outline() works it out
at once for the whole expression. What comes out does not overlap itself, runs clockwise round ink
and the other way round holes, and keeps its curves as quadratic arcs, as TrueType wants them.
"""
import math

import numpy as np

CURVE_STEPS = 8  # Chords that stand for one quadratic arc while shapes are cut.
SAME_POINT = 1e-4  # Points nearer than this are one point.
BESIDE = 4e-4  # How far beside an edge its two sides are looked at.


class Shape:
    """An expression over closed contours; never changed once made."""

    def __init__(self, kind, parts):
        self.kind = kind
        self.parts = parts

    def __or__(self, other):
        return Shape("or", (self, other))

    def __and__(self, other):
        return Shape("and", (self, other))

    def __sub__(self, other):
        return Shape("sub", (self, other))

    def Mapped(self, xx, xy, yx, yy, dx=0.0, dy=0.0):
        """Every point (x, y) becomes (xx*x + xy*y + dx, yx*x + yy*y + dy)."""
        if self.kind != "leaf":
            return Shape(self.kind, tuple(p.Mapped(xx, xy, yx, yy, dx, dy) for p in self.parts))

        def Move(p):
            return None if p is None else (xx * p[0] + xy * p[1] + dx, yx * p[0] + yy * p[1] + dy)

        return Shape("leaf", [tuple(Move(p) for p in arc) for arc in self.parts])

    def Turn(self, degrees):
        """Turned anticlockwise about the middle."""
        c, s = math.cos(math.radians(degrees)), math.sin(math.radians(degrees))
        if degrees % 90 == 0:
            c, s = round(c), round(s)
        return self.Mapped(c, -s, s, c)

    def At(self, dx, dy):
        return self.Mapped(1, 0, 0, 1, dx, dy)

    def Scale(self, sx, sy=None):
        return self.Mapped(sx, 0, 0, sx if sy is None else sy)

    def FlipX(self):
        return self.Scale(-1, 1)

    def FlipY(self):
        return self.Scale(1, -1)


def Path(start, *steps):
    """A closed contour: a step is an end point, or a control point and an end point."""
    arcs, here = [], start
    for step in steps:
        if isinstance(step[0], tuple):
            control, end = step
        else:
            control, end = None, step
        if math.dist(end, start) < SAME_POINT:
            end = start  # Exactly closed, or a ray through the gap would miscount.
        arcs.append((here, control, end))
        here = end
    if math.dist(here, start) > SAME_POINT:
        arcs.append((here, None, start))
    return Shape("leaf", arcs)


def Poly(*points):
    return Path(points[0], *points[1:])


def ArcSteps(radius, begin, end, cx=0.0, cy=0.0):
    """Quadratic steps along a circle from one angle to another (degrees)."""
    count = max(1, math.ceil(abs(end - begin) / 45 - 1e-9))
    half = math.radians((end - begin) / count) / 2
    steps = []
    for i in range(count):
        mid = math.radians(begin) + half * (2 * i + 1)
        out = radius / math.cos(half)
        last = mid + half
        steps.append(((cx + out * math.cos(mid), cy + out * math.sin(mid)),
                      (cx + radius * math.cos(last), cy + radius * math.sin(last))))
    return steps


def Disc(radius, cx=0.0, cy=0.0):
    return Path((cx + radius, cy), *ArcSteps(radius, 0, 360, cx, cy))


def Box(x0, y0, x1, y1):
    return Poly((x0, y0), (x1, y0), (x1, y1), (x0, y1))


def Joined(*shapes):
    whole = shapes[0]
    for shape in shapes[1:]:
        whole = whole | shape
    return whole


def Around(shape, count, start=0.0):
    """The shape and its copies turned in equal steps about the middle."""
    return Joined(*(shape.Turn(start + 360 * i / count) for i in range(count)))


def Stroke(width, *points, closed=False):
    """A line of even width with mitred corners and square-cut ends."""
    if closed:
        left = _Offset(points, width / 2, True)
        right = _Offset(points, -width / 2, True)
        area = lambda ps: sum(a[0] * b[1] - b[0] * a[1] for a, b in zip(ps, ps[1:] + ps[:1]))
        big, small = (left, right) if abs(area(left)) > abs(area(right)) else (right, left)
        return Poly(*big) - Poly(*small)
    return Poly(*(_Offset(points, width / 2, False) + _Offset(points, -width / 2, False)[::-1]))


def _Offset(points, shift, closed):
    points = [np.array(p, float) for p in points]
    count, moved = len(points), []

    def Normal(a, b):
        d = b - a
        return np.array([-d[1], d[0]]) / math.hypot(*d)

    for i, p in enumerate(points):
        before = Normal(points[i - 1], p) if closed or i > 0 else None
        after = Normal(p, points[(i + 1) % count]) if closed or i < count - 1 else None
        if before is None or after is None:
            moved.append(tuple(p + shift * (after if before is None else before)))
        else:
            mitre = before + after
            moved.append(tuple(p + mitre * (2 * shift / mitre.dot(mitre))))
    return moved


def Outline(shape):
    """Contours of the shape: lists of (control or None, end point), each going on from the last."""
    leaves = []
    test = _Compile(shape, leaves)
    a, b, curve, t, arcs = _Edges(leaves)
    cut = _Split(a, b, curve, t, [len(x) for x in leaves])
    kept = _Boundary(cut, test, a, b, [len(x) for x in leaves])
    return [_Rejoin(loop, arcs) for loop in _Loops(kept)]


def _Compile(shape, leaves):
    if shape.kind == "leaf":
        leaves.append(shape.parts)
        index = len(leaves) - 1
        return lambda inside: inside[index]
    one, two = (_Compile(p, leaves) for p in shape.parts)
    if shape.kind == "or":
        return lambda inside: one(inside) | two(inside)
    if shape.kind == "and":
        return lambda inside: one(inside) & two(inside)
    return lambda inside: one(inside) & ~two(inside)


def _Edges(leaves):
    """All contours as chords; leaves become lists of chord numbers."""
    a, b, curve, t, arcs = [], [], [], [], []
    for n, leaf in enumerate(leaves):
        numbers = []
        for p0, control, p1 in leaf:
            steps = 1 if control is None else CURVE_STEPS
            arcs.append((p0, control, p1))
            for i in range(steps):
                numbers.append(len(a))
                a.append(_On(arcs[-1], i / steps))
                b.append(_On(arcs[-1], (i + 1) / steps))
                curve.append(len(arcs) - 1)
                t.append((i / steps, (i + 1) / steps))
        leaves[n] = numbers
    return np.array(a), np.array(b), curve, t, arcs


def _On(arc, t):
    p0, c, p1 = (None if p is None else np.array(p, float) for p in arc)
    if c is None:
        return tuple(p0 + (p1 - p0) * t)
    return tuple(p0 * (1 - t) ** 2 + c * 2 * t * (1 - t) + p1 * t * t)


def _Split(a, b, curve, t, sizes):
    """Cuts every chord where it meets another and gives each point its number."""
    count = len(a)
    leaf = np.repeat(np.arange(len(sizes)), sizes)
    cuts = [[(0.0, tuple(a[i])), (1.0, tuple(b[i]))] for i in range(count)]
    d = b - a
    length2 = (d * d).sum(1)
    for i in range(count):
        other = np.nonzero(leaf != leaf[i])[0]
        if len(other) == 0:
            continue
        w = a[other] - a[i]
        den = d[i, 0] * d[other, 1] - d[i, 1] * d[other, 0]
        with np.errstate(divide="ignore", invalid="ignore"):
            s = (w[:, 0] * d[other, 1] - w[:, 1] * d[other, 0]) / den
            u = (w[:, 0] * d[i, 1] - w[:, 1] * d[i, 0]) / den
        ok = (np.abs(den) > 1e-9) & (s > 0) & (s < 1) & (u > -1e-9) & (u < 1 + 1e-9)
        cuts[i] += [(v, tuple(a[i] + d[i] * v)) for v in s[ok]]
        for ends in (a, b):
            w = ends[other] - a[i]
            v = (w @ d[i]) / length2[i]
            off = np.abs(w[:, 0] * d[i, 1] - w[:, 1] * d[i, 0]) / math.sqrt(length2[i])
            ok = (off < SAME_POINT / 2) & (v > 0) & (v < 1)
            cuts[i] += [(x, tuple(p)) for x, p in zip(v[ok], ends[other][ok])]
    points, found = [], {}
    pieces = {}
    for i in range(count):
        row = sorted(cuts[i])
        for (s0, p0), (s1, p1) in zip(row, row[1:]):
            n0, n1 = _Number(p0, points, found), _Number(p1, points, found)
            if n0 != n1 and (n1, n0) not in pieces:
                t0, t1 = t[i]
                pieces[n0, n1] = (curve[i], t0 + (t1 - t0) * s0, t0 + (t1 - t0) * s1)
    return np.array(points), pieces


def _Number(point, points, found):
    cx, cy = math.floor(point[0] / SAME_POINT), math.floor(point[1] / SAME_POINT)
    for dx in (0, -1, 1):
        for dy in (0, -1, 1):
            n = found.get((cx + dx, cy + dy))
            if n is not None and math.dist(points[n], point) < SAME_POINT:
                return n
    points.append(point)
    found[cx, cy] = len(points) - 1
    return len(points) - 1


def _Boundary(cut, test, a, b, sizes):
    """The pieces that have ink on one side only, turned so that it lies on their right."""
    points, pieces = cut
    ends = np.array(list(pieces))
    p, q = points[ends[:, 0]], points[ends[:, 1]]
    d = q - p
    normal = np.stack([-d[:, 1], d[:, 0]], 1) / np.hypot(d[:, 0], d[:, 1])[:, None] * BESIDE
    left = test(_Inside((p + q) / 2 + normal, a, b, sizes))
    right = test(_Inside((p + q) / 2 - normal, a, b, sizes))
    kept = []
    for (n0, n1), (curve, t0, t1), isLeft, isRight in zip(pieces, pieces.values(), left, right):
        if isRight and not isLeft:
            kept.append((n0, n1, curve, t0, t1))
        elif isLeft and not isRight:
            kept.append((n1, n0, curve, t1, t0))
    return points, kept


def _Inside(where, a, b, sizes):
    """For each leaf, whether each point lies inside it (nonzero winding)."""
    inside, first = [], 0
    x, y = where[:, 0][:, None], where[:, 1][:, None]
    for size in sizes:
        p, q = a[first:first + size], b[first:first + size]
        first += size
        up = (p[:, 1] <= y) & (q[:, 1] > y)
        down = (p[:, 1] > y) & (q[:, 1] <= y)
        side = (q[:, 0] - p[:, 0]) * (y - p[:, 1]) - (x - p[:, 0]) * (q[:, 1] - p[:, 1])
        inside.append(((up & (side > 0)).sum(1) - (down & (side < 0)).sum(1)) != 0)
    return inside


def _Loops(kept):
    """Links the pieces head to tail; where loops touch in a point they stay apart."""
    points, edges = kept
    start = {}
    for edge in edges:
        start.setdefault(edge[0], []).append(edge)
    loops = []
    while start:
        loop = [start[next(iter(start))][0]]
        start[loop[0][0]].remove(loop[0])
        while loop[-1][1] != loop[0][0]:
            choices = start[loop[-1][1]]
            d = points[loop[-1][1]] - points[loop[-1][0]]
            back = math.atan2(-d[1], -d[0])

            def Bend(edge):
                e = points[edge[1]] - points[edge[0]]
                return (math.atan2(e[1], e[0]) - back) % (2 * math.pi)

            best = min(choices, key=Bend)
            choices.remove(best)
            loop.append(best)
        start = {n: list(v) for n, v in start.items() if v}
        loops.append([(tuple(points[e[0]]), tuple(points[e[1]]), e[2], e[3], e[4]) for e in loop])
    return loops


def _Rejoin(loop, arcs):
    """Puts the chords of one arc, and lines in one direction, together again."""
    def Goes(one, two):
        if arcs[one[2]][1] is not None or arcs[two[2]][1] is not None:
            return one[2] == two[2] and abs(one[4] - two[3]) < 1e-6
        d, e = np.subtract(one[1], one[0]), np.subtract(two[1], two[0])
        sine = (d[0] * e[1] - d[1] * e[0]) / (math.hypot(*d) * math.hypot(*e))
        return abs(sine) < 1e-4 and d.dot(e) > 0

    first = next((i for i in range(len(loop)) if not Goes(loop[i - 1], loop[i])), 0)
    merged = []
    for piece in loop[first:] + loop[:first]:
        if merged and Goes(merged[-1], piece):
            last = merged[-1]
            merged[-1] = (last[0], piece[1], last[2], last[3], piece[4])
        else:
            merged.append(piece)
    return [(_Control(arcs[m[2]], m[3], m[4]), m[1]) for m in merged]


def _Control(arc, s, t):
    p0, c, p1 = arc
    if c is None:
        return None
    return tuple(p0[k] * (1 - s) * (1 - t) + c[k] * (s * (1 - t) + t * (1 - s)) + p1[k] * s * t
                 for k in (0, 1))
