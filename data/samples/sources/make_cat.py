# SPDX-FileCopyrightText: 2026 Korvanta contributors
# SPDX-License-Identifier: MIT
"""Draws ../pictures/cat.png: a sitting ginger cat of 48 by 48 pixels, flat colours on nothing."""

from pathlib import Path

import numpy as np
from PIL import Image

N = 48
COLOURS = {
    ".": (0, 0, 0, 0),
    "k": (58, 32, 28, 255),  # outline
    "o": (232, 138, 52, 255),  # ginger
    "d": (190, 92, 34, 255),  # stripes, shade
    "l": (250, 182, 104, 255),  # light ginger
    "w": (255, 244, 226, 255),  # muzzle, chest, paws
    "s": (226, 200, 178, 255),  # shade on white
    "p": (238, 132, 136, 255),  # nose, ears
    "g": (110, 178, 84, 255),  # eyes
    "b": (44, 98, 160, 255),  # collar
    "y": (250, 214, 72, 255),  # bell
}

Y, X = np.mgrid[0:N, 0:N]
cells = np.full((N, N), ".")


def put(colour, where, only=None):
    cells[where & (np.isin(cells, list(only)) if only else True)] = colour


def oval(cx, cy, rx, ry):
    return ((X - cx) / rx) ** 2 + ((Y - cy) / ry) ** 2 <= 1


def corner(*points):
    """The inside of a triangle."""
    (ax, ay), (bx, by), (cx, cy) = points
    side = [(bx - ax) * (Y - ay) - (by - ay) * (X - ax), (cx - bx) * (Y - by) - (cy - by) * (X - bx),
            (ax - cx) * (Y - cy) - (ay - cy) * (X - cx)]
    return np.all([s >= 0 for s in side], axis=0) | np.all([s <= 0 for s in side], axis=0)


def outline():
    full = cells != "."
    drawn = full & (cells != "k")  # a line round a line would be a thick one
    pad = np.pad(drawn, 1)
    near = pad[:-2, 1:-1] | pad[2:, 1:-1] | pad[1:-1, :-2] | pad[1:-1, 2:]
    put("k", ~full & near)


def mirrored(points, axis=21):
    return [(2 * axis - x, y) for x, y in points]


def tail():
    ring = oval(37, 36, 8.2, 9.2) & ~oval(36, 34.5, 4.2, 5.6) & ~((X < 36) & (Y < 35))
    put("o", ring & (X >= 34))
    put("o", oval(37.5, 27.5, 2.6, 2.4))
    put("w", oval(36.5, 26.9, 2.0, 1.8))
    for y in (31, 32, 36, 37, 41, 42):
        put("d", (cells == "o") & (X > 38) & (Y == y))


def body():
    put("o", oval(21, 35, 12.2, 10.6) | ((Y >= 36) & (Y <= 45) & (abs(X - 21) <= 13)))
    cells[(Y >= 44) & (abs(X - 21) > 12)] = "."
    put("d", oval(31.5, 41, 4.5, 6.5), "o")
    put("o", oval(30.2, 41.5, 4.2, 6), "d")
    put("d", oval(10.5, 41, 4.5, 6.5), "o")
    put("o", oval(11.8, 41.5, 4.2, 6), "d")
    for y in (29, 33, 37):
        put("d", (np.abs(Y - y + (abs(X - 21) - 9) * 0.3) < 0.9) & (abs(X - 21) >= 8), "o")
    put("w", oval(21, 31, 5.4, 8))
    put("s", oval(21, 31, 5.4, 8) & ~oval(20, 30, 5.4, 8), "w")


def paws():
    for cx in (17, 25):
        put("o", (abs(X - cx) <= 3) & (Y >= 33) & (Y <= 43), "od")
        put("w", oval(cx, 43.5, 3.9, 2.6))
        put("s", (Y == 45) & oval(cx, 43.5, 3.9, 2.6))
    put("k", (X == 21) & (Y >= 37) & (Y <= 45))
    for x in (16, 18, 24, 26):
        put("k", (X == x) & (Y >= 43) & (Y <= 44))
    put("k", ((X == 13) | (X == 29)) & (Y >= 39) & (Y <= 45))


def head():
    for ear, inner in (([(8, 12), (9, 1), (19, 7)], [(10.5, 11), (11, 4.5), (17, 8)]),):
        for points in (ear, mirrored(ear)):
            put("o", corner(*points))
        for points in (inner, mirrored(inner)):
            put("p", corner(*points), "o")
    put("o", oval(21, 15.5, 14.2, 10.8))
    put("l", oval(19, 11.5, 10.5, 5.4), "o")
    put("o", oval(19.5, 13.5, 11, 5.6), "l")
    for x, y in ((21, 9), (17, 8), (25, 8)):
        put("d", (X == x) & (Y >= y - 3) & (Y <= y + (2 if x == 21 else 0)), "ol")
        put("d", (X == x + (1 if x < 21 else -1 if x > 21 else 0)) & (Y >= y - 2) & (Y <= y), "ol")
    for y in (16, 19):
        put("d", (Y == y) & (abs(X - 21) >= 12), "o")
    put("w", oval(17.8, 20.5, 4.6, 3.8) | oval(24.2, 20.5, 4.6, 3.8) | (oval(21, 16, 1.9, 5)))


def face():
    for cx, light in ((14.5, 14), (27.5, 27)):
        put("k", oval(cx, 15, 3.0, 3.4))
        put("g", oval(cx, 15.2, 2.2, 2.6))
        put("k", (abs(X - cx) < 0.8) & (abs(Y - 15) < 2.4))
        put("w", (X == light) & (Y == 14))
    put("p", ((Y == 18) & (abs(X - 21) <= 1)) | ((Y == 19) & (X == 21)))
    put("k", ((Y == 20) & (X == 21)) | ((Y == 21) & (X == 21)) | ((Y == 22) & np.isin(X, (19, 20, 22, 23))) | ((Y == 21) & np.isin(X, (18, 24))))
    for x in (9, 10, 11, 31, 32, 33):
        put("w", (X == x) & (Y == (20 if x in (9, 10, 32, 33) else 21)))


def collar():
    band = (Y >= 25) & (Y <= 27) & oval(21, 18, 12, 9.6)
    put("b", band)
    put("y", oval(21, 28, 1.9, 1.9))
    put("k", (X == 21) & (Y == 29))


if __name__ == "__main__":
    tail()
    outline()
    body()
    paws()
    outline()
    cells[oval(21, 15.5, 15.2, 11.8) & (cells != ".")] = "k"
    head()
    face()
    collar()
    outline()
    picture = np.array([[COLOURS[c] for c in row] for row in cells], np.uint8)
    Image.fromarray(picture, "RGBA").save(Path(__file__).resolve().parent.parent / "pictures/cat.png", optimize=True)
