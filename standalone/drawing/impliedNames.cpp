// SPDX-License-Identifier: MIT
#include "impliedNames.h"

#include "CKvDrawingStore.h"
#include "CKvNameIndex.h"
#include "nameUses.h"
#include "objectTags.h"

namespace
{

/// Where a table's name stands in the entities that have one, and in the header.
struct CKvImpliedName {
    CKvTableKind kind;
    int entityCode;
    /// A new group stands behind the first of these that is there.
    std::initializer_list<int> anchors;
    std::string_view variable;
    int variableCode;
};

constexpr CKvImpliedName kTextStyle = {
    CKvTableKind::TextStyle, 7, { 51, 41, 50, 1, 40 }, "$TEXTSTYLE", 7
};
constexpr CKvImpliedName kDimStyle = {
    CKvTableKind::DimStyle, 3, { 53, 41, 72, 71, 70 }, "$DIMSTYLE", 2
};

const CKvImpliedName &rowOf(CKvTableKind kind)
{
    return kind == CKvTableKind::TextStyle ? kTextStyle : kDimStyle;
}

} // namespace

bool isMeantByNone(CKvTableKind kind, const QString &name)
{
    return (kind == CKvTableKind::TextStyle || kind == CKvTableKind::DimStyle)
        && foldedName(name) == QLatin1String("standard");
}

void writeImpliedName(CKvObjectSlot &entity, CKvTableKind kind, std::string_view encodedName)
{
    const CKvImpliedName &row = rowOf(kind);
    const std::optional<CKvTag> type = findTag(entity, 0);
    // A table takes what it has no name for from its table style.
    const bool isMeant = type && type->word() != "ACAD_TABLE" && namesRecordOf(type->word(), kind);
    if (isMeant && !findTag(entity, row.entityCode)) {
        setTag(entity, row.entityCode, encodedName, row.anchors);
    }
}

void writeImpliedCurrent(CKvDrawingStore &store, CKvTableKind kind, std::string_view encodedName)
{
    const CKvImpliedName &row = rowOf(kind);
    if (!store.header().find(row.variable)) {
        store.header().set(row.variable, encodedName, row.variableCode);
    }
}
