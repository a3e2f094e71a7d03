# SPDX-FileCopyrightText: 2026 Korvanta contributors
# SPDX-License-Identifier: MIT
"""The hand that draws the icons: strokes, discs and threads on a lattice.

One step of the lattice is 1.5 px of the 24 px square, a stroke's width. A stroke on a lattice line
fills whole pixels at 16 and 48 px and is sharp on one side at 24 px, so outlines keep to whole
numbers from 0 to 11; 5.5 is the middle. The outermost strokes then end 3 px from the edge, and
round or pointed shapes may reach half a step further.
"""

import math
import re

TEXT = "#000000"
ACCENT = "#B23A48"
CLOTH = "#888888"

STEP = 1.5
ORIGIN = 3.75
FINE = 2 / 3  # a stroke of 1 px


def number(value):
    return f"{value:.3f}".rstrip("0").rstrip(".").replace("-0.", "-.").lstrip("0") or "0"


def at(value):
    return number(ORIGIN + STEP * value)


def by(value):
    return number(STEP * value)


def lattice_path(path):
    """Turns a path of absolute commands from lattice steps into pixels."""
    out = []
    for command, body in re.findall(r"([MLHVCQAZ])([^MLHVCQAZ]*)", path):
        values = [float(v) for v in body.split()]
        if command == "A":
            parts = []
            for i in range(0, len(values), 7):
                rx, ry, turn, large, sweep, x, y = values[i : i + 7]
                parts.append(f"{by(rx)} {by(ry)} {number(turn)} {int(large)} {int(sweep)} {at(x)} {at(y)}")
            out.append(command + " ".join(parts))
        else:
            out.append(command + " ".join(at(v) for v in values))
    return "".join(out)


def stroke(path, tone=TEXT, width=1.0):
    return (
        f'<path d="{lattice_path(path)}" fill="none" stroke="{tone}" stroke-width="{by(width)}" '
        f'stroke-linecap="round" stroke-linejoin="round"/>'
    )


def fill(path, tone=TEXT):
    return f'<path d="{lattice_path(path)}" fill="{tone}" fill-rule="evenodd"/>'


def solid(path, tone=TEXT, width=1.0):
    """A filled shape with rounded corners: its outline has a stroke of its own."""
    return (
        f'<path d="{lattice_path(path)}" fill="{tone}" stroke="{tone}" stroke-width="{by(width)}" '
        f'stroke-linecap="round" stroke-linejoin="round"/>'
    )


def ring(x, y, radius, tone=TEXT, width=1.0):
    return (
        f'<circle cx="{at(x)}" cy="{at(y)}" r="{by(radius)}" fill="none" stroke="{tone}" '
        f'stroke-width="{by(width)}"/>'
    )


def disc(x, y, radius, tone=TEXT):
    return f'<circle cx="{at(x)}" cy="{at(y)}" r="{by(radius)}" fill="{tone}"/>'


def ellipse_path(x, y, rx, ry, turn):
    c, s = math.cos(math.radians(turn)) * rx, math.sin(math.radians(turn)) * rx
    ends = (x - c, y - s, x + c, y + s)
    arc = f"A{rx} {ry} {turn} 1 1"
    return f"M{ends[0]} {ends[1]}{arc} {ends[2]} {ends[3]}{arc} {ends[0]} {ends[1]}Z"


def box(x, y, width, height, tone=TEXT, weight=1.0):
    return stroke(f"M{x} {y}H{x + width}V{y + height}H{x}Z", tone, weight)


def block(x, y, width, height, tone=TEXT):
    return fill(f"M{x} {y}H{x + width}V{y + height}H{x}Z", tone)


def cloth():
    """One square of cloth: a fine frame that is one pixel wide at 24 px and stays within one at 16."""
    return (
        f'<rect x="2.5" y="2.5" width="19" height="19" rx="1.5" fill="none" stroke="{CLOTH}" '
        f'stroke-width="1"/>'
    )


def thread(x1, y1, x2, y2, tone=TEXT, width=2.8, cut_start=0.0, cut_end=0.0):
    """A leg of a stitch. An end that is cut goes under another thread: it stops straight, that many
    steps early, and so leaves a gap beside the one above. The others are round."""
    length = math.hypot(x2 - x1, y2 - y1)
    ux, uy = (x2 - x1) / length, (y2 - y1) / length
    ax, ay, bx, by_ = x1 + ux * cut_start, y1 + uy * cut_start, x2 - ux * cut_end, y2 - uy * cut_end
    r = width / 2
    nx, ny = -uy * r, ux * r
    round_end = f"A{r} {r} 0 0 0 {bx - nx} {by_ - ny}"
    round_start = f"A{r} {r} 0 0 0 {ax + nx} {ay + ny}"
    end = f"L{bx - nx} {by_ - ny}" if cut_end else round_end
    start = "" if cut_start else round_start
    return fill(f"M{ax + nx} {ay + ny}L{bx + nx} {by_ + ny}{end}L{ax - nx} {ay - ny}{start}Z", tone)


def document(*shapes):
    return (
        '<svg xmlns="http://www.w3.org/2000/svg" width="24" height="24" viewBox="0 0 24 24">\n'
        + "".join(shape + "\n" for shape in shapes)
        + "</svg>\n"
    )
