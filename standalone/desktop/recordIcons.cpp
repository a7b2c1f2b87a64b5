// SPDX-License-Identifier: MIT
#include "recordIcons.h"

#include "angles.h"

#include <QPainter>
#include <QPixmap>

#include <cmath>

namespace
{

constexpr int kSize = 14;
/// Sharp on screens with twice the pixels, and good enough to be shrunk on others.
constexpr int kRatio = 2;

constexpr QRgb kBulbColor = qRgb(0xf5, 0xb3, 0x01);
constexpr QRgb kFrostColor = qRgb(0x2a, 0x8f, 0xd8);
constexpr QRgb kLockColor = qRgb(0xc4, 0x4f, 0x2c);

QPixmap emptyPixmap()
{
    QPixmap pixmap(kSize * kRatio, kSize * kRatio);
    pixmap.setDevicePixelRatio(kRatio);
    pixmap.fill(Qt::transparent);
    return pixmap;
}

void drawBulb(QPainter &painter, bool isOn, const QColor &color)
{
    painter.setPen(QPen(color, 1));
    painter.setBrush(isOn ? QBrush(color) : QBrush(Qt::NoBrush));
    painter.drawEllipse(QPointF(7, 5.5), 4, 4);
    painter.drawLine(QPointF(5.5, 11), QPointF(8.5, 11));
    painter.drawLine(QPointF(6, 12.5), QPointF(8, 12.5));
}

void drawFlake(QPainter &painter, const QColor &color)
{
    constexpr int kArms = 6;
    constexpr double kTurn = 2 * kPi / kArms;
    painter.setPen(QPen(color, 1.3));
    for (int i = 0; i < kArms; ++i) {
        const QPointF arm(std::sin(i * kTurn), -std::cos(i * kTurn));
        const QPointF across(arm.y(), -arm.x());
        const QPointF knot = QPointF(7, 7) + arm * 3.2;
        painter.drawLine(QPointF(7, 7), QPointF(7, 7) + arm * 5.5);
        painter.drawLine(knot, knot + (arm + across) * 1.5);
        painter.drawLine(knot, knot + (arm - across) * 1.5);
    }
}

/// Grey frost would look frozen.
void drawDot(QPainter &painter, const QColor &color)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawEllipse(QPointF(7, 7), 1.5, 1.5);
}

void drawLock(QPainter &painter, bool isOn, const QColor &color)
{
    constexpr int kSixteenth = 16;
    // An open shackle stands beside its hole.
    const double shift = isOn ? 0 : 3;
    painter.setPen(QPen(color, 1.3));
    painter.setBrush(Qt::NoBrush);
    painter.drawArc(QRectF(4.5 + shift, 2, 5, 6), 0, 180 * kSixteenth);
    painter.setBrush(isOn ? QBrush(color) : QBrush(Qt::NoBrush));
    painter.drawRect(QRectF(3, 6.5, 8, 5.5));
}

} // namespace

QIcon colorSwatch(const QColor &color, const QColor &rim)
{
    QPixmap pixmap = emptyPixmap();
    QPainter painter(&pixmap);
    painter.setPen(rim);
    painter.setBrush(color);
    painter.drawRect(QRectF(1.5, 1.5, kSize - 3, kSize - 3));
    return QIcon(pixmap);
}

QIcon layerMark(CKvLayerMark mark, bool isOn, const QColor &rim)
{
    QPixmap pixmap = emptyPixmap();
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    switch (mark) {
    case CKvLayerMark::On:
        drawBulb(painter, isOn, isOn ? QColor(kBulbColor) : rim);
        break;
    case CKvLayerMark::Frozen:
        if (isOn) {
            drawFlake(painter, QColor(kFrostColor));
        } else {
            drawDot(painter, rim);
        }
        break;
    case CKvLayerMark::Locked:
        drawLock(painter, isOn, isOn ? QColor(kLockColor) : rim);
        break;
    }
    return QIcon(pixmap);
}
