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
/// Asks for a number above 0.
double askLength(CKvDesktop &desktop, const QString &prompt);
