// SPDX-License-Identifier: MIT
#include "CKvLineBatch.h"

#include <cmath>

namespace
{

constexpr std::size_t kMostLines = 8192;
// A pattern that is shorter looks like a continuous line and costs hundreds of dashes.
constexpr double kShortestPattern = 4;
constexpr double kDotLength = 0.6;

} // namespace

void CKvLineBatch::setPen(const Pen &pen)
{
    if (pen.color != m_pen.color || pen.width != m_pen.width) {
        flush();
    }
    m_pen = pen;
    m_patternLength = 0;
    for (const double dash : pen.dashes) {
        m_patternLength += std::abs(dash);
    }
}

bool CKvLineBatch::clip(QLineF &line, const CKvBox &box)
{
    double from = 0;
    double to = 1;
    const double dx = line.dx();
    const double dy = line.dy();
    const double steps[4] = { -dx, dx, -dy, dy };
    const double rooms[4] = {
        line.x1() - box.left, box.right - line.x1(), line.y1() - box.bottom, box.top - line.y1()
    };
    for (int edge = 0; edge < 4; ++edge) {
        if (steps[edge] == 0) {
            if (rooms[edge] < 0) {
                return false;
            }
            continue;
        }
        const double part = rooms[edge] / steps[edge];
        (steps[edge] < 0 ? from : to) = steps[edge] < 0 ? std::max(from, part) : std::min(to, part);
    }
    if (!(from <= to)) {
        return false;
    }
    line = QLineF(line.pointAt(from), line.pointAt(to));
    return true;
}

void CKvLineBatch::addLine(const QLineF &line)
{
    QLineF visible = line;
    if (!clip(visible, m_sight)) {
        return;
    }
    m_lines.push_back(visible);
    if (m_lines.size() >= kMostLines) {
        flush();
    }
}

void CKvLineBatch::addDot(QPointF point)
{
    addLine({ point - QPointF(kDotLength / 2, 0), point + QPointF(kDotLength / 2, 0) });
}

void CKvLineBatch::addPath(const std::vector<QPointF> &points)
{
    if (points.size() == 1) {
        addDot(points.front());
        return;
    }
    double start = 0;
    for (std::size_t i = 1; i < points.size(); ++i) {
        const QLineF line(points[i - 1], points[i]);
        if (m_patternLength < kShortestPattern) {
            addLine(line);
        } else {
            addDashes(line, start);
            start = std::fmod(start - line.length(), m_patternLength);
        }
    }
}

void CKvLineBatch::addDashes(const QLineF &line, double start)
{
    const double length = line.length();
    QLineF visible = line;
    if (m_patternLength < kShortestPattern || !(length > 0)) {
        addLine(line);
        return;
    }
    if (!clip(visible, m_sight)) {
        return;
    }
    const double begin = QLineF(line.p1(), visible.p1()).length();
    const double end = QLineF(line.p1(), visible.p2()).length();
    const QPointF unit = QPointF(line.dx(), line.dy()) / length;
    double at = start + std::floor((begin - start) / m_patternLength) * m_patternLength;
    while (at < end) {
        for (const double dash : m_pen.dashes) {
            const double drawn = dash == 0 ? kDotLength : dash;
            const double from = std::max(at, begin);
            const double to = std::min(at + drawn, end);
            if (dash >= 0 && from < to) {
                addLine({ line.p1() + unit * from, line.p1() + unit * to });
            }
            at += std::abs(dash);
        }
    }
}

void CKvLineBatch::flush()
{
    if (m_lines.empty()) {
        return;
    }
    QPen pen(QColor::fromRgba(m_pen.color));
    pen.setWidthF(m_pen.width);
    pen.setCapStyle(m_pen.width > 1.5 ? Qt::RoundCap : Qt::FlatCap);
    m_painter.setPen(pen);
    m_painter.drawLines(m_lines.data(), int(m_lines.size()));
    m_lines.clear();
}
