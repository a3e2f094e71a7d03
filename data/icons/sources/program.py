# SPDX-FileCopyrightText: 2026 Korvanta contributors
# SPDX-License-Identifier: MIT
"""The program's own icon and those of its files: in colours of their own, for any ground."""

from strokes import document, thread

MADDER, SHADE, GLEAM = "#B23A48", "#8A2A37", "#D9717C"
LINEN, WEAVE, EDGE = "#F6F0E4", "#DDD1BC", "#B9A98C"


def cloth_tile():
    return (
        f'<rect x="1.5" y="1.5" width="21" height="21" rx="4" fill="{LINEN}" stroke="{EDGE}"/>'
        f'<path d="M8.5 2V22M15.5 2V22M2 8.5H22M2 15.5H22" stroke="{WEAVE}" stroke-width="1" fill="none"/>'
    )


def cross(low, high, width):
    """One stitch, the upper leg lit along its strands."""
    middle = (low + high) / 2
    lit = (
        thread(low + 0.3, high - 0.9, high - 0.9, low + 0.3, GLEAM, 0.45),
    )
    return [
        thread(low, low, high, high, SHADE, width),
        thread(low, high, high, low, MADDER, width),
        *lit,
        f"<!-- the legs cross at {middle:g} steps -->",
    ]


ICON = document(cloth_tile(), *cross(1.6, 9.4, 3.2))


def page(*shapes):
    return document(
        f'<path d="M4.5 1.5H14.5L19.5 6.5V22.5H4.5Z" fill="{LINEN}" stroke="{EDGE}" stroke-linejoin="round"/>',
        f'<path d="M14.5 1.5V6.5H19.5" fill="{WEAVE}" stroke="{EDGE}" stroke-linejoin="round"/>',
        *shapes,
    )


def swatch(x, y, colour, width=3, height=3):
    return f'<rect x="{x}" y="{y}" width="{width}" height="{height}" fill="{colour}"/>'


MIME = {
    "application-x-korvanta-pattern": page(*cross(3.1, 7.9, 2.2)),
    "application-x-korvanta-palette": page(
        swatch(7, 9, MADDER, 4, 4), swatch(13, 9, "#3F6F8F", 4, 4),
        swatch(7, 15, "#5E8C4A", 4, 4), swatch(13, 15, "#E0B040", 4, 4),
    ),
    "application-x-korvanta-catalogue": page(
        *[swatch(7, y, colour, 3, 2) for y, colour in ((9, MADDER), (13, "#3F6F8F"), (17, "#5E8C4A"))],
        *[swatch(11.5, y + 0.5, EDGE, 5.5, 1) for y in (9, 13, 17)],
    ),
}
