// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDrawingBuilder.h"
#include "CKvPicture.h"
#include "OdDbDatabase.h"

#include <QStringList>

/// The complete picture of a drawing.
CKvPicture pictureOf(const OdDbDatabasePtr &drawing);
/// What a block of a picture holds, a line for each thing: its kind, its places rounded to two
/// digits, and its layer.
QStringList pictureText(const CKvPicture &picture, std::size_t block = 0);
/// The text of the model space of a drawing.
QStringList shown(const CKvDrawingBuilder &drawing);
