// SPDX-License-Identifier: MIT
#include "CKvPicturePainter.h"

#include "aciColor.h"
#include "hatchLines.h"

#include <QElapsedTimer>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace
{

constexpr int kItemsBetweenLooks = 64;
constexpr std::size_t kMostWalks = 20000;
constexpr double kSpeck = 0.8;
constexpr double kSmallestLetters = 2.5;
constexpr double kMostPoints = 20000;
constexpr int kDefaultLineWeight = 25;
constexpr double kSmallestContrast = 64;
constexpr int kWhite = 7;

double scaleOf(const QTransform &transform)
{
    return std::sqrt(
        std::abs(transform.m11() * transform.m22() - transform.m12() * transform.m21()));
}

double brightness(QRgb color)
{
    return 0.299 * qRed(color) + 0.587 * qGreen(color) + 0.114 * qBlue(color);
}

/// The colour, moved towards the foreground as far as it takes to stand out from the ground.
QRgb seenOn(QRgb ground, QRgb color, QRgb foreground)
{
    for (int part = 0; part < 10; ++part) {
        const auto mixed = [&](int own, int other) { return own + (other - own) * part / 10; };
        const QRgb shown = qRgb(mixed(qRed(color), qRed(foreground)),
                                mixed(qGreen(color), qGreen(foreground)),
                                mixed(qBlue(color), qBlue(foreground)));
        if (std::abs(brightness(shown) - brightness(ground)) >= kSmallestContrast) {
            return shown;
        }
    }
    return foreground;
}

QPointF mappedDirection(const QTransform &transform, QPointF direction)
{
    return transform.map(direction) - transform.map(QPointF());
}

} // namespace

CKvPicturePainter::CKvPicturePainter(const CKvPicture &picture,
                                     const CKvPictureView &view,
                                     QImage &image)
    : m_picture(picture)
    , m_view(view)
    , m_sight { -8, -8, view.size.width() + 8.0, view.size.height() + 8.0 }
    , m_batch(m_painter, m_sight)
    , m_specks(std::size_t(view.size.width()) * std::size_t(view.size.height()))
{
    image.fill(view.background);
    m_painter.begin(&image);
    m_painter.setRenderHint(QPainter::Antialiasing, view.isSmooth);
    m_painter.setRenderHint(QPainter::TextAntialiasing);
    Walk walk;
    walk.toPixels = view.toPixels;
    walk.scale = scaleOf(view.toPixels);
    walk.inherited.color = view.foreground.rgb();
    m_walks.push_back(walk);
}

bool CKvPicturePainter::advance(int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (!m_walks.empty() && timer.elapsed() < milliseconds) {
        for (int i = 0; i < kItemsBetweenLooks && !m_walks.empty(); ++i) {
            const std::size_t at = m_walks.size() - 1;
            const std::vector<CKvPictureItem> &items = m_picture.blocks[m_walks[at].block].items;
            if (m_walks[at].next >= items.size()) {
                m_walks.pop_back();
            } else {
                const CKvPictureItem &item = items[m_walks[at].next++];
                // A copy: an insertion lets the list grow.
                const Walk walk = m_walks[at];
                paintItem(item, walk);
            }
        }
    }
    m_batch.flush();
    return m_walks.empty();
}

CKvPicturePainter::Inherited CKvPicturePainter::resolved(const CKvPictureItem &item,
                                                         const Walk &walk) const
{
    const CKvPictureStyle &style = m_picture.styles[item.style];
    Inherited look;
    const bool isInBlock = walk.block != 0;
    look.layer =
        isInBlock && m_picture.layers[item.layer].isZero ? walk.inherited.layer : item.layer;
    const CKvPictureLayer &layer = m_picture.layers[look.layer];
    look.isSelected =
        walk.inherited.isSelected || (!isInBlock && m_view.selected.count(item.entity) != 0);
    look.color = look.isSelected ? m_view.highlight.rgb()
                                 : colorOf(style.color, layer, walk.inherited.color);
    look.lineWeight = style.lineWeight == -1 ? layer.lineWeight
        : style.lineWeight == -2             ? walk.inherited.lineWeight
                                             : style.lineWeight;
    look.lineStyle = style.lineStyle == CKvPictureStyle::kByLayer ? layer.lineStyle
        : style.lineStyle == CKvPictureStyle::kByBlock            ? walk.inherited.lineStyle
                                                                  : style.lineStyle;
    look.lineStyleScale = style.lineStyleScale;
    return look;
}

QRgb CKvPicturePainter::colorOf(const CKvPictureColor &color,
                                const CKvPictureLayer &layer,
                                QRgb byBlock) const
{
    QRgb found = byBlock;
    switch (color.kind) {
    case CKvPictureColor::Kind::ByBlock:
        return byBlock;
    case CKvPictureColor::Kind::ByLayer:
        return layer.color.kind == CKvPictureColor::Kind::ByLayer
            ? byBlock
            : colorOf(layer.color, layer, byBlock);
    case CKvPictureColor::Kind::Index:
        if (color.value == kWhite || color.value > 255) {
            return m_view.foreground.rgb();
        }
        found = aciColor(int(color.value));
        break;
    case CKvPictureColor::Kind::Rgb:
        found = 0xff000000U | color.value;
        break;
    }
    return seenOn(m_view.background.rgb(), found, m_view.foreground.rgb());
}

void CKvPicturePainter::usePen(const Inherited &look, const Walk &walk)
{
    CKvLineBatch::Pen pen;
    pen.color = look.color;
    if (m_view.showsLineWeights) {
        const int weight = look.lineWeight >= 0 ? look.lineWeight : kDefaultLineWeight;
        const double width = weight / 100.0 * m_view.pixelsPerMillimetre;
        pen.width = width > 1.2 ? width : 0;
    }
    if (look.isSelected) {
        pen.width = std::max(pen.width, 2.0);
    }
    const double scale = walk.scale * m_picture.lineStyleScale * look.lineStyleScale;
    const CKvPictureLineStyle &style = m_picture.lineStyles[std::size_t(look.lineStyle)];
    pen.dashes.reserve(style.dashes.size());
    for (const double dash : style.dashes) {
        pen.dashes.push_back(dash * scale);
    }
    m_batch.setPen(pen);
}

void CKvPicturePainter::paintItem(const CKvPictureItem &item, const Walk &walk)
{
    if (item.isDead) {
        return;
    }
    const CKvBox box =
        item.kind == CKvPictureItem::Kind::Ray ? m_sight : item.box.mapped(walk.toPixels);
    if (box.isEmpty() || !box.meets(m_sight)) {
        return;
    }
    const Inherited look = resolved(item, walk);
    const CKvPictureLayer &layer = m_picture.layers[look.layer];
    const bool isInsert = item.kind == CKvPictureItem::Kind::Insert;
    // An insertion on a layer that is off still shows what lies on other layers.
    if (layer.isFrozen || (layer.isOff && !isInsert)) {
        return;
    }
    if (std::max(box.width(), box.height()) < kSpeck && box.width() >= 0) {
        const auto x = std::size_t(std::max(box.center().x(), 0.0));
        const auto y = std::size_t(std::max(box.center().y(), 0.0));
        const std::size_t pixel = y * std::size_t(m_view.size.width()) + x;
        if (pixel < m_specks.size() && !m_specks[pixel]) {
            m_specks[pixel] = true;
            usePen(look, walk);
            m_batch.addDot(box.center());
        }
        return;
    }
    switch (item.kind) {
    case CKvPictureItem::Kind::Path:
        paintPath(item, walk, look);
        break;
    case CKvPictureItem::Kind::Arc:
        usePen(look, walk);
        paintArc(item, walk);
        break;
    case CKvPictureItem::Kind::Ray:
        usePen(look, walk);
        paintRay(item, walk);
        break;
    case CKvPictureItem::Kind::Text:
        paintText(item, walk, look);
        break;
    case CKvPictureItem::Kind::Insert:
        enterInsert(item, walk, look);
        break;
    case CKvPictureItem::Kind::Area:
        paintArea(item, walk, look);
        break;
    }
}

void CKvPicturePainter::paintPath(const CKvPictureItem &item,
                                  const Walk &walk,
                                  const Inherited &look)
{
    const CKvPathShape &path = m_picture.paths[item.shape];
    std::vector<QPointF> points;
    points.reserve(path.count + 1);
    for (std::uint32_t i = 0; i < path.count; ++i) {
        points.push_back(walk.toPixels.map(m_picture.points[path.first + i]));
    }
    if (path.isClosed) {
        points.push_back(points.front());
    }
    const double width = path.width * walk.scale;
    if (width > 1.5) {
        m_batch.flush();
        m_painter.setPen(
            QPen(QColor(look.color), width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
        m_painter.drawPolyline(points.data(), int(points.size()));
        return;
    }
    usePen(look, walk);
    m_batch.addPath(points);
}

void CKvPicturePainter::paintArc(const CKvPictureItem &item, const Walk &walk)
{
    const CKvArcShape &arc = m_picture.arcs[item.shape];
    const QPointF center = walk.toPixels.map(arc.center);
    const QPointF u = mappedDirection(walk.toPixels, arc.u);
    const QPointF v = mappedDirection(walk.toPixels, arc.v);
    const double radius = std::max(std::hypot(u.x(), u.y()), std::hypot(v.x(), v.y()));
    // A quarter of a pixel between arc and chord.
    const double step = 2 * std::acos(1 - std::min(0.25 / std::max(radius, 0.25), 0.5));
    const int steps = int(std::clamp(std::ceil(std::abs(arc.sweep) / step), 2.0, kMostPoints));
    std::vector<QPointF> points;
    points.reserve(std::size_t(steps) + 1);
    for (int i = 0; i <= steps; ++i) {
        const double angle = arc.start + arc.sweep * i / steps;
        points.push_back(center + u * std::cos(angle) + v * std::sin(angle));
    }
    m_batch.addPath(points);
}

void CKvPicturePainter::paintRay(const CKvPictureItem &item, const Walk &walk)
{
    const CKvRayShape &ray = m_picture.rays[item.shape];
    const QPointF base = walk.toPixels.map(ray.base);
    const QPointF direction = mappedDirection(walk.toPixels, ray.direction);
    const double length = std::hypot(direction.x(), direction.y());
    if (!(length > 0)) {
        return;
    }
    const QPointF toCenter = m_sight.center() - base;
    const double reach =
        std::hypot(toCenter.x(), toCenter.y()) + m_sight.width() + m_sight.height();
    const QPointF far = direction / length * reach;
    m_batch.addPath({ ray.isEndlessBothWays ? base - far : base, base + far });
}

void CKvPicturePainter::paintText(const CKvPictureItem &item,
                                  const Walk &walk,
                                  const Inherited &look)
{
    const CKvTextShape &text = m_picture.texts[item.shape];
    const QTransform toPixels = text.placement * walk.toPixels;
    const QPointF up = mappedDirection(toPixels, { 0, 1 });
    if (std::hypot(up.x(), up.y()) < kSmallestLetters) {
        // Nobody can read it; a line shows that there is text.
        Inherited plain = look;
        plain.lineStyle = 0;
        usePen(plain, walk);
        m_batch.addLine({ toPixels.map(QPointF(0, 0.5)), toPixels.map(QPointF(text.width, 0.5)) });
        return;
    }
    m_batch.flush();
    const CKvTextFont &font = m_picture.fonts[text.font];
    const double unit = 1 / font.capHeight();
    m_painter.save();
    m_painter.setTransform(QTransform::fromScale(unit, -unit) * toPixels);
    m_painter.setFont(font.font());
    m_painter.setPen(QColor(look.color));
    m_painter.drawText(QPointF(), text.text);
    m_painter.restore();
}

void CKvPicturePainter::paintArea(const CKvPictureItem &item,
                                  const Walk &walk,
                                  const Inherited &look)
{
    constexpr int kDenseAlpha = 90;
    const CKvAreaShape &area = m_picture.areas[item.shape];
    std::vector<std::vector<QPointF>> rings(area.ringCount);
    QPainterPath path;
    path.setFillRule(Qt::OddEvenFill);
    for (std::uint32_t i = 0; i < area.ringCount; ++i) {
        const CKvPathShape &range = m_picture.rings[area.firstRing + i];
        for (std::uint32_t point = 0; point < range.count; ++point) {
            rings[i].push_back(walk.toPixels.map(m_picture.points[range.first + point]));
        }
        path.addPolygon(QPolygonF(QVector<QPointF>(rings[i].begin(), rings[i].end())));
    }
    bool isDense = false;
    for (const CKvHatchFamily &family : area.families) {
        CKvHatchFamily mapped;
        mapped.base = walk.toPixels.map(family.base);
        mapped.direction = mappedDirection(walk.toPixels, family.direction);
        mapped.step = mappedDirection(walk.toPixels, family.step);
        const std::vector<CKvHatchLine> lines = hatchLines(rings, mapped, m_sight, isDense);
        CKvLineBatch::Pen pen { look.color, look.isSelected ? 2.0 : 0.0, {} };
        const double scale = std::hypot(mapped.direction.x(), mapped.direction.y());
        for (const double dash : family.dashes) {
            pen.dashes.push_back(dash * scale);
        }
        m_batch.setPen(pen);
        for (const CKvHatchLine &line : lines) {
            m_batch.addDashes(line.line, line.dashStart);
        }
        if (isDense) {
            break;
        }
    }
    if (area.families.empty() || isDense) {
        m_batch.flush();
        QColor color(look.color);
        color.setAlpha(isDense ? kDenseAlpha : 255);
        m_painter.fillPath(path, color);
    }
}

void CKvPicturePainter::enterInsert(const CKvPictureItem &item,
                                    const Walk &walk,
                                    const Inherited &look)
{
    const CKvInsertShape &insert = m_picture.inserts[item.shape];
    const CKvPicture::Block &block = m_picture.blocks[insert.block];
    for (int row = 0; row < insert.rows; ++row) {
        for (int column = 0; column < insert.columns && m_walks.size() < kMostWalks; ++column) {
            const QPointF shift = insert.columnStep * column + insert.rowStep * row;
            Walk inner;
            inner.block = insert.block;
            inner.toPixels =
                insert.placement * QTransform::fromTranslate(shift.x(), shift.y()) * walk.toPixels;
            inner.scale = scaleOf(inner.toPixels);
            inner.inherited = look;
            if (block.bounds.mapped(inner.toPixels).meets(m_sight)) {
                m_walks.push_back(inner);
            }
        }
    }
}
