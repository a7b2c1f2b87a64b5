// SPDX-License-Identifier: MIT
#include "CKvLineStyleRepair.h"

#include "CKvLineStyleTexts.h"
#include "CKvStdsProperty.h"
#include "purgeRecords.h"
#include "reservedLineStyles.h"
#include "walkDrawing.h"

#include "OdDbEntity.h"
#include "OdDbLayerTableRecord.h"

CKvLineStyleRepair::CKvLineStyleRepair(OdDbDatabasePtr drawing,
                                       CKvStdsErrorPtr error,
                                       const CKvStdsFixPtr &fix,
                                       CKvStandardsSource standardsDatabase)
    : m_drawing(std::move(drawing))
    , m_error(std::move(error))
    , m_standardsDatabase(std::move(standardsDatabase))
    , m_standardsFile(fix->standardsFile())
    , m_oldName(m_error->objectName())
    , m_targetName(CKvStdsProperty::toText(fix->property(CKvLineStyleTexts::nameProperty())))
{
}

void CKvLineStyleRepair::run()
{
    // Open until the end, so that nobody takes the line style away meanwhile.
    const OdDbLinetypeTableRecordPtr violating =
        OdDbLinetypeTableRecord::cast(m_error->objectId().openObject(OdDb::kForRead).get());
    m_lineStyles =
        OdDbLinetypeTablePtr(m_drawing->getLinetypeTableId().openObject(OdDb::kForWrite));
    const OdDbDatabasePtr standards = m_standardsDatabase(m_standardsFile);
    const OdDbLinetypeTablePtr standardStyles(
        standards ? standards->getLinetypeTableId().openObject(OdDb::kForRead) : OdDbObjectPtr());
    if (!m_lineStyles || !standardStyles) {
        return;
    }
    const OdString target = m_targetName.toOdString();
    const OdDbLinetypeTableRecordPtr standard(
        standardStyles->getAt(target, OdDb::kForWrite, /*getErased*/ false));
    const OdDbLinetypeTableRecordPtr existing(
        m_lineStyles->getAt(target, OdDb::kForWrite, /*getErased*/ false));
    if (!existing) {
        if (!standard) {
            return;
        }
        redirectUsers(bringOver(standard));
        switchCurrent();
        if (!m_oldName.equalNoCase(m_targetName)) {
            purgeOld();
        }
        return;
    }
    if (m_oldName.compareNoCase(m_targetName) == 0) {
        // In place: the id stays, so nothing that uses the line style needs to change.
        if (standard) {
            existing->handOverTo(OdDbObjectPtr(standard->clone()),
                                 /*keepExtendedData*/ true,
                                 /*keepExtensionDictionary*/ true);
        }
        return;
    }
    redirectUsers(takePlaceOf(existing, standard));
    switchCurrent();
    purgeOld();
}

OdDbObjectId CKvLineStyleRepair::bringOver(const OdDbLinetypeTableRecordPtr &standard) const
{
    // The object of the standards file itself, no copy of it.
    m_drawing->addOdDbObject(standard, m_lineStyles->objectId(), OdDbHandle());
    m_lineStyles->add(standard);
    return m_lineStyles->getAt(m_targetName.toOdString());
}

/// The reserved line styles are never replaced. Nor is one that the standards file no longer has:
/// an earlier repair took it into the drawing, where it is the one wanted.
OdDbObjectId CKvLineStyleRepair::takePlaceOf(const OdDbLinetypeTableRecordPtr &existing,
                                             const OdDbLinetypeTableRecordPtr &standard) const
{
    if (!standard || isReservedLineStyle(*m_drawing, existing->objectId())) {
        return existing->objectId();
    }
    existing->erase(/*isErasing*/ true);
    return bringOver(standard);
}

void CKvLineStyleRepair::redirectUsers(OdDbObjectId targetId) const
{
    const OdDbObjectPtr violating = m_error->objectId().openObject(OdDb::kForRead);
    if (!violating || violating->objectId() == targetId) {
        return;
    }
    const OdDbObjectId oldId = violating->objectId();
    walkOwnEntitiesNaming(*m_drawing, oldId, [&](const OdDbEntityPtr &entity) {
        if (entity->linetypeId() == oldId) {
            entity->setLinetype(targetId, /*doSubents*/ true);
        }
    });
    walkTable(
        m_drawing->getLayerTableId(), OdDb::kForWrite, [&](const OdDbSymbolTableRecordPtr &record) {
            const OdDbLayerTableRecordPtr layer(record);
            if (layer->linetypeObjectId() == oldId) {
                layer->setLinetypeObjectId(targetId);
            }
        });
}

void CKvLineStyleRepair::switchCurrent() const
{
    const OdDbObjectId oldId = m_lineStyles->getAt(m_oldName.toOdString());
    if (!oldId.isNull() && m_drawing->getCELTYPE() == oldId) {
        m_drawing->setCELTYPE(m_lineStyles->getAt(m_targetName.toOdString()));
    }
}

void CKvLineStyleRepair::purgeOld() const
{
    const OdDbObjectId oldId = m_lineStyles->getAt(m_oldName.toOdString());
    if (!oldId.isNull()) {
        OdDbObjectIdArray ids;
        ids.append(oldId);
        purgeRecords(*m_drawing, ids);
    }
}
