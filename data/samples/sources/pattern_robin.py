# SPDX-FileCopyrightText: 2026 Korvanta contributors
# SPDX-License-Identifier: MIT
"""A robin on a snowy branch with holly: ../patterns/robin.ops."""

import random

from stitchkit import BTH, Design, LINE, OVAL_H, OVAL_UL, OVAL_UR, OVAL_V, PLUS, ROUND

d = Design("robin", 70, 74, cloth=(252, 251, 248), count=14)
d.facts = {
    "Title": "Winter Robin",
    "Author": "Korvanta contributors",
    "Copyright": "2026 Korvanta contributors, MIT licence",
    "Fabric": "14 count Aida, white",
    "Instructions": "Two strands for cross stitches, one for backstitch. The breast is shaded with blended flosses, one strand of "
    "each colour in the needle. The sky is worked in half stitches with one strand. Snowflakes are French knots; the large stars are backstitched with small crosses.",
}
rng = random.Random(11)
back, wing, flight = d.floss("3862"), d.floss("840"), d.floss("838")
crown, soft = d.floss("3864", blend="3862"), d.floss("3033")
red, breast, warm = d.floss("920"), d.floss("921", blend="922"), d.floss("922", blend="3827")
grey, belly, white = d.floss("3752"), d.floss("822"), d.floss("B5200")
black, beak, bark = d.floss("3371"), d.floss("413"), d.floss("839")
barklight, snowshade = d.floss("841"), d.floss("3753")
holly, hollylight, hollydark = d.floss("987"), d.floss("989"), d.floss("895")
sky, haze = d.floss("3325"), d.floss("3841")
berry, shine, wine = d.floss("321"), d.floss("352"), d.floss("816")

# The branch
d.blob(bark, [(-4, 58), (8, 56.4), (22, 57.4), (36, 56), (50, 57), (62, 54.6), (76, 52), (76, 56.4), (62, 59.6), (50, 61.6), (36, 60.4),
              (22, 61.6), (8, 61), (-4, 63)])
d.blob(barklight, [(-4, 58), (8, 56.8), (22, 57.8), (36, 56.4), (50, 57.4), (62, 55), (76, 52.4), (76, 53.6), (62, 56.6), (50, 58.8),
                   (36, 57.8), (22, 59), (8, 58.2), (-4, 59.6)], only=[bark])
d.blob(bark, [(52, 60), (57, 63), (61, 67), (64, 71), (61.5, 70.5), (57, 66), (50, 62)])
SNOW = ([(-4, 55), (4, 53.6), (12, 54), (19, 55.6), (22, 57.6), (17, 58.4), (13, 57.4), (9, 58.8), (4, 57.6), (-4, 59)],
        [(45, 57), (50, 54.4), (57, 53), (64, 50.8), (76, 48), (76, 53), (67, 55), (63, 54.4), (58, 57.2), (53, 56.6), (49, 58.6)])
for p in SNOW:
    d.blob(snowshade, [(x, y + 0.6) for x, y in p])
    d.blob(white, [(x, y - 0.5) for x, y in p], only=[snowshade, 0])

# The bird looks to the left
TAIL = [(46, 41), (52, 45), (59, 52), (65, 59), (62, 61.6), (58, 60), (51, 53), (45, 48)]
BODY = [(17, 20), (20, 13.4), (27, 9.6), (35, 11), (40.5, 17), (45, 25), (49, 34), (50, 43), (46, 51), (39, 56), (30, 57), (21, 53.4),
        (15.6, 46), (13.8, 37), (14.8, 28)]
d.blob(flight, TAIL)
d.blob(wing, [(47, 42), (53, 47), (60, 54), (63, 58.6), (59, 56.4), (52, 50), (46, 46)], only=[flight])
d.blob(back, BODY)
d.blob(belly, [(14, 40), (20, 44), (28, 46), (36, 46), (44, 44), (48, 48), (42, 56), (30, 58), (20, 54), (14, 47)], only=[back])
d.blob(white, [(22, 48), (30, 49.6), (38, 49), (37, 54), (30, 56.4), (24, 53.4)], only=[belly])
d.blob(soft, [(39, 44), (46, 43), (49, 46), (44, 53), (37, 56), (36, 52)], only=[belly, white])
d.blob(crown, [(19, 16), (24, 10.8), (32, 10.6), (38, 15), (40, 21), (34, 18), (27, 15.4), (21, 18)], only=[back])
d.blob(grey, [(28, 15), (34, 17.6), (37.4, 23), (38, 30), (36, 37), (34, 42), (31, 46), (27, 47), (30, 38), (31, 28)], only=[back, belly, white])
d.blob(breast, [(14, 21), (19, 16.4), (25, 15.4), (30, 18), (32.6, 24), (32.4, 32), (30.6, 39), (27, 45), (21, 46.6), (15.6, 42),
                (12, 35), (12, 27)], only=[back, belly, white, crown, grey])
d.blob(warm, [(15, 25), (20, 21), (24.4, 22), (25.4, 29), (23, 36), (18.4, 40), (14.6, 36)], only=[breast])
d.blob(red, [(29, 20), (33, 25), (33, 33), (30, 41), (26, 46), (22, 47), (26, 42), (29, 35), (30, 27)], only=[breast])
d.blob(red, [(17, 41), (21, 44.4), (25, 44), (22, 47.4), (17, 45)], only=[breast, warm])
WING = [(36, 25), (42, 25.6), (47, 32), (50, 40), (53.4, 47.4), (49, 47.6), (43, 46), (37.6, 42), (34.6, 35), (34.2, 29)]
d.blob(wing, WING)
for p in ([(38, 38), (45, 42), (53, 47.6), (48, 47.6), (42, 45.6)], [(40, 33.4), (46, 38), (51.4, 45), (46, 42.6), (41, 38)]):
    d.blob(flight, p, only=[wing])
d.blob(crown, [(36, 27), (41, 27), (44.6, 31.4), (43, 33.6), (38, 31.6), (36, 30)], only=[wing])
d.blob(soft, [(36, 33.4), (40, 35.4), (44.6, 39.4), (43.6, 40.6), (39, 38), (35.8, 35.6)], only=[wing, flight])
d.area(beak, [(17, 19), (17, 22), (13, 21.5), (11, 20.5)])
d.area(beak, [(17, 18), (18, 19), (18, 22), (17, 23), (11, 20)])
d.oval(black, 23.5, 18.5, 2.1, 2.1)

# Holly, berries
LEAVES = (([(46, 63), (49, 60.5), (52, 62), (55, 59.5), (58, 61.5), (61, 60), (65, 62.5), (61, 64.5), (60, 67), (56, 66), (53, 68), (50, 65.5)],
           ((47, 63.5), (65, 62.5))),
          ([(43, 63), (41, 60.6), (38, 62), (35, 60), (33, 63), (29, 62.5), (25, 66), (29, 66.5), (31, 69), (34.5, 67), (38, 69), (40, 66)],
           ((43, 63), (25, 66))),
          ([(43, 65), (40.5, 67.5), (42, 70), (44, 73.5), (46.5, 70.5), (49, 69.5), (47.5, 66.5)], ((44.5, 65), (44, 73.5))))
for k, (points, _) in enumerate(LEAVES):
    d.area((holly, hollylight, holly)[k], points)
d.area(hollydark, [(46, 63.5), (65, 62.5), (61, 64.5), (60, 67), (56, 66), (53, 68), (50, 65.5)], only=[holly])
d.area(holly, [(43, 63), (25, 66), (29, 66.5), (31, 69), (34.5, 67), (38, 69), (40, 66)], only=[hollylight])
for x, y in ((43, 62.5), (47, 63), (44.5, 66.5)):
    d.oval(wine, x, y, 2.25, 2.25)
    d.oval(berry, x - 0.4, y - 0.4, 1.8, 1.8)
d.settle("Branch, robin and holly")
d.blob(white, [(-5, 69), (4, 67.5), (14, 69.5), (24, 71.5), (36, 71), (48, 71.8), (58, 69.5), (66, 68), (75, 69), (75, 84), (-5, 84)], only=[0])
d.area(0, [(0, 80), (0, 68), (6, 74)])
d.area(0, [(70, 80), (70, 68), (64, 74)])
d.settle("Drifts at the foot")

d.put("The winter sky in half stitches, its corners cut",
      [(x, y, BTH, sky if y < 40 + 3 * ((x // 5) % 2) else haze) for y in range(d.height) for x in range(d.width)
       if d.free(x, y) and min(x, 69 - x) + min(y, 73 - y) > 5])

# Backstitch
d.curve(flight, BODY[8:] + BODY[:6], LINE, step=3)
d.curve(black, WING, LINE, closed=True, step=3)
d.curve(black, TAIL[1:7], LINE, step=3)
d.curve(black, [(50, 49), (56, 55), (61, 59.5)], step=2)
for p in ([(38, 38), (45, 42), (52, 47)], [(40, 33), (46, 38), (51, 44)]):
    d.curve(black, p, LINE, step=2)
d.path(black, [(11, 20), (17, 20.5)])
d.path(black, [(17, 18), (11, 20), (17, 23)])
for x in (27, 33):  # feet
    d.path(black, [(x, 56.5), (x - 0.5, 58), (x - 2.5, 59)])
    d.path(black, [(x - 0.5, 58), (x, 60)])
    d.path(black, [(x - 0.5, 58), (x + 2, 59)])
for k, (points, vein) in enumerate(LEAVES):
    d.path(hollydark, points, LINE, closed=True)
    d.path((hollylight, hollydark, hollylight)[k], vein)
for x, y, r in ((8, 12, 4), (58, 10, 5), (61, 34, 3.5), (6, 42, 3)):
    for a, b in (((-r, 0), (r, 0)), ((0, -r), (0, r))):
        d.path(white, [(x + a[0], y + a[1]), (x + b[0], y + b[1])], PLUS)
    q = round(r * 0.6)
    for a, b in (((-q, -q), (q, q)), ((-q, q), (q, -q))):
        d.path(white, [(x + a[0], y + a[1]), (x + b[0], y + b[1])])

# Knots: the eye's light, the berries' light, snowflakes, oval ones where the wind drives them
d.knot(white, 23, 18, ROUND)
for x, y in ((42.5, 62), (46.5, 62.5), (44, 66)):
    d.knot(shine, x, y, ROUND)
taken = []
solid = {(x, y) for x, y, kind, _ in d.stitches if kind != BTH}
for _ in range(4000):
    if len(taken) == 46:
        break
    x, y = rng.randrange(2, 138) / 2, rng.randrange(2, 130) / 2
    near = any(abs(x - a) + abs(y - b) < 6 for a, b in taken)
    inside = any((int(x) + i, int(y) + j) in solid for i in (-2, -1, 0, 1) for j in (-2, -1, 0, 1))
    star = any(abs(x - a) < r + 1.5 and abs(y - b) < r + 1.5 for a, b, r in ((8, 12, 4), (58, 10, 5), (61, 34, 3.5), (6, 42, 3)))
    if not (near or inside or star):
        taken.append((x, y))
        d.knot(white, x, y, (ROUND, ROUND, OVAL_UR, OVAL_V, OVAL_UL, OVAL_H)[len(taken) % 6])
d.save()
