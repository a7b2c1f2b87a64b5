// SPDX-License-Identifier: MIT
#pragma once

#include "CKvTag.h"

#include <QPointF>
#include <QString>
#include <QTransform>

#include <optional>
#include <vector>

class CKvObjectSlot;

/// The tags of one entity, read once, for those who draw it. Numbers that no drawing can mean
/// (infinite, beyond 1e15) count as missing.
class CKvEntityTags
{
public:
    explicit CKvEntityTags(const CKvObjectSlot &slot);

    const CKvObjectSlot &slot() const { return m_slot; }
    /// The entity's own tags in order, without groups in braces and extended data.
    const std::vector<CKvTag> &tags() const { return m_tags; }

    /// The last tag of that code; null when there is none.
    const CKvTag *find(int code) const;
    /// As find, in the part that all entities have.
    const CKvTag *findCommon(int code) const;
    double real(int code, double fallback = 0) const;
    int integer(int code, int fallback = 0) const;
    QString text(int code) const;
    /// The point whose x stands at this code and whose y ten codes higher.
    QPointF point(int code) const;
    /// All points that stand so, in their order.
    std::vector<QPointF> points(int code) const;
    bool hasFlag(int code, int flag) const { return (integer(code) & flag) != 0; }

    /// From the entity's own plane (210, 220, 230) to that of the drawing, as seen from above.
    /// @param elevation of the points in the entity's plane.
    QTransform plane(double elevation) const;
    /// As above, with the elevation of group 38, or of 30.
    QTransform plane() const;

    static double real(const CKvTag &tag, double fallback = 0);

private:
    const CKvObjectSlot &m_slot;
    std::vector<CKvTag> m_tags;
    std::size_t m_commonCount = 0;
};
