# SPDX-License-Identifier: MIT
"""What the recipes share: new drawings, layers, standards lists, stamps, shapes, writing."""

import io
import re
from collections import namedtuple

import ezdxf

from .styles import add_line_styles

# Flags of a block that comes from another file.
XREF_FLAGS = 4 | 32

# Group 70 of a layer of another file that was found when the drawing was last opened.
XREF_LAYER_FLAGS = 16 | 32

# A layer as a standard or a drawing has it. The lineweight is in hundredths of a millimetre.
Layer = namedtuple("Layer", "name color line_style lineweight", defaults=(7, "Continuous", -3))


def new_drawing(version, line_styles=(), encoding=None):
    """A drawing in millimetres without the layer for definition points."""
    doc = ezdxf.new(version)
    if encoding:
        doc.encoding = encoding
    doc.header["$INSUNITS"] = 4
    doc.header["$MEASUREMENT"] = 1
    doc.layers.remove("Defpoints")
    # Drawings before R2007 have no group for it, which means 1.0.
    doc.dimstyles.get("Standard").dxf.dimfxl = 1.0
    add_line_styles(doc, line_styles)
    return doc


def add_layers(doc, layers):
    for layer in layers:
        doc.layers.add(
            layer.name,
            color=layer.color,
            linetype=layer.line_style,
            lineweight=layer.lineweight,
        )


def add_xref(doc, name, path, layers):
    """A block of another file, with the layers that it brought along as `name|layer`."""
    doc.add_xref_def(path, name, flags=XREF_FLAGS)
    for layer in layers:
        record = doc.layers.add(layer.name, color=layer.color, lineweight=layer.lineweight)
        # The bar is a character that no layer of the drawing's own can have.
        record.dxf.unprotected_set("name", f"{name}|{layer.name}")
        record.dxf.flags = XREF_LAYER_FLAGS


def set_standards(doc, paths):
    """Names the standards files of the drawing, in the order in which they count."""
    standards = doc.rootdict.add_new_dict("AcStStandard", hard_owned=True)
    for index, path in enumerate(paths):
        standards.add_xrecord(str(index)).reset([(1, path)])


def ignore(record, user):
    """Stamps the violation of a layer or a style as ignored by a user."""
    extension = record.new_extension_dict()
    stamp = extension.dictionary.add_new_dict("AcStStandard", hard_owned=True)
    stamp.add_xrecord("AcStFlags").reset([(300, user), (90, 1)])


def rectangle(space, corner, size, layer, **attributes):
    """A closed polyline from its lower left corner and its width and height."""
    (x, y), (width, height) = corner, size
    points = [(x, y), (x + width, y), (x + width, y + height), (x, y + height)]
    return space.add_lwpolyline(points, close=True, dxfattribs={"layer": layer, **attributes})


def text(space, content, at, height, layer, style="Standard", align="LEFT"):
    entity = space.add_text(content, dxfattribs={"layer": layer, "height": height, "style": style})
    entity.set_pos(at, align=align)
    return entity


def write(doc, path, line_end="\n"):
    """Writes the drawing with the line ends that its recipe asks for."""
    stream = io.StringIO()
    doc.write(stream)
    content = stream.getvalue().encode(doc.output_encoding, errors="dxfreplace")
    # Drawing programs write the digits of an escaped character in upper case.
    content = re.sub(rb"\\U\+[0-9a-f]{4}", lambda found: b"\\U+" + found[0][3:].upper(), content)
    line_end = getattr(doc, "line_end", line_end)
    path.write_bytes(content.replace(b"\n", line_end.encode()))
