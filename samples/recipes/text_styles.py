# SPDX-License-Identifier: MIT
"""Two small drawings for the text style check: one where nothing may be reported, one where all is."""

from .common import ignore, new_drawing, set_standards, text
from .styles import TextStyle, add_text_styles, make_annotative

GOOD = [
    # Another letter case of the name and of the font, and a difference beyond the tenth decimal.
    TextStyle("notes", "Arial.TTF", width=1.00000000001, face="Arial"),
    TextStyle("TITLES", "arialbd.ttf", face="Arial", is_bold=True),
    TextStyle("DIMS", "isocp.shx", width=0.8),
    TextStyle("LABELS", "arial.ttf", face="Arial"),
]

BAD = [
    TextStyle("NOTES", "romans.shx", big_font="extfont2.shx"),
    TextStyle("titles", "arialbd.ttf", face="Arial", is_italic=True),
    TextStyle("DIMS", "isocp.shx", height=2.5, width=0.7, oblique=15.0),
    TextStyle("LABELS", "arial.ttf", face="Arial"),
    TextStyle("NOTE", "arial.ttf", face="Arial"),
    TextStyle("OLD-NOTES", "txt"),
]

# Groups 70 and 71: written from top to bottom; from right to left and upside down.
VERTICAL = 4
BACKWARDS_AND_UPSIDE_DOWN = 2 | 4


def draw_each_text_style(doc):
    space = doc.modelspace()
    for row, style in enumerate(doc.styles):
        name = style.dxf.name
        if name and "|" not in name:
            text(space, name, (0, 10.0 * row), 2.5, "0", name)


def good():
    doc = new_drawing("R2010", ["INSULATION"])
    add_text_styles(doc, GOOD)
    make_annotative(doc.styles.get("LABELS"), matches_sheet=True)
    survey = doc.styles.add("SURVEY", font="survey.shx")
    survey.dxf.unprotected_set("name", "survey|NUMBERS")
    survey.dxf.flags = 16 | 32
    draw_each_text_style(doc)
    set_standards(doc, ["office-standard.dxf"])
    return doc


def bad():
    doc = new_drawing("R2000")
    # A style of this name is only ever offered its namesake.
    doc.styles.get("Standard").dxf.font = "simplex.shx"
    add_text_styles(doc, BAD)
    doc.styles.get("DIMS").dxf.flags = VERTICAL
    doc.styles.get("DIMS").dxf.generation_flags = BACKWARDS_AND_UPSIDE_DOWN
    # It follows the scale of the sheet, but not its direction.
    make_annotative(doc.styles.get("LABELS"))
    draw_each_text_style(doc)
    set_standards(doc, ["office-standard.dxf"])
    ignore(doc.styles.get("OLD-NOTES"), "h.brandt")
    return doc
