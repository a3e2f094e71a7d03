# SPDX-FileCopyrightText: 2026 Korvanta contributors
# SPDX-License-Identifier: MIT
"""Editing, the view, the tools of the pointer and help."""

import math

from papers import lens, plus, times
from stitches import smyrna
from strokes import ACCENT, CLOTH, FINE, TEXT, block, box, disc, fill, ring, solid, stroke

SELECTION = stroke(
    "M0 2V0H2M4.5 0H6.5M9 0H11V2M11 4.5V6.5M11 9V11H9M6.5 11H4.5M2 11H0V9M0 6.5V4.5"
)


def turn(degrees):
    """An arrow round the middle as far as the turn goes, and a flag that is turned."""
    radius, end = 5.0, math.radians(degrees - 90)
    x, y = 5.5 + radius * math.cos(end), 5.5 + radius * math.sin(end)
    # The head's arms lie to either side of the way back, which bends inwards.
    back = end - math.pi / 2
    arms = [(x + 2 * math.cos(back + a), y + 2 * math.sin(back + a)) for a in (-1.0, 0.55)]
    large = int(degrees > 180)
    return [
        ring(5.5, 5.5, radius, CLOTH, FINE),
        stroke(f"M5.5 {5.5 - radius}A{radius} {radius} 0 {large} 1 {x} {y}", ACCENT),
        stroke(f"M{arms[0][0]} {arms[0][1]}L{x} {y}L{arms[1][0]} {arms[1][1]}", ACCENT),
        stroke("M4.5 3.2V7.8"),
        solid("M4.5 3.3L7.4 4.7L4.5 6.1Z", TEXT, 0.6),
    ]


def flipped(path):
    """Exchanges x and y of a path of M, L, H, V and Z."""
    out, command = [], ""
    for token in path.replace("M", " M ").replace("L", " L ").replace("H", " H ").replace(
        "V", " V "
    ).replace("Z", " Z ").split():
        if token in "MLHVZ":
            command = {"H": "V", "V": "H"}.get(token, token)
            out.append(command)
            pair = []
        elif command in "HV":
            out.append(token)
        else:
            pair.append(token)
            if len(pair) == 2:
                out.extend(reversed(pair))
                pair = []
    return " ".join(out)


def faint(path):
    """What the mirror adds."""
    return stroke(path, CLOTH)


FLIP = (solid, "M0 9L3 1V9Z"), (stroke, "M10 9L7 1V9Z")
AXIS = "M5 0V10"
HALVES = (stroke, "M0 1L3 4M3 1L0 4M0 6L3 9M3 6L0 9"), (faint, "M7 1L10 4M10 1L7 4M7 6L10 9M10 6L7 9")
BROKEN = "M5 0V1M5 3V4M5 6V7M5 9V10"


def upright(pair, axis):
    return [make(path) for make, path in pair] + [stroke(axis, ACCENT)]


def lying(pair, axis):
    return [make(flipped(path)) for make, path in pair] + [stroke(flipped(axis), ACCENT)]


EDIT = {
    "edit-undo": [stroke("M3 0L0 3L3 6M0 3H7A4 4 0 0 1 7 11H3")],
    "edit-cut": [ring(2, 9, 2), ring(9, 9, 2), stroke("M3 7.3L8.5 0M8 7.3L2.5 0")],
    "edit-copy": [box(4, 3, 7, 8), stroke("M2 8H0V0H7V1")],
    "edit-paste": [
        stroke("M2 1H0V11H9V1H7"), box(2, 0, 5, 2), stroke("M2 5H7M2 8H5", ACCENT),
    ],
    "select-all": [SELECTION, block(2.5, 2.5, 6, 6, CLOTH)],
    "erase-selection": [SELECTION, times(5.5, 5.5, 2.2)],
    "flip-horizontal": upright(FLIP, AXIS),
    "flip-vertical": lying(FLIP, AXIS),
    "rotate-90": turn(90),
    "rotate-180": turn(180),
    "rotate-270": turn(270),
}

BUCKET = [stroke("M3 0L9 6L4.5 10.5L0 6L4.5 1.5")]


def drop(x, y):
    right = f"C{x + 1.4} {y + 2} {x + 1.1} {y + 3.4} {x} {y + 3.4}"
    left = f"C{x - 1.1} {y + 3.4} {x - 1.4} {y + 2} {x} {y}"
    return solid(f"M{x} {y}{right}{left}Z", ACCENT, 0.4)


TOOLS = {
    "draw-editbox": [
        stroke("M3 1H4.2M6.8 1H8M3 10H4.2M6.8 10H8M1 3V4.2M1 6.8V8M10 3V4.2M10 6.8V8"),
        *[block(x - 1.5, y - 1.5, 3, 3, ACCENT) for x in (1, 10) for y in (1, 10)],
    ],
    "draw-text": [
        stroke("M0 2V0H8V2M4 0V11M2 11H6"), stroke("M9 3H11M10 3V11M9 11H11", ACCENT),
    ],
    "paint": [fill("M0.4 6.4H8.4L5 10.6Z", CLOTH), *BUCKET, drop(10.2, 7)],
    "paint-once": [*BUCKET, stroke("M8.8 8.4L10 7.4V11M8.8 11H11.2", ACCENT)],
    "color-picker": [
        fill("M2.2 7.8H5.6L3.6 10L0.2 10.8L1 9Z", ACCENT),
        stroke("M6 3L1 8L0 11L3 10L8 5"), stroke("M5 2L9 6"), stroke("M8 3L9.6 1.4", TEXT, 2.6),
    ],
    "erase": [
        fill("M0.5 7L4 3.5L7.5 7L3.5 11Z", ACCENT), stroke("M4 11L0 7L7 0L11 4L4 11ZM3.5 3.5L7.5 7.5M4 11H11"),
    ],
    "mirror-vertical": upright(HALVES, BROKEN),
    "mirror-horizontal": lying(HALVES, BROKEN),
    "mirror-none": [
        *[make(path) for make, path in HALVES], stroke("M0 10L10 0", ACCENT),
    ],
    "shrink": [
        stroke("M0 0L3 3M3 0.5V3H0.5M11 0L8 3M8 0.5V3H10.5M0 11L3 8M3 10.5V8H0.5M11 11L8 8M8 10.5V8H10.5"),
        block(4.5, 4.5, 2, 2, ACCENT),
    ],
    "add-rows": [box(0, 0, 10, 3), stroke("M3 0V3M7 0V3"), plus(5, 8, 2)],
    "delete-rows": [box(0, 0, 10, 3), stroke("M3 0V3M7 0V3"), times(5, 8)],
    "custom-stitches": [
        stroke("M11 3V0H0V11H3", CLOTH, FINE), *smyrna(4, 4, 2.6, 1.0),
        stroke("M5.4 11.2L6.1 8.9L9.4 5.6L11 7.2L7.7 10.5Z"),
    ],
    "stitched-fonts": [
        block(x * 2, y * 2, 1.6, 1.6, ACCENT if (x, y) in ((1, 3), (2, 3), (3, 3)) else TEXT)
        for y, row in enumerate((".###.", "#...#", "#...#", "#####", "#...#", "#...#"))
        for x, dot in enumerate(row)
        if dot == "#"
    ],
}


def centered(vertical):
    """The design between two arrows that bring it to the middle line."""
    arrows = "M5 -0.5V2M3.5 0.7L5 2.2L6.5 0.7M5 10.5V8M3.5 9.3L5 7.8L6.5 9.3"
    line, design = "M0 5H10", "M3 4H7V6H3Z"
    shapes = ((arrows, TEXT), (line, ACCENT))
    change = (lambda path: path) if vertical else flipped
    return [stroke(change(path), tone) for path, tone in shapes] + [solid(change(design))]


TOOLS["center-vertical"] = centered(True)
TOOLS["center-horizontal"] = centered(False)
TOOLS["center-both"] = [
    stroke("M5 0V10M0 5H10", ACCENT), solid("M3.5 3.5H6.5V6.5H3.5Z"),
    stroke("M0 2V0H2M8 0H10V2M10 8V10H8M2 10H0V8"),
]

LENS = [ring(4, 4, 4), stroke("M7 7L11 11")]
VIEW = {
    "grid-lines": [stroke("M4 0V11M7 0V11M0 4H11M0 7H11", CLOTH), box(0, 0, 11, 11)],
    "zoom-tool": [*LENS, box(3, 3, 2, 2, ACCENT)],
    "zoom-in": [*LENS, plus(4, 4)],
    "zoom-out": [*LENS, stroke("M2 4H6", ACCENT)],
    "zoom-previous": [*LENS, stroke("M6 4H2.2M3.8 2.2L2 4L3.8 5.8", ACCENT)],
    "zoom-setting": [*LENS, stroke("M2 3L4 5L6 3", ACCENT)],
    "zoom": [*LENS, stroke("M5.5 2.5L2.5 5.5", ACCENT), disc(2.5, 2.5, 0.8, ACCENT), disc(5.5, 5.5, 0.8, ACCENT)],
    "rulers": [stroke("M0 0H11V3H3V11H0Z"), stroke("M5 0V1M7 0V1M9 0V1M0 5H1M0 7H1M0 9H1", ACCENT)],
    "toolbar": [
        box(0, 1, 11, 9), stroke("M0 5H11"), *[block(x, 2.5, 1, 1, ACCENT) for x in (1.5, 3.5, 5.5)],
    ],
    "status-bar": [box(0, 1, 11, 9), stroke("M0 6H11"), block(1.5, 7.5, 4, 1, ACCENT)],
    "more-right": [stroke("M1 1L5 5.5L1 10M6 1L10 5.5L6 10")],
    "more-down": [stroke("M1 1L5.5 5L10 1M1 6L5.5 10L10 6")],
    "refresh": [
        stroke("M10.5 5A5 5 0 0 0 1.2 3M1 0V3H4M0.5 6A5 5 0 0 0 9.8 8M10 11V8H7"),
    ],
    "options": [
        stroke("M0 2H5M9 2H11M0 9H1M5 9H11"), ring(7, 2, 2, ACCENT), ring(3, 9, 2, ACCENT),
    ],
    "view-pattern": [
        stroke("M-0.4 5.5C2.4 1 8.6 1 11.4 5.5C8.6 10 2.4 10 -0.4 5.5Z"), disc(5.5, 5.5, 1.9, ACCENT),
    ],
}

ROUND = ring(5, 5, 5.5)
QUESTION = "M3.1 3.7A1.9 1.9 0 1 1 6 5.2C5.3 5.6 5 5.9 5 6.5"
HELP = {
    "help": [ROUND, stroke(QUESTION, ACCENT), disc(5, 8.3, 0.75, ACCENT)],
    "help-search": [
        stroke("M1.1 3.4A3 3 0 1 1 5.7 5.8C4.6 6.5 4 7 4 8.2"), disc(4, 10.7, 0.8), *lens(8, 8, 1.8),
    ],
    "help-update": [
        stroke("M3 8H2.2A2.6 2.6 0 0 1 2.2 2.8A3.8 3.8 0 0 1 9 3.4A2.4 2.4 0 0 1 9.2 8H9"),
        stroke("M6 5V11M4 9L6 11L8 9", ACCENT),
    ],
    "help-tutorials": [
        stroke("M-0.4 3.5L5.5 1L11.4 3.5L5.5 6Z"), stroke("M2 5V8.5C3.5 10.2 7.5 10.2 9 8.5V5"),
        stroke("M11 4V9", ACCENT),
    ],
    "tips": [
        stroke("M3 7.5C1.6 6.6 1 5.2 1 4A4 4 0 0 1 9 4C9 5.2 8.4 6.6 7 7.5V8H3Z"), stroke("M3.5 10.5H6.5", ACCENT),
    ],
    "about": [ROUND, disc(5, 2.2, 0.8, ACCENT), stroke("M4 4.5H5V8M4 8H6", ACCENT)],
    "cancel": [ROUND, times(5, 5, 2, ACCENT)],
    "warning": [stroke("M5 0L10.5 10H-0.5Z"), stroke("M5 3.4V6", ACCENT), disc(5, 8, 0.75, ACCENT)],
}

ICONS = {**EDIT, **TOOLS, **VIEW, **HELP}
