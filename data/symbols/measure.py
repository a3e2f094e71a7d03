#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Korvanta contributors
# SPDX-License-Identifier: MIT
"""Tells how unlike the symbols are, as the tests of the font measure it.

A symbol is painted into a small cell, blurred by a pixel and judged dark or light at three shares
of black; what two symbols have in difference is the number of pixels judged otherwise where they
are most alike, over the three and over moves by up to a pixel. Prints the least distances of each
group, then for every shape that no code uses the pairs that would break a promise, so that one can
see where it would fit.
"""
import math

import numpy as np

from symbols import AllShapes, CentredOutline, Flattened, Order

PROMISES = ((40, 8, 0.06), (100, 10, 0.08), (200, 14, 0.06))  # Symbols, pixels, least share.
DARK = (0.35, 0.4, 0.45)
BORDER = 2


def Coverage(contours, size):
    """The exact share of ink in every pixel of a cell."""
    # The signed area to the right of each edge, gathered pixel by pixel; a running sum along the
    # row then gives what lies inside.
    area = np.zeros((size, size + 2))
    for contour in contours:
        points = [((x + 50) * size / 100, (50 - y) * size / 100) for x, y in Flattened(contour)]
        for p, q in zip(points, points[1:] + points[:1]):
            _AddEdge(area, p, q)
    return np.abs(np.cumsum(area, axis=1)[:, :size])


def _AddEdge(area, p, q):
    sign = 1.0
    if p[1] > q[1]:
        p, q, sign = q, p, -1.0
    if q[1] - p[1] < 1e-12:
        return
    slope = (q[0] - p[0]) / (q[1] - p[1])
    for row in range(math.floor(p[1]), math.ceil(q[1])):
        y0, y1 = max(p[1], row), min(q[1], row + 1)
        x0, x1 = sorted((p[0] + (y0 - p[1]) * slope, p[0] + (y1 - p[1]) * slope))
        if x1 - x0 < 1e-9:
            _AddPiece(area, row, x0, (y1 - y0) * sign)
            continue
        cuts = [x0, *range(math.floor(x0) + 1, math.ceil(x1)), x1]
        for a, b in zip(cuts, cuts[1:]):
            _AddPiece(area, row, (a + b) / 2, (y1 - y0) * (b - a) / (x1 - x0) * sign)


def _AddPiece(area, row, middle, height):
    column = math.floor(middle)
    area[row, column] += height * (column + 1 - middle)
    area[row, column + 1] += height * (middle - column)


def Blots(cells):
    """Dark pixels of each cell, for each share of black."""
    blurred = np.pad(np.array(cells), ((0, 0), (BORDER, BORDER), (BORDER, BORDER)))
    for axis in (1, 2):
        blurred = (np.roll(blurred, 1, axis) + 2 * blurred + np.roll(blurred, -1, axis)) / 4
    return [blurred > share for share in DARK]


def Distances(cells):
    """Pixels in difference, for every two cells."""
    count = len(cells)
    least = np.full((count, count), np.inf)
    for dark in Blots(cells):
        flat = dark.reshape(count, -1).astype(np.float32)
        total = flat.sum(1)
        for dx in (-1, 0, 1):
            for dy in (-1, 0, 1):
                moved = np.roll(dark, (dy, dx), (1, 2)).reshape(count, -1).astype(np.float32)
                least = np.minimum(least, total[:, None] + total[None] - 2 * flat @ moved.T)
    return np.rint(least)


def Report():
    shapes = AllShapes()
    used = list(Order().values())
    spare = [name for name in shapes if name not in used]
    for symbols, pixels, share in PROMISES:
        names = used[:symbols] + spare
        cells = [Coverage(CentredOutline(shapes[name]), pixels) for name in names]
        distance = Distances(cells) / pixels ** 2
        np.fill_diagonal(distance, 1)
        among = distance[:symbols, :symbols]
        print(f"first {symbols} at {pixels} pixels: least {among.min():.4f}, promised {share}")
        pairs = [(among[i, j], names[i], names[j]) for j in range(symbols) for i in range(j)]
        for nearness, one, other in sorted(pairs)[:8]:
            print(f"    {nearness:.4f} {one} and {other}")
        for k in range(symbols, len(names)):
            near = [names[i] for i in np.nonzero(distance[k, :symbols] < share)[0]]
            print(f"  spare {names[k]}: too near to {', '.join(near) or 'none'}")


if __name__ == "__main__":
    Report()
