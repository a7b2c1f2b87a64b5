// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QString>

#include <optional>

class CKvDesktop;

/// @param text "12.5,-3".
/// @return none when it is no point.
std::optional<QPointF> pointFromText(const QString &text);
/// As a drawing's commands write it.
QString pointToText(QPointF point);

/// Asks for a point until there is one, typed or clicked.
/// @throws CKvCommandCancelled when the user breaks the command off, and for a script's answer that
/// is no point.
QPointF askPoint(CKvDesktop &desktop, const QString &prompt);
/// As askPoint, but a bare Enter gives none.
std::optional<QPointF> askPointOrEnd(CKvDesktop &desktop, const QString &prompt);
/// A point, or another word that was given in its place; an empty one for a bare Enter.
struct CKvPointOrWord {
    std::optional<QPointF> point;
    QString word;
};
/// Asks once, for a point or an option of the command.
CKvPointOrWord askPointOrWord(CKvDesktop &desktop, const QString &prompt);
/// Tells what is wrong with an answer, so that the command can ask again.
/// @throws CKvCommandCancelled in a script, which can't be asked again.
void refuseAnswer(CKvDesktop &desktop, const QString &message);
/// Asks for a number above 0.
double askLength(CKvDesktop &desktop, const QString &prompt);
