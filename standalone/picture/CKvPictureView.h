// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QSize>
#include <QTransform>

#include <unordered_set>

class CKvObjectSlot;

/// From where, and in which colours, a picture is looked at.
struct CKvPictureView {
    /// From the plane of the drawing to pixels.
    QTransform toPixels;
    QSize size;
    QColor background = Qt::white;
    /// What is white on a dark ground and black on a light one.
    QColor foreground = Qt::black;
    QColor highlight = QColor(0x1e, 0x88, 0xe5);
    double pixelsPerMillimetre = 96 / 25.4;
    bool showsLineWeights = false;
    bool isSmooth = true;
    /// Entities of model space that are drawn in the colour of the highlight.
    std::unordered_set<const CKvObjectSlot *> selected;
};
