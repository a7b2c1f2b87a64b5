// SPDX-License-Identifier: MIT
#include "CKvColorPlugin.h"

#include "foldCase.h"

#include "OdDbLayerTableRecord.h"

#include <cstdlib>

namespace
{

bool beginsWith(const CKvString &name, const char *start)
{
    return name.toQString().startsWith(QLatin1String(start));
}

bool beginsWith(const OdDbSymbolTableRecordPtr &record, const char *start)
{
    return beginsWith(CKvString(record->getName()), start);
}

bool haveNearColors(const CKvStdsRecord &first, const CKvStdsRecord &second)
{
    const int difference = static_cast<const CKvColorPlugin::Record &>(first).colorIndex
        - static_cast<const CKvColorPlugin::Record &>(second).colorIndex;
    return std::abs(difference) <= 1;
}

} // namespace

CKvStdsFixPtr CKvColorPlugin::recommendedFix(CKvStdsErrorPtr error)
{
    ++recommendedCalls;
    return CKvStdsPluginFrame::recommendedFix(error);
}

OdRxClass *CKvColorPlugin::recordClass() const
{
    return OdDbLayerTableRecord::desc();
}

OdDbObjectId CKvColorPlugin::tableId(const OdDbDatabase &drawing) const
{
    return drawing.getLayerTableId();
}

bool CKvColorPlugin::isCheckedInTable(const OdDbSymbolTableRecordPtr &record) const
{
    return !beginsWith(record, "PLOT");
}

bool CKvColorPlugin::isCheckedWhenSelected(const OdDbSymbolTableRecordPtr &record) const
{
    return !record->isDependent();
}

bool CKvColorPlugin::isStandard(const OdDbSymbolTableRecordPtr &record) const
{
    return !beginsWith(record, "DRAFT");
}

bool CKvColorPlugin::isJudged(const OdDbSymbolTableRecordPtr &record) const
{
    return !beginsWith(record, "UNJUDGED");
}

bool CKvColorPlugin::isExemptName(const CKvString &name) const
{
    return name.equalNoCase(CKvString("EXEMPT"));
}

std::unique_ptr<CKvStdsRecord>
CKvColorPlugin::readRecord(const OdDbSymbolTableRecordPtr &record) const
{
    const OdDbLayerTableRecordPtr layer(record);
    auto values = std::make_unique<Record>();
    values->name = CKvString(layer->getName());
    values->colorIndex = layer->color().colorIndex();
    return values;
}

std::unique_ptr<CKvStdsRecord> CKvColorPlugin::readViolation(const CKvStdsErrorPtr &error) const
{
    auto values = std::make_unique<Record>();
    values->name = CKvStdsProperty::toText(error->property(CKvString("Name")));
    const OdResBufPtr color = error->property(CKvString("Colour"));
    values->colorIndex = color ? color->getInt32() : 0;
    return values;
}

void CKvColorPlugin::addIdentity(const CKvStdsFixPtr &fix, const CKvStdsRecord &record) const
{
    // Without properties yet, and with all names: the order in which a fix is filled.
    if (fix->propertyCount() == 0 && fix->objectName() == record.name) {
        fix->setObjectName(
            CKvString(QString(QStringLiteral("identity of ") + record.name.toQString())));
    }
}

bool CKvColorPlugin::agrees(const OdDbSymbolTableRecordPtr &object, const CKvStdsRecord &standard)
{
    return haveNearColors(*readRecord(object), standard);
}

CKvStdsPropertyList CKvColorPlugin::properties(const CKvStdsRecord &record) const
{
    return { CKvStdsProperty::text(CKvString("Name"), record.name),
             CKvStdsProperty::integer(CKvString("Colour"),
                                      static_cast<const Record &>(record).colorIndex) };
}

bool CKvColorPlugin::isOffered(const CKvStdsRecord &standard, CKvStdsViolationKind kind)
{
    return !beginsWith(standard.name, kind == CKvStdsViolationKind::Name ? "HOUSE" : "GRID");
}

bool CKvColorPlugin::isTiedToNamesakes(const CKvString &name) const
{
    return name.equalNoCase(CKvString("TIED"));
}

bool CKvColorPlugin::isTwin(const CKvStdsRecord &violation, const CKvStdsRecord &standard) const
{
    return violation.name.equalNoCase(standard.name) && haveNearColors(violation, standard);
}

QString CKvColorPlugin::twinKey(const CKvStdsRecord &record) const
{
    return foldCase(record.name.toQString());
}

bool CKvColorPlugin::isPreviewRow(const CKvString & /*property*/,
                                  const OdResBufPtr &current,
                                  const OdResBufPtr &standard) const
{
    return current->restype() == OdResBuf::kRtInt32 && current->getInt32() != standard->getInt32();
}

void CKvColorPlugin::repair(const CKvStdsErrorPtr &error, const CKvStdsFixPtr &fix)
{
    repairs.push_back(error->objectName().toQString().toStdString() + " -> "
                      + fix->name().toQString().toStdString());
}
