// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QTransform>

#include <vector>

/// Appends the points of the arc between two vertices of a polyline, without the first one.
/// @param bulge the tangent of a quarter of the arc's angle, positive to the left; 0 for a line.
void appendBulge(std::vector<QPointF> &points, QPointF from, QPointF to, double bulge);
/// Appends the points of a part of an ellipse, both ends included.
/// @param u @param v half axes; the curve is center + u cos t + v sin t.
/// @param start @param sweep in radians; a negative sweep runs clockwise.
void appendArc(
    std::vector<QPointF> &points, QPointF center, QPointF u, QPointF v, double start, double sweep);

/// A curve of B-splines.
struct CKvSplineCurve {
    int degree = 3;
    std::vector<double> knots;
    std::vector<QPointF> controlPoints;
    /// As many as control points, or none.
    std::vector<double> weights;
};
/// @return points on the curve; the control points themselves when the knots don't fit.
std::vector<QPointF> splinePoints(const CKvSplineCurve &curve);
/// @return points on a smooth curve through those given.
std::vector<QPointF> smoothedPoints(const std::vector<QPointF> &through);

/// Moves all points.
void mapPoints(std::vector<QPointF> &points, const QTransform &transform);
