# SPDX-FileCopyrightText: 2026 Korvanta contributors
# SPDX-License-Identifier: MIT
"""Groups of small pieces, and little pictures."""
from forms import *


def Groups():
    spots = [(x, y) for x in (-1, 0, 1) for y in (-1, 0, 1)]
    return {
        **Mirrored("checker", Box(-38, 0, 0, 38) | Box(0, -38, 38, 0)),
        "four-squares": Joined(*(Square(16).At(22 * x, 22 * y) for x, y in spots if x * y)),
        "four-discs": Joined(*(Disc(16, 22 * x, 22 * y) for x, y in spots if x * y)),
        "four-diamonds": Around(Diamond(16.5).At(0, 25), 4),
        "grid": Joined(*(Square(9).At(29 * x, 29 * y) for x, y in spots)),
        "quincunx": Joined(*(Square(13).At(25 * x, 25 * y) for x, y in spots if (x + y) % 2 == 0)),
        "quincunx-turned": Joined(*(Square(13).At(25.5 * x, 25.5 * y) for x, y in spots
                                    if (x + y) % 2)),
        "three-discs": Joined(Disc(16, 0, 22), Disc(16, -23, -17), Disc(16, 23, -17)),
        "three-discs-down": Joined(Disc(16, 0, -22), Disc(16, -23, 17), Disc(16, 23, 17)),
        **Pair("two-discs", Disc(17, -23, 0) | Disc(17, 23, 0)),
        **Pair("two-diamonds", Diamond(19).At(-20, 0) | Diamond(19).At(20, 0)),
        **Mirrored("percent", Slash(14, 36) | Disc(14, -24, 24) | Disc(14, 24, -24)),
        **Pair("divide", Bar(16, 39) | Disc(13, 0, 27) | Disc(13, 0, -27)),
        "corner-tris": Around(Poly((-39, 39), (-39, 4), (-4, 39)), 4),
        "side-tris": Around(Poly((-26, 40), (26, 40), (0, 12)), 4),
        "side-tris-out": Around(Poly((-24, 14), (24, 14), (0, 42)), 4),
        **Pair("two-tris", Poly((-38, 6), (38, 6), (0, 40)) | Poly((-38, -6), (38, -6), (0, -40))),
        **Turned("stack", Poly((-34, 4), (34, 4), (0, 40)) | Poly((-34, -38), (34, -38), (0, -2))),
        **Pair("moons", Joined(*((Disc(38) - Disc(34, 20 * s, 0)).At(-4 * s, 0)
                                 for s in (1, -1))) - Box(-6, -60, 6, 60)),
        **Turned("disc-bar", Disc(18, 0, 20) | Box(-38, -38, 38, -14)),
        **Upright("exclaim", Poly((-15, 40), (15, 40), (9, -8), (-9, -8)) | Disc(13, 0, -27)),
    }


def Pictures():
    note = Disc(15, -16, -24) | Box(-15, -24, -1, 40).At(1, 0) | Poly((0, 40), (30, 24), (30, 4), (0, 20))
    return {
        "bolt": Poly((10, 42), (-30, -6), (-4, -6), (-14, -42), (30, 8), (4, 8)),
        "bolt-back": Poly((10, 42), (-30, -6), (-4, -6), (-14, -42), (30, 8), (4, 8)).FlipX(),
        "anchor": Joined(Box(-7, -36, 7, 40), Box(-22, 17, 22, 31),
                         Ring(38, 24) & Box(-60, -60, 60, -4)),
        **Upright("key", Joined(Ring(20, 8).At(0, 20), Box(-7, -40, 7, 3), Box(-7, -40, 22, -26))),
        **Mirrored("note", note),
        **Upright("flask", Joined(Box(-20, 28, 20, 40), Box(-11, 0, 11, 36),
                                 Poly((-11, 10), (-36, -39), (36, -39), (11, 10)))),
        **Upright("tree", Joined(Poly((0, 42), (-26, 8), (26, 8)), Poly((0, 22), (-37, -22), (37, -22)),
                                Box(-8, -41, 8, -20))),
        **Upright("umbrella", Joined(Disc(40) & Box(-60, 0, 60, 60), Box(-6.5, -24, 6.5, 5),
                                    Ring(18, 5).At(12, -22) & Box(-60, -60, 60, -22))),
        **Mirrored("fish", (Disc(40, -8, -24) & Disc(40, -8, 24)) | Poly((8, 0), (41, 26), (41, -26))),
        **Mirrored("mug", Box(-38, -34, 18, 34) | (Ring(22, 9).At(18, 0) & Box(10, -60, 60, 60))),
        "spool": Joined(Box(-36, 24, 36, 40), Box(-36, -40, 36, -24), Box(-20, -30, 20, 30)),
        "button": Disc(41) - Joined(*(Disc(7.5, 14 * x, 14 * y) for x in (-1, 1) for y in (-1, 1))),
        "gear": (Around(Box(-9, 0, 9, 42), 8) | Disc(31)) - Disc(14),
        "sun": Around(Poly((-8, 26), (8, 26), (0, 43)), 8) | Disc(21),
        "boat": Poly((-40, -8), (40, -8), (24, -36), (-24, -36)) | Poly((-6, 42), (-6, 2), (-36, 2))
                | Poly((6, 42), (6, 2), (34, 2)),
        "cat": Poly((-38, 38), (-38, -12), (-20, -36), (20, -36), (38, -12), (38, 38), (16, 16), (-16, 16)),
        "bell": Path((-40, -24), ((-24, -14), (-24, 8)), ((-24, 40), (0, 40)), ((24, 40), (24, 8)), ((24, -14), (40, -24)), (-40, -24)) | Disc(11, 0, -28),
        "infinity": (Ring(22, 8).At(-19, 0) | Ring(22, 8).At(19, 0)),
        "infinity-tall": (Ring(22, 8).At(-19, 0) | Ring(22, 8).At(19, 0)).Turn(90),
        "links": Joined(Square(22).At(-15, 15) - Square(9).At(-15, 15), Square(22).At(15, -15) - Square(9).At(15, -15)),
        **Mirrored("leaf", (Disc(60, 0, -28) & Disc(60, 0, 28)).Scale(.88).Turn(45)),
    }


def Shapes():
    return {**Groups(), **Pictures()}
