// SPDX-License-Identifier: MIT
#include "CKvRecordListing.h"

#include "CKvStdsError.h"
#include "CKvStdsPluginFrame.h"
#include "OdDbLayerTableRecord.h"
#include "OdDbSymbolTable.h"
#include "OdDbTextStyleTableRecord.h"
#include "formatValue.h"
#include "violationStamp.h"

#include <algorithm>

namespace
{

void readValues(CKvRecordListing &entry,
                const CKvStdsPluginFrame &plugin,
                const OdDbSymbolTableRecordPtr &record)
{
    for (const CKvStdsProperty &property : plugin.valuesOf(record)) {
        // The name stands before the values.
        if (property.name.toQString() != QLatin1String("Name")) {
            entry.properties.emplace_back(property.name.toQString(),
                                          formatValue(property.value).toQString());
        }
    }
    std::sort(entry.properties.begin(), entry.properties.end());
}

/// A lineweight that has no name is shown as its number.
void nameLineweight(CKvRecordListing &entry, const OdDbLayerTableRecord &layer)
{
    for (auto &[name, value] : entry.properties) {
        if (value.isEmpty() && name == QLatin1String("LineWeight")) {
            value = QString::number(int(layer.lineWeight()));
        }
    }
}

void readStamp(CKvRecordListing &entry, OdDbObjectId id)
{
    const CKvStdsErrorPtr stamped = CKvStdsError::createObject();
    stamped->setObjectId(id);
    readViolationStamp(*stamped);
    CKvString ignoredBy;
    stamped->ignoreState(entry.isIgnored, ignoredBy);
    entry.ignoredBy = ignoredBy.toQString();
}

CKvRecordListing listing(const CKvStdsPluginFrame &plugin, const OdDbSymbolTableRecordPtr &record)
{
    CKvRecordListing entry;
    entry.name = record->getName().toQString();
    entry.handle = record->getDbHandle().ascii().toQString();
    entry.isDependent = record->isDependent();
    readValues(entry, plugin, record);
    if (const OdDbLayerTableRecordPtr layer = OdDbLayerTableRecord::cast(record.get())) {
        entry.isHidden = layer->isHidden();
        nameLineweight(entry, *layer);
    }
    const OdDbTextStyleTableRecordPtr style = OdDbTextStyleTableRecord::cast(record.get());
    entry.isShapeFile = style && style->isShapeFile();
    readStamp(entry, record->objectId());
    return entry;
}

} // namespace

std::vector<CKvRecordListing> listRecords(const OdDbDatabase &drawing,
                                          const CKvBatchSession::Check &check)
{
    std::vector<CKvRecordListing> records;
    const auto *plugin = dynamic_cast<const CKvStdsPluginFrame *>(check.plugin.get());
    const OdDbSymbolTablePtr table((drawing.*check.category->tableId)().openObject(OdDb::kForRead));
    if (!plugin || !table) {
        return records;
    }
    const OdDbSymbolTableIteratorPtr walk = table->newIterator();
    for (walk->start(); !walk->done(); walk->step()) {
        records.push_back(listing(*plugin, walk->getRecord()));
    }
    return records;
}
