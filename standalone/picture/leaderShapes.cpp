// SPDX-License-Identifier: MIT
#include "CKvDrawingFormat.h"
#include "CKvDrawingStore.h"
#include "CKvEntitySource.h"
#include "CKvObjectSlot.h"
#include "CKvShapeSink.h"
#include "CKvTextStyles.h"
#include "curvePoints.h"
#include "entityShapes.h"
#include "extendedData.h"
#include "textLines.h"

#include <algorithm>
#include <cmath>

namespace
{

constexpr double kDegree = 3.14159265358979323846 / 180;
constexpr double kDefaultArrow = 0.18;
// Groups of a dimension style, and the numbers of what an entity overrides.
constexpr int kScale = 40;
constexpr int kArrow = 41;

/// A slim triangle at the first point, along the first part of the line.
void drawArrow(const std::vector<QPointF> &points, double size, CKvShapeSink &sink)
{
    if (points.size() < 2 || size <= 0) {
        return;
    }
    const QPointF along = points[1] - points[0];
    const double length = std::hypot(along.x(), along.y());
    if (length > 0) {
        const QPointF unit = along / length * size;
        const QPointF side = QPointF(-unit.y(), unit.x()) / 6;
        sink.area({ { points[0], points[0] + unit + side, points[0] + unit - side } });
    }
}

/// Of the leader's dimension style, with what the leader overrides for itself.
double arrowSize(const CKvEntitySource &source)
{
    const CKvTag *name = source.tags.find(3);
    const CKvObjectSlot *style =
        source.store.table(CKvTableKind::DimStyle)
            .findEncoded(name ? name->value : std::string_view("Standard"));
    double size = style ? CKvEntityTags(*style).real(kArrow, kDefaultArrow) : kDefaultArrow;
    double scale = style ? CKvEntityTags(*style).real(kScale, 1) : 1;
    const std::vector<CKvTag> data = extendedData(source.tags.slot(), "ACAD");
    for (std::size_t i = 0; i + 1 < data.size(); ++i) {
        if (data[i].code == 1070 && data[i + 1].code == 1040) {
            const double number = CKvEntityTags::real(data[i + 1]);
            size = data[i].integer() == kArrow ? number : size;
            scale = data[i].integer() == kScale ? number : scale;
        }
    }
    // 0 stands for the scale of the sheet that it is seen on.
    return scale > 0 ? size * scale : size;
}

/// A leader with lines and text of its own. Its picture is in lists within the entity: 300 opens
/// one with the text, 302 in it one for each leader, 304 in that one for each line; 301, 303 and
/// 305 close them.
class CKvMultiLeaderReader
{
public:
    explicit CKvMultiLeaderReader(const CKvEntitySource &source)
        : m_source(source)
    {
    }

    void draw(CKvShapeSink &sink)
    {
        for (const CKvTag &tag : m_source.tags.tags()) {
            read(tag);
        }
        for (const std::vector<QPointF> &line : m_lines) {
            sink.path(line);
            drawArrow(line, m_arrow, sink);
        }
        for (const std::vector<QPointF> &landing : m_landings) {
            sink.path(landing);
        }
        if (!m_text.isEmpty() && m_block.height > 0) {
            const double turn = std::atan2(m_direction.y(), m_direction.x()) / kDegree;
            m_block.placement =
                QTransform().rotate(turn) * QTransform::fromTranslate(m_place.x(), m_place.y());
            drawTextBlock(m_block, plainLines(m_text), m_source.textStyles.find("Standard"), sink);
        }
    }

private:
    enum class Part { Before, Text, Leader, Line, Behind };

    void read(const CKvTag &tag)
    {
        switch (m_part) {
        case Part::Before:
            m_part = tag.code == 300 ? Part::Text : m_part;
            break;
        case Part::Text:
            readText(tag);
            break;
        case Part::Leader:
            readLeader(tag);
            break;
        case Part::Line:
            readLine(tag);
            break;
        case Part::Behind:
            break;
        }
    }
    void readText(const CKvTag &tag)
    {
        const double number = CKvEntityTags::real(tag);
        switch (tag.code) {
        case 301:
            m_part = Part::Behind;
            break;
        case 302:
            m_part = Part::Leader;
            m_landing = {};
            m_landingLength = 0;
            break;
        case 304:
            m_text = m_source.tags.slot().format().codec.decode(tag.value);
            break;
        case 12:
            m_place.setX(number);
            break;
        case 22:
            m_place.setY(number);
            break;
        case 13:
            m_direction.setX(number);
            break;
        case 23:
            m_direction.setY(number);
            break;
        case 41:
            m_block.height = number;
            break;
        case 43:
            m_block.limit = number;
            break;
        case 140:
            m_arrow = number;
            break;
        case 171:
            m_block.horizontal = int(std::clamp<std::int64_t>(tag.integer(1), 1, 3)) - 1;
            break;
        default:
            break;
        }
    }
    void readLeader(const CKvTag &tag)
    {
        const double number = CKvEntityTags::real(tag);
        switch (tag.code) {
        case 303:
            if (m_landingLength > 0) {
                m_landings.push_back({ m_end, m_end + m_landing * m_landingLength });
            }
            m_part = Part::Text;
            break;
        case 304:
            m_part = Part::Line;
            m_lines.emplace_back();
            break;
        case 10:
            m_end.setX(number);
            break;
        case 20:
            m_end.setY(number);
            break;
        case 11:
            m_landing.setX(number);
            break;
        case 21:
            m_landing.setY(number);
            break;
        case 40:
            m_landingLength = number;
            break;
        default:
            break;
        }
    }
    void readLine(const CKvTag &tag)
    {
        std::vector<QPointF> &line = m_lines.back();
        if (tag.code == 305) {
            line.push_back(m_end);
            m_part = Part::Leader;
        } else if (tag.code == 10) {
            line.emplace_back(CKvEntityTags::real(tag), 0);
        } else if (tag.code == 20 && !line.empty()) {
            line.back().setY(CKvEntityTags::real(tag));
        }
    }

    const CKvEntitySource &m_source;
    Part m_part = Part::Before;
    QPointF m_place;
    QPointF m_direction { 1, 0 };
    QString m_text;
    CKvTextBlock m_block;
    double m_arrow = 0;
    /// Where the lines of the present leader end, and the short line from there to the text.
    QPointF m_end;
    QPointF m_landing;
    double m_landingLength = 0;
    std::vector<std::vector<QPointF>> m_lines;
    std::vector<std::vector<QPointF>> m_landings;
};

} // namespace

void readLeader(const CKvEntitySource &source, CKvShapeSink &sink)
{
    const std::vector<QPointF> points = source.tags.points(10);
    sink.path(source.tags.integer(72) == 1 ? smoothedPoints(points) : points);
    if (source.tags.integer(71, 1) == 1 && points.size() > 1) {
        const double size = arrowSize(source);
        const QPointF along = points[1] - points[0];
        // On a shorter line there is no room for it.
        if (std::hypot(along.x(), along.y()) >= 2 * size) {
            drawArrow(points, size, sink);
        }
    }
}

void readMultiLeader(const CKvEntitySource &source, CKvShapeSink &sink)
{
    CKvMultiLeaderReader(source).draw(sink);
}
