// SPDX-License-Identifier: MIT
#include "CKvRecolorCommand.h"

#include "CKvCommandContext.h"
#include "CKvDatabase.h"
#include "CKvDocument.h"
#include "OdDbLayerTable.h"
#include "OdDbLayerTableRecord.h"

int CKvRecolorCommand::executeCommand(CKvCommandContext *context)
{
    const OdDbDatabase &drawing = *context->document()->GetKvDatabase();
    const OdDbLayerTablePtr layers(drawing.getLayerTableId().openObject());
    const OdDbLayerTableRecordPtr walls(
        layers->getAt(OdString("WALLS")).openObject(OdDb::kForWrite));
    m_color = m_color % 7 + 1;
    walls->setColor(OdCmColor::byIndex(m_color));
    return kNormal;
}
