// SPDX-License-Identifier: MIT
#include "editDrawing.h"

#include "OdDbBlockTable.h"
#include "OdDbBlockTableRecord.h"
#include "OdDbDictionary.h"
#include "OdDbLayerTable.h"
#include "OdDbLayerTableRecord.h"
#include "OdDbXrecord.h"

namespace
{

constexpr int kMovedEntities = 20;

template <class Action> void unlessRefused(Action action)
{
    try {
        action();
    } catch (const OdError &) {
        // Older versions have no place for some of it, damaged drawings for more.
    }
}

OdDbObjectIdArray recordsOf(OdDbObjectId tableId)
{
    OdDbObjectIdArray ids;
    const OdDbSymbolTablePtr table(tableId.safeOpenObject());
    for (OdDbSymbolTableIteratorPtr i = table->newIterator(); !i->done(); i->step()) {
        ids.append(i->getRecordId());
    }
    return ids;
}

void changeLayers(const OdDbDatabase &drawing)
{
    for (const OdDbObjectId id : recordsOf(drawing.getLayerTableId())) {
        const OdDbLayerTableRecordPtr layer(id.safeOpenObject(OdDb::kForWrite));
        layer->setColor(OdCmColor::byIndex(3));
        layer->setLineWeight(OdDb::LineWeight(25));
    }
}

void renameALayer(const OdDbDatabase &drawing)
{
    for (const OdDbObjectId id : recordsOf(drawing.getLayerTableId())) {
        const OdDbLayerTableRecordPtr layer(id.safeOpenObject(OdDb::kForWrite));
        if (layer->getName() != OdString("0")) {
            layer->setName(OdString("Renamed layer"));
            return;
        }
    }
}

void moveEntities(const OdDbDatabase &drawing)
{
    const OdDbObjectIdArray layers = recordsOf(drawing.getLayerTableId());
    int left = layers.isEmpty() ? 0 : kMovedEntities;
    for (const OdDbObjectId blockId : recordsOf(drawing.getBlockTableId())) {
        const OdDbBlockTableRecordPtr block(blockId.safeOpenObject());
        for (OdDbObjectIteratorPtr i = block->newIterator(); !i->done() && left > 0; i->step()) {
            i->entity(OdDb::kForWrite)->setLayer(layers.last());
            --left;
        }
    }
}

void stampALayer(const OdDbDatabase &drawing)
{
    const OdDbObjectIdArray layers = recordsOf(drawing.getLayerTableId());
    if (layers.isEmpty()) {
        return;
    }
    const OdDbObjectPtr layer = layers.first().safeOpenObject(OdDb::kForWrite);
    layer->createExtensionDictionary();
    const OdDbDictionaryPtr dictionary(
        layer->extensionDictionary().safeOpenObject(OdDb::kForWrite));
    const OdDbXrecordPtr xrecord = OdDbXrecord::createObject();
    const OdResBufPtr value = OdResBuf::newRb(300);
    value->setString(OdString("stamp"));
    xrecord->setFromRbChain(value.get());
    dictionary->setAt(OdString("Stamp"), xrecord);
}

void purge(const OdDbDatabase &drawing)
{
    OdDbObjectIdArray ids = recordsOf(drawing.getTextStyleTableId());
    drawing.purgeIds(ids);
    for (const OdDbObjectId id : ids) {
        id.safeOpenObject(OdDb::kForWrite)->erase();
    }
}

void eraseADimensionStyle(const OdDbDatabase &drawing)
{
    const OdDbObjectIdArray styles = recordsOf(drawing.getDimStyleTableId());
    if (!styles.isEmpty()) {
        styles.last().safeOpenObject(OdDb::kForWrite)->erase();
    }
}

} // namespace

void editDrawing(OdDbDatabase &drawing)
{
    unlessRefused([&] { changeLayers(drawing); });
    unlessRefused([&] { renameALayer(drawing); });
    unlessRefused([&] { moveEntities(drawing); });
    unlessRefused([&] { stampALayer(drawing); });
    unlessRefused([&] { purge(drawing); });
    unlessRefused([&] { eraseADimensionStyle(drawing); });
}
