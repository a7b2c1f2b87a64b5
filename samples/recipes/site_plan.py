# SPDX-License-Identifier: MIT
"""A building site in Japan at 1:250, in millimetres, in the code page of a Japanese machine."""

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
from .styles import (
    TextStyle,
    add_dimension_style,
    add_line_style,
    add_text_styles,
    set_extended_data,
)

LAYERS = [
    Layer("敷地境界", 6, "PHANTOM", 50),
    Layer("道路", 8, "Continuous", 35),
    Layer("道路中心線", 8, "Continuous", 18),
    Layer("計画建物", 7, "Continuous", 50),
    Layer("既存建物", 9, "DASHED", 25),
    Layer("等高線-主曲線", 32, "Continuous", 13),
    Layer("等高線-計曲線", 32, "Continuous", 13),
    Layer("植栽", 3, "Continuous", 18),
    Layer("駐車場", 4, "Continuous", 25),
    Layer("給水", 5, "DASHED", 35),
    Layer("排水", 5, "PHANTOM", 25),
    Layer("寸法", 2, "Continuous", 18),
    Layer("文字", 7, "Continuous", 25),
    Layer("ｂｍ", 1, "Continuous", 35),
    Layer("绿化", 3, "Continuous", 13),
    Layer("A-ANNO-TTLB", 7, "Continuous", 50),
    Layer("樹木", 3, "Continuous", 18),
    Layer("ソーラー表示", 30, "Continuous", 25),
    Layer("Defpoints"),
]

BOUNDARY = [(0, 0), (42000, -1500), (45000, 29000), (21000, 33500), (-1500, 28000)]

TREES = [(2500, 3000), (2800, 9500), (2300, 16000), (3500, 25500), (12000, 29000), (40500, 26500)]


def make_blocks(doc):
    tree = doc.blocks.new("樹木記号")
    tree.add_circle((0, 0), 1200, dxfattribs={"layer": "0"})
    for angle in range(0, 360, 45):
        end = (1200 * cos(radians(angle)), 1200 * sin(radians(angle)))
        tree.add_line((0, 0), end, dxfattribs={"layer": "0"})

    mark = doc.blocks.new("ベンチマーク")
    mark.add_circle((0, 0), 400, dxfattribs={"layer": "0"})
    mark.add_line((-600, 0), (600, 0), dxfattribs={"layer": "0"})
    mark.add_line((0, -600), (0, 600), dxfattribs={"layer": "0"})


def draw_ground(space):
    space.add_lwpolyline(BOUNDARY, close=True, dxfattribs={"layer": "敷地境界"})
    space.add_lwpolyline(
        [(-8000, -2500), (-2000, -2700), (-1500, 28000)],
        dxfattribs={"layer": "道路", "linetype": "境界", "ltscale": 100},
    )
    space.add_line((-8000, -2500), (52000, -4600), dxfattribs={"layer": "道路"})
    space.add_line((-8000, -8500), (52000, -10600), dxfattribs={"layer": "道路"})
    space.add_line((-8000, -5500), (52000, -7600), dxfattribs={"layer": "道路中心線"})
    for step in range(9):
        y = 34000 - 3200 * step
        layer = "等高線-計曲線" if step % 5 == 0 else "等高線-主曲線"
        curve = [(-4000, y), (9000, y + 1800), (24000, y - 900), (38000, y + 1500), (49000, y - 600)]
        space.add_spline(curve, dxfattribs={"layer": layer})
        text(space, f"{42.0 + 0.5 * step:.1f}", (-6500, y - 250), 500, layer, "注記")


def draw_buildings(space):
    rectangle(space, (9000, 8000), (20000, 12500), "計画建物")
    rectangle(space, (29000, 11000), (6500, 9500), "計画建物")
    rectangle(space, (31500, 22500), (7000, 4500), "既存建物")
    for bay in range(8):
        rectangle(space, (10000 + 2500 * bay, 1200), (2500, 5000), "駐車場")
    rectangle(space, (36500, 6000), (5500, 12000), "绿化")
    for at in TREES:
        space.add_blockref("樹木記号", at, dxfattribs={"layer": "植栽"})
    # Planted by the garden designer, who has a standard of his own.
    for at in ((38000, 8000), (38500, 12000), (40500, 15500)):
        space.add_blockref("樹木記号", at, dxfattribs={"layer": "樹木"})
    space.add_lwpolyline(
        [(4000, -3000), (4000, 6000), (9000, 9000)], dxfattribs={"layer": "給水"}
    )
    space.add_lwpolyline(
        [(6000, -3000), (6000, 7000), (9000, 12000)], dxfattribs={"layer": "排水"}
    )
    for column in range(6):
        rectangle(space, (11000 + 2800 * column, 14500), (2400, 4200), "ソーラー表示")


def draw_annotation(space):
    style = {"dimstyle": "S-250", "dxfattribs": {"layer": "寸法"}}
    space.add_linear_dim((0, 22500), (9000, 20500), (29000, 20500), **style).render()
    space.add_linear_dim((7000, 0), (9000, 8000), (9000, 20500), angle=90, **style).render()
    space.add_linear_dim((0, 6800), (10000, 6200), (12500, 6200), **style).render()
    labels = [
        ("計画建物", (16500, 12500)),
        ("既存倉庫", (33000, 24000)),
        ("駐車場 8台", (17000, 3500)),
        ("市道 幅員6.0m", (18000, -5500)),
        ("中庭", (38500, 16500)),
    ]
    for label, at in labels:
        text(space, label, at, 900, "文字", "注記")
    space.add_blockref("ベンチマーク", (-3500, -1200), dxfattribs={"layer": "ｂｍ"})
    text(space, "KBM=42.000", (-3000, -900), 600, "ｂｍ", "注記")
    rectangle(space, (-14000, -18000), (74000, 58000), "A-ANNO-TTLB")
    text(space, "配置図 1:250", (40000, -15500), 1500, "A-ANNO-TTLB", "題名")


def make_styles(doc):
    add_line_style(doc, "境界", "DASHED")
    add_text_styles(
        doc,
        [
            # As the machines of the office wrote Japanese before they had TrueType.
            TextStyle("注記", "romans.shx", big_font="extfont2.shx"),
            TextStyle("題名", "msgothic.ttc", face="MS Gothic", is_bold=True),
        ],
    )
    style = add_dimension_style(doc, "S-250", "注記", scale=250, dimblk="DOT", dimclrt=1)
    # A drawing of this version has no group for the background of the text.
    set_extended_data(style, "ACAD_DSTYLE_DIMTEXT_FILL", [(1070, 376), (1070, 1)])


def make():
    doc = new_drawing("R2000", ["DASHED", "PHANTOM"], encoding="cp932")
    doc.line_end = "\r\n"
    make_styles(doc)
    add_layers(doc, LAYERS)
    doc.layers.get("既存建物").off()
    doc.layers.get("既存建物").lock()
    make_blocks(doc)

    space = doc.modelspace()
    draw_ground(space)
    draw_buildings(space)
    draw_annotation(space)

    set_standards(doc, ["site-standard.dxf", "office-standard.dxf"])
    ignore(doc.layers.get("ソーラー表示"), "山田")
    ignore(doc.styles.get("題名"), "山田")
    return doc
