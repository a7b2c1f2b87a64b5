// SPDX-License-Identifier: MIT
#pragma once

#include "CKvBox.h"

#include <QColor>
#include <QLineF>
#include <QPainter>

#include <vector>

/// Gathers lines of one pen, cut to what is in sight and broken into dashes, so that the painter is
/// called for many at a time. All in pixels.
class CKvLineBatch
{
public:
    struct Pen {
        QRgb color = 0;
        /// 0 for the thinnest line.
        double width = 0;
        /// Dashes above 0, gaps below, dots 0, in pixels; empty for a continuous line.
        std::vector<double> dashes;
    };

    CKvLineBatch(QPainter &painter, const CKvBox &sight)
        : m_painter(painter)
        , m_sight(sight)
    {
    }

    void setPen(const Pen &pen);
    /// A line through all points; dashes run on from one part to the next.
    void addPath(const std::vector<QPointF> &points);
    void addLine(const QLineF &line);
    void addDot(QPointF point);
    /// Dashes of a line from a given place, which may lie outside of it.
    /// @param start distance from the line's first point to the beginning of a first dash.
    void addDashes(const QLineF &line, double start);
    /// Hands everything to the painter.
    void flush();

    /// Cuts a line to a box.
    /// @return false when nothing of it is within.
    static bool clip(QLineF &line, const CKvBox &box);

private:
    QPainter &m_painter;
    CKvBox m_sight;
    Pen m_pen;
    double m_patternLength = 0;
    std::vector<QLineF> m_lines;
};
