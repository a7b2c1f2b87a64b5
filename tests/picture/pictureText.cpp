// SPDX-License-Identifier: MIT
#include "pictureText.h"

#include "CKvPictureBuilder.h"

namespace
{

QString numberText(double number)
{
    QString text = QString::number(number, 'f', 2);
    while (text.contains(QLatin1Char('.'))
           && (text.endsWith(QLatin1Char('0')) || text.endsWith(QLatin1Char('.')))) {
        const bool isPoint = text.endsWith(QLatin1Char('.'));
        text.chop(1);
        if (isPoint) {
            break;
        }
    }
    return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}

QString pointText(QPointF point)
{
    return QString(numberText(point.x()) + QLatin1Char(',') + numberText(point.y()));
}

QString pathText(const CKvPicture &picture, const CKvPathShape &path)
{
    QStringList points;
    for (std::uint32_t i = 0; i < path.count; ++i) {
        points << pointText(picture.points[path.first + i]);
    }
    return points.join(QLatin1Char(' '));
}

QString shapeText(const CKvPicture &picture, const CKvPictureItem &item)
{
    switch (item.kind) {
    case CKvPictureItem::Kind::Path: {
        const CKvPathShape &path = picture.paths[item.shape];
        return QString(QLatin1String("path ") + pathText(picture, path)
                       + (path.isClosed ? QStringLiteral(" closed") : QString())
                       + (path.width > 0
                              ? QString(QStringLiteral(" width ") + numberText(path.width))
                              : QString()));
    }
    case CKvPictureItem::Kind::Arc: {
        const CKvArcShape &arc = picture.arcs[item.shape];
        return QStringLiteral("arc %1 axes %2 %3 from %4 over %5")
            .arg(pointText(arc.center),
                 pointText(arc.u),
                 pointText(arc.v),
                 numberText(arc.start),
                 numberText(arc.sweep));
    }
    case CKvPictureItem::Kind::Ray: {
        const CKvRayShape &ray = picture.rays[item.shape];
        return QStringLiteral("ray %1 along %2%3")
            .arg(pointText(ray.base),
                 pointText(ray.direction),
                 ray.isEndlessBothWays ? QStringLiteral(" both ways") : QString());
    }
    case CKvPictureItem::Kind::Text: {
        const CKvTextShape &text = picture.texts[item.shape];
        const QPointF base = text.placement.map(QPointF());
        return QStringLiteral("text \"%1\" at %2 up %3")
            .arg(text.text, pointText(base), pointText(text.placement.map(QPointF(0, 1)) - base));
    }
    case CKvPictureItem::Kind::Insert: {
        const CKvInsertShape &insert = picture.inserts[item.shape];
        return QStringLiteral("block %1 at %2 x %3 times %4 by %5")
            .arg(QString::number(insert.block),
                 pointText(insert.placement.map(QPointF())),
                 pointText(insert.placement.map(QPointF(1, 0)) - insert.placement.map(QPointF())),
                 QString::number(insert.columns),
                 QString::number(insert.rows));
    }
    case CKvPictureItem::Kind::Area: {
        const CKvAreaShape &area = picture.areas[item.shape];
        QString text = QStringLiteral("area");
        for (std::uint32_t i = 0; i < area.ringCount; ++i) {
            text += QLatin1String(" [") + pathText(picture, picture.rings[area.firstRing + i])
                + QLatin1Char(']');
        }
        return QString(text
                       + (area.families.empty()
                              ? QStringLiteral(" solid")
                              : QStringLiteral(" %1 families").arg(area.families.size())));
    }
    }
    return {};
}

} // namespace

CKvPicture pictureOf(const OdDbDatabasePtr &drawing)
{
    CKvPictureBuilder builder(drawing->store());
    while (!builder.advance(10)) { }
    return builder.picture();
}

QStringList pictureText(const CKvPicture &picture, std::size_t block)
{
    QStringList lines;
    for (const CKvPictureItem &item : picture.blocks[block].items) {
        if (!item.isDead) {
            lines << QString(shapeText(picture, item) + QLatin1String(" on ")
                             + picture.layers[item.layer].name);
        }
    }
    return lines;
}

QStringList shown(const CKvDrawingBuilder &drawing)
{
    return pictureText(pictureOf(drawing.open()));
}
