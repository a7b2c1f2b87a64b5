// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbSymbolTable.h"

#include <QString>
#include <QStringList>

class CKvDesktop;
class CKvHostDocument;

/// The tables whose records a user can change.
enum class CKvRecordKind { Layer, LineStyle, TextStyle, DimStyle, Block };

/// @param word the beginning of LAYER, LTYPE, STYLE, DIMSTYLE or BLOCK.
/// @return false for anything else.
bool recordKindFromWord(const QString &word, CKvRecordKind &kind);
/// The word in full.
QString wordOfRecordKind(CKvRecordKind kind);
OdDbSymbolTablePtr openTable(const CKvHostDocument &document,
                             CKvRecordKind kind,
                             OdDb::OpenMode mode = OdDb::kForRead);
/// Asks for the name of a record that is there.
/// @throws CKvCommandCancelled when the user breaks off; OdError for a name that is not there.
OdDbSymbolTableRecordPtr
askRecord(CKvDesktop &desktop, CKvRecordKind kind, const QString &prompt, OdDb::OpenMode mode);
/// The record of that name.
/// @throws OdError when there is none.
OdDbSymbolTableRecordPtr requireRecord(const CKvHostDocument &document,
                                       CKvRecordKind kind,
                                       const QString &name,
                                       OdDb::OpenMode mode);
/// Erases a record that nothing uses.
/// @throws OdError for one that is used, and for one that can never go.
void eraseRecord(const OdDbSymbolTableRecordPtr &record);
