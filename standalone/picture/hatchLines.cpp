// SPDX-License-Identifier: MIT
#include "hatchLines.h"

#include <cmath>

namespace
{

constexpr double kClosest = 2;

double dot(QPointF a, QPointF b)
{
    return QPointF::dotProduct(a, b);
}

/// How far the box reaches along an axis.
std::pair<double, double> rangeOf(const CKvBox &box, QPointF axis)
{
    double low = std::numeric_limits<double>::infinity();
    double high = -low;
    for (const QPointF &corner : { QPointF(box.left, box.bottom),
                                   QPointF(box.right, box.bottom),
                                   QPointF(box.left, box.top),
                                   QPointF(box.right, box.top) }) {
        low = std::min(low, dot(corner, axis));
        high = std::max(high, dot(corner, axis));
    }
    return { low, high };
}

} // namespace

std::vector<CKvHatchLine> hatchLines(const std::vector<std::vector<QPointF>> &rings,
                                     const CKvHatchFamily &family,
                                     const CKvBox &sight,
                                     bool &isDense)
{
    const double length = std::hypot(family.direction.x(), family.direction.y());
    if (!(length > 0)) {
        return {};
    }
    const QPointF along = family.direction / length;
    const QPointF across(-along.y(), along.x());
    const double spacing = dot(family.step, across);
    isDense = !(std::abs(spacing) >= kClosest);
    if (isDense) {
        return {};
    }
    const auto [low, high] = rangeOf(sight, across);
    const double base = dot(family.base, across);
    const double first = std::ceil(std::min((low - base) / spacing, (high - base) / spacing));
    const double last = std::floor(std::max((low - base) / spacing, (high - base) / spacing));
    if (!(first <= last)) {
        return {};
    }
    // Where each line meets the rings; an edge enters itself in all lines that it crosses.
    std::vector<std::vector<double>> crossings(std::size_t(last - first) + 1);
    for (const std::vector<QPointF> &ring : rings) {
        for (std::size_t i = 0; i < ring.size(); ++i) {
            const QPointF &from = ring[i];
            const QPointF &to = ring[(i + 1) % ring.size()];
            const double a = (dot(from, across) - base) / spacing;
            const double b = (dot(to, across) - base) / spacing;
            const double begin = std::max(std::ceil(std::min(a, b)), first);
            const double end = std::min(std::max(a, b), last + 0.5);
            if (!(begin < end)) {
                continue;
            }
            for (auto line = std::size_t(begin - first); first + double(line) < end; ++line) {
                const QPointF point = from + (to - from) * ((first + double(line) - a) / (b - a));
                crossings[line].push_back(dot(point, along));
            }
        }
    }
    std::vector<CKvHatchLine> lines;
    for (std::size_t i = 0; i < crossings.size(); ++i) {
        std::vector<double> &places = crossings[i];
        std::sort(places.begin(), places.end());
        const QPointF origin = family.base + family.step * (first + double(i));
        const QPointF foot = across * dot(origin, across);
        for (std::size_t at = 0; at + 1 < places.size(); at += 2) {
            lines.push_back({ { foot + along * places[at], foot + along * places[at + 1] },
                              dot(origin, along) - places[at] });
        }
    }
    return lines;
}
