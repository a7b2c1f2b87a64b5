// SPDX-License-Identifier: MIT
#include "CKvLayerPluginImpl.h"

#include "CKvLayerRepair.h"
#include "CKvLayerTexts.h"
#include "CKvStdsLayerRecord.h"
#include "foldCase.h"
#include "lineweightNames.h"
#include "newPluginClass.h"

#include "OdDbLayerTableRecord.h"
#include "OdDbLinetypeTableRecord.h"
#include "OdRxClass.h"

namespace
{

OdRxClass *s_class = nullptr;

const CKvStdsLayerRecord &asLayer(const CKvStdsRecord &record)
{
    return static_cast<const CKvStdsLayerRecord &>(record);
}

} // namespace

OdRxClass *CKvLayerPluginImpl::desc()
{
    return s_class;
}

void CKvLayerPluginImpl::rxInit()
{
    s_class = newPluginClass<CKvLayerPluginImpl>("CKvLayerPluginImpl");
}

void CKvLayerPluginImpl::rxUninit()
{
    deleteOdRxClass(s_class);
    s_class = nullptr;
}

OdRxObject *CKvLayerPluginImpl::queryX(const OdRxClass *wanted) const
{
    return CKvStdsPluginFrame::queryX(wanted);
}

OdRxClass *CKvLayerPluginImpl::isA() const
{
    return s_class ? s_class : CKvStdsPluginFrame::isA();
}

CKvString CKvLayerPluginImpl::description() const
{
    return CKvLayerTexts::description();
}

CKvString CKvLayerPluginImpl::pluginName() const
{
    return CKvLayerTexts::pluginName();
}

CKvString CKvLayerPluginImpl::pluginId() const
{
    return CKvString("E81A7EB1-A22C-4bd4-96F8-725D0798DE29");
}

CKvString CKvLayerPluginImpl::objectType() const
{
    return CKvString("LAYER");
}

CKvString CKvLayerPluginImpl::objectTypeLabel() const
{
    return CKvLayerTexts::objectTypeLabel();
}

CKvString CKvLayerPluginImpl::messageWord() const
{
    return CKvLayerTexts::messageWord();
}

OdRxClass *CKvLayerPluginImpl::recordClass() const
{
    return OdDbLayerTableRecord::desc();
}

OdDbObjectId CKvLayerPluginImpl::tableId(const OdDbDatabase &drawing) const
{
    return drawing.getLayerTableId();
}

bool CKvLayerPluginImpl::isCheckedInTable(const OdDbSymbolTableRecordPtr &record) const
{
    return !OdDbLayerTableRecordPtr(record)->isHidden() && !record->isDependent();
}

bool CKvLayerPluginImpl::isCheckedWhenSelected(const OdDbSymbolTableRecordPtr &record) const
{
    return isCheckedInTable(record);
}

bool CKvLayerPluginImpl::isStandard(const OdDbSymbolTableRecordPtr &record) const
{
    // Hidden layers of a standards file count.
    return !record->isDependent();
}

bool CKvLayerPluginImpl::isExemptName(const CKvString &name) const
{
    return name.compareNoCase(CKvString("DefPoints")) == 0;
}

std::unique_ptr<CKvStdsRecord>
CKvLayerPluginImpl::readRecord(const OdDbSymbolTableRecordPtr &record) const
{
    const OdDbLayerTableRecordPtr layer(record);
    auto values = std::make_unique<CKvStdsLayerRecord>();
    values->name = CKvString(layer->getName());
    values->color = layer->color();
    const OdDbLinetypeTableRecordPtr lineStyle(
        layer->linetypeObjectId().openObject(OdDb::kForRead));
    if (lineStyle) {
        values->lineStyleName = CKvString(lineStyle->getName());
    }
    values->lineWeight = layer->lineWeight();
    return values;
}

std::unique_ptr<CKvStdsRecord> CKvLayerPluginImpl::readViolation(const CKvStdsErrorPtr &error) const
{
    auto values = std::make_unique<CKvStdsLayerRecord>();
    values->name = CKvStdsProperty::toText(error->property(CKvLayerTexts::nameProperty()));
    ConvertNameToLineweight(
        CKvStdsProperty::toText(error->property(CKvLayerTexts::lineWeightProperty())),
        values->lineWeight);
    values->color = CKvStdsProperty::toColor(error->property(CKvLayerTexts::lineColorProperty()));
    values->lineStyleName =
        CKvStdsProperty::toText(error->property(CKvLayerTexts::lineStyleProperty()));
    return values;
}

bool CKvLayerPluginImpl::agrees(const OdDbSymbolTableRecordPtr &object,
                                const CKvStdsRecord &standard)
{
    const std::unique_ptr<CKvStdsRecord> current = readRecord(object);
    const CKvStdsLayerRecord &layer = asLayer(*current);
    const CKvStdsLayerRecord &wanted = asLayer(standard);
    // True colours of one index pass; the choice of candidates and the preview are stricter.
    return layer.color.colorIndex() == wanted.color.colorIndex()
        && layer.lineStyleName.compareNoCase(wanted.lineStyleName) == 0
        && layer.lineWeight == wanted.lineWeight;
}

CKvStdsPropertyList CKvLayerPluginImpl::properties(const CKvStdsRecord &record) const
{
    const CKvStdsLayerRecord &layer = asLayer(record);
    return { CKvStdsProperty::text(CKvLayerTexts::nameProperty(), layer.name),
             CKvStdsProperty::color(CKvLayerTexts::lineColorProperty(), layer.color),
             CKvStdsProperty::text(CKvLayerTexts::lineWeightProperty(),
                                   ConvertLineweightToName(layer.lineWeight)),
             CKvStdsProperty::text(CKvLayerTexts::lineStyleProperty(), layer.lineStyleName) };
}

CKvStdsPropertyList CKvLayerPluginImpl::recommendedProperties(const CKvStdsRecord &record)
{
    const CKvStdsLayerRecord &layer = asLayer(record);
    // The plain number, not the text of the stored fix, is intended here.
    return { CKvStdsProperty::text(CKvLayerTexts::nameProperty(), layer.name),
             CKvStdsProperty::color(CKvLayerTexts::lineColorProperty(), layer.color),
             CKvStdsProperty::integer(CKvLayerTexts::lineWeightProperty(), layer.lineWeight),
             CKvStdsProperty::text(CKvLayerTexts::lineStyleProperty(), layer.lineStyleName) };
}

bool CKvLayerPluginImpl::isOffered(const CKvStdsRecord &standard, CKvStdsViolationKind kind)
{
    return kind != CKvStdsViolationKind::Name
        || standard.name.compareNoCase(CKvString("Defpoints")) != 0;
}

bool CKvLayerPluginImpl::isTiedToNamesakes(const CKvString &name) const
{
    // A "defpoints" in other letters is a layer like any other.
    return name.compare(CKvString("0")) == 0 || name.compare(CKvString("Defpoints")) == 0;
}

bool CKvLayerPluginImpl::isNamesake(const CKvString &tiedName, const CKvStdsRecord &standard) const
{
    return standard.name.compare(tiedName) == 0;
}

bool CKvLayerPluginImpl::isTwin(const CKvStdsRecord &violation, const CKvStdsRecord &standard) const
{
    const CKvStdsLayerRecord &layer = asLayer(violation);
    const CKvStdsLayerRecord &other = asLayer(standard);
    return layer.color == other.color && layer.lineStyleName.compareNoCase(other.lineStyleName) == 0
        && layer.lineWeight == other.lineWeight;
}

QString CKvLayerPluginImpl::twinKey(const CKvStdsRecord &record) const
{
    const CKvStdsLayerRecord &layer = asLayer(record);
    const OdCmColor &color = layer.color;
    // What equal colours have in common: the method, and the components or the index that go with
    // it.
    int value = 0;
    if (color.isByColor()) {
        value = (color.red() << 16) | (color.green() << 8) | color.blue();
    } else if (color.isByIndex()) {
        value = color.colorIndex();
    }
    // A zero behind the line style: names can hold any other character.
    return QString::number(int(color.method())) + QLatin1Char('/') + QString::number(value)
        + QLatin1Char('/') + QString::number(int(layer.lineWeight)) + QLatin1Char('/')
        + foldCase(layer.lineStyleName.toQString()) + QChar(0) + color.bookName().toQString();
}

QString CKvLayerPluginImpl::sharingKey(const CKvStdsRecord &violation) const
{
    return twinKey(violation);
}

bool CKvLayerPluginImpl::isPreviewRow(const CKvString &property,
                                      const OdResBufPtr &current,
                                      const OdResBufPtr &standard) const
{
    if (property == CKvLayerTexts::lineWeightProperty()) {
        return !CKvStdsProperty::toText(current).equalNoCase(CKvStdsProperty::toText(standard));
    }
    if (property == CKvLayerTexts::lineStyleProperty()) {
        // With regard to case, unlike the scan.
        return CKvStdsProperty::toText(current).compare(CKvStdsProperty::toText(standard)) != 0;
    }
    if (property == CKvLayerTexts::lineColorProperty()) {
        return CKvStdsProperty::toColor(current) != CKvStdsProperty::toColor(standard);
    }
    return false;
}

void CKvLayerPluginImpl::repair(const CKvStdsErrorPtr &error, const CKvStdsFixPtr &fix)
{
    CKvLayerRepair(drawing(), error, fix, [this](const CKvString &path) {
        return standardsDatabase(path);
    }).run();
}
