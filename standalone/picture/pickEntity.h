// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>

class CKvObjectSlot;
class CKvPicture;

/// The entity of model space that is drawn nearest to a point.
/// @param reach how far from it at most, in drawing units.
/// @return null when there is none; the one that is drawn last of several equally near.
const CKvObjectSlot *pickEntity(const CKvPicture &picture, QPointF point, double reach);
