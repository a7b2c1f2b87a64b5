// SPDX-License-Identifier: MIT
#include "CKvEntityTags.h"

#include "CKvDrawingFormat.h"
#include "CKvObjectSlot.h"
#include "objectTags.h"

#include <algorithm>
#include <cmath>

namespace
{

constexpr double kLargest = 1e15;

} // namespace

CKvEntityTags::CKvEntityTags(const CKvObjectSlot &slot)
    : m_slot(slot)
    , m_tags(ownTags(slot))
    , m_commonCount(m_tags.size())
{
    int subclasses = 0;
    for (std::size_t i = 0; i < m_tags.size(); ++i) {
        if (m_tags[i].code == 100 && ++subclasses == 2) {
            m_commonCount = i;
            break;
        }
    }
}

const CKvTag *CKvEntityTags::find(int code) const
{
    const auto found = std::find_if(
        m_tags.rbegin(), m_tags.rend(), [code](const CKvTag &tag) { return tag.code == code; });
    return found == m_tags.rend() ? nullptr : &*found;
}

const CKvTag *CKvEntityTags::findCommon(int code) const
{
    const CKvTag *found = nullptr;
    for (std::size_t i = 0; i < m_commonCount; ++i) {
        if (m_tags[i].code == code) {
            found = &m_tags[i];
        }
    }
    return found;
}

double CKvEntityTags::real(const CKvTag &tag, double fallback)
{
    const double number = tag.real(fallback);
    return std::abs(number) < kLargest ? number : fallback;
}

double CKvEntityTags::real(int code, double fallback) const
{
    const CKvTag *tag = find(code);
    return tag ? real(*tag, fallback) : fallback;
}

int CKvEntityTags::integer(int code, int fallback) const
{
    const CKvTag *tag = find(code);
    return tag ? int(tag->integer(fallback)) : fallback;
}

QString CKvEntityTags::text(int code) const
{
    const CKvTag *tag = find(code);
    return tag ? m_slot.format().codec.decode(tag->value) : QString();
}

QPointF CKvEntityTags::point(int code) const
{
    return { real(code), real(code + 10) };
}

std::vector<QPointF> CKvEntityTags::points(int code) const
{
    std::vector<QPointF> points;
    for (const CKvTag &tag : m_tags) {
        if (tag.code == code) {
            points.emplace_back(real(tag), 0);
        } else if (tag.code == code + 10 && !points.empty()) {
            points.back().setY(real(tag));
        }
    }
    return points;
}

QTransform CKvEntityTags::plane() const
{
    return plane(find(38) ? real(38) : real(30));
}

QTransform CKvEntityTags::plane(double elevation) const
{
    double x = real(210);
    double y = real(220);
    double z = real(230, 1);
    const double length = std::sqrt(x * x + y * y + z * z);
    if (length < 1e-12 || (x == 0 && y == 0 && z > 0)) {
        return {};
    }
    x /= length;
    y /= length;
    z /= length;
    // The axes of a plane follow from its normal alone: near the z axis they lean on the y axis.
    double ax = 0;
    double ay = 0;
    double az = 0;
    if (std::abs(x) < 1.0 / 64 && std::abs(y) < 1.0 / 64) {
        ax = z;
        az = -x;
    } else {
        ax = -y;
        ay = x;
    }
    const double axisLength = std::sqrt(ax * ax + ay * ay + az * az);
    ax /= axisLength;
    ay /= axisLength;
    az /= axisLength;
    const double bx = y * az - z * ay;
    const double by = z * ax - x * az;
    return { ax, ay, bx, by, x * elevation, y * elevation };
}
