# SPDX-FileCopyrightText: 2026 Korvanta contributors
# SPDX-License-Identifier: MIT
"""A Christmas bauble with an eight-pointed star: ../patterns/bauble.ops."""

import math

from stitchkit import DASHED, Design, DOTTED, LINE, OVAL_H, OVAL_UL, OVAL_UR, OVAL_V, PLUS, ROUND, SQUIGGLE, TRACKS

d = Design("bauble", 52, 70)
d.facts = {
    "Title": "Star Bauble",
    "Author": "Korvanta contributors",
    "Copyright": "2026 Korvanta contributors, MIT licence",
    "Fabric": "14 count Aida, white",
    "Instructions": "Two strands throughout, one for backstitch. The star is pieced of three-quarter stitches only where two colours "
    "meet. For a tree ornament stitch it twice, sew back to back and stuff.",
}
red, wine, bright = d.floss("321"), d.floss("816", blend="498"), d.floss("350", blend="321")
glint, cream, ivory = d.floss("353"), d.floss("712"), d.floss("738")
gold, old, amber = d.floss("3821"), d.floss("3852"), d.floss("783", blend="782")
green, pine, moss = d.floss("987"), d.floss("319"), d.floss("989")
brown = d.floss("780")
CX, CY, R = 26, 45, 22

d.oval(wine, CX, CY, R, R)
d.oval(red, CX - 1.2, CY - 1.2, R - 1.6, R - 1.6, only=[wine])
d.oval(bright, CX - 4.5, CY - 5, R - 7.5, R - 7.5, only=[red])
d.blob(glint, [(8, 42), (8.4, 38.5), (9.6, 35), (11, 33.4), (12.4, 34), (11, 37), (10, 42)], only=[bright, red])

# Two bands with teeth, cut along the diagonals of the squares
for y, way in ((31, 1), (59, -1)):
    lo, hi = min(y, y - 2 * way), max(y, y - 2 * way)
    d.box(old, 0, lo, 52, hi, only=[wine, red, bright, glint])
    for x in range(2, 52, 4):
        d.area(old, [(x - 2, y), (x, y + 2 * way), (x + 2, y)], only=[wine, red, bright, glint])
    d.box(gold, 0, lo, 52, lo + 1, only=[old])

# The star: eight rhombs round the middle, each with a shaded edge
def rhomb(floss, points):
    d.area(floss, [(CX + x, CY + y) for x, y in points])


# Every edge of the rhombs runs along the squares or their diagonals, so three-quarter stitches meet it exactly.
RHOMB = ((0, 0), (6, 0), (10, 4), (4, 4))
SHADE = ((0, 0), (4, 4), (10, 4), (9, 3), (4, 3), (1, 0))
TURNS = [lambda x, y: (x, y), lambda x, y: (-y, x), lambda x, y: (-x, -y), lambda x, y: (y, -x)]
for turn in TURNS:
    for floss, dark, flip in ((gold, amber, False), (cream, ivory, True)):
        for shape, colour in ((RHOMB, floss), (SHADE, dark)):
            rhomb(colour, [turn(*((b, a) if flip else (a, b))) for a, b in shape])

# Cap, ring, bow and twigs
d.box(gold, 22, 19, 30, 24)
d.box(amber, 27, 19, 30, 24)
d.box(old, 25, 19, 27, 24)
d.area(amber, [(21, 24), (22, 23), (30, 23), (31, 24)])
for side in (-1, 1):
    m = lambda pts: [(CX + side * a, b) for a, b in pts]
    d.area(green, m([(2, 13), (6, 9), (11, 9), (13, 11), (13, 15), (11, 17), (6, 17), (2, 15)]))
    d.area(moss, m([(5, 12), (7, 10), (10, 10), (11, 11), (11, 13), (7, 13)]))
    d.area(pine, m([(2, 13), (6, 13), (8, 14), (6, 15), (2, 15)]))
    d.area(green, m([(1, 16), (4, 16), (12, 24), (12, 27), (10, 25), (8, 27)]))
    d.area(pine, m([(1, 16), (3, 16), (5, 18), (5, 20)]))
d.area(green, [(24, 11), (28, 11), (29, 12), (29, 16), (28, 17), (24, 17), (23, 16), (23, 12)])
d.area(moss, [(24, 12), (26, 12), (24, 14)])
d.settle("Bauble, star, cap and bow")

# Backstitch
for turn in TURNS:
    for flip in (False, True):
        d.path(brown, [(CX + x, CY + y) for x, y in (turn(*((b, a) if flip else (a, b))) for a, b in RHOMB)], closed=True)
rim = [(CX + R * math.cos(math.radians(t)), CY + R * math.sin(math.radians(t))) for t in range(-79, 260, 8)]
d.path(wine, rim, LINE)
for y, way in ((31, 1), (59, -1)):
    w = math.sqrt(R * R - (y - CY) ** 2) - 1
    top = y - 2 * way
    v = math.sqrt(R * R - (top - CY) ** 2) - 1
    d.path(amber, [(CX - v, top - 1 * way), (CX + v, top - 1 * way)], PLUS)
    d.path(amber, [(CX - w, y + 3.5 * way), (CX + w, y + 3.5 * way)], DOTTED)
d.path(brown, [(22, 19), (30, 19), (30, 23), (31, 24), (21, 24), (22, 23), (22, 19)])
d.path(brown, [(22, 21.5), (30, 21.5)], TRACKS)
d.path(brown, [(26, 19), (25, 18), (26, 17), (27, 18), (26, 19)])
d.path(amber, [(26, 11), (26, 0)], SQUIGGLE)
for side in (-1, 1):
    m = lambda pts: [(CX + side * a, b) for a, b in pts]
    d.path(pine, m([(3, 12), (6, 9), (11, 9), (13, 11), (13, 15), (11, 17), (6, 17), (3, 16)]))
    d.path(pine, m([(2, 17), (8, 27), (10, 25), (12, 27), (12, 24), (5, 17)]))
    d.path(pine, m([(6, 19), (10.5, 24)]), DASHED)
d.path(pine, [(24, 11), (28, 11), (29, 12), (29, 16), (28, 17), (24, 17), (23, 16), (23, 12)], closed=True)

# Knots: beads between the teeth, frost on the star, sparks round about
for y, way in ((31, 1), (59, -1)):
    for x in range(8, 46, 4):
        if abs(x - CX) < math.sqrt(R * R - (y + 2 * way - CY) ** 2) - 2:
            d.knot(gold, x, y + 2 * way, ROUND)
for s in (-1, 1):
    d.knot(gold, CX + 8 * s, CY, OVAL_H)
    d.knot(gold, CX, CY + 8 * s, OVAL_V)
    d.knot(cream, CX + 6 * s, CY + 6 * s, OVAL_UL)
    d.knot(cream, CX + 6 * s, CY - 6 * s, OVAL_UR)
d.knot(red, CX, CY, ROUND)
for x, y, r in ((6, 20, 2), (46, 26, 2.5), (4, 64, 2), (48, 63, 1.5)):
    d.path(old, [(x - r, y), (x + r, y)])
    d.path(old, [(x, y - r), (x, y + r)])
    d.knot(gold, x, y, ROUND)
d.save()
