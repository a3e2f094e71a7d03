# SPDX-FileCopyrightText: 2026 Korvanta contributors
# SPDX-License-Identifier: MIT
"""Draws ../pictures/logo.png: the word in round strokes of felt, sewn on, with a needle and its thread."""

from pathlib import Path

import numpy as np
from PIL import Image, ImageDraw

W, H, S = 600, 240, 6
INK, SEAM, THREAD, STEEL = (20, 92, 104), (232, 246, 240), (206, 48, 62), (120, 128, 138)


def line(*points):
    return np.array(points, float)


def arc(cx, cy, rx, ry, start, stop, n=60):
    a = np.radians(np.linspace(start, stop, n))
    return np.stack([cx + rx * np.cos(a), cy + ry * np.sin(a)], 1)


def joined(*parts):
    return np.concatenate(parts)


# Strokes of each letter, x from its left edge, base line at 100, x-height 56, y downwards; then its width.
R = 23
LETTERS = {
    "K": ([line((0, 22), (0, 100)), line((46, 22), (4, 64)), line((14, 55), (49, 100))], 62),
    "o": ([arc(R, 77, R, R, -90, 270)], 62),
    "r": ([line((0, 54), (0, 100)), arc(23, 77, 23, 23, 180, 285)], 48),
    "v": ([joined(line((0, 54), (19.5, 97)), arc(22, 96, 3, 4, 150, 30), line((24.5, 97), (44, 54)))], 58),
    "a": ([arc(R, 77, R, R, -20, -360 - 20), line((2 * R, 54), (2 * R, 100))], 64),
    "n": ([line((0, 54), (0, 100)), joined(arc(21, 75, 21, 21, 180, 360), line((42, 75), (42, 100)))], 58),
    "t": ([joined(line((10, 32), (10, 84)), arc(26, 84, 16, 16, 180, 75)), line((-4, 55), (27, 55))], 42),
}


def word(text, left, top, scale):
    x = left
    for letter in text:
        strokes, width = LETTERS[letter]
        for s in strokes:
            yield s * scale + (x, top)
        x += width * scale


def resample(p, step):
    d = np.r_[0, np.cumsum(np.hypot(*np.diff(p, axis=0).T))]
    at = np.arange(0, d[-1] + 1e-6, step)
    return np.stack([np.interp(at, d, p[:, 0]), np.interp(at, d, p[:, 1])], 1)


def rope(draw, p, width, colour):
    for x, y in resample(p, 0.35):
        draw.ellipse([(x - width / 2) * S, (y - width / 2) * S, (x + width / 2) * S, (y + width / 2) * S], fill=colour)


def stitches(draw, p, width, colour, length, gap):
    length_all = np.hypot(*np.diff(p, axis=0).T).sum()
    count = max(1, round((length_all + gap) / (length + gap)))
    unit = (length_all + gap) / count
    q = resample(p, 0.2)
    for k in range(count):
        a, b = int(k * unit / 0.2), int((k * unit + unit - gap) / 0.2)
        rope(draw, q[a : b + 1], width, colour)


def wave():
    x = np.linspace(36, 470, 300)
    t = (x - 36) / 434
    return np.stack([x, 190 + 15 * np.sin(t * 2 * np.pi * 2.5) * (1 - 0.35 * t)], 1)


def needle(draw, tip, tail):
    tip, tail = np.array(tip, float), np.array(tail, float)
    u = (tip - tail) / np.hypot(*(tip - tail))
    v = np.array([-u[1], u[0]])
    outline = [tip, tip - u * 26 + v * 2.6, tail + u * 6 + v * 3.6, tail, tail + u * 6 - v * 3.6, tip - u * 26 - v * 2.6]
    draw.polygon([tuple(p * S) for p in outline], fill=STEEL)
    draw.polygon([tuple(p * S) for p in (tip - u * 8, tip - u * 26 + v * 0.8, tail + u * 26 + v * 1.0, tail + u * 26 - v * 0.4)],
                 fill=(214, 220, 226))
    eye = [tail + u * 5, tail + u * 11 + v * 1.5, tail + u * 18, tail + u * 11 - v * 1.5]
    draw.polygon([tuple(p * S) for p in eye], fill=(255, 255, 255))
    return tail + u * 11


def cross(draw, cx, cy, r, colour):
    rope(draw, line((cx - r, cy - r), (cx + r, cy + r)), r * 0.62, colour)
    rope(draw, line((cx - r, cy + r), (cx + r, cy - r)), r * 0.62, colour)


def draw_logo():
    image = Image.new("RGB", (W * S, H * S), (255, 255, 255))
    d = ImageDraw.Draw(image)
    strokes = list(word("Korvanta", 52, 24, 1.155))
    for s in strokes:
        rope(d, s, 19, INK)
    for s in strokes:
        stitches(d, s, 2.6, SEAM, 7, 4.6)
    path = wave()
    stitches(d, path, 4.6, THREAD, 15, 8)
    hole = needle(d, (572, 164), (500, 184))
    end = path[-1]
    t = np.linspace(0, 1, 80)[:, None]
    loop = end * (1 - t) ** 3 + (end + (18, -12)) * 3 * t * (1 - t) ** 2 + (hole + (-22, 26)) * 3 * t**2 * (1 - t) + hole * t**3
    rope(d, loop, 3.2, THREAD)
    for k, colour in enumerate(((206, 48, 62), (232, 160, 44), (86, 140, 78))):
        cross(d, 512 + 22 * k, 211, 6.2, colour)
    return image.resize((W, H), Image.LANCZOS)


if __name__ == "__main__":
    draw_logo().save(Path(__file__).resolve().parent.parent / "pictures/logo.png", optimize=True)
