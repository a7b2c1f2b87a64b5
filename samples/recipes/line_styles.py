# SPDX-License-Identifier: MIT
"""Two small drawings for the line style check: one where nothing may be reported, one where all is."""

from .common import Layer, add_layers, ignore, new_drawing, set_standards, text
from .styles import add_line_style

# Flags of a line style of another file that was found when the drawing was last opened.
XREF_STYLE_FLAGS = 16 | 32


def draw_each_line_style(doc):
    space = doc.modelspace()
    reserved = ("ByLayer", "ByBlock", "Continuous")
    names = [style.dxf.name for style in doc.linetypes if style.dxf.name not in reserved]
    for row, name in enumerate(names):
        y = 10.0 * row
        if "|" not in name:
            space.add_line((0, y), (80, y), dxfattribs={"linetype": name})
            text(space, name, (85, y - 1.25), 2.5, "0")


def good():
    doc = new_drawing("R2010", ["GAS", "INSULATION"])
    # Another letter case, and a difference beyond the tenth decimal.
    center = add_line_style(doc, "Center", "CENTER")
    center.setup_pattern([50.80000000001, 31.75, -6.35, 6.35, -6.35])
    # The same number of dashes and the same length; which dashes is not compared.
    doc.linetypes.add("DASHED", [19.05, 6.35, -12.7], description="Dashed, with long gaps")
    fence = doc.linetypes.add("FENCE", [20.0, 15.0, -5.0], description="Fence of the survey")
    fence.dxf.unprotected_set("name", "survey|FENCE")
    fence.dxf.flags = XREF_STYLE_FLAGS
    draw_each_line_style(doc)
    set_standards(doc, ["office-standard.dxf"])
    return doc


def bad():
    doc = new_drawing("R2000")
    add_line_style(doc, "CENTER", "CENTER", scale=0.5)
    # As long as the standard's, in twice as many pieces.
    doc.linetypes.add("dashed", [19.05, 6.35, -3.175, 6.35, -3.175], description="Dashed")
    add_line_style(doc, "INSULATION", "GAS")
    add_line_style(doc, "CENTRE", "CENTER")
    add_line_style(doc, "GAS", "DASHED2")
    add_line_style(doc, "WATER", "境界")
    # The one layer that is exempt from the check of layers.
    add_layers(doc, [Layer("Defpoints", 7, "CENTRE")])
    draw_each_line_style(doc)
    set_standards(doc, ["office-standard.dxf"])
    ignore(doc.linetypes.get("GAS"), "h.brandt")
    return doc
