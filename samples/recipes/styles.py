# SPDX-License-Identifier: MIT
"""Line styles, text styles and dimension styles of the samples."""

from collections import namedtuple

from ezdxf.render.arrows import ARROWS

# Simple line styles in millimetres, as lengths of dashes, gaps (negative) and dots (0).
LINE_STYLES = {
    "CENTER": ("Center ____ _ ____ _ ____ _ ____", [31.75, -6.35, 6.35, -6.35]),
    "CENTER2": ("Center (.5x) ___ _ ___ _ ___ _ ___", [19.05, -3.175, 3.175, -3.175]),
    "DASHED": ("Dashed __ __ __ __ __ __ __ __", [12.7, -6.35]),
    "DASHED2": ("Dashed (.5x) _ _ _ _ _ _ _ _ _", [6.35, -3.175]),
    "HIDDEN": ("Hidden __ __ __ __ __ __ __ __", [6.35, -3.175]),
    "PHANTOM": (
        "Phantom ______  __  __  ______",
        [31.75, -6.35, 6.35, -6.35, 6.35, -6.35],
    ),
}

# Complex line styles: description, length of the pattern, definition. A number names a shape of a
# shape file, a text is written in a text style.
COMPLEX_LINE_STYLES = {
    "GAS": (
        "Gas ----GAS----GAS----GAS----",
        24.13,
        'A,12.7,-5.08,["GAS",STANDARD,S=2.54,X=-2.54,Y=-1.27],-6.35',
    ),
    "INSULATION": (
        "Insulation SSSSSSSSSSSSSSSSSSSS",
        10.16,
        "A,0,-2.54,[135,ltypeshp.shx,X=-2.54,S=2.54],-5.08,"
        "[135,ltypeshp.shx,R=180,X=2.54,S=2.54],-2.54",
    ),
    "境界": ("境界 ----境----境----", 30.0, 'A,18,-4,["境",STANDARD,S=3,X=-1.5,Y=-1.5],-8'),
}

# A text style. A face makes it a TrueType style, whose letters may be bold or italic.
TextStyle = namedtuple(
    "TextStyle",
    "name font big_font height width oblique face is_bold is_italic",
    defaults=("", 0.0, 1.0, 0.0, "", False, False),
)

# Flags behind the name of a face: letters of various widths without serifs.
PITCH_AND_FAMILY = 0x22
BOLD = 0x02000000
ITALIC = 0x01000000


def add_line_styles(doc, names):
    for name in names:
        add_line_style(doc, name, name)


def add_line_style(doc, name, definition, scale=1.0):
    """A line style with the pattern of a definition, whatever its own name."""
    if definition in COMPLEX_LINE_STYLES:
        description, length, pattern = COMPLEX_LINE_STYLES[definition]
        return doc.linetypes.add(name, pattern, description=description, length=length)
    description, dashes = LINE_STYLES[definition]
    # Rounded, so that no digits of binary fractions show in the file.
    dashes = [round(dash * scale, 6) for dash in dashes]
    length = round(sum(abs(dash) for dash in dashes), 6)
    return doc.linetypes.add(name, [length] + dashes, description=description)


def add_text_styles(doc, styles):
    for style in styles:
        record = doc.styles.add(style.name, font=style.font)
        record.dxf.bigfont = style.big_font
        record.dxf.height = style.height
        record.dxf.width = style.width
        record.dxf.oblique = style.oblique
        if style.face:
            flags = PITCH_AND_FAMILY + BOLD * style.is_bold + ITALIC * style.is_italic
            record.set_xdata("ACAD", [(1000, style.face), (1071, flags)])


def make_annotative(record, matches_sheet=False):
    """Lets texts or dimensions of the style follow the scale of a sheet."""
    set_extended_data(
        record,
        "AcadAnnotative",
        [(1000, "AnnotativeData"), (1002, "{"), (1070, 1), (1070, 1), (1002, "}")],
    )
    if matches_sheet:
        set_extended_data(record, "AcadAnnoPO", [(1070, 1)])


def set_extended_data(record, application, tags):
    appids = record.doc.appids
    if application not in appids:
        appids.new(application)
    record.set_xdata(application, tags)


def add_dimension_style(doc, name, text_style, scale=1.0, **values):
    """A metric style with the text above the line.

    The values are those of the dimension variables in which it differs from that, by their names
    in small letters. Arrows are named without the underscore of their blocks.
    """
    style = doc.dimstyles.new(name)
    metric = {
        "dimscale": scale,
        "dimtxt": 2.5,
        "dimasz": 2.5,
        "dimexo": 1.0,
        "dimexe": 1.25,
        "dimgap": 0.75,
        "dimtad": 1,
        "dimtih": 0,
        "dimtoh": 0,
        "dimdec": 0,
        "dimzin": 8,
        "dimdsep": ord("."),
        "dimfxl": 1.0,
        "dimtxsty": text_style,
    }
    style.update_dxf_attribs({**metric, **values})
    for variable in ("dimblk", "dimblk1", "dimblk2", "dimldrblk"):
        arrow = style.dxf.get(variable)
        if arrow and ARROWS.is_acad_arrow(arrow):
            ARROWS.create_block(doc.blocks, arrow)
    return style
