# SPDX-License-Identifier: MIT
"""A flange with a hub: front view, section A-A, title block; millimetres at 1:1 on an A3 sheet."""

from math import cos, radians, sin

from .common import (
    Layer,
    add_layers,
    ignore,
    new_drawing,
    rectangle,
    set_standards,
    text,
)
from .styles import TextStyle, add_dimension_style, add_line_style, add_text_styles

FRONT = (110.0, 170.0)
SECTION_X = 250.0
FLANGE_RADIUS = 80.0
FLANGE_WIDTH = 18.0
HUB_RADIUS = 42.0
HUB_WIDTH = 40.0
BORE_RADIUS = 25.0
BOLT_CIRCLE_RADIUS = 62.0
BOLT_RADIUS = 5.5
BOLT_COUNT = 6

LAYERS = [
    Layer("Outline", 7, "Continuous", 50),
    # Three of four were right once; somebody made them all green.
    Layer("HIDDEN", 3, "DASHED", 25),
    Layer("CENTER", 3, "CENTER2", 18),
    Layer("THREAD", 3, "Continuous", 25),
    Layer("HATCHING", 8, "Continuous", -3),
    Layer("DIMENSION", 2, "Continuous", 25),
    Layer("TEXT", 7, "Continuous", 35),
    Layer("SECTION LINE", 5, "PHANTOM", 50),
    Layer("TITLE BLOCK", 7, "Continuous", 100),
    Layer("CENTRE LINES", 1, "CENTER2", 25),
    Layer("0_CONSTRUCTION", 6, "Continuous", 0),
    Layer("Defpoints"),
]


def on_front(radius, angle):
    return FRONT[0] + radius * cos(radians(angle)), FRONT[1] + radius * sin(radians(angle))


def make_blocks(doc):
    bolt = doc.blocks.new("TAPPED-M12")
    bolt.add_circle((0, 0), BOLT_RADIUS, dxfattribs={"layer": "Outline"})
    bolt.add_arc((0, 0), 6.0, 0, 270, dxfattribs={"layer": "THREAD"})
    for end in ((9, 0), (0, 9)):
        bolt.add_line((-end[0], -end[1]), end, dxfattribs={"layer": "CENTER"})


def draw_front(space):
    for radius in (FLANGE_RADIUS, HUB_RADIUS, BORE_RADIUS):
        space.add_circle(FRONT, radius, dxfattribs={"layer": "Outline"})
    space.add_circle(FRONT, HUB_RADIUS - 4, dxfattribs={"layer": "HIDDEN"})
    # The bolt circle came with a part of another company, on its layer.
    space.add_circle(FRONT, BOLT_CIRCLE_RADIUS, dxfattribs={"layer": "CENTRE LINES"})
    reach = FLANGE_RADIUS + 8
    space.add_line(
        (FRONT[0] - reach, FRONT[1]), (FRONT[0] + reach, FRONT[1]), dxfattribs={"layer": "CENTER"}
    )
    space.add_line(
        (FRONT[0], FRONT[1] - reach), (FRONT[0], FRONT[1] + reach), dxfattribs={"layer": "CENTER"}
    )
    for index in range(BOLT_COUNT):
        angle = 90 + index * 360 / BOLT_COUNT
        space.add_blockref(
            "TAPPED-M12",
            on_front(BOLT_CIRCLE_RADIUS, angle),
            dxfattribs={"layer": "0", "rotation": angle},
        )
    for end in (reach + 6, -reach - 6):
        space.add_line(
            (FRONT[0], FRONT[1] + end),
            (FRONT[0], FRONT[1] + end * 0.92),
            dxfattribs={"layer": "SECTION LINE"},
        )
        text(space, "A", (FRONT[0] + 4, FRONT[1] + end), 5, "TEXT", "ISO")


def half_section(direction):
    """The cut half above (1) or below (-1) the axis, from the bore outwards."""
    y = FRONT[1]
    return [
        (SECTION_X, y + direction * BORE_RADIUS),
        (SECTION_X + HUB_WIDTH, y + direction * BORE_RADIUS),
        (SECTION_X + HUB_WIDTH, y + direction * HUB_RADIUS),
        (SECTION_X + FLANGE_WIDTH, y + direction * HUB_RADIUS),
        (SECTION_X + FLANGE_WIDTH, y + direction * FLANGE_RADIUS),
        (SECTION_X, y + direction * FLANGE_RADIUS),
    ]


def draw_section(space):
    y = FRONT[1]
    for direction in (1, -1):
        half = half_section(direction)
        space.add_lwpolyline(half, close=True, dxfattribs={"layer": "Outline"})
        hatch = space.add_hatch(color=256, dxfattribs={"layer": "HATCHING"})
        hatch.set_pattern_fill("ANSI31", scale=1.0)
        hatch.paths.add_polyline_path(half)
        bolt_y = y + direction * BOLT_CIRCLE_RADIUS
        for offset in (BOLT_RADIUS, -BOLT_RADIUS):
            space.add_line(
                (SECTION_X, bolt_y + offset),
                (SECTION_X + FLANGE_WIDTH, bolt_y + offset),
                dxfattribs={"layer": "HIDDEN"},
            )
        space.add_line(
            (SECTION_X - 4, bolt_y),
            (SECTION_X + FLANGE_WIDTH + 4, bolt_y),
            dxfattribs={"layer": "CENTER"},
        )
    space.add_line(
        (SECTION_X - 8, y), (SECTION_X + HUB_WIDTH + 8, y), dxfattribs={"layer": "CENTER"}
    )
    for height in (FLANGE_RADIUS, HUB_RADIUS, BORE_RADIUS):
        space.add_line(
            (FRONT[0], y + height), (SECTION_X, y + height), dxfattribs={"layer": "0_CONSTRUCTION"}
        )
    text(space, "A-A", (SECTION_X + 9, y + 92), 5, "TEXT", "ISO")


def draw_annotation(space):
    y = FRONT[1]
    style = {"dimstyle": "ISO-25", "dxfattribs": {"layer": "DIMENSION"}}
    widths = ((FLANGE_WIDTH, 12), (HUB_WIDTH, 22))
    for width, distance in widths:
        space.add_linear_dim(
            (SECTION_X, y - FLANGE_RADIUS - distance),
            (SECTION_X, y - FLANGE_RADIUS),
            (SECTION_X + width, y - HUB_RADIUS),
            **style,
        ).render()
    diameters = ((BORE_RADIUS, 14, "H7"), (HUB_RADIUS, 26, ""), (FLANGE_RADIUS, 38, ""))
    for radius, distance, fit in diameters:
        space.add_linear_dim(
            (SECTION_X + HUB_WIDTH + distance, y),
            (SECTION_X + HUB_WIDTH, y - radius),
            (SECTION_X + HUB_WIDTH, y + radius),
            angle=90,
            text=f"%%c<>{fit}",
            **style,
        ).render()
    space.add_diameter_dim(FRONT, radius=BOLT_CIRCLE_RADIUS, angle=45, **style).render()
    toleranced = {**style, "dimstyle": "ISO-TOL"}
    reach = SECTION_X + HUB_WIDTH + 50
    space.add_linear_dim(
        (reach, y), (SECTION_X, y - 25), (SECTION_X, y + 62), angle=90, **toleranced
    ).render()
    fitted = {**style, "dimstyle": "FITS"}
    space.add_linear_dim(
        (FRONT[0], y - FLANGE_RADIUS - 12), on_front(25, 180), on_front(25, 0), **fitted
    ).render()
    text(space, "6 x M12", on_front(BOLT_CIRCLE_RADIUS + 26, 62), 3.5, "TEXT", "ISO")

    rectangle(space, (10, 10), (400, 277), "TITLE BLOCK")
    rectangle(space, (230, 10), (180, 40), "TITLE BLOCK")
    text(space, "Flange with hub", (236, 34), 5, "TEXT", "TITLE")
    text(space, "S235JR   1:1   drawing 4711-02", (236, 20), 3.5, "TEXT", "ISO")


def make_styles(doc):
    # Came from a drawing in inches.
    add_line_style(doc, "PHANTOM", "PHANTOM", scale=1 / 25.4)
    add_text_styles(
        doc,
        [
            TextStyle("ISO", "isocp.shx", width=0.8),
            TextStyle("TITLE", "arial.ttf", oblique=15, face="Arial", is_italic=True),
        ],
    )
    values = {"dimasz": 3.0, "dimdsep": ord(",")}
    add_dimension_style(doc, "ISO-25", "ISO", **values)
    # What differs for diameters; not a style of its own.
    add_dimension_style(doc, "ISO-25$3", "ISO", **values, dimtix=1)
    tolerance = {"dimtol": 1, "dimtp": 0.1, "dimtm": 0.2, "dimtdec": 1}
    arrows = {"dimsah": 1, "dimblk1": "DOTSMALL", "dimblk2": "OBLIQUE"}
    add_dimension_style(doc, "ISO-TOL", "ISO", **tolerance, **arrows)
    add_dimension_style(doc, "FITS", "ISO", dimtxt=1.8, dimpost="<> H7")


def make():
    doc = new_drawing("R2018", ["CENTER2", "DASHED"])
    make_styles(doc)
    add_layers(doc, LAYERS)
    make_blocks(doc)

    space = doc.modelspace()
    draw_front(space)
    draw_section(space)
    draw_annotation(space)

    set_standards(doc, ["mechanical-standard.dxf"])
    ignore(doc.dimstyles.get("FITS"), "k.lindner")
    return doc
