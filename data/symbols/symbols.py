# SPDX-FileCopyrightText: 2026 Korvanta contributors
# SPDX-License-Identifier: MIT
"""Which symbol stands at which code, and its outline in its place."""
from pathlib import Path

import shapes_framed
import shapes_groups
import shapes_solid
import shapes_strokes
from outlines import Outline

HERE = Path(__file__).resolve().parent
CODES = [*range(33, 127), *range(130, 141), *range(145, 157), *range(159, 242)]
PLACED_ELSEWHERE = {160: 0xE0A0, 173: 0xE0AD}  # A blank and a soft hyphen in the code page.


def Unicode(code):
    """The code point of a symbol code: Windows-1252 save for two codes."""
    return PLACED_ELSEWHERE.get(code) or ord(bytes([code]).decode("cp1252"))


def Order():
    """Symbol names by code, from order.txt."""
    lines = (HERE / "order.txt").read_text(encoding="ascii").split("\n")
    rows = [line.split() for line in lines if line and not line.startswith("#")]
    order = {int(code): name for code, name in rows}
    if sorted(order) != CODES or len(rows) != len(CODES) or len(set(order.values())) != len(CODES):
        raise SystemExit("order.txt must give each of the 200 codes one name of its own")
    return order


def AllShapes():
    shapes = {}
    for module in (shapes_solid, shapes_framed, shapes_strokes, shapes_groups):
        for name, shape in module.Shapes().items():
            if name in shapes:
                raise SystemExit(f"two shapes are named {name}")
            shapes[name] = shape
    return shapes


def CentredOutline(shape):
    """The outline with the middle of its box at 0,0."""
    contours = Outline(shape)
    points = [p for contour in contours for p in Flattened(contour)]
    dx, dy = (-(min(p[k] for p in points) + max(p[k] for p in points)) / 2 for k in (0, 1))

    def Move(p):
        return None if p is None else (p[0] + dx, p[1] + dy)

    return [[(Move(control), Move(end)) for control, end in contour] for contour in contours]


def Flattened(contour, steps=8):
    """The contour as a polygon."""
    points, here = [], contour[-1][1]
    for control, end in contour:
        if control is not None:
            for i in range(1, steps):
                t = i / steps
                points.append(tuple(here[k] * (1 - t) ** 2 + 2 * t * (1 - t) * control[k]
                                    + t * t * end[k] for k in (0, 1)))
        points.append(end)
        here = end
    return points
