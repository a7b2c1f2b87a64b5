// SPDX-License-Identifier: MIT
#include "CKvLayerListing.h"

#include "CKvStdsError.h"
#include "OdDbLayerTable.h"
#include "OdDbLayerTableRecord.h"
#include "OdDbLinetypeTableRecord.h"
#include "lineweightNames.h"
#include "violationStamp.h"

namespace
{

QString lineStyleName(const OdDbLayerTableRecord &layer)
{
    const OdDbLinetypeTableRecordPtr lineStyle(layer.linetypeObjectId().openObject(OdDb::kForRead));
    return lineStyle ? lineStyle->getName().toQString() : QString();
}

QString lineWeightText(OdDb::LineWeight lineWeight)
{
    const CKvString name = ConvertLineweightToName(lineWeight);
    return name.isEmpty() ? QString::number(int(lineWeight)) : name.toQString();
}

CKvLayerListing listing(const OdDbLayerTableRecord &layer)
{
    CKvLayerListing entry;
    entry.name = layer.getName().toQString();
    entry.handle = layer.getDbHandle().ascii().toQString();
    entry.color = layer.color().colorNameForDisplay().toQString();
    entry.lineStyle = lineStyleName(layer);
    entry.lineWeight = lineWeightText(layer.lineWeight());
    entry.isHidden = layer.isHidden();
    entry.isDependent = layer.isDependent();
    const CKvStdsErrorPtr stamped = CKvStdsError::createObject();
    stamped->setObjectId(layer.objectId());
    readViolationStamp(*stamped);
    CKvString ignoredBy;
    stamped->ignoreState(entry.isIgnored, ignoredBy);
    entry.ignoredBy = ignoredBy.toQString();
    return entry;
}

} // namespace

std::vector<CKvLayerListing> listLayers(const OdDbDatabase &drawing)
{
    std::vector<CKvLayerListing> layers;
    const OdDbLayerTablePtr table(drawing.getLayerTableId().openObject(OdDb::kForRead));
    if (!table) {
        return layers;
    }
    const OdDbSymbolTableIteratorPtr walk = table->newIterator();
    for (walk->start(); !walk->done(); walk->step()) {
        const OdDbLayerTableRecordPtr layer(walk->getRecord());
        layers.push_back(listing(*layer));
    }
    return layers;
}
