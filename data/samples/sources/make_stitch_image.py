# SPDX-FileCopyrightText: 2026 Korvanta contributors
# SPDX-License-Identifier: MIT
"""Draws the grey cross that virtual stitches are tinted from: src/grid/painting/resources/StitchImage.png.

A pixel whose mean is 125 or more is thread (floss colour times mean / 255), any other is cloth.
With --preview DIR it also paints fields of tinted crosses to look at.
"""

import sys
from pathlib import Path

import numpy as np
from PIL import Image

SIZE = 64
OVER = 8  # subpixels a side
THREAD_LOW, THREAD_HIGH = 126, 254
CLOTH = 24
HALF_WIDTH = 0.275  # of the leg, in squares
STRANDS = 2


def leg(x, y, sign):
    """Light of one diagonal leg at (x, y) in -0.5..0.5; NaN beside it. sign 1 rises to the right."""
    along = (x - sign * y) / np.sqrt(2)  # y points down
    across = (x + sign * y) / np.sqrt(2)
    length = 0.5 * np.sqrt(2)
    end = np.abs(along) / length
    # The leg dives into the holes at the corners, so it narrows and darkens there.
    width = HALF_WIDTH * (1 - 0.34 * np.clip((end - 0.5) / 0.5, 0, 1) ** 1.6)
    w = across / width
    inside = np.abs(w) < 1
    # Two strands lie side by side; each is a small cylinder.
    strand = (w + 1) / 2 * STRANDS
    local = 2 * (strand - np.floor(strand)) - 1
    round_ = np.sqrt(np.clip(1 - (0.94 * local) ** 2, 0, 1))
    # Light from the upper left, and the ply of each strand as slanted soft ridges.
    nx = across * 0 + local * 0.7 / np.sqrt(2)
    ny = sign * local * 0.7 / np.sqrt(2)
    lit = np.clip(0.62 * round_ - 0.30 * nx - 0.34 * ny, 0, 1)
    twist = 0.5 + 0.5 * np.cos(2 * np.pi * (along * 9.0 + local * 0.42 * sign))
    groove = 1 - 0.22 * (1 - twist) * (1 - 0.3 * np.abs(local))
    dive = 1 - 0.66 * np.clip((end - 0.60) / 0.40, 0, 1) ** 1.5
    body = 0.44 + 0.98 * lit
    edge = 1 - 0.30 * np.clip((np.abs(w) - 0.72) / 0.28, 0, 1)
    value = np.clip(body * groove * dive * edge, 0, 1)
    return np.where(inside, THREAD_LOW + (THREAD_HIGH - THREAD_LOW) * value, np.nan)


def draw():
    n = SIZE * OVER
    c = (np.arange(n) + 0.5) / n - 0.5
    x, y = np.meshgrid(c, c)
    lower = leg(x, y, -1)
    upper = leg(x, y, 1)
    # The upper leg throws a soft shadow on the lower one.
    gap = np.abs(x + y) / np.sqrt(2) - HALF_WIDTH
    shade = np.clip(1 - gap / 0.13, 0, 1) ** 1.5
    lower = THREAD_LOW + (lower - THREAD_LOW) * (1 - 0.46 * shade)
    image = np.where(np.isnan(upper), lower, upper)
    thread = ~np.isnan(image)
    blocks = lambda a: a.reshape(SIZE, OVER, SIZE, OVER).sum(axis=(1, 3))
    count = blocks(thread.astype(float))
    mean = blocks(np.where(thread, image, 0)) / np.maximum(count, 1)
    # A pixel is either thread or cloth, so that no edge pixel falls between the two.
    grey = np.where(count * 2 >= OVER * OVER, np.clip(np.rint(mean), 126, 255), CLOTH).astype(np.uint8)
    return np.dstack([grey] * 3)


def tinted(template, floss, cloth):
    mean = template.astype(int).sum(axis=2) // 3
    out = np.empty_like(template)
    for k in range(3):
        out[:, :, k] = np.where(mean >= 125, floss[k] * mean // 255, cloth[k])
    return Image.fromarray(out)


def preview(template, folder):
    flosses = [(199, 43, 59), (255, 255, 255), (13, 101, 157), (255, 200, 64), (0, 0, 0), (93, 125, 74)]
    for name, cloth in (("white", (255, 255, 255)), ("dark", (37, 40, 62))):
        for size in (8, 16, 32):
            field = Image.new("RGB", (size * 12, size * 12), cloth)
            for i in range(12):
                for j in range(12):
                    if i in (0, 11) or j in (0, 11) or (i == 6 and 3 < j < 8):
                        continue
                    tile = tinted(template, flosses[((i - 1) // 4) * 2 + (j > 5)], cloth)
                    field.paste(tile.resize((size, size), Image.BILINEAR if size > 32 else Image.BOX), (i * size, j * size))
            field.save(f"{folder}/stitch-{name}-{size}.png")


if __name__ == "__main__":
    picture = draw()
    target = Path(__file__).resolve().parents[3] / "src/grid/painting/resources/StitchImage.png"
    target.parent.mkdir(parents=True, exist_ok=True)
    Image.fromarray(picture).save(target, optimize=True)
    if len(sys.argv) == 3 and sys.argv[1] == "--preview":
        preview(picture, sys.argv[2])
