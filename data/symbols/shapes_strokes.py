# SPDX-FileCopyrightText: 2026 Korvanta contributors
# SPDX-License-Identifier: MIT
"""Shapes made of bars: angles, forks, zigzags, stars of strokes."""
from forms import *


def Bold():
    zed = Poly((-38, 38), (38, 38), (38, 16), (-2, -14), (38, -14), (38, -38), (-38, -38),
               (-38, -16), (2, 14), (-38, 14))
    step = Box(-38, 0, 13, 38) | Box(-13, -38, 38, 0)
    return {
        **Pair("bars", Box(-38, 12, 38, 38) | Box(-38, -38, 38, -12)),
        **Pair("bars3", Box(-38, 22, 38, 38) | Box(-38, -8, 38, 8) | Box(-38, -38, 38, -22)),
        **Turned("chevron", Poly((-39, -8), (0, 33), (39, -8), (39, -35), (0, 6), (-39, -35))),
        **Turned("ell", Box(-38, -38, -19, 38) | Box(-38, -38, 38, -19)),
        **Mirrored("zed", zed),
        **Mirrored("en", zed.FlipX().Turn(90)),
        **Mirrored("step-tall", step.Turn(90)),
        **Turned("mushroom", (Disc(38) & Box(-60, 0, 60, 60)) | Box(-13, -38, 13, 5)),
        **Turned("caret-bar", Poly((-38, -2), (0, 38), (38, -2)) | Box(-38, -38, 38, -14)),
    }


def Light():
    cup = Square(38) - Box(-24, -24, 24, 50)
    bracket = Box(-38, -38, -24, 38) | Box(-38, 24, -10, 38) | Box(-38, -38, -10, -24)
    wave = Stroke(13, (-38, -10), (-19, 10), (0, -10), (19, 10), (38, -10))
    chevron = Poly((-38, -4), (0, 22), (38, -4), (38, -22), (0, 4), (-38, -22))
    return {
        **Turned("nail", Box(-38, 24, 38, 38) | Box(-7, -38, 7, 38)),
        **Turned("staple", cup),
        **Turned("fork", cup | Box(-7, -38, 7, 38)),
        **Pair("ladder", Box(-38, -38, -24, 38) | Box(24, -38, 38, 38) | Bar(14, 38)),
        **Turned("flag", Box(-36, -40, -20, 40) | Box(-36, 24, 36, 40) | Box(-36, -8, 24, 8)),
        **Pair("brackets", bracket | bracket.FlipX()),
        **Turned("chevrons", chevron.At(0, 17) | chevron.At(0, -17)),
        **Turned("wave", Stroke(15, (-36, -18), (-18, 14), (0, -14), (18, 14), (36, -18))),
        **Mirrored("zigzag", Stroke(17, (-26, 33), (20, 11), (-20, -11), (26, -33))),
        **Pair("waves", wave.At(0, 17) | wave.At(0, -17)),
        **Turned("wye", Around(Box(-9, 0, 9, 41), 3, 60)),
        **Pair("tracks", Bar(14, 40) | Box(-30, -30, -16, 30) | Box(16, -30, 30, 30)),
        **Turned("pi", Box(-40, 22, 40, 37) | Box(-28, -37, -12, 30) | Box(12, -37, 28, 30)),
    }


def Stars():
    return {
        "star": Star(5, 44, 17),
        "star4-turned": Star(4, 50, 18, 45),
        "star3": Star(3, 45, 13),
        "star3-down": Star(3, 45, 13, -90),
        "asterisk": Around(Box(-7, 0, 7, 41), 6),
        "plus-open": Plus(44, 40) - Plus(16, 26),
        **Mirrored("pinwheel", Around(Poly((0, 0), (0, 40), (-40, 40)), 4)),
    }


def Shapes():
    return {**Bold(), **Light(), **Stars()}
