// SPDX-License-Identifier: MIT
#include "drawingText.h"

#include "OdDbBlockTableRecord.h"
#include "OdDbLayerTableRecord.h"
#include "OdDbObjectIterator.h"
#include "OdDbSymbolTable.h"
#include "OdDbSymbolTableIterator.h"
#include "OdRxClass.h"

namespace
{

std::string toStdString(const OdString &text)
{
    return text.toQString().toStdString();
}

template <class Visit> void walk(OdDbObjectId tableId, Visit visit)
{
    const OdDbSymbolTablePtr table(tableId.openObject());
    if (!table) {
        return;
    }
    const OdDbSymbolTableIteratorPtr records = table->newIterator();
    for (; !records->done(); records->step()) {
        visit(records->getRecord());
    }
}

} // namespace

std::string layersText(const OdDbDatabase &drawing)
{
    std::string text;
    walk(drawing.getLayerTableId(), [&text](const OdDbSymbolTableRecordPtr &record) {
        const OdDbLayerTableRecordPtr layer(record);
        text += toStdString(layer->getName()) + ' '
            + toStdString(layer->color().colorNameForDisplay()) + ' '
            + nameOf(layer->linetypeObjectId()) + ' ' + std::to_string(int(layer->lineWeight()))
            + '\n';
    });
    return text;
}

std::string namesText(OdDbObjectId tableId)
{
    std::string text;
    walk(tableId, [&text](const OdDbSymbolTableRecordPtr &record) {
        text += toStdString(record->getName()) + '\n';
    });
    return text;
}

std::string entitiesText(const OdDbDatabase &drawing,
                         const std::function<std::string(const OdDbEntityPtr &)> &valueOf)
{
    std::string text;
    walk(drawing.getBlockTableId(), [&](const OdDbSymbolTableRecordPtr &record) {
        const OdDbBlockTableRecordPtr block(record);
        const OdDbObjectIteratorPtr entities = block->newIterator();
        for (; !entities->done(); entities->step()) {
            const OdDbEntityPtr entity = entities->entity();
            const std::string value = valueOf(entity);
            if (!value.empty()) {
                text += toStdString(block->getName()) + ' ' + toStdString(entity->isA()->dxfName())
                    + ' ' + value + '\n';
            }
        }
    });
    return text;
}

std::string entityLayersText(const OdDbDatabase &drawing)
{
    return entitiesText(drawing,
                        [](const OdDbEntityPtr &entity) { return toStdString(entity->layer()); });
}

std::string nameOf(OdDbObjectId id)
{
    const OdDbSymbolTableRecordPtr record(id.openObject(OdDb::kForRead, /*openErased*/ true));
    return record ? toStdString(record->getName()) : std::string();
}

OdDbObjectId recordId(OdDbObjectId tableId, const char *name)
{
    const OdDbSymbolTablePtr table(tableId.openObject());
    return table ? table->getAt(OdString(QString::fromUtf8(name))) : OdDbObjectId();
}
