# SPDX-FileCopyrightText: 2026 Korvanta contributors
# SPDX-License-Identifier: MIT
"""Solid shapes and what is left of them when one simple piece is cut away."""
from forms import *

TRIANGLE = Poly((-41, -37), (41, -37), (0, 37))
HEART = Path((0, -39), ((-42, -8), (-42, 15)), ((-42, 38), (-21, 38)), ((-6, 38), (0, 23)),
             ((6, 38), (21, 38)), ((42, 38), (42, 15)), ((42, -8), (0, -39)))
HOURGLASS = Poly((-38, 36), (38, 36), (4, 0), (38, -36), (-38, -36), (-4, 0))
LENS = Disc(50, 0, -26) & Disc(50, 0, 26)
MOON = Disc(40) - Disc(34, 18, 0)


def Arrow():
    return Poly((0, 39), (-38, 8), (-11, 8), (-11, -39), (11, -39), (11, 8), (38, 8))


def Whole():
    """One closed piece each."""
    return {
        "square": Square(38.5),
        "disc": Disc(36),
        "diamond": Diamond(38),
        "heart": HEART,
        "plus": Plus(17, 40),
        "cross": Cross(20, 38),
        "clover": Joined(*(Disc(20, 0, 20).Turn(90 * i) for i in range(4))),
        **Turned("triangle", TRIANGLE),
        **Diagonals("corner", Poly((-39, 39), (-39, -39), (39, -39))),
        **Turned("arrow", Arrow()),
        **Turned("half-disc", Disc(40) & Below()),
        **Diagonals("quarter-disc", Path((-38, -38), (38, -38), *ArcSteps(76, 0, 90, -38, -38))),
        **Turned("house", Poly((0, 42), (-38, 6), (-38, -38), (38, -38), (38, 6))),
        **Pair("lens", LENS),
        **Pair("hourglass", HOURGLASS.Turn(90)),
        **Mirrored("slash", Slash(30, 38)),
        **Turned("crescent", MOON.Turn(-90)),
        **Pair("trapeze", Poly((-40, -28), (40, -28), (20, 28), (-20, 28))),
        **Mirrored("lean", Poly((-42, -30), (12, -30), (42, 30), (-12, 30))),
    }


def Cut():
    """A whole with a piece taken out of its rim or its middle."""
    return {
        "ring": Ring(39, 25),
        "frame": Square(38) - Square(22),
        "open-diamond": Diamond(43) - Diamond(25),
        "heart-open": HEART - HEART.Scale(.54).At(0, 1),
        "square-plus": Square(38) - Plus(14, 26),
        "disc-cross": Disc(41) - Cross(15, 21),
        "hexagon-open": Polygon(6, 42, 0) - Polygon(6, 24, 0),
        "pentagon-open": Polygon(5, 43) - Polygon(5, 25),
        "star-open": Star(5, 45, 22.5) - Star(5, 19, 9.5),
        **Turned("bite", Disc(40) - Wedge()),
        **Turned("notch", Square(37) - Wedge()),
        **Mirrored("square-split", Square(38) - Slash(14)),
        **Pair("diamond-split", Diamond(42.5) - Bar(14)),
        "square-cross-split": Square(38) - Cross(13),
        "diamond-plus-split": Diamond(42.5) - Plus(13),
        **Pair("eye", LENS - Disc(12)),
        **Turned("arch", (Disc(38) | Box(-38, -38, 38, 0)) - (Disc(15) | Box(-15, -50, 15, 0))),
        **Turned("horseshoe", Ring(41, 24) - Wedge()),
        **Turned("crown", Poly((-38, -30), (38, -30), (38, 32), (19, 2), (0, 32), (-19, 2),
                               (-38, 32))),
    }


def Shapes():
    return {**Whole(), **Cut()}
