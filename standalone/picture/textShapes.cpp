// SPDX-License-Identifier: MIT
#include "CKvDrawingFormat.h"
#include "CKvEntitySource.h"
#include "CKvObjectSlot.h"
#include "CKvShapeSink.h"
#include "CKvTextStyles.h"
#include "angles.h"
#include "entityShapes.h"
#include "textLines.h"

#include <algorithm>
#include <cmath>

namespace
{

constexpr double kDescent = 0.3;

const CKvTextStyles::Style &styleOf(const CKvEntitySource &source)
{
    const CKvTag *style = source.tags.find(7);
    return source.textStyles.find(style ? style->value : std::string_view("Standard"));
}

/// How a line of text lies on its two points.
struct Alignment {
    /// Group 72: 0 left, 1 centre, 2 right, 3 aligned, 4 middle, 5 fit.
    int horizontal = 0;
    /// Groups 73 and 74: 0 base line, 1 bottom, 2 middle, 3 top.
    int vertical = 0;
};

/// What of the text, in units of capital height, lies on its place.
QPointF anchorOf(Alignment alignment, double width)
{
    const bool isMiddle = alignment.horizontal == 4;
    const double x = alignment.horizontal == 1 || isMiddle ? width / 2
        : alignment.horizontal == 2                        ? width
                                                           : 0;
    const double y = alignment.vertical == 1  ? -kDescent
        : alignment.vertical == 2 || isMiddle ? 0.5
        : alignment.vertical == 3             ? 1
                                              : 0;
    return { x, y };
}

void drawLine(const CKvEntitySource &source,
              const QString &text,
              Alignment alignment,
              CKvShapeSink &sink)
{
    const CKvEntityTags &tags = source.tags;
    const CKvTextStyles::Style &style = styleOf(source);
    CKvTextShape shape;
    shape.text = plainText(text);
    shape.font = style.font;
    shape.width = sink.picture().fonts[style.font].widthOf(shape.text);
    double height = tags.real(40);
    double letterWidth = height * tags.real(41, style.widthFactor);
    double rotation = tags.real(50);
    const bool hasTwoPoints = alignment.horizontal == 3 || alignment.horizontal == 5;
    const bool isAtFirst = alignment.horizontal == 0 && alignment.vertical == 0;
    const QPointF place =
        tags.find(11) && !isAtFirst && !hasTwoPoints ? tags.point(11) : tags.point(10);
    if (hasTwoPoints && tags.find(11) && shape.width > 0) {
        const QPointF along = tags.point(11) - tags.point(10);
        letterWidth = std::hypot(along.x(), along.y()) / shape.width;
        rotation = std::atan2(along.y(), along.x()) / kRadiansPerDegree;
        height = alignment.horizontal == 3 ? letterWidth : height;
        alignment = {};
    }
    if (!(height > 0) || !(letterWidth > 0)) {
        return;
    }
    const QPointF anchor = anchorOf(alignment, shape.width);
    const double slant = std::clamp(tags.real(51), -80.0, 80.0);
    shape.placement = QTransform::fromTranslate(-anchor.x(), -anchor.y())
        * QTransform::fromScale(tags.hasFlag(71, 2) ? -letterWidth : letterWidth,
                                tags.hasFlag(71, 4) ? -height : height)
        * QTransform(1, 0, std::tan(slant * kRadiansPerDegree), 1, 0, 0)
        * QTransform().rotate(rotation) * QTransform::fromTranslate(place.x(), place.y())
        * tags.plane();
    sink.text(shape);
}

/// Groups 3, each of 250 characters, then 1.
QString wholeText(const CKvEntityTags &tags)
{
    std::string bytes;
    for (const CKvTag &tag : tags.tags()) {
        if (tag.code == 3 || tag.code == 1) {
            bytes += tag.value;
        }
    }
    return tags.slot().format().codec.decode(bytes);
}

} // namespace

void readText(const CKvEntitySource &source, CKvShapeSink &sink)
{
    const CKvEntityTags &tags = source.tags;
    drawLine(source, tags.text(1), { tags.integer(72), tags.integer(73) }, sink);
}

void readAttribute(const CKvEntitySource &source, CKvShapeSink &sink)
{
    constexpr int kInvisible = 1;
    const CKvEntityTags &tags = source.tags;
    if (tags.hasFlag(70, kInvisible)) {
        return;
    }
    // A definition shows its tag, until it is inserted.
    const bool isDefinition = tags.find(0)->word() == "ATTDEF";
    drawLine(source, tags.text(isDefinition ? 2 : 1), { tags.integer(72), tags.integer(74) }, sink);
}

void readMultilineText(const CKvEntitySource &source, CKvShapeSink &sink)
{
    const CKvEntityTags &tags = source.tags;
    const CKvTextStyles::Style &style = styleOf(source);
    const QPointF along = tags.point(11);
    const double rotation = tags.find(11) && !along.isNull()
        ? std::atan2(along.y(), along.x()) / kRadiansPerDegree
        : tags.real(50);
    const int attachment = std::clamp(tags.integer(71, 1), 1, 9) - 1;
    CKvTextBlock block;
    block.height = tags.real(40);
    block.widthFactor = style.widthFactor;
    block.placement = QTransform().rotate(rotation)
        * QTransform::fromTranslate(tags.point(10).x(), tags.point(10).y());
    block.horizontal = attachment % 3;
    block.vertical = attachment / 3;
    block.limit = tags.real(41);
    block.lineSpacing = std::clamp(tags.real(44, 1), 0.25, 4.0);
    drawTextBlock(block, plainLines(wholeText(tags)), style, sink);
}
