# SPDX-FileCopyrightText: 2026 Korvanta contributors
# SPDX-License-Identifier: MIT
"""Frames and rings: half filled, crossed, or with something inside."""
from forms import *

FRAME = Square(38) - Square(26)
RING = Ring(41, 29)


def HalfFilled():
    return {
        **Turned("ring-half", Disc(41) - (Disc(28) - Below())),
        **Turned("frame-half", Square(38) - (Square(25) - Below())),
    }


def Crossed():
    return {
        "ring-cross": RING | Cross(13, 23),
        **Mirrored("ring-slash", RING | Slash(14, 23)),
        **Mirrored("frame-slash", FRAME | Slash(14, 30)),
        **Pair("ring-bar", RING | Bar(14, 32)),
        **Pair("frame-bar", FRAME | Bar(14, 32)),
    }


def Filled():
    return {
        "frame-square": (Square(38) - Square(26.5)) | Square(15),
        "ring-disc": RING | Disc(17),
    }


def Shapes():
    return {**HalfFilled(), **Crossed(), **Filled()}
