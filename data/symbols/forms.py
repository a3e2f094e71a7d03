# SPDX-FileCopyrightText: 2026 Korvanta contributors
# SPDX-License-Identifier: MIT
"""The building blocks that the symbols share, so that one hand is seen in all of them."""
import math

from outlines import ArcSteps, Box, Disc, Joined, Path, Poly, Shape, Stroke, Around

__all__ = ["ArcSteps", "Around", "Bar", "Below", "Box", "Cross", "Diamond", "Disc", "Joined",
           "Path", "Plus", "Poly", "Polygon", "Ring", "Shape", "Slash", "Square", "Star",
           "Stroke", "Diagonals", "Mirrored", "Pair", "Turned", "Wedge"]


def Square(half):
    return Box(-half, -half, half, half)


def Diamond(half):
    return Poly((0, half), (-half, 0), (0, -half), (half, 0))


def Polygon(corners, radius, start=90):
    return Star(corners, radius, radius * math.cos(math.pi / corners), start)


def Star(points, outer, inner, start=90):
    corners = []
    for i in range(2 * points):
        angle = math.radians(start + 180 * i / points)
        radius = inner if i % 2 else outer
        corners.append((radius * math.cos(angle), radius * math.sin(angle)))
    return Poly(*corners)


def Ring(outer, inner):
    return Disc(outer) - Disc(inner)


def Bar(width, half=60):
    """A level bar through the middle; without a length it reaches over the edge, to cut with."""
    return Box(-half, -width / 2, half, width / 2)


def Plus(width, half=60):
    return Bar(width, half) | Bar(width, half).Turn(90)


def Slash(width, half=60):
    """A rising bar, cut square at the corners of a square."""
    d = width / math.sqrt(2)
    return Poly((-half, -half), (-half + d, -half), (half, half - d), (half, half),
                (half - d, half), (-half, -half + d))


def Cross(width, half=60):
    return Slash(width, half) | Slash(width, half).FlipX()


def Below():
    """Everything below the middle."""
    return Box(-60, -60, 60, 0)


def Wedge():
    """The quarter of the plane about the upward direction."""
    return Poly((0, 0), (-60, 60), (60, 60))


def Turned(name, shape):
    """The shape in four directions; as drawn it points up."""
    ways = ("up", "left", "down", "right")
    return {f"{name}-{way}": shape.Turn(90 * i) for i, way in enumerate(ways)}


def Diagonals(name, shape):
    """The shape in four corners; as drawn it sits in the lower left one."""
    ways = ("sw", "se", "ne", "nw")
    return {f"{name}-{way}": shape.Turn(90 * i) for i, way in enumerate(ways)}


def Pair(name, shape):
    """The shape lying, as drawn, and standing."""
    return {f"{name}-flat": shape, f"{name}-tall": shape.Turn(90)}


def Mirrored(name, shape):
    return {name: shape, f"{name}-back": shape.FlipX()}
