// SPDX-License-Identifier: MIT
#include "moveTextStyleUsers.h"

#include "walkDrawing.h"

#include "OdDbArcAlignedText.h"
#include "OdDbEntity.h"
#include "OdDbMText.h"
#include "OdDbTable.h"
#include "OdDbText.h"
#include "RText.h"

namespace
{

template <class Text> void moveText(const OdDbEntityPtr &entity, OdDbObjectId from, OdDbObjectId to)
{
    const OdSmartPtr<Text> text = Text::cast(entity.get());
    if (text && text->textStyle() == from && text->isWriteEnabled()) {
        text->setTextStyle(to);
    }
}

void moveTable(const OdDbEntityPtr &entity, OdDbObjectId from, OdDbObjectId to)
{
    const OdDbTablePtr table = OdDbTable::cast(entity.get());
    // The title alone decides; all rows follow, whatever they had.
    if (table && table->textStyle(OdDb::kTitleRow) == from && table->isWriteEnabled()) {
        table->setTextStyle(to, OdDb::kAllRows);
    }
}

void moveRText(const OdDbEntityPtr &entity, OdDbObjectId from, OdDbObjectId to)
{
    const RTextPtr text = RText::cast(entity.get());
    if (text && text->textStyleId() == from && text->isWriteEnabled()) {
        text->setTextStyle(to);
    }
}

} // namespace

void moveTextStyleUsers(OdDbDatabase &drawing, OdDbObjectId oldId, OdDbObjectId newId)
{
    walkOwnEntitiesNaming(drawing, oldId, [&](const OdDbEntityPtr &entity) {
        // Attributes and their definitions are texts of one line too.
        moveText<OdDbText>(entity, oldId, newId);
        moveText<OdDbMText>(entity, oldId, newId);
        moveText<OdDbArcAlignedText>(entity, oldId, newId);
        moveTable(entity, oldId, newId);
        moveRText(entity, oldId, newId);
    });
}
