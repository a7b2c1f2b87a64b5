// SPDX-License-Identifier: MIT
#include "applyDimStyle.h"

#include "cloneSymbolToDrawing.h"
#include "dimStyleProperties.h"

#include "CKvObjectAnnotationContext.h"
#include "OdDbSymbolTable.h"

namespace
{

using Style = OdDbDimStyleTableRecord;

/// A setting that names a block, a text style or a line style.
struct CKvPointerSetting {
    OdDbHardPointerId (Style::*get)() const;
    void (Style::*set)(OdDbHardPointerId);
    void (OdDbDimensionSettings::*setVariable)(OdDbHardPointerId);
};

constexpr CKvPointerSetting kArrows[] = {
    { &Style::dimblk, &Style::setDimblk, &OdDbDatabase::setDIMBLK },
    { &Style::dimblk1, &Style::setDimblk1, &OdDbDatabase::setDIMBLK1 },
    { &Style::dimblk2, &Style::setDimblk2, &OdDbDatabase::setDIMBLK2 },
    { &Style::dimldrblk, &Style::setDimldrblk, &OdDbDatabase::setDIMLDRBLK },
};

constexpr CKvPointerSetting kTextStyles[] = {
    { &Style::dimtxsty, &Style::setDimtxsty, &OdDbDatabase::setDIMTXSTY },
};

constexpr CKvPointerSetting kLineStyles[] = {
    { &Style::dimltype, &Style::setDimltype, &OdDbDatabase::setDIMLTYPE },
    { &Style::dimltex1, &Style::setDimltex1, &OdDbDatabase::setDIMLTEX1 },
    { &Style::dimltex2, &Style::setDimltex2, &OdDbDatabase::setDIMLTEX2 },
};

void copyValues(OdDbDatabase &drawing, Style &target, const Style &source)
{
    for (const CKvDimStyleProperty &property : CKvDimStyleProperties()) {
        if (!property.copy) {
            continue;
        }
        try {
            property.copy(drawing, target, source);
        } catch (const OdError_InvalidSysvarValue &) {
            // One value that the drawing refuses does not keep the others away.
        }
    }
}

/// What becomes of a setting whose object is in neither drawing.
enum class CKvMissing { IsCleared, IsLeft };

template <std::size_t count>
void bringOver(OdDbDatabase &drawing,
               OdDbObjectId tableId,
               const CKvPointerSetting (&settings)[count],
               CKvMissing missing,
               Style &target,
               const Style &source)
{
    const OdDbSymbolTablePtr table(tableId.openObject(OdDb::kForRead));
    for (const CKvPointerSetting &setting : settings) {
        const OdDbHardPointerId id = cloneSymbolToDrawing(table, (source.*setting.get)());
        if (id.isNull() && missing == CKvMissing::IsLeft) {
            continue;
        }
        (target.*setting.set)(id);
        (drawing.*setting.setVariable)(id);
    }
}

} // namespace

void applyDimStyle(OdDbDatabasePtr drawing,
                   OdDbDimStyleTableRecordPtr target,
                   OdDbDimStyleTableRecordPtr source)
{
    copyValues(*drawing, *target, *source);
    // A default arrow has no block, so null comes over too.
    bringOver(
        *drawing, drawing->getBlockTableId(), kArrows, CKvMissing::IsCleared, *target, *source);
    bringOver(*drawing,
              drawing->getTextStyleTableId(),
              kTextStyles,
              CKvMissing::IsLeft,
              *target,
              *source);
    bringOver(
        *drawing, drawing->getLinetypeTableId(), kLineStyles, CKvMissing::IsLeft, *target, *source);
    CKvObjectAnnotationContext::SetAnnotative(
        target->objectId(),
        CKvObjectAnnotationContext::IsAnnotative(source->objectId(), nullptr),
        /*matchesOrientation*/ false);
}
