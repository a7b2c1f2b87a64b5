// SPDX-License-Identifier: MIT
#include "namingSettings.h"

#include "CKvDrawingStore.h"
#include "dimStyleTags.h"
#include "dimensionPointers.h"

namespace
{

constexpr OdDbDimVariable kPointers[] = {
    OdDbDimVariable::kDimblk,    OdDbDimVariable::kDimblk1,  OdDbDimVariable::kDimblk2,
    OdDbDimVariable::kDimldrblk, OdDbDimVariable::kDimtxsty, OdDbDimVariable::kDimltype,
    OdDbDimVariable::kDimltex1,  OdDbDimVariable::kDimltex2,
};

std::string nameInHeader(const CKvDimensionVariable &row)
{
    return std::string("$") + row.name;
}

bool isNamedBy(CKvDrawingStore &store,
               CKvTableKind kind,
               const CKvObjectSlot &record,
               const CKvObjectSlot &style,
               const CKvDimensionVariable &row)
{
    const std::optional<CKvDimStyleTag> found = findDimStyleTag(style, row);
    if (!found || found->isExtended) {
        return false;
    }
    if (kind == CKvTableKind::Block && namesArrowBlocks(style)) {
        return findArrowBlock(store, found->tag.value) == &record;
    }
    const bool isHandle =
        store.hasHandles() && store.findRecordByHandle(found->tag.handle()) == &record;
    return !isHandle && findPointed(store, kind, found->tag.value) == &record;
}

} // namespace

std::vector<CKvNamingSetting>
settingsNaming(CKvDrawingStore &store, CKvTableKind kind, const CKvObjectSlot &record)
{
    std::vector<CKvNamingSetting> settings;
    for (const OdDbDimVariable variable : kPointers) {
        const CKvDimensionVariable &row = dimensionVariable(variable);
        if (tableOf(row) != kind) {
            continue;
        }
        for (CKvObjectSlot *style : store.table(CKvTableKind::DimStyle).records()) {
            if (!style->isErased && isNamedBy(store, kind, record, *style, row)) {
                settings.push_back({ style, variable });
            }
        }
        const std::optional<CKvTag> inHeader = store.header().find(nameInHeader(row));
        if (kind == CKvTableKind::Block && inHeader
            && findArrowBlock(store, inHeader->value) == &record) {
            settings.push_back({ nullptr, variable });
        }
    }
    return settings;
}

void nameInSettings(CKvDrawingStore &store,
                    const std::vector<CKvNamingSetting> &settings,
                    const std::string &encodedName)
{
    for (const CKvNamingSetting &setting : settings) {
        const CKvDimensionVariable &row = dimensionVariable(setting.variable);
        if (setting.style) {
            writeDimStyleTag(*setting.style, row, { encodedName, {} });
        } else {
            store.header().set(nameInHeader(row), encodedName);
        }
    }
}
