#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Korvanta contributors
# SPDX-License-Identifier: MIT
"""Builds KorvantaSymbols.ttf. Two runs give the same bytes, so nothing in it tells the time.

With --check the font that is kept is held against what the sources build instead; 77 says that the
tools for it are not installed here, or are of another version than the font was built with.
"""
import sys
import tempfile
from pathlib import Path

try:
    import fontTools
    import numpy  # noqa: F401, which the outlines need
except ImportError:
    sys.exit(77)

from fontTools.fontBuilder import FontBuilder
from fontTools.pens.ttGlyphPen import TTGlyphPen
from fontTools.ttLib import newTable
from fontTools.ttLib.tables.O_S_2f_2 import Panose

from outlines import Box
from symbols import HERE, AllShapes, CentredOutline, Order, Unicode

EM = 1000
UNIT = EM / 100
FAMILY = "Korvanta Symbols"
FONT = HERE / "KorvantaSymbols.ttf"
VERSION = "1.000"
TOOLS = "4.38.0"  # fontTools of Debian 12; others may lay tables out differently.
MADE = 3850000000  # Seconds since 1904; fixed.


def Glyph(contours):
    pen = TTGlyphPen(None)

    def At(p):
        return round(p[0] * UNIT + EM / 2), round(p[1] * UNIT + EM / 2)

    for contour in contours:
        pen.moveTo(At(contour[-1][1]))
        for control, end in contour:
            if control is None:
                pen.lineTo(At(end))
            else:
                pen.qCurveTo(At(control), At(end))
        pen.closePath()
    return pen.glyph()


def Glyphs():
    """Glyphs by name, .notdef and the blank first, then by code; and the character map."""
    shapes = AllShapes()
    missing = CentredOutline(Box(-30, -38, 30, 38) - Box(-19, -27, 19, 27))
    glyphs = {".notdef": Glyph(missing), "space": Glyph([])}
    characters = {0x20: "space"}
    for code, name in Order().items():
        glyphName = name.replace("-", "_")
        glyphs[glyphName] = Glyph(CentredOutline(shapes[name]))
        characters[Unicode(code)] = glyphName
    return glyphs, dict(sorted(characters.items()))


def Build(path):
    glyphs, characters = Glyphs()
    builder = FontBuilder(EM, isTTF=True)
    builder.setupGlyphOrder(list(glyphs))
    builder.setupCharacterMap(characters)
    builder.setupGlyf(glyphs)
    table = builder.font["glyf"]
    builder.setupHorizontalMetrics(
        {name: (EM, getattr(table[name], "xMin", 0)) for name in glyphs})
    # The em box is the cell: all of it stands on the baseline, so that at N pixels a line is N
    # whole pixels high and its baseline falls on one, whatever N is.
    builder.setupHorizontalHeader(ascent=EM, descent=0, lineGap=0)
    builder.setupNameTable(Names())
    builder.setupOS2(
        version=4, xAvgCharWidth=EM, usWeightClass=400, usWidthClass=5, fsType=0,
        sTypoAscender=EM, sTypoDescender=0, sTypoLineGap=0, usWinAscent=EM, usWinDescent=0,
        fsSelection=0x40 | 0x80, achVendID="KORV", sxHeight=EM * 3 // 4, sCapHeight=EM * 3 // 4,
        ulCodePageRange1=1, usDefaultChar=0, usBreakChar=32, usMaxContext=0,
        panose=Pictorial())
    builder.setupPost(isFixedPitch=1, underlinePosition=-60, underlineThickness=60)
    # Smoothed at every size: the symbols carry no instructions for a pixel grid.
    builder.font["gasp"] = gasp = newTable("gasp")
    gasp.version, gasp.gaspRange = 1, {0xFFFF: 0x000A}
    builder.updateHead(fontRevision=float(VERSION), created=MADE, modified=MADE, lowestRecPPEM=8,
                       flags=0x000B)
    builder.font.recalcTimestamp = False
    builder.save(path)


def Pictorial():
    panose = Panose()
    for field in ("FamilyType", "SerifStyle", "Weight", "Proportion", "Contrast",
                  "StrokeVariation", "ArmStyle", "LetterForm", "Midline", "XHeight"):
        setattr(panose, "b" + field, 0)
    panose.bFamilyType, panose.bWeight = 5, 1  # Pictures; within them "no fit".
    panose.bProportion = 3  # All of one width.
    return panose


def Names():
    return {
        "copyright": "Copyright 2026 Korvanta contributors",
        "familyName": FAMILY,
        "styleName": "Regular",
        "uniqueFontIdentifier": f"{VERSION};KORV;KorvantaSymbols-Regular",
        "fullName": FAMILY,
        "version": f"Version {VERSION}",
        "psName": "KorvantaSymbols-Regular",
        "manufacturer": "Korvanta contributors",
        "description": "Two hundred chart symbols for counted cross stitch",
        "licenseDescription": "MIT License",
    }


def Check():
    """Whether the font that is kept is what its sources build."""
    with tempfile.TemporaryDirectory() as folder:
        built = Path(folder) / FONT.name
        Build(built)
        if built.read_bytes() != FONT.read_bytes():
            raise SystemExit(f"{FONT.name} is not what its sources build: run build.py")


if __name__ == "__main__":
    if "--check" in sys.argv[1:]:
        if fontTools.version != TOOLS:
            sys.exit(77)
        Check()
    else:
        Build(FONT)
