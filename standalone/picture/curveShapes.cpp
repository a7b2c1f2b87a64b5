// SPDX-License-Identifier: MIT
#include "CKvEntitySource.h"
#include "CKvShapeSink.h"
#include "angles.h"
#include "curvePoints.h"
#include "entityShapes.h"

#include <cmath>

namespace
{

/// The parameter range from start to end, counter-clockwise, at most one turn.
double sweepOf(double start, double end)
{
    double sweep = std::fmod(end - start, 2 * kPi);
    if (sweep <= 1e-9) {
        sweep += 2 * kPi;
    }
    return sweep;
}

QPointF mappedDirection(const QTransform &transform, QPointF direction)
{
    return transform.map(direction) - transform.map(QPointF());
}

} // namespace

void readLine(const CKvEntitySource &source, CKvShapeSink &sink)
{
    // Ends of a line are points of the drawing, whatever its own plane is.
    sink.path({ source.tags.point(10), source.tags.point(11) });
}

void readRay(const CKvEntitySource &source, CKvShapeSink &sink)
{
    const QPointF direction = source.tags.point(11);
    if (!direction.isNull()) {
        const CKvTag *type = source.tags.find(0);
        sink.ray({ source.tags.point(10), direction, type && type->word() == "XLINE" });
    }
}

void readPoint(const CKvEntitySource &source, CKvShapeSink &sink)
{
    sink.path({ source.tags.point(10) });
}

void readCircle(const CKvEntitySource &source, CKvShapeSink &sink)
{
    const CKvEntityTags &tags = source.tags;
    const QTransform plane = tags.plane();
    const double radius = tags.real(40);
    CKvArcShape arc;
    arc.center = plane.map(tags.point(10));
    arc.u = mappedDirection(plane, { radius, 0 });
    arc.v = mappedDirection(plane, { 0, radius });
    arc.sweep = 2 * kPi;
    if (tags.find(0)->word() == "ARC") {
        arc.start = tags.real(50) * kPi / 180;
        arc.sweep = sweepOf(arc.start, tags.real(51, 360) * kPi / 180);
    }
    sink.arc(arc);
}

void readEllipse(const CKvEntitySource &source, CKvShapeSink &sink)
{
    // Centre and axis are points of the drawing; the plane only tells on which side the curve runs.
    const CKvEntityTags &tags = source.tags;
    CKvArcShape arc;
    arc.center = tags.point(10);
    arc.u = tags.point(11);
    const double side = tags.real(230, 1) < 0 ? -1 : 1;
    arc.v = QPointF(-arc.u.y(), arc.u.x()) * tags.real(40, 1) * side;
    arc.start = tags.real(41);
    arc.sweep = sweepOf(arc.start, tags.real(42, 2 * kPi));
    sink.arc(arc);
}

void readSpline(const CKvEntitySource &source, CKvShapeSink &sink)
{
    CKvSplineCurve curve;
    curve.degree = source.tags.integer(71, 3);
    std::vector<QPointF> through;
    for (const CKvTag &tag : source.tags.tags()) {
        const double number = CKvEntityTags::real(tag);
        switch (tag.code) {
        case 40:
            curve.knots.push_back(number);
            break;
        case 41:
            curve.weights.push_back(number);
            break;
        case 10:
            curve.controlPoints.emplace_back(number, 0);
            break;
        case 11:
            through.emplace_back(number, 0);
            break;
        case 20:
            if (!curve.controlPoints.empty()) {
                curve.controlPoints.back().setY(number);
            }
            break;
        case 21:
            if (!through.empty()) {
                through.back().setY(number);
            }
            break;
        default:
            break;
        }
    }
    sink.path(curve.controlPoints.empty() ? smoothedPoints(through) : splinePoints(curve));
}
