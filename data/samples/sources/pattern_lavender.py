# SPDX-FileCopyrightText: 2026 Korvanta contributors
# SPDX-License-Identifier: MIT
"""A bunch of lavender tied with a ribbon, and a bee on its way: ../patterns/lavender.ops."""

import math

from stitchkit import BTH, DOTTED, Design, OVAL_H, OVAL_UL, OVAL_UR, OVAL_V, ROUND, TBH, FINE, smooth

d = Design("lavender", 64, 84)
d.facts = {
    "Title": "Lavender and Bee",
    "Author": "Korvanta contributors",
    "Copyright": "2026 Korvanta contributors, MIT licence",
    "Fabric": "14 count Aida, white",
    "Instructions": "Stitch with two strands of floss, backstitch with one strand. The blended flosses take one strand of each "
    "colour. Work all cross stitches first, then the backstitch, and set the French knots last: wrap once for the oval knots and "
    "twice for the round ones. The bee flies along the dotted line.",
}
deep, mid, light, mist = d.floss("333"), d.floss("340"), d.floss("211"), d.floss("209", blend="340")
stem, leaf, pale = d.floss("987"), d.floss("989"), d.floss("3348")
honey, gold, black, brown = d.floss("783"), d.floss("743"), d.floss("3371"), d.floss("938")
wing, vein = d.floss("3756", blend="3747"), d.floss("931")
rose, blush, wine = d.floss("3687"), d.floss("3689"), d.floss("3685")

TIE = (31, 60)


def along(curve, t):
    """Place and direction at a share of the curve's length."""
    lengths = [math.dist(a, b) for a, b in zip(curve, curve[1:])]
    want = t * sum(lengths)
    for a, b, one in zip(curve, curve[1:], lengths):
        if want <= one:
            s = want / one
            return (a[0] + (b[0] - a[0]) * s, a[1] + (b[1] - a[1]) * s), math.atan2(b[1] - a[1], b[0] - a[0])
        want -= one
    return curve[-1], math.atan2(curve[-1][1] - curve[-2][1], curve[-1][0] - curve[-2][0])


def bud(x, y, angle, size, floss):
    """A small calyx that points along the angle."""
    c, s = math.cos(angle), math.sin(angle)
    shape = [(0, -0.85), (0.8, -1.15), (2.0, -0.95), (2.9, 0), (2.0, 0.95), (0.8, 1.15), (0, 0.85)]
    d.area(floss, [(x + (a * c - b * s) * size, y + (a * s + b * c) * size) for a, b in shape])


def sprig(points, whorls, low=0.50, size=1.0):
    curve = smooth(points, False)
    for k in range(whorls):
        t = low + (1 - low) * k / whorls
        (x, y), angle = along(curve, t)
        grow = size * (1.18 - 0.42 * k / whorls)
        for side in (-1, 1):
            bud(x, y, angle + side * 0.95, grow, (mid, mist, deep, mist)[(k + (side > 0)) % 4])
        bud(x, y, angle, grow * 0.95, (mist, deep, mid, light)[k % 4])
    (x, y), angle = along(curve, 1)
    bud(x - math.cos(angle), y - math.sin(angle), angle, size * 0.85, light)
    heads.append((curve, whorls, low, size))
    return curve


def blossoms(curve, whorls, low, size):
    """Knots at the tips of the buds, lying the way the bud points."""
    for k in range(whorls):
        t = low + (1 - low) * k / whorls
        (x, y), angle = along(curve, t)
        for side in (-1, 1):
            a = angle + side * 0.95
            reach = 2.7 * size * (1.18 - 0.42 * k / whorls)
            upright = abs(math.cos(a)) < 0.38
            style = OVAL_V if upright else OVAL_H if abs(math.sin(a)) < 0.38 else OVAL_UR if math.cos(a) > 0 else OVAL_UL
            d.knot((light, mist)[k % 2], x + math.cos(a) * reach, y + math.sin(a) * reach, style)
    (x, y), _ = along(curve, 1)
    d.knot(light, x, y - 0.5, OVAL_V)


heads = []
STEMS = (([TIE, (28, 45), (20, 28), (12, 12)], 8, 0.50, 1.3), ([TIE, (31, 42), (31, 24), (31, 5)], 10, 0.42, 1.4),
         ([TIE, (35, 46), (42, 33), (47, 23)], 6, 0.48, 1.25))
curves = [sprig(*s) for s in STEMS]
d.settle("Three heads of lavender, each bud on its own stalk")

LEAVES = (
    ([(30, 58), (24, 50), (17, 43), (11, 41), (14, 46), (21, 53), (29, 59)], leaf),
    ([(33, 58), (38, 53), (46, 47), (53, 45), (50, 50), (42, 56), (33, 60)], leaf),
    ([(30.5, 56), (26, 46), (24, 38), (23.5, 33), (27, 39), (30, 47), (31.5, 56)], pale),
    ([(32, 57), (34, 47), (37, 39), (39.5, 36), (38.5, 43), (36, 50), (33, 58)], pale),
)
for points, floss in LEAVES:
    d.blob(floss, points)
for x, end, floss in ((27, 74, leaf), (29, 79, stem), (31, 81, leaf), (33, 78, stem), (35, 75, leaf)):
    d.area(floss, [(x, 62), (x + 1, 62), (x + 1, end - 1), (x, end)])
d.settle("Leaves and cut stems")

for side in (-1, 1):
    m = lambda pts: [(TIE[0] + side * a, TIE[1] + b) for a, b in pts]
    d.blob(rose, m([(0.5, 3.5), (2.5, 8), (6, 14), (9, 16), (10.5, 14), (7, 8), (3.5, 2.5)]))
    d.blob(blush, m([(1.2, 4.5), (3, 8.5), (5.5, 12.5), (7.5, 14.2), (6.5, 11), (4, 6)]))
    d.blob(rose, m([(0, 1.2), (4, -3.2), (9, -4.4), (12.2, -1.5), (11.8, 3), (8, 5.2), (4, 4), (0, 2.4)]))
    d.blob(blush, m([(3, -0.4), (6, -2.6), (9.2, -2.4), (10.4, 0.2), (9, 2.6), (6, 2.4)]))
    d.blob(wine, m([(2.0, 1.2), (4.4, 0.2), (7.0, 0.4), (8.4, 1.8), (6.4, 2.8), (4, 2.6)]))
d.blob(rose, [(28.4, 59), (31, 58), (33.6, 59), (34.2, 61.4), (33, 64), (31, 64.6), (29, 64), (27.8, 61.4)])
d.oval(blush, 30.4, 60.4, 1.2, 1.0)
d.settle("The ribbon")

# The bee, in a frame turned a little upwards.
BEE, TURN = (53.0, 12.0), -math.pi / 4  # slantwise: its stripes run along the squares' diagonals


def bee(points):
    c, s = math.cos(TURN), math.sin(TURN)
    return [(BEE[0] + a * c - b * s, BEE[1] + a * s + b * c) for a, b in points]


D = math.sqrt(0.5)  # the diagonal of half a square
WING = ([(-0.6, -3.0), (-3.0, -5.4), (-6.6, -7.0), (-8.6, -5.4), (-7.4, -3.6), (-4.0, -2.8)],
        [(1.2, -3.0), (2.6, -6.4), (1.6, -10.2), (-0.8, -10.8), (-2.4, -7.6), (-1.2, -3.4)])
BODY = [(-10, -2), (-10, 2), (-8, 4), (2, 4), (4, 2), (4, -2), (2, -4), (-8, -4)]
d.area(gold, bee([(a * D, b * D) for a, b in BODY]))
d.area(honey, bee([(a * D, b * D) for a, b in ((-10, 1), (4, 1), (4, 2), (2, 4), (-8, 4), (-10, 2))]))
for a in (-8, -4, 0):
    d.area(black, bee([(a * D, -5 * D), ((a + 2) * D, -5 * D), ((a + 2) * D, 5 * D), (a * D, 5 * D)]), only=[gold, honey])
d.area(brown, bee([(a * D, b * D) for a, b in ((4, -2), (6, -2), (7, -1), (7, 1), (6, 2), (4, 2), (3, 3), (2, 4), (2, -4), (3, -3))]))
d.settle("The bee's body")
for shape, kind in zip(WING, (BTH, TBH)):
    d.blob(wing, bee(shape))
    filled = d.labels.reshape(d.height, FINE, d.width, FINE).mean(axis=(1, 3)) > wing * 0.5
    d.labels[:] = 0
    d.put("A wing in half stitches, so that the cloth shines through",
          [(x, y, kind, wing) for x in range(d.width) for y in range(d.height) if filled[y, x] and d.free(x, y)])

for curve, (_, _, low, _) in zip(curves, STEMS):
    d.path(stem, [along(curve, t / 24)[0] for t in range(0, round(24 * low) + 1)])
for points, floss in LEAVES:
    d.curve(stem, points, step=3, closed=True)
for tip in ((11, 41), (53, 45), (23.5, 33.5), (39.5, 36.5)):
    d.curve(stem, [(31, 57), ((31 + tip[0]) / 2 + (0.5 if tip[0] < 31 else -0.5), (57 + tip[1]) / 2), tip], step=2)
for side in (-1, 1):
    m = lambda pts: [(TIE[0] + side * a, TIE[1] + b) for a, b in pts]
    d.curve(wine, m([(3, 1), (4, -3), (9, -4.4), (12.2, -1.5), (11.8, 3), (8, 5.2), (4, 4), (3, 1.5)]), step=3)
    d.curve(wine, m([(2, 4.5), (3.5, 9.5), (7, 14.5), (9, 16), (10.5, 14), (7, 8), (3.5, 4)]), step=3)
d.curve(wine, [(28.4, 59), (31, 58), (33.6, 59), (34.2, 61.4), (33, 64), (31, 64.6), (29, 64), (27.8, 61.4)], closed=True, step=2)
for shape in WING:
    d.curve(vein, bee(shape), closed=True, step=2)
d.curve(black, bee([(4.2, -1.6), (5.6, -3.0), (7.6, -3.2)]), step=3)
d.curve(black, bee([(5.0, -0.8), (6.8, -1.2), (8.2, -0.2)]), step=3)
d.curve(honey, [(47, 18), (43, 19), (38, 15), (39, 8), (44, 6), (45, 11), (41, 15), (37, 20)], DOTTED, step=3)
d.path(black, bee([(-10 * D, 0), (-12 * D, 0)]))
for at in bee([(8.0, -3.3), (8.6, 0.0)]):
    d.knot(black, *at, ROUND)
d.knot(gold, *bee([(3.6, -0.6)])[0], ROUND)
for head in heads:
    blossoms(*head)
d.save()
