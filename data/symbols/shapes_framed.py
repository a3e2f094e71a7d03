# SPDX-FileCopyrightText: 2026 Korvanta contributors
# SPDX-License-Identifier: MIT
"""Frames and rings: half filled, crossed, or with something inside."""
from forms import *

FRAME = Square(38) - Square(26)
RING = Ring(41, 29)
CORNER = Poly((-60, 60), (-60, -60), (60, -60))


def HalfFilled():
    return {
        **Turned("ring-half", Disc(41) - (Disc(28) - Below())),
        **Turned("frame-half", Square(38) - (Square(25) - Below())),
        **Turned("diamond-half", Diamond(42.5) - (Diamond(27) - Below())),
        **Diagonals("frame-corner", Square(38) - (Square(25) - CORNER)),
        **Diagonals("ring-corner", Disc(41) - (Disc(28) - CORNER)),
        **Diagonals("ring-three", Disc(41) - (Disc(28) & Box(4, 4, 60, 60))),
        **Diagonals("frame-quarter", FRAME | Box(-30, -30, 0, 0)),
    }


def Crossed():
    return {
        "ring-plus": RING | Plus(13, 33), "ring-cross": RING | Cross(13, 23),
        "frame-plus": FRAME | Plus(13, 30), "frame-cross": FRAME | Cross(14, 30),
        "diamond-plus": Diamond(42.5) - (Diamond(27) - Plus(12)),
        **Mirrored("ring-slash", RING | Slash(14, 23)),
        **Mirrored("frame-slash", FRAME | Slash(14, 30)),
        **Pair("ring-bar", RING | Bar(14, 32)), **Pair("frame-bar", FRAME | Bar(14, 32)),
        **Turned("ring-tee", RING | Bar(13, 32) | Box(-6.5, -32, 6.5, 0)),
        **Turned("frame-tee", FRAME | Bar(13, 32) | Box(-6.5, -32, 6.5, 0)),
    }


def Filled():
    return {
        "frame-square": (Square(38) - Square(26.5)) | Square(15), "ring-disc": RING | Disc(17),
        "diamond-diamond": (Diamond(42.5) - Diamond(28)) | Diamond(12),
        "frame-diamond": FRAME | Diamond(16), "square-ring": (Square(38) - Disc(28)) | Disc(16),
        "ring-square": RING | Square(12),
        **Turned("open-triangle", TriangleOpen()),
    }


def TriangleOpen():
    return Stroke(14, (-30, -27), (30, -27), (0, 28), closed=True)


def Shapes():
    return {**HalfFilled(), **Crossed(), **Filled()}
