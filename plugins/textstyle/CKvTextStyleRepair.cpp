// SPDX-License-Identifier: MIT
#include "CKvTextStyleRepair.h"

#include "CKvTextStyleTexts.h"
#include "moveTextStyleUsers.h"
#include "purgeRecords.h"
#include "textStyleRecords.h"

#include "CKvObjectAnnotationContext.h"

CKvTextStyleRepair::CKvTextStyleRepair(OdDbDatabasePtr drawing,
                                       CKvStdsErrorPtr error,
                                       const CKvStdsFixPtr &fix)
    : m_drawing(std::move(drawing))
    , m_error(std::move(error))
    , m_hasTarget(!fix->property(CKvTextStyleTexts::nameProperty()).isNull())
    , m_values(readTextStyleRecord(/*fromFix*/ true, fix, CKvStdsErrorPtr()))
    , m_oldName(m_error->objectName())
{
}

CKvTextStyleRepair::~CKvTextStyleRepair() = default;

void CKvTextStyleRepair::run()
{
    if (!m_hasTarget) {
        return;
    }
    const OdDbTextStyleTablePtr styles(
        m_drawing->getTextStyleTableId().openObject(OdDb::kForWrite));
    if (!styles) {
        return;
    }
    if (const OdDbTextStyleTableRecordPtr repaired = openRepaired(styles)) {
        setValues(*repaired);
    }
    const OdDbObjectId newId = styles->getAt(m_values->name.toOdString());
    const OdDbObjectId oldId = styles->getAt(m_oldName.toOdString());
    // A style that was changed in place keeps its users and stays current as it is.
    if (!oldId.isNull() && !newId.isNull() && oldId != newId) {
        moveTextStyleUsers(*m_drawing, m_error->objectId(), newId);
        if (m_drawing->getTEXTSTYLE() == oldId) {
            m_drawing->setTEXTSTYLE(newId);
        }
    }
    if (!m_oldName.equalNoCase(m_values->name)) {
        // Null after a rename; what is purged leaves it out.
        OdDbObjectIdArray ids;
        ids.append(oldId);
        purgeRecords(*m_drawing, ids);
    }
}

OdDbTextStyleTableRecordPtr
CKvTextStyleRepair::openRepaired(const OdDbTextStyleTablePtr &styles) const
{
    const OdString newName = m_values->name.toOdString();
    if (styles->has(newName)) {
        return OdDbTextStyleTableRecordPtr(styles->getAt(newName).openObject(OdDb::kForWrite));
    }
    OdDbTextStyleTableRecordPtr old(
        styles->getAt(m_oldName.toOdString()).openObject(OdDb::kForWrite));
    if (!old || !old->isWriteEnabled()) {
        return OdDbTextStyleTableRecordPtr();
    }
    old->setName(newName);
    return old;
}

void CKvTextStyleRepair::setValues(OdDbTextStyleTableRecord &style) const
{
    style.setFileName(m_values->fontFile.toOdString());
    style.setBigFontFileName(m_values->bigFontFile.toOdString());
    style.setTextSize(m_values->textSize);
    style.setIsUpsideDown(m_values->isUpsideDown);
    style.setIsVertical(m_values->isVertical);
    style.setIsBackwards(m_values->isBackwards);
    style.setXScale(m_values->xScale);
    style.setObliquingAngle(m_values->obliquingAngle);
    CKvObjectAnnotationContext::SetAnnotative(
        style.objectId(), m_values->annotative, m_values->matchOrientation);
    setFontStyle(style);
}

void CKvTextStyleRepair::setFontStyle(OdDbTextStyleTableRecord &style) const
{
    // A font of shapes has no bold and no italic; what the style had of it stays.
    if (m_values->fontStyle.isEmpty()) {
        return;
    }
    const bool isBoldItalic = m_values->fontStyle.compareNoCase(CKvString("Bold Italic")) == 0;
    OdString typeface;
    bool wasBold = false;
    bool wasItalic = false;
    int charset = 0;
    int pitchAndFamily = 0;
    style.font(typeface, wasBold, wasItalic, charset, pitchAndFamily);
    style.setFont(typeface,
                  isBoldItalic || m_values->fontStyle.compareNoCase(CKvString("Bold")) == 0,
                  isBoldItalic || m_values->fontStyle.compareNoCase(CKvString("Italic")) == 0,
                  charset,
                  pitchAndFamily);
}
