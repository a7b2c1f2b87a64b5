// SPDX-License-Identifier: MIT
#pragma once

#include "CKvTag.h"

#include <QByteArray>

/// A drawing in lines of text, as the binary file of the same tags.
/// @param form one of the two binary ones.
QByteArray inBinary(const QByteArray &lines, CKvTagForm form = CKvTagForm::Binary);
/// The other way round, with codes filled up with blanks.
QByteArray inLines(const QByteArray &binary, CKvTagForm form = CKvTagForm::Binary);
