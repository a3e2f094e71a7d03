# SPDX-FileCopyrightText: 2026 Korvanta contributors
# SPDX-License-Identifier: MIT
"""An alphabet sampler with bands of every line and small flowers of quarter stitches: ../patterns/sampler.ops."""

from stitchkit import (BTH, DASHED, Design, DOTTED, LINE, LLQ, LRQ, OVAL_H, OVAL_UL, OVAL_UR, OVAL_V, PLUS, ROUND, SQUIGGLE, TBH,
                       TRACKS, ULQ, URQ)

d = Design("sampler", 84, 90)
d.facts = {
    "Title": "Alphabet Sampler",
    "Author": "Korvanta contributors",
    "Copyright": "2026 Korvanta contributors, MIT licence",
    "Fabric": "14 count Aida, cream",
    "Instructions": "Two strands for stitches, one for backstitch. A small flower is four quarter stitches that meet in one hole: come "
    "up in the four outer corners and go down in the shared one. The knots between them come last.",
}
navy, blue, ice = d.floss("311"), d.floss("931"), d.floss("3752")
rose, pink, wine = d.floss("3687"), d.floss("3688"), d.floss("3685")
green, leaf, mint = d.floss("987"), d.floss("989"), d.floss("3348", blend="989")
gold, straw = d.floss("729"), d.floss("676")
roof, wall, door, brick = d.floss("355"), d.floss("739", blend="738"), d.floss("930"), d.floss("356")
bark, violet = d.floss("839"), d.floss("3746", blend="340")

GLYPHS = {
    "A": " ### #   ##   #######   ##   ##   #", "B": "#### #   ##   ##### #   ##   ##### ",
    "C": " ### #   ##    #    #    #   # ### ", "D": "#### #   ##   ##   ##   ##   ##### ",
    "E": "######    #    #### #    #    #####", "F": "######    #    #### #    #    #    ",
    "G": " ### #   ##    # ####   ##   # ### ", "H": "#   ##   ##   #######   ##   ##   #",
    "I": " ###   #    #    #    #    #   ### ", "J": "  ###   #    #    #    # #  #  ##  ",
    "K": "#   ##  # # #  ##   # #  #  # #   #", "L": "#    #    #    #    #    #    #####",
    "M": "#   ### ### # ## # ##   ##   ##   #", "N": "#   ###  ## # ##  ###   ##   ##   #",
    "O": " ### #   ##   ##   ##   ##   # ### ", "P": "#### #   ##   ##### #    #    #    ",
    "Q": " ### #   ##   ##   ## # ##  #  ## #", "R": "#### #   ##   ##### # #  #  # #   #",
    "S": " #####    #     ###     #    ##### ", "T": "#####  #    #    #    #    #    #  ",
    "U": "#   ##   ##   ##   ##   ##   # ### ", "V": "#   ##   ##   ##   ##   # # #   #  ",
    "W": "#   ##   ##   ## # ## # ## # # # # ", "X": "#   ##   # # #   #   # # #   ##   #",
    "Y": "#   ##   # # #   #    #    #    #  ", "Z": "#####    #   #   #   #   #    #####",
}


def letters(text, left, top, flosses):
    for k, c in enumerate(text):
        g = GLYPHS[c]
        d.picture(f"Letter {c}", left + 7 * k, top, [g[5 * r : 5 * r + 5] for r in range(7)], {"#": flosses[k % len(flosses)]})


def flower(x, y, floss, bead, style=ROUND):
    """Four quarter stitches round the corner (x, y), and a knot behind it."""
    d.put("Small flower", [(x - 1, y - 1, LRQ, floss), (x, y - 1, LLQ, floss), (x - 1, y, URQ, floss), (x, y, ULQ, floss)])
    if x < 72:
        d.knot(bead, x + 3, y, style)


HEART = [(0, 1), (1, 0), (2, 0), (3, 1), (4, 0), (5, 0), (6, 1), (6, 2), (3, 5), (0, 2)]


def heart(x, y, floss):
    d.area(floss, [(x + a, y + b) for a, b in HEART])


# The border: a wave of leaves with hearts at the corners
def leaf_pair(x, y, across, flip):
    for s, floss in ((0, green), (1, leaf)):
        a = [(0, 0), (2, 0), (3, 1), (3, 2), (1, 2), (0, 1)]
        pts = [(p + 3 * s, q if (s == 0) != flip else 2 - q) for p, q in a]
        d.area(floss, [(x + p, y + q) if across else (x + q, y + p) for p, q in pts])


for k in range(10):
    for y in (2, 86):
        leaf_pair(12 + 6 * k, y, True, k % 2 == 0)
for k in range(11):
    for x in (2, 80):
        leaf_pair(x, 12 + 6 * k, False, k % 2 == 0)
for x in (2, 76):
    for y in (2, 82):
        heart(x + (0 if x == 2 else 0), y, rose)
        d.area(pink, [(x + 1, y + 1), (x + 2, y + 1), (x + 2, y + 2), (x + 1, y + 2)])
d.settle("Border of leaves, hearts in the corners")

letters("ABCDEFGHI", 11, 10, (navy, wine))
letters("JKLMNOPQR", 11, 21, (green, violet))
letters("STUVWXYZ", 14, 32, (wine, navy))

# House, trees and fence
d.area(roof, [(34, 61), (42, 53), (50, 61)])
d.box(brick, 45, 53, 47, 56)
d.area(roof, [(34, 61), (42, 53), (50, 61), (50, 62), (34, 62)])
d.box(wall, 35, 62, 49, 74)
d.box(door, 40, 67, 44, 74)
d.area(door, [(40, 67), (41, 66), (43, 66), (44, 67)])
for x in (36, 45):
    d.box(ice, x, 64, x + 3, 68)
d.area(ice, [(41, 59), (42, 58), (43, 59), (43, 61), (41, 61)])
for cx, floss, light in ((21, green, leaf), (63, leaf, mint)):
    for k, (y, w) in enumerate(((52, 4), (56, 6), (60, 8))):
        d.area(floss, [(cx - w + 1, y + 6), (cx, y + 6 - w + 1), (cx + w - 1, y + 6)])
        d.area(light, [(cx - w + 1, y + 6), (cx, y + 6 - w + 1), (cx, y + 6)], only=[floss])
    d.box(bark, cx - 1, 66, cx + 1, 74)
for cx, floss in ((12, rose), (30, rose), (54, violet), (72, rose)):
    d.box(green, cx, 69, cx + 1, 74)
    d.area(leaf, [(cx + 1, 73), (cx + 3, 71), (cx + 3, 72), (cx + 1, 74)])
    d.area(leaf, [(cx, 73), (cx - 2, 71), (cx - 2, 72), (cx, 74)])
    d.area(floss, [(cx - 1, 65), (cx, 66), (cx + 0.5, 65), (cx + 1, 66), (cx + 2, 65), (cx + 2, 68), (cx + 1, 69), (cx, 69), (cx - 1, 68)])
d.settle("House, trees and tulips")
d.put("Grass in half stitches, leaning both ways",
      [(x, y, TBH if x < 42 else BTH, mint if y == 74 else leaf) for y in (74, 75) for x in range(8, 76) if d.free(x, y)])

for k, x in enumerate(range(12, 73, 6)):
    flower(x, 44, (rose, violet, blue)[k % 3], gold, (ROUND, OVAL_H, OVAL_V)[k % 3])
for k, x in enumerate(range(12, 73, 6)):
    flower(x, 79, (blue, rose, violet)[k % 3], straw, (ROUND, OVAL_UL, OVAL_UR)[k % 3])

# One band of every line
d.path(navy, [(8, 8), (76, 8), (76, 82), (8, 82)][:2], LINE)
d.path(navy, [(8, 8), (8, 82)], LINE)
d.path(navy, [(76, 8), (76, 82)], LINE)
d.path(navy, [(8, 82), (76, 82)], LINE)
d.path(rose, [(11, 19), (73, 19)], DASHED)
d.path(green, [(11, 30), (73, 30)], TRACKS)
d.path(blue, [(11, 41), (73, 41)], DOTTED)
d.path(violet, [(11, 47), (73, 47)], PLUS)
d.path(blue, [(46, 53), (46, 49)], SQUIGGLE)
d.path(bark, [(34, 61), (42, 53), (50, 61), (50, 62), (34, 62)], closed=True)
d.path(bark, [(35, 62), (35, 74), (49, 74), (49, 62)])
for x in (36, 45):
    d.path(navy, [(x, 64), (x + 3, 64), (x + 3, 68), (x, 68)], closed=True)
    d.path(navy, [(x + 1.5, 64), (x + 1.5, 68)])
    d.path(navy, [(x, 66), (x + 3, 66)])
d.path(navy, [(41, 59), (42, 58), (43, 59), (43, 61), (41, 61)], closed=True)
d.path(navy, [(40, 74), (40, 67), (41, 66), (43, 66), (44, 67), (44, 74)])
for k in range(10):
    for y in (3, 87):
        d.path(green, [(12 + 6 * k, y), (18 + 6 * k, y)])
for k in range(11):
    for x in (3, 81):
        d.path(green, [(x, 12 + 6 * k), (x, 18 + 6 * k)])
for x in (2, 76):
    for y in (2, 82):
        d.path(wine, [(x + a, y + b) for a, b in HEART], closed=True)
d.knot(gold, 43, 70.5)
for x, y in ((17.5, 61.5), (23, 63.5), (20, 57), (22.5, 59.5), (61, 63.5), (65.5, 62), (63, 57.5), (60.5, 60.5)):
    d.knot(wine if x < 42 else gold, x, y)
d.save()
