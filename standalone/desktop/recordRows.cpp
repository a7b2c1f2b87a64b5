// SPDX-License-Identifier: MIT
#include "recordRows.h"

#include "CKvHostDocument.h"
#include "OdDbDimStyleTableRecord.h"
#include "OdDbLayerTableRecord.h"
#include "OdDbLinetypeTableRecord.h"
#include "OdDbTextStyleTableRecord.h"
#include "aciColor.h"
#include "lineStyleDescription.h"
#include "lineweightNames.h"
#include "valueText.h"

#include <tuple>

namespace
{

QColor shownColor(const OdCmColor &color)
{
    return color.isByColor() ? QColor(color.red(), color.green(), color.blue())
                             : QColor(aciColor(color.colorIndex()));
}

QString nameOf(OdDbObjectId recordId)
{
    const OdDbSymbolTableRecordPtr record(recordId.openObject());
    return record ? record->getName().toQString() : QString();
}

void fill(CKvRecordRow &row, const OdDbLayerTableRecord &layer)
{
    row.isCurrent = layer.objectId() == layer.database()->getCLAYER();
    row.color = shownColor(layer.color());
    row.colorName = layer.color().colorNameForDisplay().toQString();
    row.state = layerState(layer);
    row.details = nameOf(layer.linetypeObjectId());
    row.size = ConvertLineweightToName(layer.lineWeight()).toQString();
}

void fill(CKvRecordRow &row, const OdDbLinetypeTableRecord &style)
{
    row.isCurrent = style.objectId() == style.database()->getCELTYPE();
    row.details = lineStyleDescription(style);
    row.size = style.numDashes() > 0 ? realToText(style.patternLength()).toQString() : QString();
}

void fill(CKvRecordRow &row, const OdDbTextStyleTableRecord &style)
{
    OdString typeface;
    bool isBold = false;
    bool isItalic = false;
    int charset = 0;
    int pitchAndFamily = 0;
    style.font(typeface, isBold, isItalic, charset, pitchAndFamily);
    row.isCurrent = style.objectId() == style.database()->getTEXTSTYLE();
    row.details = (typeface.isEmpty() ? style.fileName() : typeface).toQString();
    row.size = style.textSize() > 0 ? realToText(style.textSize()).toQString() : QString();
}

void fill(CKvRecordRow &row, const OdDbDimStyleTableRecord &style)
{
    row.isCurrent = style.objectId() == style.database()->getDIMSTYLE();
    row.details = nameOf(style.dimtxsty());
    row.size = realToText(style.dimtxt()).toQString();
}

bool isListed(const OdDbSymbolTableRecord &record)
{
    return !record.isDependent() && !record.getName().isEmpty();
}

template <class Record>
void appendRows(const CKvHostDocument &document,
                CKvRecordKind kind,
                std::vector<CKvRecordRow> &rows)
{
    const OdDbSymbolTablePtr table = openTable(document, kind);
    for (OdDbSymbolTableIteratorPtr walk = table->newIterator(); !walk->done(); walk->step()) {
        const OdSmartPtr<Record> record(walk->getRecord());
        if (isListed(*record)) {
            CKvRecordRow row;
            row.kind = kind;
            row.id = record->objectId();
            row.name = record->getName().toQString();
            fill(row, *record);
            rows.push_back(row);
        }
    }
}

} // namespace

bool CKvRecordRow::isSameAs(const CKvRecordRow &other) const
{
    const auto key = [](const CKvRecordRow &row) {
        return std::make_tuple(row.id,
                               row.name,
                               row.isCurrent,
                               row.details,
                               row.size,
                               row.color.rgb(),
                               row.colorName,
                               row.state.isOff,
                               row.state.isFrozen,
                               row.state.isLocked,
                               row.state.isPlotted);
    };
    return key(*this) == key(other);
}

std::vector<CKvRecordRow> recordRows(const CKvHostDocument &document)
{
    std::vector<CKvRecordRow> rows;
    appendRows<OdDbLayerTableRecord>(document, CKvRecordKind::Layer, rows);
    appendRows<OdDbLinetypeTableRecord>(document, CKvRecordKind::LineStyle, rows);
    appendRows<OdDbTextStyleTableRecord>(document, CKvRecordKind::TextStyle, rows);
    appendRows<OdDbDimStyleTableRecord>(document, CKvRecordKind::DimStyle, rows);
    return rows;
}
