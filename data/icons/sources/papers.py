# SPDX-FileCopyrightText: 2026 Korvanta contributors
# SPDX-License-Identifier: MIT
"""Files, printing, palettes and libraries."""

from strokes import ACCENT, CLOTH, FINE, TEXT, block, box, disc, ring, stroke

PAGE = stroke("M1 0H6L10 4V11H1Z")
FOLD = stroke("M6 0V4H10")
# The page with room at the lower right for what happens to it.
OPEN_PAGE = [stroke("M4 11H0V0H5L9 4"), stroke("M5 0V4H9")]
FLOPPY = [stroke("M0 0H8L11 3V11H0Z"), stroke("M3 0V3H7V0")]


def plus(x, y, reach=2, tone=ACCENT):
    return stroke(f"M{x} {y - reach}V{y + reach}M{x - reach} {y}H{x + reach}", tone)


def times(x, y, reach=2, tone=ACCENT):
    return stroke(f"M{x - reach} {y - reach}L{x + reach} {y + reach}M{x + reach} {y - reach}L{x - reach} {y + reach}", tone)


def down(x, top, bottom, tone=ACCENT, head=2):
    return stroke(f"M{x} {top}V{bottom}M{x - head} {bottom - head}L{x} {bottom}L{x + head} {bottom - head}", tone)


def right(left, end, y, tone=ACCENT, head=2):
    return stroke(f"M{left} {y}H{end}M{end - head} {y - head}L{end} {y}L{end - head} {y + head}", tone)


def pencil(tone=ACCENT):
    return stroke("M5.4 11.2L6.1 8.9L9.4 5.6L11 7.2L7.7 10.5Z", tone)


def lens(x, y, radius, tone=ACCENT):
    out = radius * 0.72
    return [ring(x, y, radius, tone), stroke(f"M{x + out} {y + out}L11 11", tone)]


FILES = {
    "file-new": [*OPEN_PAGE, plus(8, 9)],
    "file-open": [stroke("M0 10V1H4L5 3H9V5"), stroke("M0 10L2 5H11.4L9.4 10Z")],
    "file-save": [*FLOPPY, stroke("M2 11V6H9V11", ACCENT)],
    "file-save-as": [stroke("M4 11H0V0H8L10 2V3.5"), stroke("M3 0V3H7V0"), pencil()],
    "file-browse": [stroke("M4 10H0V1H4L5 3H10V4"), *lens(7.6, 7.6, 2.2)],
    "file-print": [
        stroke("M3 3V0H8V3"), stroke("M3 9H0V3H11V9H8"), box(3, 7, 5, 4), disc(9, 5, 0.75, ACCENT),
    ],
    "print-preview": [*OPEN_PAGE, *lens(7, 7.7, 2.2)],
    "page-setup": [
        box(1, 0, 9, 11), stroke("M3 4V2H5M6 2H8V4M8 7V9H6M5 9H3V7", ACCENT),
    ],
    "color-key": [
        box(0, 0, 11, 11),
        block(1.5, 1.5, 2, 2, ACCENT), block(1.5, 4.5, 2, 2), block(1.5, 7.5, 2, 2, CLOTH),
        stroke("M5 2.5H9M5 5.5H9M5 8.5H9", TEXT, FINE),
    ],
    "import": [
        stroke("M5 1H0V11H10V6"), stroke("M0 9L3 6L5 8L7 7L10 10"), stroke("M11 0L6.5 4.5M6.5 1V4.5H10", ACCENT),
    ],
    "export": [
        stroke("M5 1H0V11H10V6"), stroke("M0 9L3 6L5 8L7 7L10 10"), stroke("M6.5 4.5L11 0M7.5 0H11V3.5", ACCENT),
    ],
    "exit": [stroke("M6 0H0V10H6"), right(4, 11, 5, head=3)],
    "copy-to": [
        stroke("M4 3V0H8L11 3V11H4V9"), right(0, 7, 6),
    ],
    "paste-from": [
        stroke("M7 9V11H0V0H4L7 3"), right(3, 11, 6),
    ],
    "pattern-info": [PAGE, FOLD, disc(5, 4.9, 0.8, ACCENT), stroke("M5 7V9", ACCENT)],
}

BOOKS = [box(0, 0, 2, 11), stroke("M2 2H5V11H2"), stroke("M2 9H5", TEXT)]
LIBRARY = {
    "insert-library": [*BOOKS, right(7, 11, 6)],
    "library-add": [*BOOKS, plus(9, 9)],
    "library-add-box": [
        *BOOKS, plus(9, 3), stroke("M7 8V7H8M10 7H11V8M11 10V11H10M8 11H7V10", ACCENT),
    ],
    "library-maint": [*BOOKS, stroke("M6.8 11.2L7.3 9L10 4.4L11.5 5.3L8.8 9.9Z", ACCENT)],
    "library-install": [*BOOKS, down(9, 2, 8), stroke("M7 11H11", ACCENT)],
    "install-library": [
        stroke("M5 11H2A2 2 0 0 1 0 9V2A2 2 0 0 1 2 0H9V2M0 9A2 2 0 0 1 2 7H5"), down(8, 4, 11, head=2),
    ],
    "install-font": [stroke("M0 2V0H8V2M4 0V11M2 11H5"), down(9, 5, 11)],
}



def strip(y):
    """Three flosses of a palette."""
    return [
        block(0, y, 3, 3), block(3, y, 4, 3, CLOTH), box(0, y, 10, 3), stroke(f"M3 {y}V{y + 3}M7 {y}V{y + 3}"),
    ]


PALETTE = {
    "palette": [
        stroke(
            "M5.5 0A5.5 5.5 0 1 0 5.5 11C7.3 11 7.4 9.7 6.9 8.8C6.3 7.7 7 6.9 8.1 6.9H9.2"
            "C10.4 6.9 11 6.2 11 5.2C10.8 2.3 8.5 0 5.5 0Z"
        ),
        disc(2.6, 6, 0.9), disc(4, 2.9, 0.9), disc(7.2, 2.9, 0.9, ACCENT),
    ],
    "save-palette": [*strip(0), down(5, 5, 11, head=3)],
    "load-palette": [*strip(8), down(5, 0, 6, head=3)],
    "default-palette": [*strip(0), stroke("M1 8L4 11L9 6", ACCENT)],
    "clear-palette": [
        box(0, 0, 4, 4), block(6.5, -0.5, 5, 5), box(0, 7, 4, 4), times(9, 9),
    ],
    "palette-left": [stroke("M7 0L2 5L7 10")],
    "palette-right": [stroke("M3 0L8 5L3 10")],
    "floss-usage": [
        stroke("M1 0H9M1 11H9M2 0V11M8 0V11"), stroke("M2 3.2L8 2.2M2 5.2L8 4.2M2 7.2L8 6.2M2 9.2L8 8.2L11 11", ACCENT),
    ],
}

def lines(*rows):
    """Lines of text by left and right end."""
    return stroke("".join(f"M{left} {y}H{end}" for y, (left, end) in zip((0.5, 4, 7.5, 11), rows)))


TEXT_LOOKS = {
    "text-bold": [stroke("M2 0H5.5A2.7 2.7 0 0 1 5.5 5.2H2ZM2 5.2H6.2A2.9 2.9 0 0 1 6.2 11H2Z", TEXT, 1.5)],
    "text-italic": [stroke("M4 0H9M2 11H7M6.5 0L4.5 11")],
    "text-underline": [stroke("M2 0V4A3.5 3.5 0 0 0 9 4V0"), stroke("M1 11H10", ACCENT)],
    "text-color": [stroke("M1.5 7.5L5.5 -0.5L9.5 7.5M3 5H8"), block(0, 9.5, 11, 2, ACCENT)],
    "text-bullets": [disc(1, 1.5, 1.1, ACCENT), disc(1, 8.5, 1.1, ACCENT), stroke("M4 1.5H11M4 5H8M4 8.5H11")],
    "align-left": [lines((0, 11), (0, 6), (0, 11), (0, 4))],
    "align-center": [lines((0, 11), (3, 8), (0, 11), (4, 7))],
    "align-right": [lines((0, 11), (5, 11), (0, 11), (7, 11))],
}

ICONS = {**FILES, **LIBRARY, **PALETTE, **TEXT_LOOKS}
