# SPDX-License-Identifier: MIT
"""Two small drawings for the dimension style check: one where nothing may be reported, one where
all is."""

from .common import ignore, new_drawing, set_standards
from .styles import TextStyle, add_dimension_style, add_text_styles, make_annotative

ARROWS = {"dimblk": "ARCHTICK", "dimldrblk": "DOT"}


def draw_each_dimension_style(doc):
    space = doc.modelspace()
    for row, style in enumerate(doc.dimstyles):
        name = style.dxf.name
        if "|" not in name:
            y = 2000.0 * row
            space.add_linear_dim((0, y + 800), (0, y), (4000, y), dimstyle=name).render()
            space.add_leader([(5000, y), (5600, y + 800), (6200, y + 800)], dimstyle=name)


def good():
    doc = new_drawing("R2010")
    add_text_styles(doc, [TextStyle("DIMS", "isocp.shx", width=0.8)])
    # Another letter case, and values that print as those of the standard.
    add_dimension_style(doc, "a-100", "DIMS", scale=100, dimasz=2.50001, **ARROWS)
    add_dimension_style(doc, "A-50", "DIMS", scale=50, **ARROWS)
    make_annotative(add_dimension_style(doc, "A-ANNO", "DIMS", **ARROWS))
    # What differs for angles; not a style of its own.
    add_dimension_style(doc, "a-100$2", "DIMS", scale=100, dimtad=0, **ARROWS)
    survey = add_dimension_style(doc, "SURVEY", "DIMS", scale=250)
    survey.dxf.unprotected_set("name", "survey|S-250")
    survey.dxf.flags = 16 | 32
    # The office's arrow in its own shape: blocks are compared by their names.
    doc.blocks.get("_DOT").add_circle((0, 0), 0.25)
    draw_each_dimension_style(doc)
    set_standards(doc, ["office-standard.dxf"])
    return doc


def bad():
    doc = new_drawing("R2000")
    styles = [TextStyle("DIMS", "isocp.shx", width=0.8), TextStyle("NOTES", "arial.ttf")]
    add_text_styles(doc, styles)
    doc.blocks.new("OFFICE-TICK").add_line((-0.5, -0.5), (0.5, 0.5))
    standard = doc.dimstyles.get("Standard")
    standard.update_dxf_attribs({"dimclrd": 1, "dimlwd": 35, "dimpost": "<> mm"})
    add_dimension_style(
        doc, "A-100", "DIMS", scale=100, dimtxt=2.0, dimblk="OFFICE-TICK", dimldrblk="DOT"
    )
    add_dimension_style(doc, "a-50", "NOTES", scale=20, dimblk="ARCHTICK")
    # Not annotative, unlike the standard's.
    add_dimension_style(doc, "A-ANNO", "DIMS", **ARROWS)
    add_dimension_style(doc, "A-20", "DIMS", scale=20, **ARROWS)
    # The ending of no kind of dimension, so it is a style of its own.
    add_dimension_style(doc, "A-100$1", "DIMS", scale=100, **ARROWS)
    add_dimension_style(doc, "SURVEY", "NOTES", scale=250)
    draw_each_dimension_style(doc)
    set_standards(doc, ["office-standard.dxf"])
    ignore(doc.dimstyles.get("SURVEY"), "h.brandt")
    return doc
