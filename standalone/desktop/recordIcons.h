// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

/// What the list of layers shows in place of words.
enum class CKvLayerMark { On, Frozen, Locked };

/// A square of the colour with a rim, so that white can be seen on white.
QIcon colorSwatch(const QColor &color, const QColor &rim);
/// @param isOn whether the switch is on; one that is off is drawn in the colour of the rim.
QIcon layerMark(CKvLayerMark mark, bool isOn, const QColor &rim);
