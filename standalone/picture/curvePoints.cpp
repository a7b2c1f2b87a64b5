// SPDX-License-Identifier: MIT
#include "curvePoints.h"

#include "angles.h"

#include <algorithm>
#include <cmath>

namespace
{

// Five degrees: an arc as tall as a screen strays from its chords by less than a pixel.
constexpr double kStep = kPi / 36;
constexpr int kPointsOfSpan = 12;
constexpr std::size_t kMostSplinePoints = 20000;

/// The point at a parameter by de Boor's scheme, over homogeneous coordinates.
QPointF pointAt(const CKvSplineCurve &curve, std::size_t span, double parameter)
{
    struct Weighted {
        double x;
        double y;
        double w;
    };
    const auto degree = std::size_t(curve.degree);
    std::vector<Weighted> points(degree + 1);
    for (std::size_t j = 0; j <= degree; ++j) {
        const std::size_t at = span - degree + j;
        const double weight = curve.weights.empty() ? 1 : curve.weights[at];
        const QPointF &point = curve.controlPoints[at];
        points[j] = { point.x() * weight, point.y() * weight, weight };
    }
    for (std::size_t level = 1; level <= degree; ++level) {
        for (std::size_t j = degree; j >= level; --j) {
            const double low = curve.knots[span - degree + j];
            const double high = curve.knots[span + 1 + j - level];
            const double part = high > low ? (parameter - low) / (high - low) : 0;
            const Weighted &before = points[j - 1];
            Weighted &point = points[j];
            point = { before.x + (point.x - before.x) * part,
                      before.y + (point.y - before.y) * part,
                      before.w + (point.w - before.w) * part };
        }
    }
    const Weighted &found = points[degree];
    return std::abs(found.w) < 1e-300 ? QPointF(found.x, found.y)
                                      : QPointF(found.x / found.w, found.y / found.w);
}

bool isComplete(const CKvSplineCurve &curve)
{
    const std::size_t count = curve.controlPoints.size();
    return curve.degree >= 1 && curve.degree <= 25 && count > std::size_t(curve.degree)
        && curve.knots.size() == count + std::size_t(curve.degree) + 1
        && std::is_sorted(curve.knots.begin(), curve.knots.end())
        && (curve.weights.empty() || curve.weights.size() == count);
}

} // namespace

void appendBulge(std::vector<QPointF> &points, QPointF from, QPointF to, double bulge)
{
    const QPointF chord = to - from;
    if (std::abs(bulge) > 1e-9 && std::abs(bulge) < 1e6 && !chord.isNull()) {
        const double offset = (1 - bulge * bulge) / (4 * bulge);
        const QPointF center = (from + to) / 2 + QPointF(-chord.y(), chord.x()) * offset;
        const QPointF u = from - center;
        const double sweep = 4 * std::atan(bulge);
        const int steps = int(std::ceil(std::abs(sweep) / kStep));
        for (int i = 1; i < steps; ++i) {
            const double angle = sweep * i / steps;
            points.push_back(center + u * std::cos(angle)
                             + QPointF(-u.y(), u.x()) * std::sin(angle));
        }
    }
    points.push_back(to);
}

void appendArc(
    std::vector<QPointF> &points, QPointF center, QPointF u, QPointF v, double start, double sweep)
{
    const double turns = std::clamp(sweep, -2 * kPi, 2 * kPi);
    const int steps = std::max(1, int(std::ceil(std::abs(turns) / kStep)));
    for (int i = 0; i <= steps; ++i) {
        const double angle = start + turns * i / steps;
        points.push_back(center + u * std::cos(angle) + v * std::sin(angle));
    }
}

std::vector<QPointF> splinePoints(const CKvSplineCurve &curve)
{
    if (!isComplete(curve)) {
        return curve.controlPoints;
    }
    std::vector<QPointF> points;
    const auto degree = std::size_t(curve.degree);
    for (std::size_t span = degree; span < curve.controlPoints.size(); ++span) {
        const double from = curve.knots[span];
        const double to = curve.knots[span + 1];
        if (!(to > from) || points.size() > kMostSplinePoints) {
            continue;
        }
        for (int i = points.empty() ? 0 : 1; i <= kPointsOfSpan; ++i) {
            points.push_back(pointAt(curve, span, from + (to - from) * i / kPointsOfSpan));
        }
    }
    return points;
}

std::vector<QPointF> smoothedPoints(const std::vector<QPointF> &through)
{
    if (through.size() < 3) {
        return through;
    }
    std::vector<QPointF> points { through.front() };
    for (std::size_t i = 0; i + 1 < through.size(); ++i) {
        const QPointF &before = through[i == 0 ? 0 : i - 1];
        const QPointF &from = through[i];
        const QPointF &to = through[i + 1];
        const QPointF &behind = through[std::min(i + 2, through.size() - 1)];
        for (int step = 1; step <= kPointsOfSpan; ++step) {
            const double t = double(step) / kPointsOfSpan;
            points.push_back(0.5
                             * (2 * from + (to - before) * t
                                + (2 * before - 5 * from + 4 * to - behind) * t * t
                                + (3 * from - before - 3 * to + behind) * t * t * t));
        }
    }
    return points;
}

void mapPoints(std::vector<QPointF> &points, const QTransform &transform)
{
    for (QPointF &point : points) {
        point = transform.map(point);
    }
}
