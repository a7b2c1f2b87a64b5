// SPDX-License-Identifier: MIT
#include "askPoint.h"

#include "CKvCommandCancelled.h"
#include "CKvDesktop.h"
#include "CKvMainWindow.h"

#include <QStringList>

#include <cmath>

std::optional<QPointF> pointFromText(const QString &text)
{
    const QStringList parts = text.trimmed().split(QLatin1Char(','));
    bool isX = false;
    bool isY = false;
    const double x = parts.value(0).toDouble(&isX);
    const double y = parts.value(1).toDouble(&isY);
    // A third number is a height, which this view has no use for.
    const bool isPoint = isX && isY && (parts.size() == 2 || parts.size() == 3) && std::isfinite(x)
        && std::isfinite(y);
    return isPoint ? std::optional<QPointF>(QPointF(x, y)) : std::nullopt;
}

QString pointToText(QPointF point)
{
    return QStringLiteral("%1,%2").arg(QString::number(point.x(), 'g', 12),
                                       QString::number(point.y(), 'g', 12));
}

void refuseAnswer(CKvDesktop &desktop, const QString &message)
{
    desktop.commandLine().print(message);
    if (desktop.commandLine().hasAnswer()) {
        throw CKvCommandCancelled();
    }
}

CKvPointOrWord askPointOrWord(CKvDesktop &desktop, const QString &prompt)
{
    desktop.window().setPicksPoints(true);
    const QString answer = desktop.commandLine().ask(prompt);
    return { pointFromText(answer), answer };
}

std::optional<QPointF> askPointOrEnd(CKvDesktop &desktop, const QString &prompt)
{
    for (;;) {
        const CKvPointOrWord answer = askPointOrWord(desktop, prompt);
        if (answer.point || answer.word.isEmpty()) {
            return answer.point;
        }
        refuseAnswer(desktop,
                     CKvMainWindow::tr("\"%1\" is no point; a point is x,y.").arg(answer.word));
    }
}

QPointF askPoint(CKvDesktop &desktop, const QString &prompt)
{
    for (;;) {
        if (const std::optional<QPointF> point = askPointOrEnd(desktop, prompt)) {
            return *point;
        }
        refuseAnswer(desktop, CKvMainWindow::tr("A point is needed."));
    }
}

double askLength(CKvDesktop &desktop, const QString &prompt)
{
    for (;;) {
        const QString answer = desktop.commandLine().ask(prompt);
        bool isNumber = false;
        const double length = answer.toDouble(&isNumber);
        if (isNumber && length > 0 && std::isfinite(length)) {
            return length;
        }
        refuseAnswer(desktop, CKvMainWindow::tr("\"%1\" is no number above 0.").arg(answer));
    }
}
