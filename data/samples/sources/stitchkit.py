# SPDX-FileCopyrightText: 2026 Korvanta contributors
# SPDX-License-Identifier: MIT
"""Draws cross-stitch designs and writes them as operation scripts for `korvanta-cli edit`.

A design program takes a NAME.png as an argument, too, and paints a quick look there.

Places are in squares: (0, 0) is the upper left corner of the cloth, (0.5, 0.5) the centre of the first square. Areas are
painted finely first; a square that a border crosses slantwise is then split between two three-quarter stitches.
"""

import csv
import math
import sys
from pathlib import Path

import numpy as np
from PIL import Image, ImageDraw

FINE = 12  # samples a side of each square
WHOLE, UL3Q, UR3Q, LL3Q, LR3Q, TBH, BTH, KNOT, ULQ, URQ, LLQ, LRQ = range(1, 13)
LINE, SQUIGGLE, DASHED, TRACKS, DOTTED, PLUS = range(6)
ROUND, OVAL_H, OVAL_UL, OVAL_V, OVAL_UR = range(5)
STARTUP_ENTRIES = 16  # a new pattern begins with these; the script clears the unused ones at its end

_y, _x = np.mgrid[0:FINE, 0:FINE] + 0.5
_UL = _x + _y <= FINE
_UR = _x >= _y
SPLITS = ((UL3Q, LR3Q, _UL), (UR3Q, LL3Q, _UR))
QUARTERS = tuple((kind, (_x < FINE / 2) == left, (_y < FINE / 2) == top)
                 for kind, left, top in ((ULQ, True, True), (URQ, False, True), (LLQ, True, False), (LRQ, False, False)))


def catalogue():
    root = Path(__file__).resolve().parents[3]
    found = sorted(root.glob("data/**/dmc.csv")) + [Path(a) for a in sys.argv[1:] if a.endswith(".csv")]
    if not found:
        sys.exit("no dmc.csv under data/: name one as an argument")
    with open(found[0], newline="") as f:
        return {r["FlossID"]: r for r in csv.DictReader(f)}


def smooth(points, closed=True, steps=16):
    """A Catmull-Rom curve through the points."""
    p = [np.array(q, float) for q in points]
    n = len(p)
    out = []
    for i in range(n if closed else n - 1):
        a, b, c, d = (p[k % n] if closed else p[min(max(k, 0), n - 1)] for k in (i - 1, i, i + 1, i + 2))
        for t in np.arange(steps) / steps:
            out.append(tuple(b + 0.5 * t * (c - a + t * (2 * a - 5 * b + 4 * c - d + t * (3 * (b - c) + d - a)))))
    if not closed:
        out.append(tuple(p[-1]))
    return out


def ellipse(cx, cy, rx, ry, turn=0.0, steps=48):
    c, s = math.cos(turn), math.sin(turn)
    for k in range(steps):
        a = 2 * math.pi * k / steps
        x, y = rx * math.cos(a), ry * math.sin(a)
        yield (cx + x * c - y * s, cy + x * s + y * c)


def quoted(text):
    return '"' + text.replace('"', '""') + '"'


def hex_of(row):
    """A catalogue colour as 0x00BBGGRR."""
    return "0x00{:02X}{:02X}{:02X}".format(*(int(row[k]) for k in ("Blue", "Green", "Red")))


class Design:
    def __init__(self, name, width, height, cloth=(252, 251, 248), count=14):
        self.name, self.width, self.height, self.cloth, self.count = name, width, height, cloth, count
        self.dmc = catalogue()
        self.flosses = []  # (row, second row or None)
        self.steps = []  # (comment, [(column, row, kind, floss)]) in order
        self.labels = np.zeros((height * FINE, width * FINE), np.uint8)  # painted, not yet stitches
        self.settled = self.labels.copy()
        self.cache = (-1, set())
        self.lines = []
        self.knots = []
        self.facts = {}

    def floss(self, number, blend=None):
        self.flosses.append((self.dmc[number], self.dmc[blend] if blend else None))
        return len(self.flosses)

    def colour(self, index):
        row, second = self.flosses[index - 1]
        one = [int(row[k]) for k in ("Red", "Green", "Blue")]
        two = [int(second[k]) for k in ("Red", "Green", "Blue")] if second else one
        return tuple(round((a + b) / 2) for a, b in zip(one, two))

    # Areas of whole and part stitches

    def area(self, floss, points, only=None):
        image = Image.new("1", (self.width * FINE, self.height * FINE))
        ImageDraw.Draw(image).polygon([(x * FINE - 0.5, y * FINE - 0.5) for x, y in points], fill=1)
        where = np.asarray(image)
        if only is not None:
            where = where & np.isin(np.where(self.labels, self.labels, self.settled), only)
        self.labels[where] = floss

    def box(self, floss, x1, y1, x2, y2, only=None):
        self.area(floss, [(x1, y1), (x2, y1), (x2, y2), (x1, y2)], only)

    def oval(self, floss, cx, cy, rx, ry, turn=0.0, only=None):
        self.area(floss, list(ellipse(cx, cy, rx, ry, turn)), only)

    def blob(self, floss, points, only=None):
        self.area(floss, smooth(points), only)

    def settle(self, comment):
        """Turns what was painted since the last call into stitches; a square that is painted again is fitted anew."""
        touched = {(x, y) for y, x in zip(*np.nonzero(self._by_square(self.labels).any(axis=(1, 3))))}
        self.settled = np.where(self.labels, self.labels, self.settled)
        self.labels[:] = 0
        self.steps = [(c, [s for s in stitches if (s[0], s[1]) not in touched]) for c, stitches in self.steps]
        self.steps.append((comment, [(x, y, kind, f) for x, y in sorted(touched) for kind, f in self._fit(x, y)]))

    def _by_square(self, fine):
        return fine.reshape(self.height, FINE, self.width, FINE)

    @property
    def stitches(self):
        return [s for _, stitches in self.steps for s in stitches]

    def _fit(self, x, y):
        cell = self.settled[y * FINE : (y + 1) * FINE, x * FINE : (x + 1) * FINE]
        values, counts = np.unique(cell, return_counts=True)
        if len(values) == 1:
            return [(WHOLE, int(values[0]))] if values[0] else []
        best, result = counts.max() + 12, [(WHOLE, int(values[counts.argmax()]))]
        if result[0][1] == 0:
            result = []
        for first, second, where in SPLITS:
            a, b = self._most(cell[where]), self._most(cell[~where])
            score = (cell[where] == a).sum() + (cell[~where] == b).sum()
            if a != b and score > best:
                best, result = score, [(k, f) for k, f in ((first, a), (second, b)) if f]
        for kind, across, down in QUARTERS:
            where = across & down
            a = self._most(cell[where])
            score = (cell[where] == a).sum() + (cell[~where] == 0).sum() - 16
            if a and score > best:
                best, result = score, [(kind, a)]
        return result

    @staticmethod
    def _most(part):
        values, counts = np.unique(part, return_counts=True)
        return int(values[counts.argmax()])

    # Single stitches, knots and lines

    def put(self, comment, stitches):
        """(column, row, kind, floss), columns and rows counted from 0."""
        stitches = [s for s in stitches if 0 <= s[0] < self.width and 0 <= s[1] < self.height]
        self.steps.append((comment, stitches))

    def picture(self, comment, left, top, rows, key):
        """Whole stitches from a drawing in text."""
        self.put(comment, [(left + i, top + j, WHOLE, key[c]) for j, row in enumerate(rows) for i, c in enumerate(row) if c in key])

    def _taken(self):
        count = sum(len(stitches) for _, stitches in self.steps)
        if self.cache[0] != count:
            self.cache = (count, {(s[0], s[1]) for s in self.stitches})
        return self.cache[1]

    def free(self, x, y):
        return (x, y) not in self._taken()

    def knot(self, floss, x, y, style=ROUND):
        at = self._snap(x, y)
        self.knots = [k for k in self.knots if k[0] != at] + [(at, floss, style)]

    def path(self, floss, points, style=LINE, closed=False):
        p = [self._snap(*q) for q in points]
        p = [q for i, q in enumerate(p) if i == 0 or q != p[i - 1]]
        if closed:
            p.append(p[0])
        i = 0
        while i + 1 < len(p):  # straight runs become one line
            j = i + 1
            while j + 1 < len(p) and self._same_way(p[i], p[j], p[j + 1]):
                j += 1
            if p[i] != p[j]:
                self.lines.append((p[i], p[j], floss, style))
            i = j

    def curve(self, floss, points, style=LINE, closed=False, step=4):
        self.path(floss, smooth(points, closed, step), style, closed)

    @staticmethod
    def _same_way(a, b, c):
        u, v = (b[0] - a[0], b[1] - a[1]), (c[0] - b[0], c[1] - b[1])
        return u[0] * v[1] == u[1] * v[0] and u[0] * v[0] + u[1] * v[1] > 0

    def _snap(self, x, y):
        """The nearest point of the half-square lattice, counted in half squares from 0."""
        return (min(max(round(2 * x), 0), 2 * self.width), min(max(round(2 * y), 0), 2 * self.height))

    def _place(self, point):
        """Square and position that name a lattice point."""
        out, position = [], 1
        for value, size, weight in ((point[0], self.width, 1), (point[1], self.height, 3)):
            square = min(value // 2, size - 1)
            out.append(square + 1)
            position += (value - 2 * square) * weight
        return out[0], out[1], position

    # The script

    def script(self):
        out = [f"# {self.facts['Title']}, {self.width} by {self.height} squares",
               f"Initialize {self.width} {self.height} {self.count} {self.count}"]
        out += [f"Set{k} {quoted(v)}" for k, v in self.facts.items()]
        out += ["", "# Flosses, behind the sixteen of a new pattern"]
        symbols, styles = self._symbols(), self._styles()
        for i, (row, second) in enumerate(self.flosses):
            out.append(f"AddPaletteEntry {hex_of(row)} {quoted(row['FlossID'])} {quoted(row['Description'])} \"DMC\" {quoted(symbols[i])} "
                       f"2 1 {STARTUP_ENTRIES + i} {row['MasterID']} {styles[i]} \"DMC\"")
            if second:
                out.append(f"BlendFloss {STARTUP_ENTRIES + i + 1} {hex_of(second)} {quoted(second['FlossID'])} \"DMC\" "
                           f"{quoted(second['Description'])} {second['MasterID']}")
        for comment, stitches in self.steps:
            out += ["", f"# {comment}"]
            out += [f"SetStitch {x + 1} {y + 1} {kind} {f + STARTUP_ENTRIES} 5" for x, y, kind, f in stitches]
        out += self._script_of_lines()
        out += ["", "# Only the flosses of the design stay", "ClearUnusedPaletteColors"]
        return "\n".join(out) + "\n"

    def _script_of_lines(self):
        out = ["", "# Backstitch"] if self.lines else []
        for a, b, floss, style in self.lines:
            out.append("SetBackstitchLine {} {} {} {} {} {} {} {}".format(*self._place(a), *self._place(b), floss + STARTUP_ENTRIES, style))
        if self.knots:
            out += ["", "# French knots, by their style"]
        for style in sorted({k[2] for k in self.knots}):
            out.append(f"SetFrenchKnotStyle {style}")
            for point, floss, _ in (k for k in self.knots if k[2] == style):
                x, y, position = self._place(point)
                out.append(f"SetStitch {x} {y} {KNOT} {floss + STARTUP_ENTRIES} {position}")
        return out

    def _symbols(self):
        """A sign for each floss, from "!" on: the boldest go to what is stitched most."""
        use = dict.fromkeys(range(len(self.flosses)), 0)
        for _, _, kind, floss in self.stitches:
            use[floss - 1] += 1 if kind in (TBH, BTH) else 4  # a wide ground of half stitches is to stay light
        order = sorted(use, key=lambda i: -use[i])
        return {i: chr(ord("!") + rank) for rank, i in enumerate(order)}

    def _styles(self):
        """The line style that each floss is mostly used with."""
        styles = [[line[3] for line in self.lines if line[2] == i + 1] or [LINE] for i in range(len(self.flosses))]
        return [max(sorted(set(s)), key=s.count) for s in styles]

    def save(self):
        stitches = self.stitches
        used = {s[3] for s in stitches} | {k[1] for k in self.knots} | {k[2] for k in self.lines}
        missing = set(range(1, len(self.flosses) + 1)) - used
        assert not missing, f"unused flosses: {[self.flosses[i - 1][0]['FlossID'] for i in missing]}"
        target = Path(__file__).resolve().parent.parent / f"patterns/{self.name}.ops"
        target.write_text(self.script())
        for a in sys.argv[1:]:
            if a.endswith(".png"):
                self.preview(a)
        kinds = {k: sum(s[2] == k for s in stitches) for k in range(1, 13)}
        print(self.name, "flosses", len(self.flosses), "stitches", len(stitches), "kinds", {k: v for k, v in kinds.items() if v}, "knots", len(self.knots),
              "lines", len(self.lines))

    # A quick look

    def preview(self, file, z=14):
        image = Image.new("RGB", (self.width * z * 2, self.height * z * 2), self.cloth)
        d = ImageDraw.Draw(image)
        q = z * 2
        last = {}
        for x, y, kind, f in self.stitches:
            cell = last.setdefault((x, y), {})
            if kind == WHOLE:
                cell.clear()
            cell[kind] = f
        for (x, y), cell in last.items():
            for kind, f in cell.items():
                self._show(d, x * q, y * q, q, kind, self.colour(f))
        for i in range(0, self.width + 1, 10):
            d.line([(i * q, 0), (i * q, image.height)], fill=(190, 190, 190), width=1)
        for i in range(0, self.height + 1, 10):
            d.line([(0, i * q), (image.width, i * q)], fill=(190, 190, 190), width=1)
        for a, b, f, style in self.lines:
            self._show_line(d, [(v[0] * q / 2, v[1] * q / 2) for v in (a, b)], q, self.colour(f), style)
        for (x, y), f, style in self.knots:
            r = q * 0.48
            turn = {ROUND: (0, 1), OVAL_H: (0, 0.6), OVAL_V: (90, 0.6), OVAL_UL: (45, 0.6), OVAL_UR: (-45, 0.6)}[style]
            shape = list(ellipse(x * q / 2, y * q / 2, r, r * turn[1], math.radians(turn[0])))
            d.polygon(shape, fill=self.colour(f), outline=tuple(int(c * 0.7) for c in self.colour(f)))
        image.resize((self.width * z, self.height * z), Image.LANCZOS).save(file)

    @staticmethod
    def _show(d, x, y, q, kind, colour):
        m, e = q / 2, q
        shapes = {WHOLE: [(0, 0), (e, 0), (e, e), (0, e)], UL3Q: [(0, 0), (e, 0), (0, e)], UR3Q: [(0, 0), (e, 0), (e, e)],
                  LL3Q: [(0, 0), (e, e), (0, e)], LR3Q: [(e, 0), (e, e), (0, e)]}
        legs = {TBH: (0, 0, e, e), BTH: (0, e, e, 0), ULQ: (0, 0, m, m), URQ: (e, 0, m, m), LLQ: (0, e, m, m), LRQ: (e, e, m, m)}
        if kind in shapes:
            d.polygon([(x + a, y + b) for a, b in shapes[kind]], fill=colour)
        else:
            a, b, c, f = legs[kind]
            d.line([(x + a, y + b), (x + c, y + f)], fill=colour, width=int(q * 0.36))

    @staticmethod
    def _show_line(d, ends, q, colour, style):
        (x1, y1), (x2, y2) = ends
        length = math.hypot(x2 - x1, y2 - y1)
        if style in (DASHED, DOTTED, PLUS):
            step = {DASHED: 1.5, DOTTED: 0.75, PLUS: 1.5}[style] * q
            part = 0.3 if style == DOTTED else 0.75
            for k in range(int(length / step) + 1):
                a, b = k * step / length, min(1, (k + part) * step / length)
                if a < 1:
                    d.line([(x1 + (x2 - x1) * a, y1 + (y2 - y1) * a), (x1 + (x2 - x1) * b, y1 + (y2 - y1) * b)], fill=colour, width=int(q * 0.3))
            return
        d.line(ends, fill=colour, width=int(q * (0.15 if style == SQUIGGLE else 0.3)))
