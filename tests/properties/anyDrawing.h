// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <rapidcheck.h>

#include <iosfwd>
#include <string>
#include <vector>

/// A drawing made by chance: few names, so that layers often bear those of the standards, in other
/// letters or twice.
struct CKvAnyDrawing {
    struct Layer {
        std::string name;
        int color = 7;
        int lineWeight = -3;
        std::string lineStyle;
    };
    struct Entity {
        std::string type;
        std::string layer;
        std::string lineStyle;
    };

    std::string version;
    bool hasCarriageReturns = false;
    std::vector<Layer> layers;
    std::vector<Entity> entities;
    std::string currentLayer;

    QByteArray toBytes() const;
};

std::ostream &operator<<(std::ostream &out, const CKvAnyDrawing &drawing);

/// Layers, some of them of the names that drawings have, as a file.
QByteArray standardsOfAnyDrawing();

namespace rc
{
template <> struct Arbitrary<CKvAnyDrawing> {
    static Gen<CKvAnyDrawing> arbitrary();
};
} // namespace rc
