# SPDX-FileCopyrightText: 2026 Korvanta contributors
# SPDX-License-Identifier: MIT
"""Stitches, knots, backstitch lines and the ways to show them."""

from strokes import (
    ACCENT, CLOTH, FINE, TEXT, block, box, cloth, disc, ellipse_path, fill, ring, solid,
    stroke, thread,
)

LOW, MIDDLE, HIGH = 1.2, 5.5, 9.8
# Half of the upper thread and the gap beside it.
GAP = 1.4 + 0.75

CORNERS = {"ul": (LOW, LOW), "ur": (HIGH, LOW), "ll": (LOW, HIGH), "lr": (HIGH, HIGH)}
OPPOSITE = {"ul": "lr", "ur": "ll", "ll": "ur", "lr": "ul"}


def half(corner, tone=TEXT, **cuts):
    """The leg from a corner to the one across."""
    return thread(*CORNERS[corner], *CORNERS[OPPOSITE[corner]], tone, **cuts)


def quarter(corner, tone=TEXT, under=False):
    x, y = CORNERS[corner]
    return thread(x, y, MIDDLE, MIDDLE, tone, cut_end=GAP if under else 0.0)


def whole():
    return [quarter("ul", under=True), quarter("lr", under=True), half("ll")]


def three_quarter(corner):
    across = "ll" if corner in ("ul", "lr") else "ul"
    return [half(across), quarter(corner, ACCENT, under=True)]


def pointer(x, y):
    """The arrow of the mouse with its tip at x, y: where it stands decides the corner."""
    shape = [(0, 0), (0, 4.4), (1.15, 3.35), (2.0, 5.0), (2.8, 4.6), (2.0, 3.0), (3.5, 3.0)]
    path = "L".join(f"{x + 0.85 * dx} {y + 0.85 * dy}" for dx, dy in shape)
    return solid(f"M{path}Z", ACCENT, 0.5)


def coil(x, y):
    """Thread wound round the needle, seen from above."""
    start = x + 0.9
    path = f"M{start} {y}"
    for radius in (1.3, 2.6, 3.6):
        side = 1 if start < x else -1
        start += side * 2 * radius
        path += f"A{radius} {radius} 0 0 1 {start} {y}"
    return stroke(path + f"C{x - 3.7} {y - 2} {x - 4} {y - 3} {x - 4.4} {y - 4.4}", TEXT, 1.4)


def smyrna(x, y, reach, width):
    """Eight legs from one point, the stitch that most people add for themselves."""
    d = reach * 0.82
    return [
        stroke(f"M{x - d} {y - d}L{x + d} {y + d}M{x - d} {y + d}L{x + d} {y - d}", TEXT, width),
        stroke(f"M{x} {y - reach}V{y + reach}M{x - reach} {y}H{x + reach}", ACCENT, width),
    ]


def knot(rx, ry, turn):
    # Where lines of the cloth cross: the fine lines lie on whole pixels.
    middle = 31 / 6
    return [
        stroke(f"M{middle} -0.5V11M-0.5 {middle}H11", CLOTH, FINE),
        stroke(ellipse_path(middle, middle, rx, ry, turn)),
        fill(ellipse_path(middle, middle, rx - 1.6, max(ry - 1.6, 0.8), turn)),
    ]


def handle(x, y, tone=TEXT):
    return box(x - 1, y - 1, 2, 2, tone)


def cross(x, y, size, tone):
    return stroke(f"M{x} {y}L{x + size} {y + size}M{x + size} {y}L{x} {y + size}", tone, 1.4)


STITCHES = {
    "stitch-whole": [cloth(), *whole()],
    "stitch-tbh": [cloth(), half("ul")],
    "stitch-bth": [cloth(), half("ll")],
    "stitch-fknot": [cloth(), coil(5.5, 5.5)],
    "stitch-custom": [cloth(), *smyrna(5.5, 5.5, 4.2, 4 / 3)],
    # Faint is the leg whose corner is not settled yet.
    "stitch-s3q": [cloth(), half("ll"), quarter("ul", CLOTH, under=True), pointer(7.5, 6.5)],
    "stitch-sq": [cloth(), quarter("ul", CLOTH), pointer(7.4, 6.4)],
}
for place in CORNERS:
    STITCHES[f"stitch-{place}3q"] = [cloth(), *three_quarter(place)]
    STITCHES[f"stitch-{place}q"] = [cloth(), quarter(place)]

KNOTS = {
    "knot-normal": knot(3.7, 3.7, 0),
    "knot-horizontal": knot(5, 2.9, 0),
    "knot-vertical": knot(5, 2.9, 90),
    "knot-ul-diagonal": knot(5, 2.9, 45),
    "knot-ur-diagonal": knot(5, 2.9, -45),
}

WAVE = "M0 5C0.9 1.6 1.9 1.6 2.75 5C3.6 8.4 4.6 8.4 5.5 5C6.4 1.6 7.4 1.6 8.25 5C9.1 8.4 10.1 8.4 11 5"
LINES = {
    "line-straight": [stroke("M0 5H11")],
    "line-squiggle": [stroke(WAVE)],
    "line-dash": [stroke("M0 5H1.5M4.75 5H6.25M9.5 5H11")],
    "line-dots": [disc(x, 5, 0.8) for x in (0.3, 2.9, 5.5, 8.1, 10.7)],
    "line-tracks": [stroke("M0 5H11M1 3V7M4 3V7M7 3V7M10 3V7")],
    "line-plus": [stroke("M0 5H2M1 4V6M4.5 5H6.5M5.5 4V6M9 5H11M10 4V6")],
    "line-delete": [
        handle(1, 10), stroke("M2 9L10.5 0.5"), stroke("M7 7L11 11M11 7L7 11", ACCENT),
    ],
    "draw-lines": [handle(1, 10), handle(10, 1), stroke("M2 9L9 2", ACCENT)],
    "flex-backstitch": [
        handle(1, 10), stroke("M2 9L6.5 0.5M2.4 9.6L10.8 6.2", CLOTH), stroke("M2 9L10.5 1.5", ACCENT),
        disc(10.5, 1.2, 1.2, ACCENT),
    ],
}

QUADRANTS = ((0, 0), (6, 0), (0, 6), (6, 6))


def symbols(first, second, third, fourth):
    """Four squares of a chart; each symbol in the tone of its floss."""
    return [
        ring(2, 2, 2, first),
        stroke("M7 4L9 0.3L11 4Z", second),
        stroke("M0 7L4 11M4 7L0 11", third),
        stroke("M9 7L11 9L9 11L7 9Z", fourth),
    ]


def holed(x, y, tone, hole):
    return fill(f"M{x - 0.5} {y - 0.5}H{x + 4.5}V{y + 4.5}H{x - 0.5}Z{hole}", tone)


DISPLAYS = {
    "display-color-squares": [
        block(x - 0.5, y - 0.5, 5, 5, tone)
        for (x, y), tone in zip(QUADRANTS, (ACCENT, CLOTH, CLOTH, TEXT))
    ],
    "display-black-symbols": symbols(TEXT, TEXT, TEXT, TEXT),
    "display-color-symbols": symbols(ACCENT, CLOTH, TEXT, ACCENT),
    "display-blocks-symbols": [
        holed(0, 0, ACCENT, ellipse_path(2, 2, 1.2, 1.2, 0)),
        holed(6, 0, CLOTH, "M8 0.6L9.5 3.4H6.5Z"),
        holed(0, 6, CLOTH, "M2 6.6L3.4 8L2 9.4L0.6 8Z"),
        holed(6, 6, TEXT, "M7 7H9V9H7Z"),
    ],
    "display-color-stitches": [
        cross(x + 0.2, y + 0.2, 4.0, tone)
        for (x, y), tone in zip(QUADRANTS, (ACCENT, CLOTH, CLOTH, TEXT))
    ],
    # As it will look when worked: both strands of each leg are seen.
    "display-virtual-stitches": [
        cloth(),
        stroke("M0.2 2.2L3.1 5.1M2.2 0.2L5.1 3.1M5.9 7.9L8.8 10.8M7.9 5.9L10.8 8.8"),
        stroke("M0.2 8.8L8.8 0.2M2.2 10.8L10.8 2.2", ACCENT),
    ],
}

NEEDLE = [
    # The eye is drawn open so that the thread can be seen going through.
    stroke("M0 11L6.6 4.4M6.6 4.4C6.4 2.2 8.4 0 11 0C11 2.6 8.8 4.6 6.6 4.4Z"),
    stroke("M9 2C11.4 4.4 11.6 7.2 9.2 8C7.2 8.6 5.6 8.4 6 11", ACCENT),
]

ICONS = {**STITCHES, **KNOTS, **LINES, **DISPLAYS, "draw-stitches": NEEDLE}
