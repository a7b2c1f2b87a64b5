// SPDX-License-Identifier: MIT
#include "CKvLayerRepair.h"

#include "CKvLayerTexts.h"
#include "CKvStdsProperty.h"
#include "cloneSymbolToDrawing.h"
#include "lineweightNames.h"
#include "purgeRecords.h"
#include "walkDrawing.h"

#include "CKvSystemServices.h"
#include "OdDbLinetypeTable.h"

CKvLayerRepair::CKvLayerRepair(OdDbDatabasePtr drawing,
                               CKvStdsErrorPtr error,
                               const CKvStdsFixPtr &fix,
                               CKvStandardsSource standardsDatabase)
    : m_drawing(std::move(drawing))
    , m_error(std::move(error))
    , m_standardsDatabase(std::move(standardsDatabase))
    , m_color(CKvStdsProperty::toColor(fix->property(CKvLayerTexts::lineColorProperty())))
    , m_hasTarget(!fix->property(CKvLayerTexts::nameProperty()).isNull())
    , m_targetName(CKvStdsProperty::toText(fix->property(CKvLayerTexts::nameProperty())))
    , m_lineStyleName(CKvStdsProperty::toText(fix->property(CKvLayerTexts::lineStyleProperty())))
    , m_standardsFile(fix->standardsFile())
    , m_oldName(m_error->objectName())
{
    ConvertNameToLineweight(
        CKvStdsProperty::toText(fix->property(CKvLayerTexts::lineWeightProperty())), m_lineWeight);
}

void CKvLayerRepair::run()
{
    if (!m_hasTarget) {
        return;
    }
    // Open until the end, so that nobody takes the layer away meanwhile.
    const OdDbLayerTableRecordPtr violating =
        OdDbLayerTableRecord::cast(m_error->objectId().openObject(OdDb::kForRead).get());
    if (!bringInLineStyle()) {
        return;
    }
    const OdDbLayerTablePtr layers(m_drawing->getLayerTableId().openObject(OdDb::kForWrite));
    if (!layers) {
        return;
    }

    const OdString target = m_targetName.toOdString();
    if (layers->has(target)) {
        setValues(OdDbLayerTableRecordPtr(layers->getAt(target).openObject(OdDb::kForWrite)));
    } else if (renameInPlace(layers)) {
        return;
    }

    const OdDbObjectId targetId = layers->getAt(target);
    const OdDbObjectId oldId = layers->getAt(m_oldName.toOdString());
    // An updated layer keeps its entities and stays current as it is.
    if (!oldId.isNull() && !targetId.isNull() && oldId != targetId) {
        moveEntities(targetId);
        if (m_drawing->getCLAYER() == oldId) {
            m_drawing->setCLAYER(targetId);
        }
    }
    if (!m_oldName.equalNoCase(m_targetName)) {
        purgeOldLayer(oldId);
    }
}

bool CKvLayerRepair::bringInLineStyle()
{
    const OdDbLinetypeTablePtr lineStyles(
        m_drawing->getLinetypeTableId().openObject(OdDb::kForWrite));
    if (!lineStyles) {
        return true;
    }
    if (!lineStyles->has(m_lineStyleName.toOdString())) {
        CKvSystemServices *services = GetKvSystemServices();
        const CKvString file(m_drawing->getMEASUREMENT() != 0 ? "mm.lin" : "inch.lin");
        const CKvString path = services
            ? services->findFile(file, /*hint*/ 0, /*database*/ nullptr, /*flags*/ 0)
            : CKvString();
        try {
            m_drawing->loadLineTypeFile(m_lineStyleName.toOdString(),
                                        path.toOdString(),
                                        /*duplicateHandling*/ 0,
                                        /*flags*/ 0);
        } catch (const OdError &problem) {
            // Only a style that the file lacks is taken from the standards. After any other failure
            // the repair goes on without the line style.
            if (problem.code() == int(OdResult::kUndefinedLineType) && !cloneLineStyle()) {
                return false;
            }
        }
    }
    m_lineStyleId = lineStyles->getAt(m_lineStyleName.toOdString());
    return true;
}

bool CKvLayerRepair::cloneLineStyle()
{
    const OdDbDatabasePtr standards = m_standardsDatabase(m_standardsFile);
    if (!standards) {
        return false;
    }
    const OdDbLinetypeTablePtr lineStyles(
        standards->getLinetypeTableId().openObject(OdDb::kForWrite));
    const OdDbObjectId wanted =
        lineStyles ? lineStyles->getAt(m_lineStyleName.toOdString()) : OdDbObjectId();
    if (wanted.isNull()) {
        return true;
    }
    // Whether there is a clone is seen by the caller, who looks for the style.
    cloneSymbolToDrawing(
        OdDbSymbolTablePtr(m_drawing->getLinetypeTableId().openObject(OdDb::kForRead)), wanted);
    return true;
}

void CKvLayerRepair::setValues(const OdDbLayerTableRecordPtr &layer) const
{
    layer->setColor(m_color);
    layer->setLineWeight(m_lineWeight);
    if (!m_lineStyleId.isNull()) {
        layer->setLinetypeObjectId(m_lineStyleId);
    }
}

bool CKvLayerRepair::renameInPlace(const OdDbLayerTablePtr &layers) const
{
    const OdDbObjectId oldId = layers->getAt(m_oldName.toOdString());
    const OdDbLayerTableRecordPtr layer(oldId.openObject(OdDb::kForWrite));
    if (!layer || !layer->isWriteEnabled()) {
        return false;
    }
    layer->setColor(m_color);
    layer->setLineWeight(m_lineWeight);
    layer->setLinetypeObjectId(m_lineStyleId);
    layer->setName(m_targetName.toOdString());
    return true;
}

void CKvLayerRepair::moveEntities(OdDbObjectId targetId) const
{
    const OdDbObjectId violatingId = m_error->objectId();
    walkOwnEntitiesNaming(*m_drawing, violatingId, [&](const OdDbEntityPtr &entity) {
        if (entity->layerId() == violatingId && entity->isWriteEnabled()) {
            entity->setLayer(targetId, /*doSubents*/ true, /*allowHiddenLayer*/ false);
        }
    });
}

void CKvLayerRepair::purgeOldLayer(OdDbObjectId oldId) const
{
    OdDbObjectIdArray ids;
    ids.append(oldId);
    const OdDbLinetypeTablePtr lineStyles(
        m_drawing->getLinetypeTableId().openObject(OdDb::kForRead));
    if (lineStyles) {
        const OdDbObjectId oldLineStyle = lineStyles->getAt(
            CKvStdsProperty::toText(m_error->property(CKvLayerTexts::lineStyleProperty()))
                .toOdString());
        if (!oldLineStyle.isNull()) {
            ids.append(oldLineStyle);
        }
    }
    purgeRecords(*m_drawing, ids);
}
