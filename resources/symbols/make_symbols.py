#!/usr/bin/env python3
"""Draws TarnivelSymbols.ttf: the one symbol of the captions that the usual fonts lack, "⧉" (two joined squares).

Needs Debian's python3-fonttools. Usage: make_symbols.py TarnivelSymbols.ttf
"""

import sys

from fontTools.fontBuilder import FontBuilder
from fontTools.pens.ttGlyphPen import TTGlyphPen

EM, ADVANCE, SIDE, STROKE = 2048, 1900, 1120, 150  # font units


def frame(pen, left, bottom):
    """A square of lines: what lies between a square and a smaller one that turns the other way."""
    for inset, turn in ((0, 1), (STROKE, -1)):
        low_x, low_y, high_x, high_y = left + inset, bottom + inset, left + SIDE - inset, bottom + SIDE - inset
        corners = [(low_x, low_y), (low_x, high_y), (high_x, high_y), (high_x, low_y)][::turn]
        pen.moveTo(corners[0])
        for corner in corners[1:]:
            pen.lineTo(corner)
        pen.closePath()


def glyph(*frames):
    pen = TTGlyphPen(None)
    for left, bottom in frames:
        frame(pen, left, bottom)
    return pen.glyph()


font = FontBuilder(EM, isTTF=True)
font.setupGlyphOrder([".notdef", "joinedsquares"])
font.setupCharacterMap({ord("⧉"): "joinedsquares"})
font.setupGlyf({".notdef": glyph(), "joinedsquares": glyph((140, -120), (640, 380))})
font.setupHorizontalMetrics({".notdef": (ADVANCE, 0), "joinedsquares": (ADVANCE, 140)})
font.setupHorizontalHeader(ascent=1900, descent=-480)
font.setupNameTable({"familyName": "Tarnivel Symbols", "styleName": "Regular", "fullName": "Tarnivel Symbols"})
font.setupOS2(sTypoAscender=1900, sTypoDescender=-480, usWinAscent=1900, usWinDescent=480, fsType=0)
font.setupPost()
font.font["head"].created = font.font["head"].modified = 0
font.font.recalcTimestamp = False
font.save(sys.argv[1])
