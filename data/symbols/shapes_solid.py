# SPDX-FileCopyrightText: 2026 Korvanta contributors
# SPDX-License-Identifier: MIT
"""Solid shapes and what is left of them when one simple piece is cut away."""
from forms import *

TRIANGLE = Poly((-41, -37), (41, -37), (0, 37))
HEART = Path((0, -39), ((-42, -8), (-42, 15)), ((-42, 38), (-21, 38)), ((-6, 38), (0, 23)),
             ((6, 38), (21, 38)), ((42, 38), (42, 15)), ((42, -8), (0, -39)))
DROP = Path((0, 42), ((-30, 6), (-28, -10)), *ArcSteps(28, 180, 360, 0, -10), ((30, 6), (0, 42)))
SPADE = (Path((0, 40), ((-38, 12), (-38, -8)), ((-38, -26), (-20, -26)), ((-6, -26), (-5, -16)),
              (5, -16), ((6, -26), (20, -26)), ((38, -26), (38, -8)), ((38, 12), (0, 40)))
         | Poly((0, 0), (-17, -40), (17, -40)))
HOURGLASS = Poly((-38, 36), (38, 36), (4, 0), (38, -36), (-38, -36), (-4, 0))
LENS = Disc(50, 0, -26) & Disc(50, 0, 26)
DOME = Disc(38) | Box(-38, -38, 38, 0)


def Arrow():
    return Poly((0, 39), (-38, 8), (-11, 8), (-11, -39), (11, -39), (11, 8), (38, 8))


def Whole():
    """One closed piece each."""
    return {
        "square": Square(38.5), "disc": Disc(36), "diamond": Diamond(38), "heart": HEART,
        "spade": SPADE,
        "club": Joined(Disc(17, 0, 22), Disc(17, -20, -8), Disc(17, 20, -8),
                       Poly((0, 10), (-16, -39), (16, -39))),
        "hexagon": Polygon(6, 41, 0), "hexagon-tall": Polygon(6, 41),
        "pentagon": Polygon(5, 41), "pentagon-down": Polygon(5, 41, -90),
        "octagon": Polygon(8, 41, 22.5),
        "plus": Plus(17, 40), "cross": Cross(20, 38),
        "plus-bold": Plus(30, 38), "cross-bold": Cross(34, 38),
        "clover": Joined(*(Disc(20, 0, 20).Turn(90 * i) for i in range(4))),
        "clover-turned": Joined(*(Disc(19, 19, 19).Turn(90 * i) for i in range(4))) | Square(12),
        **Turned("triangle", TRIANGLE),
        **Diagonals("corner", Poly((-39, 39), (-39, -39), (39, -39))),
        **Turned("arrow", Arrow()),
        **Diagonals("arrow", Poly((-38, 38), (20, 38), (2, 20), (39, -17), (17, -39), (-20, -2),
                                  (-38, -20)).Turn(90)),
        **Turned("half-disc", Disc(40) & Below()),
        **Diagonals("quarter-disc", Path((-38, -38), (38, -38), *ArcSteps(76, 0, 90, -38, -38))),
        **Turned("drop", DROP), **Turned("house", Poly((0, 42), (-38, 6), (-38, -38), (38, -38),
                                                       (38, 6))),
        **Turned("dome", DOME), **Pair("lens", LENS), **Pair("oval", Disc(40).Scale(1, .6)),
        **Pair("hourglass", HOURGLASS.Turn(90)), **Pair("bar", Bar(30, 40)),
        **Mirrored("slash", Slash(30, 38)), **Mirrored("crescent", Disc(40) - Disc(34, 18, 0)),
        "moon-up": (Disc(40) - Disc(34, 18, 0)).Turn(90),
        "moon-down": (Disc(40) - Disc(34, 18, 0)).Turn(-90),
        **Pair("double-arrow", Poly((0, 42), (-30, 10), (-11, 10), (-11, -10), (-30, -10), (0, -42),
                                    (30, -10), (11, -10), (11, 10), (30, 10)).Turn(90)),
        **Pair("trapeze", Poly((-40, -28), (40, -28), (20, 28), (-20, 28))),
        **Mirrored("lean", Poly((-42, -30), (12, -30), (42, 30), (-12, 30))),
    }


def Cut():
    """A whole with a piece taken out of its rim or its middle."""
    return {
        "ring": Ring(39, 25), "frame": Square(38) - Square(22),
        "open-diamond": Diamond(43) - Diamond(25),
        "heart-open": HEART - HEART.Scale(.48).At(0, 1),
        "clover-open": Joined(*(Disc(20, 0, 20).Turn(90 * i) for i in range(4))) - Disc(12),
        "square-eye": Square(38) - Disc(22), "square-gem": Square(38) - Diamond(27),
        "disc-window": Disc(41) - Square(16), "diamond-eye": Diamond(42.5) - Disc(15),
        "square-cross": Square(38) - Cross(14, 25), "square-plus": Square(38) - Plus(14, 26),
        "disc-plus": Disc(41) - Plus(14, 27), "disc-cross": Disc(41) - Cross(15, 21),
        "triangle-eye": TRIANGLE - Disc(12, 0, -14),
        "hexagon-open": Polygon(6, 42, 0) - Polygon(6, 24, 0),
        "pentagon-open": Polygon(5, 43) - Polygon(5, 25),
        "star-open": Star(5, 45, 22.5) - Star(5, 19, 9.5),
        **Turned("bite", Disc(40) - Wedge()), **Turned("notch", Square(37) - Wedge()),
        **Diagonals("step-in", Square(37) - Box(0, 0, 50, 50)),
        **Mirrored("square-split", Square(38) - Slash(14)),
        **Mirrored("disc-split", Disc(41) - Slash(14)),
        **Pair("diamond-split", Diamond(42.5) - Bar(14)),
        **Pair("disc-halves", Disc(41) - Bar(15)),
        "square-cross-split": Square(38) - Cross(13),
        "diamond-plus-split": Diamond(42.5) - Plus(13),
        "disc-plus-split": Disc(41) - Plus(13), "disc-cross-split": Disc(41) - Cross(13),
        **Pair("eye", LENS - Disc(12)),
        **Turned("arch", (Disc(38) | Box(-38, -38, 38, 0)) - (Disc(15) | Box(-15, -50, 15, 0))),
        **Turned("horseshoe", Ring(41, 24) - Wedge()),
        **Turned("cup", Square(38) - Box(-13, -13, 13, 50)),
        **Turned("crown", Poly((-38, -30), (38, -30), (38, 32), (19, 2), (0, 32), (-19, 2),
                               (-38, 32))),
        **Turned("socket", DOME - Disc(14, 0, -38)),
        **Turned("tab", Square(38) - Box(-50, 4, -15, 50) - Box(15, 4, 50, 50)),
    }


def Shapes():
    return {**Whole(), **Cut()}
