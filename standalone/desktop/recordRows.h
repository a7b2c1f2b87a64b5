// SPDX-License-Identifier: MIT
#pragma once

#include "layerState.h"
#include "recordTables.h"

#include <QColor>
#include <QString>

#include <vector>

class CKvHostDocument;

/// A layer or a style as the panel lists it.
struct CKvRecordRow {
    CKvRecordKind kind = CKvRecordKind::Layer;
    OdDbObjectId id;
    QString name;
    /// New things come out in it.
    bool isCurrent = false;
    /// A layer's line style, a line style's description, a text style's font, a dimension style's
    /// text style.
    QString details;
    /// A layer's lineweight, the length of a pattern, the height of texts.
    QString size;
    /// Of a layer, as is the state.
    QColor color;
    QString colorName;
    CKvLayerState state;

    bool isSameAs(const CKvRecordRow &other) const;
};

/// Layers, line styles, text styles, dimension styles, each in the order of the drawing. Shape
/// files and what an external reference brought are left out: nobody can change them here.
std::vector<CKvRecordRow> recordRows(const CKvHostDocument &document);
