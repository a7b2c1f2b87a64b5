// SPDX-License-Identifier: MIT
#include "curvePoints.h"

#include <gtest/gtest.h>

#include <cmath>

TEST(CurvePoints, ABulgeOfOneIsAHalfCircleToTheRightOfTheWay)
{
    std::vector<QPointF> points;

    appendBulge(points, { 0, 0 }, { 10, 0 }, 1);

    ASSERT_EQ(points.size(), 36U);
    EXPECT_EQ(points.back(), QPointF(10, 0));
    for (const QPointF &point : points) {
        EXPECT_NEAR(std::hypot(point.x() - 5, point.y()), 5, 1e-9);
        EXPECT_LE(point.y(), 1e-9);
    }
}

TEST(CurvePoints, ANegativeBulgeLiesOnTheOtherSide)
{
    std::vector<QPointF> points;

    appendBulge(points, { 0, 0 }, { 10, 0 }, -std::tan(0.25 * std::acos(0.0)));

    // A quarter of a circle around (5, -5).
    for (const QPointF &point : points) {
        EXPECT_NEAR(std::hypot(point.x() - 5, point.y() + 5), std::sqrt(50.0), 1e-9);
        EXPECT_GE(point.y(), -1e-9);
    }
}

TEST(CurvePoints, NoBulgeIsALine)
{
    std::vector<QPointF> points;

    appendBulge(points, { 0, 0 }, { 10, 0 }, 0);

    EXPECT_EQ(points, (std::vector<QPointF> { { 10, 0 } }));
}

TEST(CurvePoints, ASplineOfDegreeOneRunsThroughItsPoints)
{
    CKvSplineCurve curve;
    curve.degree = 1;
    curve.controlPoints = { { 0, 0 }, { 12, 0 }, { 12, 24 } };
    curve.knots = { 0, 0, 1, 2, 2 };

    const std::vector<QPointF> points = splinePoints(curve);

    ASSERT_EQ(points.size(), 25U);
    EXPECT_EQ(points[0], QPointF(0, 0));
    EXPECT_NEAR(points[6].x(), 6, 1e-9);
    EXPECT_EQ(points[12], QPointF(12, 0));
    EXPECT_EQ(points[24], QPointF(12, 24));
}

TEST(CurvePoints, AWeightedSplineCanBeACircle)
{
    CKvSplineCurve curve;
    curve.degree = 2;
    curve.controlPoints = { { 1, 0 }, { 1, 1 }, { 0, 1 } };
    curve.knots = { 0, 0, 0, 1, 1, 1 };
    curve.weights = { 1, std::sqrt(0.5), 1 };

    for (const QPointF &point : splinePoints(curve)) {
        EXPECT_NEAR(std::hypot(point.x(), point.y()), 1, 1e-9);
    }
}

TEST(CurvePoints, ASplineWhoseKnotsDoNotFitShowsItsControlPoints)
{
    CKvSplineCurve curve;
    curve.controlPoints = { { 0, 0 }, { 1, 1 }, { 2, 0 }, { 3, 1 } };
    curve.knots = { 0, 1 };

    EXPECT_EQ(splinePoints(curve), curve.controlPoints);
}
