#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Korvanta contributors
# SPDX-License-Identifier: MIT
"""Paints docs/symbols.png: every symbol with its code, as the font has it."""
from PIL import Image, ImageDraw, ImageFont

from symbols import HERE, Order, Unicode

OUT = HERE.parent.parent / "docs" / "symbols.png"
LABELS = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf"
COLUMNS, CELL, LABEL, EDGE, GAP = 20, 56, 18, 30, 10
STEP_X, STEP_Y = CELL + GAP, CELL + LABEL + GAP
BANDS = (  # Symbols, what is said of them, ink, ground.
    (40, "The first 40 symbols are told apart at 8 pixels", "#202020", "#ffffff"),
    (100, "The first 100 at 10 pixels", "#1f4e79", "#ffffff"),
    (200, "All 200 at 14 pixels", "#ffffff", "#5a3a5e"),
)


def Paint():
    codes = list(Order())
    rows = sum(-(-(end - start) // COLUMNS) for start, end in Spans())
    height = 2 * EDGE - GAP + rows * STEP_Y + len(BANDS) * (LABEL + 20)
    picture = Image.new("RGB", (2 * EDGE + COLUMNS * STEP_X - GAP, height), "#f4f1ea")
    draw = ImageDraw.Draw(picture)
    symbols = ImageFont.truetype(str(HERE / "KorvantaSymbols.ttf"), CELL - 8)
    small, title = (ImageFont.truetype(LABELS, size) for size in (11, 15))
    y = EDGE
    for (start, end), (_, words, ink, ground) in zip(Spans(), BANDS):
        draw.text((EDGE, y), words, fill="#404040", font=title)
        y += LABEL + 10
        for i in range(start, end):
            x = EDGE + (i - start) % COLUMNS * STEP_X
            top = y + (i - start) // COLUMNS * STEP_Y
            draw.rectangle((x, top, x + CELL - 1, top + CELL - 1), fill=ground, outline="#b8b0a0")
            draw.text((x + 4, top + CELL - 4), chr(Unicode(codes[i])), fill=ink, font=symbols,
                      anchor="ls")
            draw.text((x + CELL / 2, top + CELL + 3), str(codes[i]), fill="#707070", font=small,
                      anchor="ma")
        y += -(-(end - start) // COLUMNS) * STEP_Y + 10
    picture.save(OUT, optimize=True)


def Spans():
    ends = [band[0] for band in BANDS]
    return list(zip([0, *ends], ends))


if __name__ == "__main__":
    Paint()
