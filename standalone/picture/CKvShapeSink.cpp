// SPDX-License-Identifier: MIT
#include "CKvShapeSink.h"

#include "angles.h"

#include <cmath>

namespace
{

/// Adds the place at the angle, where the arc gets there.
void addPlace(CKvBox &box, const CKvArcShape &arc, double angle)
{
    double turned = std::fmod(angle - arc.start, 2 * kPi);
    turned += turned < 0 ? 2 * kPi : 0;
    if (turned <= arc.sweep) {
        box.add(arc.center + arc.u * std::cos(angle) + arc.v * std::sin(angle));
    }
}

CKvBox boxOf(const CKvArcShape &arc)
{
    // Of a flat arc with a large radius it is a small part of the circle.
    CKvBox box;
    for (const double angle : { arc.start, arc.start + arc.sweep }) {
        box.add(arc.center + arc.u * std::cos(angle) + arc.v * std::sin(angle));
    }
    const double widest = std::atan2(arc.v.x(), arc.u.x());
    const double highest = std::atan2(arc.v.y(), arc.u.y());
    for (const double angle : { widest, widest + kPi, highest, highest + kPi }) {
        addPlace(box, arc, angle);
    }
    return box;
}

CKvBox boxOf(const CKvTextShape &text)
{
    // Letters reach below the base line and accents above the capitals.
    const CKvBox unit { 0, -0.4, text.width, 1.4 };
    return unit.mapped(text.placement);
}

} // namespace

void CKvShapeSink::setEntity(const CKvObjectSlot &entity, std::uint32_t layer, std::uint32_t style)
{
    m_entity = &entity;
    m_layer = layer;
    m_style = style;
}

CKvPathShape CKvShapeSink::addPoints(const std::vector<QPointF> &points, CKvBox &box)
{
    CKvPathShape range;
    range.first = std::uint32_t(m_picture.points.size());
    range.count = std::uint32_t(points.size());
    for (const QPointF &point : points) {
        box.add(point);
    }
    m_picture.points.insert(m_picture.points.end(), points.begin(), points.end());
    return range;
}

void CKvShapeSink::addItem(CKvPictureItem::Kind kind, std::size_t shape, const CKvBox &box)
{
    CKvPictureItem item;
    item.kind = kind;
    item.shape = std::uint32_t(shape);
    item.layer = m_layer;
    item.style = m_style;
    item.entity = m_entity;
    item.box = box;
    CKvPicture::Block &block = m_picture.blocks[m_block];
    block.items.push_back(item);
    if (kind != CKvPictureItem::Kind::Ray) {
        block.bounds.add(box);
    }
}

void CKvShapeSink::path(const std::vector<QPointF> &points, bool isClosed, double width)
{
    if (points.empty()) {
        return;
    }
    CKvBox box;
    CKvPathShape path = addPoints(points, box);
    path.isClosed = isClosed;
    path.width = width;
    m_picture.paths.push_back(path);
    addItem(CKvPictureItem::Kind::Path, m_picture.paths.size() - 1, box.grownBy(width / 2));
}

void CKvShapeSink::arc(const CKvArcShape &arc)
{
    m_picture.arcs.push_back(arc);
    addItem(CKvPictureItem::Kind::Arc, m_picture.arcs.size() - 1, boxOf(arc));
}

void CKvShapeSink::ray(const CKvRayShape &ray)
{
    constexpr double kFar = std::numeric_limits<double>::infinity();
    m_picture.rays.push_back(ray);
    addItem(CKvPictureItem::Kind::Ray, m_picture.rays.size() - 1, { -kFar, -kFar, kFar, kFar });
}

void CKvShapeSink::text(const CKvTextShape &text)
{
    if (text.text.trimmed().isEmpty()) {
        return;
    }
    m_picture.texts.push_back(text);
    addItem(CKvPictureItem::Kind::Text, m_picture.texts.size() - 1, boxOf(text));
}

void CKvShapeSink::insert(const CKvInsertShape &insert)
{
    CKvBox box;
    const CKvBox one = m_picture.blocks[insert.block].bounds.mapped(insert.placement);
    if (!one.isEmpty()) {
        const QPointF columns = insert.columnStep * (insert.columns - 1);
        const QPointF rows = insert.rowStep * (insert.rows - 1);
        for (const QPointF &shift : { QPointF(), columns, rows, columns + rows }) {
            box.add({ one.left + shift.x(),
                      one.bottom + shift.y(),
                      one.right + shift.x(),
                      one.top + shift.y() });
        }
    }
    m_picture.inserts.push_back(insert);
    addItem(CKvPictureItem::Kind::Insert, m_picture.inserts.size() - 1, box);
}

void CKvShapeSink::area(const std::vector<std::vector<QPointF>> &rings,
                        const std::vector<CKvHatchFamily> &families)
{
    CKvAreaShape area;
    area.firstRing = std::uint32_t(m_picture.rings.size());
    CKvBox box;
    for (const std::vector<QPointF> &ring : rings) {
        if (ring.size() >= 3) {
            m_picture.rings.push_back(addPoints(ring, box));
            ++area.ringCount;
        }
    }
    if (area.ringCount == 0) {
        return;
    }
    area.families = families;
    m_picture.areas.push_back(area);
    addItem(CKvPictureItem::Kind::Area, m_picture.areas.size() - 1, box);
}
