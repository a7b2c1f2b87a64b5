# SPDX-License-Identifier: MIT
"""Two small drawings for the layer check: one where nothing may be reported, one where all is."""

from .common import Layer, add_layers, add_xref, ignore, new_drawing, set_standards, text

GOOD = [
    # Another letter case is no violation, neither of the name nor of the line style.
    Layer("a-wall", 2, "Continuous", 50),
    Layer("A-Grid", 8, "center", 18),
    # In no standard, and exempt under any letter case.
    Layer("DEFPOINTS", 1, "CENTER", 211),
    Layer("A-DOOR", 3, "Continuous", 25),
    Layer("A-GLAZ", 4, "Continuous", 25),
    Layer("A-FURN", 9, "Continuous", 13),
]

BAD = [
    Layer("A-WALL", 1, "Continuous", 50),
    Layer("A-DOOR", 3, "Continuous", 50),
    Layer("A-GLAZ", 4, "DASHED", 25),
    Layer("A-FURN", 6, "DASHED", -3),
    Layer("a-flor-strs", 9, "Continuous", 18),
    Layer("FURNITURE", 9, "Continuous", 13),
    # Nearly a name of the standard; names are never weighed by their likeness.
    Layer("A-WALLS", 2, "Continuous", 50),
    Layer("A-ANNO-DIMS", 2, "Continuous", 25),
]


def draw_each_layer(doc):
    space = doc.modelspace()
    for row, layer in enumerate(doc.layers):
        name = layer.dxf.name
        if "|" in name:
            continue
        y = 10.0 * row
        space.add_line((0, y), (80, y), dxfattribs={"layer": name})
        text(space, name, (85, y - 1.25), 2.5, name)


def good():
    doc = new_drawing("R2010", ["CENTER"])
    doc.linetypes.get("CENTER").dxf.name = "Center"
    add_layers(doc, GOOD)
    # Off, frozen, locked and a shade of the screen are the drawing's own business.
    doc.layers.get("A-DOOR").off()
    doc.layers.get("A-GLAZ").freeze()
    doc.layers.get("A-GLAZ").lock()
    doc.layers.get("A-FURN").rgb = (190, 190, 190)
    add_xref(doc, "survey", "survey-2019.dxf", [Layer("BOUNDARY", 1, lineweight=70)])
    draw_each_layer(doc)
    set_standards(doc, ["office-standard.dxf"])
    return doc


def bad():
    doc = new_drawing("R2000", ["DASHED"])
    add_layers(doc, BAD)
    doc.layers.get("0").dxf.color = 5
    draw_each_layer(doc)
    set_standards(doc, ["office-standard.dxf"])
    ignore(doc.layers.get("A-ANNO-DIMS"), "h.brandt")
    return doc
