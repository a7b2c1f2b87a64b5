// SPDX-License-Identifier: MIT
#include "dimensionPointers.h"

#include "CKvDrawingStore.h"
#include "CKvTag.h"

namespace
{

CKvObjectSlot *findNamed(CKvDrawingStore &store, CKvTableKind kind, const QString &name)
{
    CKvTable &table = store.table(kind);
    CKvObjectSlot *found = table.find(name);
    if (!found && kind == CKvTableKind::Block && !store.hasEntities()) {
        // A block without a record in the table is known only once the entities were read.
        store.entities();
        found = table.find(name);
    }
    return found;
}

} // namespace

CKvTableKind tableOf(const CKvDimensionVariable &variable)
{
    switch (variable.kind) {
    case CKvDimensionVariable::Kind::TextStyle:
        return CKvTableKind::TextStyle;
    case CKvDimensionVariable::Kind::LineStyle:
        return CKvTableKind::Linetype;
    default:
        return CKvTableKind::Block;
    }
}

CKvObjectSlot *findArrowBlock(CKvDrawingStore &store, std::string_view encodedName)
{
    const QString name = store.format().codec.decode(encodedName);
    if (name.isEmpty()) {
        return nullptr;
    }
    CKvObjectSlot *found = findNamed(store, CKvTableKind::Block, name);
    return found ? found : findNamed(store, CKvTableKind::Block, QString(QLatin1Char('_') + name));
}

CKvObjectSlot *findPointed(CKvDrawingStore &store, CKvTableKind kind, std::string_view handleOrName)
{
    const std::string_view word = trimmed(handleOrName);
    if (word.empty() || word.find_first_not_of('0') == std::string_view::npos) {
        return nullptr;
    }
    CKvObjectSlot *found =
        store.hasHandles() ? store.findRecordByHandle(handleFromText(word)) : nullptr;
    if (found && store.isRecordOf(*found, kind)) {
        return found->isErased ? nullptr : found;
    }
    return findNamed(store, kind, store.format().codec.decode(handleOrName));
}
