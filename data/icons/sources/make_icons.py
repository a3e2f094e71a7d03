#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Korvanta contributors
# SPDX-License-Identifier: MIT
"""Draws the icon family: make_icons.py [--check]. --check holds the kept files against these sources."""

import pathlib
import sys

import commands
import papers
import program
import stitches
from strokes import document

ROOT = pathlib.Path(__file__).resolve().parents[3]
FAMILY = ROOT / "src" / "windowkit" / "icons"
HICOLOR = ROOT / "share" / "icons" / "hicolor" / "scalable"


def drawings():
    """Every file that is made, and what stands in it."""
    made = {}
    for group in (papers.ICONS, commands.ICONS, stitches.ICONS):
        for name, shapes in group.items():
            assert name not in made, name
            made[FAMILY / f"{name}.svg"] = document(*shapes)
    made[FAMILY / "korvanta.svg"] = program.ICON
    made[HICOLOR / "apps" / "korvanta.svg"] = program.ICON
    for name, drawing in program.MIME.items():
        made[HICOLOR / "mimetypes" / f"{name}.svg"] = drawing
    return made


def main():
    made = drawings()
    kept = {path for folder in {p.parent for p in made} for path in folder.glob("*.svg")}
    if sys.argv[1:] == ["--check"]:
        wrong = sorted(
            path for path in kept | set(made)
            if path not in made or not path.exists() or path.read_text() != made[path]
        )
        for path in wrong:
            print(f"{path.relative_to(ROOT)} is not what its source draws")
        return 1 if wrong else 0
    for path in kept - set(made):
        path.unlink()
    for path, drawing in made.items():
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(drawing)
    return 0


if __name__ == "__main__":
    sys.exit(main())
