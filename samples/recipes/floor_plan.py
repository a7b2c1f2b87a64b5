# SPDX-License-Identifier: MIT
"""The ground floor of a house, 12.0 by 9.0 m, drawn in millimetres for a sheet at 1:100."""

from .common import (
    Layer,
    add_layers,
    add_xref,
    ignore,
    new_drawing,
    rectangle,
    set_standards,
    text,
)
from .styles import TextStyle, add_dimension_style, add_line_style, add_text_styles

OUTER = 365
INNER = 115

LAYERS = [
    # As drawn by a new colleague who set up the walls from memory.
    Layer("A-WALL", 2, "Continuous", 35),
    Layer("A-WALL-PATT", 252, "Continuous", 9),
    Layer("A-DOOR", 3, "Continuous", 25),
    Layer("A-GLAZ", 5, "Continuous", 25),
    Layer("A-FLOR-STRS", 8, "Continuous", 18),
    Layer("a-furn", 9, "Continuous", 13),
    Layer("A-ROOF-OVHD", 6, "DASHED2", 25),
    Layer("A-GRID", 8, "Continuous", 18),
    Layer("A-AREA-IDEN", 7, "Continuous", 25),
    Layer("A-ANNO-DIMS", 4, "Continuous", 25),
    Layer("A-ANNO-NOTE", 7, "Continuous", 25),
    Layer("A-ANNO-TTLB", 7, "Continuous", 50),
    Layer("P-SANR", 5, "Continuous", 18),
    Layer("WALLS-OLD", 1, "Continuous", 25),
    Layer("Layer1"),
    Layer("A-DEMO", 1, "DASHED2", 25),
    Layer("DEFPOINTS"),
]

TEXT_STYLES = [
    TextStyle("NOTES", "arial.ttf", face="Arial"),
    # Titles were bold once.
    TextStyle("TITLES", "arial.ttf", face="Arial"),
    TextStyle("DIMS", "isocp.shx", width=1.0),
    TextStyle("HANDWRITING", "handwriting.ttf", face="Handwriting", is_italic=True),
]

# Doors as (hinge, degrees the block is turned by, number).
DOORS = [
    ((5200, 0), 0, "D01"),
    ((4885, 3000), 90, "D02"),
    ((7000, 3800), 90, "D03"),
    ((8200, 5000), 0, "D04"),
    ((4885, 6200), 90, "D05"),
]

# Windows as (lower left corner, degrees the block is turned by).
WINDOWS = [
    ((1400, 0), 0),
    ((8600, 0), 0),
    ((1400, 8635), 0),
    ((5250, 8635), 0),
    ((9000, 8635), 0),
    ((365, 5900), 90),
    ((12000, 2200), 90),
]

ROOMS = [
    ("Living room", "28.4 m2", (2600, 4500)),
    ("Kitchen", "17.9 m2", (2600, 6800)),
    ("Hall", "10.6 m2", (5950, 2400)),
    ("Study", "14.2 m2", (9400, 2400)),
    ("Bath", "8.7 m2", (9900, 6800)),
    ("Stairs", "9.1 m2", (6500, 7300)),
]


def make_blocks(doc):
    door = doc.blocks.new("DOOR-900")
    rectangle(door, (0, 0), (40, 900), "0")
    door.add_arc((0, 0), 900, 0, 90, dxfattribs={"layer": "0"})
    door.add_attdef("NUMBER", (300, 250), dxfattribs={"layer": "0", "height": 150})

    window = doc.blocks.new("WINDOW-1500")
    rectangle(window, (0, 0), (1500, OUTER), "0")
    window.add_line((0, OUTER / 2), (1500, OUTER / 2), dxfattribs={"layer": "0"})

    bath = doc.blocks.new("BATH-TUB")
    rectangle(bath, (0, 0), (1700, 750), "P-SANR")
    bath.add_ellipse((850, 375), (750, 0), 0.4, dxfattribs={"layer": "P-SANR"})

    table = doc.blocks.new("TABLE-6")
    rectangle(table, (0, 0), (1800, 900), "a-furn")
    for column in range(3):
        for y in (-450, 950):
            rectangle(table, (150 + 550 * column, y), (400, 400), "a-furn")


def draw_walls(space):
    rectangle(space, (0, 0), (12000, 9000), "A-WALL")
    rectangle(space, (OUTER, OUTER), (12000 - 2 * OUTER, 9000 - 2 * OUTER), "A-WALL")
    inner_walls = [
        ((4885, OUTER), (INNER, 8270)),
        ((7000, OUTER), (INNER, 8270)),
        ((OUTER, 5000), (4520, INNER)),
        ((7115, 5000), (4520, INNER)),
    ]
    for corner, size in inner_walls:
        rectangle(space, corner, size, "A-WALL")
    # Left over from the survey of the house that stood here.
    space.add_line((1000, 9300), (11000, 9300), dxfattribs={"layer": "WALLS-OLD"})
    space.add_line((1000, 9415), (11000, 9415), dxfattribs={"layer": "WALLS-OLD"})

    hatch = space.add_hatch(color=256, dxfattribs={"layer": "A-WALL-PATT"})
    hatch.set_pattern_fill("ANSI31", scale=20)
    hatch.paths.add_polyline_path([(0, 0), (12000, 0), (12000, 9000), (0, 9000)])
    inside = [(OUTER, OUTER), (12000 - OUTER, OUTER), (12000 - OUTER, 9000 - OUTER)]
    hatch.paths.add_polyline_path(inside + [(OUTER, 9000 - OUTER)], flags=16)


def draw_openings(space):
    for hinge, turn, number in DOORS:
        door = space.add_blockref(
            "DOOR-900", hinge, dxfattribs={"layer": "A-DOOR", "rotation": turn}
        )
        door.add_auto_attribs({"NUMBER": number})
    for corner, turn in WINDOWS:
        space.add_blockref(
            "WINDOW-1500", corner, dxfattribs={"layer": "A-GLAZ", "rotation": turn}
        )


def draw_fittings(space):
    space.add_blockref("BATH-TUB", (9800, 7800), dxfattribs={"layer": "P-SANR"})
    space.add_circle((7600, 8300), 220, dxfattribs={"layer": "P-SANR"})
    space.add_blockref("TABLE-6", (1700, 2600), dxfattribs={"layer": "a-furn"})
    rectangle(space, (450, 450), (2400, 900), "a-furn")
    rectangle(space, (9000, 500), (1600, 800), "a-furn")
    for step in range(15):
        x = 5100 + 125 * step
        space.add_line((x, 7700), (x, 8600), dxfattribs={"layer": "A-FLOR-STRS"})
    rectangle(space, (-600, -600), (13200, 10200), "A-ROOF-OVHD")
    for x, label in ((182, "1"), (4942, "2"), (7057, "3"), (11818, "4")):
        space.add_line((x, -2600), (x, 10200), dxfattribs={"layer": "A-GRID"})
        space.add_circle((x, -2900), 300, dxfattribs={"layer": "A-GRID"})
        text(space, label, (x, -2900), 250, "A-GRID", "NOTES", "MIDDLE_CENTER")
    # The chimney comes down; the client knows, so the layer may stay.
    rectangle(space, (3200, 8000), (600, 600), "A-DEMO")
    space.add_line((3200, 8000), (3800, 8600), dxfattribs={"layer": "A-DEMO"})


def draw_annotation(space):
    for room, area, at in ROOMS:
        space.add_mtext(
            f"{room}\\P{area}",
            dxfattribs={
                "layer": "A-AREA-IDEN",
                "insert": at,
                "char_height": 200,
                "style": "NOTES",
                "attachment_point": 5,
            },
        )
    style = {"dimstyle": "A-100", "dxfattribs": {"layer": "A-ANNO-DIMS"}}
    xs = (0, 4942, 7057, 12000)
    for left, right in zip(xs, xs[1:]):
        space.add_linear_dim((0, -1200), (left, 0), (right, 0), **style).render()
    space.add_linear_dim((0, -1900), (0, 0), (12000, 0), **style).render()
    for low, high in ((0, 5057), (5057, 9000)):
        space.add_linear_dim((-1200, 0), (0, low), (0, high), angle=90, **style).render()
    space.add_linear_dim((-1900, 0), (0, 0), (0, 9000), angle=90, **style).render()
    # Copied from a plan of last year, with its style.
    old_style = {**style, "dimstyle": "A-100-OLD"}
    space.add_linear_dim((0, 9900), (OUTER, 9000), (4885, 9000), **old_style).render()
    space.add_leader([(3500, 8600), (3900, 10400), (4500, 10400)], **style)

    text(space, "All masonry to be checked on site.", (-3300, -4400), 180, "A-ANNO-NOTE", "NOTES")
    text(space, "Door heights 2010 unless noted.", (-3300, -4800), 180, "Layer1", "NOTES")
    rectangle(space, (-3600, -5600), (21000, 17200), "A-ANNO-TTLB")
    rectangle(space, (11400, -5600), (6000, 1800), "A-ANNO-TTLB")
    text(space, "existing chimney", (4600, 10330), 180, "A-ANNO-NOTE", "HANDWRITING")
    text(space, "House at the weir, ground floor", (11600, -4600), 280, "A-ANNO-TTLB", "TITLES")
    text(space, "1:100   sheet A-101", (11600, -5200), 220, "A-ANNO-TTLB", "NOTES")


def draw_services(space):
    space.add_lwpolyline(
        [(-600, 6500), (900, 6500), (900, 8500)],
        dxfattribs={"layer": "P-SANR", "linetype": "GAS", "ltscale": 20},
    )
    inside = [(OUTER, OUTER), (12000 - OUTER, OUTER)]
    space.add_lwpolyline(
        inside, dxfattribs={"layer": "A-WALL-PATT", "linetype": "INSULATION", "ltscale": 20}
    )


def make_styles(doc):
    add_line_style(doc, "INSULATION", "HIDDEN")
    add_text_styles(doc, TEXT_STYLES)
    arrows = {"dimblk": "OBLIQUE", "dimldrblk": "DOT"}
    add_dimension_style(doc, "A-100", "DIMS", scale=100, dimtxt=2.0, **arrows)
    add_dimension_style(doc, "A-100-OLD", "NOTES", scale=100, dimtxt=3.5, dimclrd=1)


def make():
    doc = new_drawing("R2010", ["DASHED2", "GAS"])
    add_layers(doc, LAYERS)
    # A shade of its own on the screen; the index is that of the standard.
    doc.layers.get("A-AREA-IDEN").rgb = (235, 235, 220)
    make_styles(doc)
    add_xref(doc, "survey", "survey-2019.dxf", [Layer("BOUNDARY", 1, lineweight=70)])
    make_blocks(doc)

    space = doc.modelspace()
    space.add_blockref("survey", (0, 0), dxfattribs={"layer": "A-ANNO-NOTE"})
    draw_walls(space)
    draw_openings(space)
    draw_fittings(space)
    draw_services(space)
    draw_annotation(space)

    doc.header["$CLAYER"] = "Layer1"
    set_standards(doc, ["office-standard.dxf"])
    ignore(doc.layers.get("A-DEMO"), "h.brandt")
    ignore(doc.styles.get("HANDWRITING"), "h.brandt")
    return doc
