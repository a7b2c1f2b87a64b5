# SPDX-License-Identifier: MIT
"""The standards files: drawings without content whose records others are compared with."""

from .common import Layer, add_layers, new_drawing
from .styles import TextStyle, add_dimension_style, add_text_styles, make_annotative

OFFICE_LAYERS = [
    Layer("A-WALL", 2, "Continuous", 50),
    Layer("A-WALL-PATT", 252, "Continuous", 9),
    Layer("A-DOOR", 3, "Continuous", 25),
    Layer("A-GLAZ", 4, "Continuous", 25),
    Layer("A-FLOR-STRS", 8, "Continuous", 18),
    Layer("A-FURN", 9, "Continuous", 13),
    Layer("A-ROOF-OVHD", 6, "DASHED", 25),
    Layer("A-GRID", 8, "CENTER", 18),
    Layer("A-AREA-IDEN", 7, "Continuous", 25),
    Layer("A-ANNO-DIMS", 1, "Continuous", 18),
    Layer("A-ANNO-NOTE", 7, "Continuous", 25),
    Layer("A-ANNO-TTLB", 7, "Continuous", 50),
    Layer("P-SANR", 5, "Continuous", 18),
    Layer("E-LITE", 30, "Continuous", 18),
]

MECHANICAL_LAYERS = [
    Layer("OUTLINE", 7, "Continuous", 50),
    Layer("HIDDEN", 3, "HIDDEN", 25),
    Layer("CENTER", 1, "CENTER", 25),
    Layer("PHANTOM", 6, "PHANTOM", 25),
    Layer("THREAD", 4, "Continuous", 25),
    Layer("HATCHING", 8, "Continuous", 18),
    Layer("DIMENSION", 2, "Continuous", 25),
    Layer("TEXT", 7, "Continuous", 35),
    Layer("SECTION LINE", 5, "PHANTOM", 50),
    Layer("TITLE BLOCK", 7, "Continuous", 70),
]

SITE_LAYERS = [
    Layer("敷地境界", 1, "PHANTOM", 50),
    Layer("道路", 8, "Continuous", 35),
    Layer("道路中心線", 8, "CENTER", 18),
    Layer("計画建物", 7, "Continuous", 70),
    Layer("既存建物", 9, "DASHED", 25),
    Layer("等高線-主曲線", 32, "Continuous", 13),
    Layer("等高線-計曲線", 32, "Continuous", 35),
    Layer("植栽", 3, "Continuous", 18),
    Layer("駐車場", 4, "Continuous", 25),
    Layer("給水", 5, "DASHED", 35),
    Layer("排水", 6, "DASHED", 35),
    Layer("寸法", 2, "Continuous", 18),
    Layer("文字", 7, "Continuous", 25),
    # The wide letters of a Japanese keyboard. They have a lower case of their own.
    Layer("ＢＭ", 1, "Continuous", 35),
    # The Chinese partner's name for the green areas.
    Layer("绿化", 3, "Continuous", 13),
]


OFFICE_TEXT_STYLES = [
    TextStyle("NOTES", "arial.ttf", face="Arial"),
    TextStyle("TITLES", "arialbd.ttf", face="Arial", is_bold=True),
    TextStyle("DIMS", "isocp.shx", width=0.8),
    TextStyle("LABELS", "arial.ttf", face="Arial"),
]


def office():
    """The standard of an architect's office."""
    doc = new_drawing("R2018", ["CENTER", "DASHED", "GAS", "INSULATION"])
    add_layers(doc, OFFICE_LAYERS)
    add_text_styles(doc, OFFICE_TEXT_STYLES)
    make_annotative(doc.styles.get("LABELS"), matches_sheet=True)
    arrows = {"dimblk": "ARCHTICK", "dimldrblk": "DOT"}
    add_dimension_style(doc, "A-100", "DIMS", scale=100, **arrows)
    add_dimension_style(doc, "A-50", "DIMS", scale=50, **arrows)
    make_annotative(add_dimension_style(doc, "A-ANNO", "DIMS", **arrows))
    return doc


def mechanical():
    """The standard of a workshop that makes parts."""
    doc = new_drawing("R2000", ["CENTER", "HIDDEN", "PHANTOM"])
    add_layers(doc, MECHANICAL_LAYERS)
    add_text_styles(doc, [TextStyle("ISO", "isocp.shx"), TextStyle("TITLE", "isocp3.shx", oblique=15)])
    add_dimension_style(doc, "ISO-25", "ISO")
    add_dimension_style(
        doc,
        "ISO-TOL",
        "ISO",
        dimtol=1,
        dimtp=0.1,
        dimtm=0.2,
        dimtdec=1,
        dimsah=1,
        dimblk1="DOTSMALL",
        dimblk2="OBLIQUE",
    )
    return doc


def site():
    """The standard of a civil engineer in Japan."""
    doc = new_drawing("R2018", ["CENTER", "DASHED", "PHANTOM", "境界"])
    add_layers(doc, SITE_LAYERS)
    add_text_styles(doc, [TextStyle("注記", "msgothic.ttc", face="MS Gothic")])
    add_dimension_style(doc, "S-250", "注記", scale=250, dimblk="OBLIQUE")
    return doc
