# SPDX-FileCopyrightText: 2026 Korvanta contributors
# SPDX-License-Identifier: MIT
"""Shapes laid of square tiles, three by three, written as they look."""
from forms import *

TILE = 76 / 3
LAP = 0.5  # Tiles that touch at a corner hold together there.


def Tiles(*rows):
    """Rows from the top; a tile stands where there is no dot."""
    boxes = []
    for j, row in enumerate(rows):
        for i, mark in enumerate(row):
            if mark != ".":
                x, y = -38 + i * TILE, 38 - (j + 1) * TILE
                boxes.append(Box(x - LAP, y - LAP, x + TILE + LAP, y + TILE + LAP))
    return Joined(*boxes)


def Shapes():
    return {
        **Turned("stair", Tiles("#..", "##.", ".##")),
        **Mirrored("ess", Tiles(".##", ".#.", "##.")),
        **Mirrored("row", Tiles("#..", ".#.", "..#")),
        **Turned("chair", Tiles("#..", "###", "#.#")),
        **Turned("chair-back", Tiles("..#", "###", "#.#")),
        **Turned("goblet", Tiles("#.#", "###", ".#.")),
        **Turned("tap", Tiles(".##", "##.", ".#.")),
        **Turned("tap-back", Tiles("##.", ".##", ".#.")),
        **Turned("mast", Tiles("#..", "##.", "###")),
        **Turned("hook", Tiles("###", "#.#", "..#")),
        **Turned("hook-back", Tiles("###", "#.#", "#..")),
        **Turned("pot", Tiles("#.#", "###", "###")),
        **Turned("skip", Tiles("##.", "##.", "..#")),
        **Turned("scatter", Tiles("#.#", ".#.", "#..")),
        **Turned("trio", Tiles("#.#", "...", ".#.")),
        **Turned("shelf", Tiles("#.#", "...", "###")),
        **Pair("twin", Tiles("##.", "...", ".##")),
        "four-corners": Tiles("#.#", "...", "#.#"),
    }
