// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <rapidcheck.h>

#include <iosfwd>
#include <string>
#include <vector>

/// A drawing made by chance: few names, so that records often bear those of the standards, in other
/// letters or twice.
struct CKvAnyDrawing {
    struct Layer {
        std::string name;
        int color = 7;
        int lineWeight = -3;
        std::string lineStyle;
    };
    /// A text style, a dimension style or a line style.
    struct Style {
        std::string name;
        /// Its height, or the length of its dashes.
        int size = 1;
        /// Of a dimension style: the text style that it names.
        std::string textStyle;
    };
    struct Entity {
        std::string type;
        std::string layer;
        std::string lineStyle;
        /// Of a text and a dimension.
        std::string textStyle;
        std::string dimStyle;
    };

    std::string version;
    bool hasCarriageReturns = false;
    std::vector<Layer> layers;
    std::vector<Style> lineStyles;
    std::vector<Style> textStyles;
    std::vector<Style> dimStyles;
    std::vector<Entity> entities;
    std::string currentLayer;

    QByteArray toBytes() const;
};

std::ostream &operator<<(std::ostream &out, const CKvAnyDrawing &drawing);

/// Layers and styles, some of them of the names that drawings have, as a file.
QByteArray standardsOfAnyDrawing();

namespace rc
{
template <> struct Arbitrary<CKvAnyDrawing> {
    static Gen<CKvAnyDrawing> arbitrary();
};
} // namespace rc
