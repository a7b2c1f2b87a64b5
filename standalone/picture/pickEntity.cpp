// SPDX-License-Identifier: MIT
#include "pickEntity.h"

#include "CKvPicture.h"
#include "curvePoints.h"

#include <cmath>
#include <limits>

namespace
{

constexpr double kFar = std::numeric_limits<double>::infinity();
constexpr int kDeepest = 8;

double distanceToPart(QPointF point, QPointF from, QPointF to)
{
    const QPointF along = to - from;
    const double square = QPointF::dotProduct(along, along);
    const double part =
        square > 0 ? std::clamp(QPointF::dotProduct(point - from, along) / square, 0.0, 1.0) : 0;
    const QPointF away = point - (from + along * part);
    return std::hypot(away.x(), away.y());
}

double distanceToPath(QPointF point, const std::vector<QPointF> &points)
{
    double nearest = kFar;
    for (std::size_t i = 0; i < points.size(); ++i) {
        nearest = std::min(nearest, distanceToPart(point, points[i == 0 ? 0 : i - 1], points[i]));
    }
    return nearest;
}

/// Measures in the plane of the drawing, whatever insertions lie between.
class CKvDistance
{
public:
    CKvDistance(const CKvPicture &picture, QPointF point, double reach)
        : m_picture(picture)
        , m_point(point)
        , m_reach(reach)
    {
    }

    double to(const CKvPictureItem &item, const QTransform &place, int depth) const
    {
        const bool isRay = item.kind == CKvPictureItem::Kind::Ray;
        const CKvBox pick { m_point.x() - m_reach,
                            m_point.y() - m_reach,
                            m_point.x() + m_reach,
                            m_point.y() + m_reach };
        if (item.isDead || (!isRay && !item.box.mapped(place).meets(pick))) {
            return kFar;
        }
        switch (item.kind) {
        case CKvPictureItem::Kind::Path:
            return toPath(m_picture.paths[item.shape], place);
        case CKvPictureItem::Kind::Arc:
            return toArc(m_picture.arcs[item.shape], place);
        case CKvPictureItem::Kind::Ray:
            return toRay(m_picture.rays[item.shape], place);
        case CKvPictureItem::Kind::Insert:
            return toInsert(m_picture.inserts[item.shape], place, depth);
        case CKvPictureItem::Kind::Text:
        case CKvPictureItem::Kind::Area:
            // Within its box is on it, but a line that lies there is nearer.
            return m_reach;
        }
        return kFar;
    }

private:
    double toPath(const CKvPathShape &path, const QTransform &place) const
    {
        const auto begin = m_picture.points.begin() + path.first;
        std::vector<QPointF> points(begin, begin + path.count);
        if (path.isClosed) {
            points.push_back(points.front());
        }
        mapPoints(points, place);
        return distanceToPath(m_point, points);
    }
    double toArc(const CKvArcShape &arc, const QTransform &place) const
    {
        std::vector<QPointF> points;
        appendArc(points, arc.center, arc.u, arc.v, arc.start, arc.sweep);
        mapPoints(points, place);
        return distanceToPath(m_point, points);
    }
    double toRay(const CKvRayShape &ray, const QTransform &place) const
    {
        const QPointF base = place.map(ray.base);
        const QPointF along = place.map(ray.base + ray.direction) - base;
        const double length = std::hypot(along.x(), along.y());
        const QPointF away = m_point - base;
        const double reach = std::hypot(away.x(), away.y()) + m_reach;
        const QPointF far = length > 0 ? along / length * reach : QPointF();
        return distanceToPart(m_point, ray.isEndlessBothWays ? base - far : base, base + far);
    }
    double toInsert(const CKvInsertShape &insert, const QTransform &place, int depth) const
    {
        double nearest = kFar;
        if (depth >= kDeepest) {
            return nearest;
        }
        for (int row = 0; row < insert.rows; ++row) {
            for (int column = 0; column < insert.columns; ++column) {
                const QPointF shift = insert.columnStep * column + insert.rowStep * row;
                const QTransform inner =
                    insert.placement * QTransform::fromTranslate(shift.x(), shift.y()) * place;
                for (const CKvPictureItem &item : m_picture.blocks[insert.block].items) {
                    nearest = std::min(nearest, to(item, inner, depth + 1));
                }
            }
        }
        return nearest;
    }

    const CKvPicture &m_picture;
    QPointF m_point;
    double m_reach;
};

} // namespace

const CKvObjectSlot *pickEntity(const CKvPicture &picture, QPointF point, double reach)
{
    const CKvDistance distance(picture, point, reach);
    const CKvObjectSlot *found = nullptr;
    double nearest = reach;
    for (const CKvPictureItem &item : picture.modelSpace().items) {
        const bool isShown = picture.layers[item.layer].isVisible();
        const double away = isShown ? distance.to(item, QTransform(), 0) : kFar;
        if (away <= nearest) {
            nearest = away;
            found = item.entity;
        }
    }
    return found;
}
