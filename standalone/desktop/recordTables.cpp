// SPDX-License-Identifier: MIT
#include "recordTables.h"

#include "CKvDesktop.h"
#include "CKvHostDocument.h"
#include "OdError.h"

#include <array>

namespace
{

struct KindWord {
    const char *word;
    CKvRecordKind kind;
};

constexpr std::array<KindWord, 5> kKinds = { { { "LAYER", CKvRecordKind::Layer },
                                               { "LTYPE", CKvRecordKind::LineStyle },
                                               { "STYLE", CKvRecordKind::TextStyle },
                                               { "DIMSTYLE", CKvRecordKind::DimStyle },
                                               { "BLOCK", CKvRecordKind::Block } } };

OdDbObjectId tableId(const OdDbDatabase &database, CKvRecordKind kind)
{
    switch (kind) {
    case CKvRecordKind::Layer:
        return database.getLayerTableId();
    case CKvRecordKind::LineStyle:
        return database.getLinetypeTableId();
    case CKvRecordKind::TextStyle:
        return database.getTextStyleTableId();
    case CKvRecordKind::DimStyle:
        return database.getDimStyleTableId();
    case CKvRecordKind::Block:
        return database.getBlockTableId();
    }
    return {};
}

} // namespace

bool recordKindFromWord(const QString &word, CKvRecordKind &kind)
{
    // "L" means layers: the first that fits counts.
    for (const KindWord &known : kKinds) {
        if (!word.isEmpty() && QLatin1String(known.word).startsWith(word, Qt::CaseInsensitive)) {
            kind = known.kind;
            return true;
        }
    }
    return false;
}

QString wordOfRecordKind(CKvRecordKind kind)
{
    for (const KindWord &known : kKinds) {
        if (known.kind == kind) {
            return QLatin1String(known.word);
        }
    }
    return {};
}

OdDbSymbolTablePtr
openTable(const CKvHostDocument &document, CKvRecordKind kind, OdDb::OpenMode mode)
{
    return OdDbSymbolTablePtr(tableId(*document.GetKvDatabase(), kind).openObject(mode));
}

OdDbSymbolTableRecordPtr requireRecord(const CKvHostDocument &document,
                                       CKvRecordKind kind,
                                       const QString &name,
                                       OdDb::OpenMode mode)
{
    const OdDbObjectId id = openTable(document, kind)->getAt(OdString(name));
    if (id.isNull()) {
        throw OdError(OdResult::kInvalidInput,
                      "The drawing has nothing of the name \"" + name.toStdString() + "\".");
    }
    return OdDbSymbolTableRecordPtr(id.openObject(mode));
}

OdDbSymbolTableRecordPtr
askRecord(CKvDesktop &desktop, CKvRecordKind kind, const QString &prompt, OdDb::OpenMode mode)
{
    const CKvHostDocument &document = desktop.requireDocument();
    return requireRecord(document, kind, desktop.commandLine().ask(prompt), mode);
}

void eraseRecord(const OdDbSymbolTableRecordPtr &record)
{
    OdDbObjectIdArray ids;
    ids.append(record->objectId());
    record->database()->purgeIds(ids);
    if (ids.isEmpty()) {
        throw OdError(OdResult::kInvalidInput,
                      "\"" + record->getName().toQString().toStdString()
                          + "\" is in use, or can never be deleted.");
    }
    record->upgradeOpen();
    record->erase();
}
