// SPDX-License-Identifier: MIT
#include "CKvDimStyleRepair.h"

#include "applyDimStyle.h"
#include "purgeRecords.h"
#include "repointDimStyleUsers.h"

CKvDimStyleRepair::CKvDimStyleRepair(OdDbDatabasePtr drawing,
                                     CKvStdsErrorPtr error,
                                     const CKvStdsFixPtr &fix,
                                     CKvStandardsSource standardsDatabase)
    : m_drawing(std::move(drawing))
    , m_error(std::move(error))
    , m_standardsDatabase(std::move(standardsDatabase))
    , m_standardName(fix->objectName())
    , m_standardsFile(fix->standardsFile())
    , m_oldName(m_error->objectName())
{
}

void CKvDimStyleRepair::run()
{
    const OdDbDimStyleTablePtr styles(m_drawing->getDimStyleTableId().openObject(OdDb::kForWrite));
    const OdDbDatabasePtr standards =
        styles ? m_standardsDatabase(m_standardsFile) : OdDbDatabasePtr();
    if (!standards) {
        return;
    }
    // For writing, although nothing is written to it.
    const OdDbDimStyleTablePtr standardStyles(
        standards->getDimStyleTableId().openObject(OdDb::kForWrite));
    const OdDbDimStyleTableRecordPtr standard(
        standardStyles->getAt(m_standardName.toOdString(), OdDb::kForRead));
    const OdDbDimStyleTableRecordPtr style(m_error->objectId().openObject(OdDb::kForWrite));
    if (!standard || !style) {
        return;
    }
    writeValues(styles, style, standard);

    const OdDbObjectId newStyleId = styles->getAt(standard->getName());
    moveUsers(styles, newStyleId);
    if (m_oldName.equalNoCase(CKvString(standard->getName()))) {
        return;
    }
    // Null after a rename.
    const OdDbObjectId oldId = styles->getAt(m_oldName.toOdString());
    OdDbObjectIdArray ids;
    if (!oldId.isNull()) {
        ids.append(oldId);
    }
    purgeRecords(*m_drawing, ids);
}

void CKvDimStyleRepair::writeValues(const OdDbDimStyleTablePtr &styles,
                                    const OdDbDimStyleTableRecordPtr &style,
                                    const OdDbDimStyleTableRecordPtr &standard) const
{
    const OdString newName = standard->getName();
    if (styles->has(newName)) {
        // Written on the violating style even when another one has the name; that one keeps its
        // own values.
        applyDimStyle(m_drawing, style, standard);
    } else if (styles->has(m_oldName.toOdString())) {
        applyDimStyle(m_drawing, style, standard);
        style->setName(newName);
    }
}

void CKvDimStyleRepair::moveUsers(const OdDbDimStyleTablePtr &styles, OdDbObjectId newStyleId) const
{
    const OdDbObjectId oldStyleId = m_error->objectId();
    // A style that was updated or renamed keeps its users and stays current as it is.
    if (newStyleId.isNull() || newStyleId == oldStyleId) {
        return;
    }
    if (styles->has(oldStyleId)) {
        repointDimStyleUsers(m_error, newStyleId);
    }
    if (m_drawing->getDIMSTYLE() == oldStyleId) {
        m_drawing->setDIMSTYLE(newStyleId);
    }
}
