# SPDX-FileCopyrightText: 2026 Korvanta contributors
# SPDX-License-Identifier: MIT
"""A cottage on a cliff over the sea: ../patterns/cottage.ops."""

import math
import random

from stitchkit import BTH, DASHED, DOTTED, Design, OVAL_H, OVAL_UL, OVAL_UR, OVAL_V, ROUND, SQUIGGLE, TBH, TRACKS

d = Design("cottage", 90, 70, cloth=(252, 251, 248), count=16)
d.facts = {
    "Title": "Cottage by the Sea",
    "Author": "Korvanta contributors",
    "Copyright": "2026 Korvanta contributors, MIT licence",
    "Fabric": "16 count Aida, antique white",
    "Instructions": "The sky is worked in half stitches with one strand. Everything else is cross stitch with two strands; where "
    'a square is split between two colours, work the nearer shape as the "long" three-quarter stitch. Backstitch with one strand. '
    "The smoke is couched loosely along the wavy line, the sunbeams are dashed and dotted, and the flowers are French knots.",
}
rng = random.Random(7)
sky, high, cloud, sun = d.floss("3841"), d.floss("813"), d.floss("White"), d.floss("743")
glow = d.floss("744", blend="3823")
far, sea, deep, foam = d.floss("597", blend="3766"), d.floss("3765"), d.floss("517"), d.floss("747")
sand, rock, shade = d.floss("677"), d.floss("3045"), d.floss("869")
grass, mead, dark, moss = d.floss("989"), d.floss("3348"), d.floss("986"), d.floss("987", blend="989")
wall, wallshade, roof, tile = d.floss("712"), d.floss("644"), d.floss("356"), d.floss("355")
door, frame, pane, line = d.floss("312"), d.floss("B5200"), d.floss("3752"), d.floss("3799")
red, pink, gold, violet = d.floss("321"), d.floss("3833"), d.floss("742"), d.floss("340")
brick, path = d.floss("3778"), d.floss("842")

# Sun, clouds
d.oval(glow, 17, 13, 7.2, 7.2)
d.oval(sun, 17, 13, 5.0, 5.0)
d.settle("The sun in its haze")
for parts in (((30, 9, 4, 3), (35, 7.5, 5, 4.4), (40.5, 9, 4.5, 3.2)), ((4, 20, 4, 2), (9, 19, 4.2, 3), (14, 20.3, 4, 1.8)),
              ((76, 8, 4, 2.4), (80, 6.6, 4, 3.4), (85, 8.2, 4.4, 2.4))):
    for cx, cy, rx, ry in parts:
        d.oval(cloud, cx, cy, rx, ry)
    base = max(p[1] for p in parts) + 1
    d.box(0, 0, base, 90, base + 6)
d.settle("Clouds with level feet")

# Sea in bands, and the beach at its edge
d.box(far, 0, 34, 90, 40)
d.box(sea, 0, 39, 90, 52)
d.box(deep, 0, 48, 90, 62)
for y, floss, n in ((36, sea, 4), (42, far, 6), (45, deep, 7), (50, sea, 7), (54, sea, 6)):
    for _ in range(n):
        x, w = rng.randrange(0, 58), rng.randrange(3, 9)
        yy = y + rng.randrange(-1, 2)
        d.area(floss, [(x, yy + 1), (x + 1, yy), (x + w, yy), (x + w + 1, yy + 1)])
d.area(foam, [(0, 57), (6, 57), (9, 59), (16, 58), (22, 60), (30, 59), (38, 61), (46, 60), (46, 63), (0, 63)])
d.area(sand, [(0, 59), (5, 59), (9, 61), (16, 60), (22, 62), (30, 61), (38, 63), (48, 62), (50, 70), (0, 70)])

# The cliff and its meadow
d.blob(rock, [(31, 36), (36, 34), (44, 35), (92, 33), (96, 74), (48, 74), (45, 66), (43, 58), (39, 53), (37, 47), (33, 42)])
for pts in ([(34, 42), (38, 40), (40, 46), (44, 52), (46, 60), (50, 70), (48, 72), (44, 58), (39, 53)],
            [(46, 44), (49, 50), (50, 58), (55, 70), (52, 70), (47, 56)]):
    d.area(shade, pts, only=[rock])
d.blob(grass, [(29, 36), (36, 32.6), (46, 31.2), (60, 31), (96, 30), (96, 78), (60, 76), (58, 66), (56, 58), (52, 50), (46, 43),
               (38, 39.6), (31, 38.6)])
d.blob(mead, [(40, 34), (56, 32), (96, 31), (96, 38), (74, 40), (58, 37), (46, 37)], only=[grass])
d.blob(moss, [(58, 56), (70, 53), (96, 55), (96, 76), (62, 76), (60, 64)], only=[grass])
d.area(path, [(66, 48), (69, 48), (69, 50), (73, 54), (73, 57), (69, 61), (69, 64), (75, 70), (69, 70), (65, 66), (65, 60),
              (69, 56), (69, 55), (66, 52)])

# The cottage, cut along the squares' corners so that its slopes are clean
d.box(brick, 54, 16, 58, 24)
d.box(tile, 53, 15, 59, 17)
d.box(wall, 50, 30, 82, 48)
d.box(wallshade, 50, 30, 82, 32)
d.box(wallshade, 79, 32, 82, 48)
d.area(roof, [(47, 31), (58, 20), (74, 20), (85, 31)])
d.area(tile, [(49, 29), (51, 27), (81, 27), (83, 29)])
d.area(tile, [(53, 25), (55, 23), (77, 23), (79, 25)])
d.area(tile, [(46, 32), (48, 30), (84, 30), (86, 32)])
d.area(wall, [(64, 32), (64, 26), (68, 22), (72, 26), (72, 32)])
d.area(tile, [(62, 27), (68, 21), (74, 27), (74, 29), (68, 23), (62, 29)])
for x, y, w, h in ((53, 35, 8, 7), (73, 35, 6, 7), (66, 26, 4, 4)):
    d.box(frame, x, y, x + w, y + h)
    d.box(pane, x + 1, y + 1, x + w - 1, y + h - 1)
d.box(door, 65, 38, 70, 48)
d.area(door, [(65, 38), (66, 37), (69, 37), (70, 38)])
d.box(pane, 66, 39, 69, 42)
d.area(wallshade, [(64, 48), (71, 48), (71, 49), (64, 49)])
for cx, cy, rx, ry in ((51, 46.5, 4, 3), (57.5, 47.4, 3.6, 2.2), (61, 47.6, 2.4, 1.8), (76, 47.2, 4, 2.4), (82, 46, 4.4, 3.6)):
    d.oval(dark, cx, cy, rx, ry)
    d.oval(moss, cx - 0.8, cy - 0.8, rx * 0.62, ry * 0.58, only=[dark])

# A little boat
d.area(red, [(12, 44), (24, 44), (22, 46), (14, 46)])
d.area(frame, [(17, 33), (26, 42), (26, 43), (17, 43)])
d.area(foam, [(16, 43), (16, 36), (11, 41), (11, 43)])
d.box(foam, 12, 46, 23, 47, only=[sea, far, deep])
d.settle("Land, sea, boat and cottage")

d.put("Sky in half stitches, thinning out upwards",
      [(x, y, TBH if y < 7 else BTH, high if y < 7 else sky) for y in range(0, 34) for x in range(90)
       if d.free(x, y) and not (y % 2 and y > 24 and (x + y) % 3 == 0)])

# Backstitch
d.path(line, [(47, 31), (58, 20), (74, 20), (85, 31), (86, 32), (46, 32), (47, 31)])
d.path(line, [(50, 32), (50, 44)])
d.path(line, [(82, 32), (82, 43)])
d.path(line, [(62, 29), (68, 23), (74, 29), (74, 27), (68, 21), (62, 27), (62, 29)])
d.path(line, [(54, 24), (54, 17), (53, 17), (53, 15), (59, 15), (59, 17), (58, 17), (58, 20)])
for x, y, w, h in ((53, 35, 8, 7), (73, 35, 6, 7), (66, 26, 4, 4)):
    d.path(line, [(x, y), (x + w, y), (x + w, y + h), (x, y + h)], closed=True)
    d.path(frame, [(x + w / 2, y + 1), (x + w / 2, y + h - 1)])
    d.path(frame, [(x + 1, y + h // 2), (x + w - 1, y + h // 2)])
d.path(line, [(65, 48), (65, 38), (66, 37), (69, 37), (70, 38), (70, 48)])
d.path(line, [(66, 39), (69, 39), (69, 42), (66, 42)], closed=True)
d.path(line, [(12, 44), (24, 44), (22, 46), (14, 46)], closed=True)
d.path(line, [(16.5, 44), (16.5, 32)])
d.path(line, [(17, 33), (26, 42), (26, 43), (17, 43)], closed=True)
d.path(line, [(16, 43), (11, 43), (11, 41), (16, 36)])
for x in range(58, 90, 3):  # a picket fence before the meadow
    if not 64 < x < 75:
        d.path(frame, [(x, 60), (x, 55), (x + 0.5, 54.5), (x + 1, 55), (x + 1, 60)])
for a, b in ((58, 64), (76, 90)):
    d.path(frame, [(a, 57), (b, 57)], TRACKS)
d.path(line, [(83, 41), (90, 41)])
for x, floss in ((85, red), (87.5, violet)):
    d.path(floss, [(x, 41), (x, 44), (x + 1.5, 44), (x + 1.5, 41)])
d.curve(line, [(56, 15), (57, 12), (55, 9), (58, 6), (57, 2)], SQUIGGLE, step=1)
d.path(foam, [(1, 55), (12, 55)])
d.path(foam, [(18, 52), (33, 52)])
d.path(foam, [(3, 41), (9, 41)])
d.path(foam, [(28, 44), (35, 44)])
for x, y, s in ((27, 20, 2), (33, 24, 1.5), (22, 26, 1), (43, 18, 1)):
    d.path(line, [(x - 2 * s, y - s), (x - s, y - s - 0.5), (x, y), (x + s, y - s - 0.5), (x + 2 * s, y - s)])

for k in range(12):  # sunbeams
    a = math.pi * (k + 0.5) / 6
    far_end = (10.5, 12.5)[k % 2]
    d.path(sun, [(17 + r * math.cos(a), 13 + r * math.sin(a)) for r in (8, far_end)], (DOTTED, DASHED)[k % 2])

# Knots: round ones are flowers, oval ones lie like grass seed and pebbles
for cx, cy, n, colours, spread in ((51, 45.5, 9, (red, pink), 3), (58, 47, 7, (gold, frame), 2.4), (76, 46.8, 7, (violet, pink), 3),
                                   (82, 45, 10, (red, gold), 3.4)):
    for _ in range(n):
        d.knot(rng.choice(colours), cx + rng.uniform(-spread, spread), cy + rng.uniform(-1.8, 1.4), ROUND)
for _ in range(16):
    x, y = rng.uniform(60, 88), rng.uniform(61, 69)
    if not 63.5 < x < 76:
        d.knot(rng.choice((pink, gold, violet, frame)), x, y, ROUND)
for x, y in ((8, 63), (15, 66), (24, 64), (33, 67), (40, 65)):
    d.knot(rock, x, y, OVAL_H)
for k, (x, y) in enumerate(((42, 33), (45, 32.5), (47.5, 33.5), (86, 34), (88, 33.5), (84, 36))):
    d.knot(dark, x, y, (OVAL_UL, OVAL_V, OVAL_UR)[k % 3])
d.knot(gold, 69, 43.5, ROUND)
d.save()
