// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QRectF>
#include <QTransform>

#include <algorithm>
#include <limits>

/// A range of the plane with its axes upright; empty until something is added.
struct CKvBox {
    double left = std::numeric_limits<double>::infinity();
    double bottom = std::numeric_limits<double>::infinity();
    double right = -std::numeric_limits<double>::infinity();
    double top = -std::numeric_limits<double>::infinity();

    bool isEmpty() const { return !(left <= right); }
    double width() const { return isEmpty() ? 0 : right - left; }
    double height() const { return isEmpty() ? 0 : top - bottom; }
    QPointF center() const { return { (left + right) / 2, (bottom + top) / 2 }; }
    void add(QPointF point)
    {
        left = std::min(left, point.x());
        right = std::max(right, point.x());
        bottom = std::min(bottom, point.y());
        top = std::max(top, point.y());
    }
    void add(const CKvBox &other)
    {
        left = std::min(left, other.left);
        right = std::max(right, other.right);
        bottom = std::min(bottom, other.bottom);
        top = std::max(top, other.top);
    }
    bool meets(const CKvBox &other) const
    {
        return left <= other.right && other.left <= right && bottom <= other.top
            && other.bottom <= top;
    }
    bool contains(const CKvBox &other) const
    {
        return left <= other.left && other.right <= right && bottom <= other.bottom
            && other.top <= top;
    }
    CKvBox grownBy(double margin) const
    {
        return { left - margin, bottom - margin, right + margin, top + margin };
    }
    /// The box around this one as the transform leaves it.
    CKvBox mapped(const QTransform &transform) const
    {
        CKvBox box;
        if (!isEmpty()) {
            box.add(transform.map(QPointF(left, bottom)));
            box.add(transform.map(QPointF(right, bottom)));
            box.add(transform.map(QPointF(left, top)));
            box.add(transform.map(QPointF(right, top)));
        }
        return box;
    }
};
