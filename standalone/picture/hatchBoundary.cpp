// SPDX-License-Identifier: MIT
#include "hatchBoundary.h"

#include "CKvEntityTags.h"
#include "angles.h"
#include "curvePoints.h"

#include <algorithm>
#include <cmath>

namespace
{

constexpr int kMostFamilies = 200;

/// Walks the tags of a hatch, in which the same code means different things at different places.
class CKvHatchReader
{
public:
    explicit CKvHatchReader(const std::vector<CKvTag> &tags)
        : m_tags(tags)
    {
    }

    CKvHatchBoundary read()
    {
        CKvHatchBoundary hatch;
        seek(91);
        const int loops = takeCount(91);
        for (int i = 0; i < loops && seekBefore(92, 75); ++i) {
            readLoop();
            hatch.rings.push_back(std::move(m_ring));
            m_ring.clear();
        }
        if (seek(78)) {
            const int families = std::min(takeCount(78), kMostFamilies);
            for (int i = 0; i < families && m_at < m_tags.size() && m_tags[m_at].code == 53; ++i) {
                hatch.families.push_back(readFamily());
            }
        }
        return hatch;
    }

private:
    bool seek(int code)
    {
        while (m_at < m_tags.size() && m_tags[m_at].code != code) {
            ++m_at;
        }
        return m_at < m_tags.size();
    }
    /// As seek, but not past a tag of another code.
    bool seekBefore(int code, int limit)
    {
        while (m_at < m_tags.size() && m_tags[m_at].code != code) {
            if (m_tags[m_at].code == limit) {
                return false;
            }
            ++m_at;
        }
        return m_at < m_tags.size();
    }
    double take(int code, double fallback = 0)
    {
        return m_at < m_tags.size() && m_tags[m_at].code == code
            ? CKvEntityTags::real(m_tags[m_at++], fallback)
            : fallback;
    }
    int takeInteger(int code) { return int(std::clamp(take(code), -1e9, 1e9)); }
    /// No more than there are tags left.
    int takeCount(int code)
    {
        return std::clamp(takeInteger(code), 0, int(std::min<std::size_t>(m_tags.size(), 1000000)));
    }
    QPointF takePoint(int code)
    {
        const double x = take(code);
        return { x, take(code + 10) };
    }

    void readLoop()
    {
        constexpr int kPolyline = 2;
        if ((takeInteger(92) & kPolyline) != 0) {
            readPolyline();
            return;
        }
        const int edges = takeCount(93);
        for (int i = 0; i < edges && m_at < m_tags.size() && m_tags[m_at].code == 72; ++i) {
            readEdge();
        }
    }
    void readPolyline()
    {
        const bool hasBulges = takeInteger(72) != 0;
        take(73);
        const int count = takeCount(93);
        std::vector<QPointF> vertices;
        std::vector<double> bulges;
        for (int i = 0; i < count && m_at < m_tags.size() && m_tags[m_at].code == 10; ++i) {
            vertices.push_back(takePoint(10));
            bulges.push_back(hasBulges ? take(42) : 0);
        }
        for (std::size_t i = 0; i < vertices.size(); ++i) {
            appendBulge(m_ring, vertices[i], vertices[(i + 1) % vertices.size()], bulges[i]);
        }
    }
    void readEdge()
    {
        switch (takeInteger(72)) {
        case 1:
            m_ring.push_back(takePoint(10));
            m_ring.push_back(takePoint(11));
            break;
        case 2: {
            const QPointF center = takePoint(10);
            const double radius = take(40);
            appendPart(center, { radius, 0 }, { 0, radius });
            break;
        }
        case 3: {
            const QPointF center = takePoint(10);
            const QPointF axis = takePoint(11);
            const double ratio = take(40, 1);
            appendPart(center, axis, QPointF(-axis.y(), axis.x()) * ratio);
            break;
        }
        case 4:
            readSpline();
            break;
        default:
            break;
        }
    }
    void appendPart(QPointF center, QPointF u, QPointF v)
    {
        const double start = take(50) * kRadiansPerDegree;
        const double end = take(51) * kRadiansPerDegree;
        const bool isLeft = take(73, 1) != 0;
        // Angles of an edge that runs to the right are counted to the right as well.
        appendArc(m_ring, center, u, isLeft ? v : -v, start, end - start);
    }
    void readSpline()
    {
        CKvSplineCurve curve;
        curve.degree = takeInteger(94);
        const bool isRational = takeInteger(73) != 0;
        take(74);
        const int knots = takeCount(95);
        const int points = takeCount(96);
        for (int i = 0; i < knots; ++i) {
            curve.knots.push_back(take(40));
        }
        for (int i = 0; i < points; ++i) {
            curve.controlPoints.push_back(takePoint(10));
            if (isRational) {
                curve.weights.push_back(take(42, 1));
            }
        }
        const std::vector<QPointF> line = splinePoints(curve);
        m_ring.insert(m_ring.end(), line.begin(), line.end());
        skipFitPoints();
    }
    /// A spline edge may end in fit points (97, 11, 12, 13); a loop's own 97 counts source objects.
    void skipFitPoints()
    {
        std::size_t at = m_at;
        if (at < m_tags.size() && m_tags[at].code == 97) {
            ++at;
            while (at < m_tags.size()
                   && (m_tags[at].code % 10 >= 1 && m_tags[at].code % 10 <= 3
                       && m_tags[at].code < 30 && m_tags[at].code > 10)) {
                ++at;
            }
            const bool isNextEdge =
                at < m_tags.size() && (m_tags[at].code == 72 || m_tags[at].code == 97);
            m_at = isNextEdge ? at : m_at;
        }
    }
    CKvHatchFamily readFamily()
    {
        CKvHatchFamily family;
        const double angle = take(53) * kRadiansPerDegree;
        family.direction = { std::cos(angle), std::sin(angle) };
        const double x = take(43);
        family.base = { x, take(44) };
        const double stepX = take(45);
        family.step = { stepX, take(46) };
        const int dashes = takeCount(79);
        for (int i = 0; i < dashes && m_at < m_tags.size() && m_tags[m_at].code == 49; ++i) {
            family.dashes.push_back(take(49));
        }
        return family;
    }

    const std::vector<CKvTag> &m_tags;
    std::size_t m_at = 0;
    std::vector<QPointF> m_ring;
};

} // namespace

CKvHatchBoundary readHatchBoundary(const CKvEntityTags &tags)
{
    return CKvHatchReader(tags.tags()).read();
}
