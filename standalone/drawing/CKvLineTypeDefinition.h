// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

/// A line style as a .lin file defines it.
struct CKvLineTypeDefinition {
    /// A dash (above 0), a gap (below 0) or a dot (0), with the text or shape that follows it.
    struct Element {
        enum class Kind { Plain, Text, Shape };
        Kind kind = Kind::Plain;
        double length = 0;
        /// The text, or the shape's name.
        QString content;
        /// The text style of a text, the shape file of a shape.
        QString style;
        double scale = 1;
        double rotationDegrees = 0;
        /// The rotation counts from the drawing's axes, not from the line.
        bool isRotationAbsolute = false;
        double offsetX = 0;
        double offsetY = 0;
    };

    /// As spelled in the file.
    QString name;
    QString description;
    std::vector<Element> elements;
};
