# SPDX-FileCopyrightText: 2026 Korvanta contributors
# SPDX-License-Identifier: MIT
"""Groups of small pieces, and little pictures."""
from forms import *


def Groups():
    spots = [(x, y) for x in (-1, 0, 1) for y in (-1, 0, 1)]
    diagonal = [(x, y) for x, y in spots if (x + y) % 2 == 0]
    straight = [(x, y) for x, y in spots if (x + y) % 2]
    moons = [(Disc(38) - Disc(34, 20 * s, 0)).At(-4 * s, 0) for s in (1, -1)]
    return {
        **Mirrored("checker", Box(-38, 0, 0, 38) | Box(0, -38, 38, 0)),
        "four-discs": Joined(*(Disc(16, 22 * x, 22 * y) for x, y in spots if x * y)),
        "four-diamonds": Around(Diamond(16.5).At(0, 25), 4),
        "grid": Joined(*(Square(9).At(29 * x, 29 * y) for x, y in spots)),
        "quincunx": Joined(*(Square(13).At(25 * x, 25 * y) for x, y in diagonal)),
        "quincunx-turned": Joined(*(Square(13).At(25.5 * x, 25.5 * y) for x, y in straight)),
        "three-discs": Joined(Disc(16, 0, 22), Disc(16, -23, -17), Disc(16, 23, -17)),
        "three-discs-down": Joined(Disc(16, 0, -22), Disc(16, -23, 17), Disc(16, 23, 17)),
        **Pair("two-discs", Disc(17, -23, 0) | Disc(17, 23, 0)),
        **Mirrored("percent", Slash(14, 36) | Disc(14, -24, 24) | Disc(14, 24, -24)),
        **Pair("divide", Bar(16, 39) | Disc(13, 0, 27) | Disc(13, 0, -27)),
        "corner-tris": Around(Poly((-39, 39), (-39, 4), (-4, 39)), 4),
        **Turned("stack", Poly((-34, 4), (34, 4), (0, 40)) | Poly((-34, -38), (34, -38), (0, -2))),
        "moons": Joined(*moons) - Box(-6, -60, 6, 60),
        **Turned("disc-bar", Disc(18, 0, 20) | Box(-38, -38, 38, -14)),
    }


def Pictures():
    sail = Poly((7, 42), (7, 3), (35, 3))
    return {
        "bolt": Poly((10, 42), (-30, -6), (-4, -6), (-14, -42), (30, 8), (4, 8)),
        "anchor": Joined(Box(-7, -36, 7, 40), Box(-22, 17, 22, 31),
                         Ring(38, 24) & Box(-60, -60, 60, -4)),
        "key": Joined(Ring(20, 8).At(0, 20), Box(-7, -40, 7, 3), Box(-7, -40, 22, -26)),
        **Mirrored("note", Joined(Disc(15, -16, -24), Box(-14, -24, 0, 40),
                                  Poly((0, 40), (30, 24), (30, 4), (0, 20)))),
        "flask": Joined(Box(-20, 28, 20, 40), Box(-11, 0, 11, 36),
                        Poly((-11, 10), (-36, -39), (36, -39), (11, 10))),
        "umbrella": Joined(Disc(40) & Box(-60, 0, 60, 60), Box(-6.5, -24, 6.5, 5),
                           Ring(18, 5).At(12, -22) & Box(-60, -60, 60, -22)),
        "spool": Joined(Box(-36, 24, 36, 40), Box(-36, -40, 36, -24), Box(-20, -30, 20, 30)),
        "button": Disc(41) - Joined(*(Disc(7.5, 14 * x, 14 * y) for x in (-1, 1) for y in (-1, 1))),
        "gear": (Around(Box(-9, 0, 9, 42), 8) | Disc(31)) - Disc(14),
        "boat": Joined(Poly((-40, -8), (40, -8), (24, -36), (-24, -36)), sail, sail.FlipX()),
        "bell": Joined(Disc(11, 0, -28),
                       Path((-40, -24), ((-24, -14), (-24, 8)), ((-24, 40), (0, 40)),
                            ((24, 40), (24, 8)), ((24, -14), (40, -24)))),
        "links": Joined(*((Square(22) - Square(9)).At(-15 * s, 15 * s) for s in (1, -1))),
        **Mirrored("leaf", (Disc(60, 0, -28) & Disc(60, 0, 28)).Scale(.88).Turn(45)),
    }


def Shapes():
    return {**Groups(), **Pictures()}
