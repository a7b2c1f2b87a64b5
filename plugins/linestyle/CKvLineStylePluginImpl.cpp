// SPDX-License-Identifier: MIT
#include "CKvLineStylePluginImpl.h"

#include "CKvLineStyleRepair.h"
#include "CKvLineStyleTexts.h"
#include "CKvStdsLineStyleRecord.h"
#include "foldCase.h"
#include "newPluginClass.h"
#include "reservedLineStyles.h"
#include "sameReal.h"

#include "OdDbLinetypeTableRecord.h"

namespace
{

OdRxClass *s_class = nullptr;

const CKvStdsLineStyleRecord &asLineStyle(const CKvStdsRecord &record)
{
    return static_cast<const CKvStdsLineStyleRecord &>(record);
}

} // namespace

OdRxClass *CKvLineStylePluginImpl::desc()
{
    return s_class;
}

void CKvLineStylePluginImpl::rxInit()
{
    s_class = newPluginClass<CKvLineStylePluginImpl>("CKvLineStylePluginImpl");
}

void CKvLineStylePluginImpl::rxUninit()
{
    deleteOdRxClass(s_class);
    s_class = nullptr;
}

OdRxObject *CKvLineStylePluginImpl::queryX(const OdRxClass *wanted) const
{
    return CKvStdsPluginFrame::queryX(wanted);
}

OdRxClass *CKvLineStylePluginImpl::isA() const
{
    return s_class ? s_class : CKvStdsPluginFrame::isA();
}

CKvString CKvLineStylePluginImpl::description() const
{
    return CKvLineStyleTexts::description();
}

CKvString CKvLineStylePluginImpl::pluginName() const
{
    return CKvLineStyleTexts::pluginName();
}

CKvString CKvLineStylePluginImpl::pluginId() const
{
    return CKvString("6AA1E422-764F-4b58-83DE-69F5897B7D78");
}

CKvString CKvLineStylePluginImpl::objectType() const
{
    return CKvString("LTYPE");
}

CKvString CKvLineStylePluginImpl::objectTypeLabel() const
{
    return CKvLineStyleTexts::objectTypeLabel();
}

CKvString CKvLineStylePluginImpl::messageWord() const
{
    return CKvLineStyleTexts::messageWord();
}

OdRxClass *CKvLineStylePluginImpl::recordClass() const
{
    return OdDbLinetypeTableRecord::desc();
}

OdDbObjectId CKvLineStylePluginImpl::tableId(const OdDbDatabase &drawing) const
{
    return drawing.getLinetypeTableId();
}

bool CKvLineStylePluginImpl::isCheckedInTable(const OdDbSymbolTableRecordPtr &record) const
{
    return !record->isDependent() && !isReservedLineStyle(*record->database(), record->objectId());
}

bool CKvLineStylePluginImpl::isCheckedWhenSelected(const OdDbSymbolTableRecordPtr &record) const
{
    // Given by hand, the reserved ones are line styles like any other.
    return !record->isDependent();
}

bool CKvLineStylePluginImpl::isStandard(const OdDbSymbolTableRecordPtr &record) const
{
    return !record->isDependent();
}

std::unique_ptr<CKvStdsRecord>
CKvLineStylePluginImpl::readRecord(const OdDbSymbolTableRecordPtr &record) const
{
    const OdDbLinetypeTableRecordPtr lineStyle(record);
    auto values = std::make_unique<CKvStdsLineStyleRecord>();
    values->name = CKvString(lineStyle->getName());
    values->dashCount = lineStyle->numDashes();
    values->patternLength = lineStyle->patternLength();
    return values;
}

std::unique_ptr<CKvStdsRecord>
CKvLineStylePluginImpl::readViolation(const CKvStdsErrorPtr &error) const
{
    auto values = std::make_unique<CKvStdsLineStyleRecord>();
    values->name = CKvStdsProperty::toText(error->property(CKvLineStyleTexts::nameProperty()));
    values->dashCount =
        CKvStdsProperty::toInteger(error->property(CKvLineStyleTexts::dashesProperty()));
    values->patternLength =
        CKvStdsProperty::toReal(error->property(CKvLineStyleTexts::patternLengthProperty()));
    return values;
}

bool CKvLineStylePluginImpl::agrees(const OdDbSymbolTableRecordPtr &object,
                                    const CKvStdsRecord &standard)
{
    const std::unique_ptr<CKvStdsRecord> current = readRecord(object);
    const CKvStdsLineStyleRecord &lineStyle = asLineStyle(*current);
    const CKvStdsLineStyleRecord &wanted = asLineStyle(standard);
    return lineStyle.dashCount == wanted.dashCount
        && sameReal(lineStyle.patternLength, wanted.patternLength);
}

CKvStdsPropertyList CKvLineStylePluginImpl::properties(const CKvStdsRecord &record) const
{
    const CKvStdsLineStyleRecord &lineStyle = asLineStyle(record);
    return { CKvStdsProperty::text(CKvLineStyleTexts::nameProperty(), lineStyle.name),
             CKvStdsProperty::integer(CKvLineStyleTexts::dashesProperty(), lineStyle.dashCount),
             CKvStdsProperty::real(CKvLineStyleTexts::patternLengthProperty(),
                                   lineStyle.patternLength) };
}

bool CKvLineStylePluginImpl::isTwin(const CKvStdsRecord &violation,
                                    const CKvStdsRecord &standard) const
{
    const CKvStdsLineStyleRecord &lineStyle = asLineStyle(violation);
    const CKvStdsLineStyleRecord &other = asLineStyle(standard);
    return lineStyle.name.compareNoCase(other.name) == 0 && lineStyle.dashCount == other.dashCount
        && sameReal(lineStyle.patternLength, other.patternLength);
}

QString CKvLineStylePluginImpl::twinKey(const CKvStdsRecord &record) const
{
    // The length has a tolerance, so it is no part of the key.
    return QString::number(asLineStyle(record).dashCount) + QLatin1Char('/')
        + foldCase(record.name.toQString());
}

bool CKvLineStylePluginImpl::isPreviewRow(const CKvString & /*property*/,
                                          const OdResBufPtr &current,
                                          const OdResBufPtr &standard) const
{
    if (current->restype() != standard->restype()) {
        return true;
    }
    switch (current->restype()) {
    case OdResBuf::kRtDouble:
        return !sameReal(current->getDouble(), standard->getDouble());
    case OdResBuf::kRtString:
        return current->getString().iCompare(standard->getString()) != 0;
    case OdResBuf::kRtInt32:
        return current->getInt32() != standard->getInt32();
    default:
        return false;
    }
}

void CKvLineStylePluginImpl::repair(const CKvStdsErrorPtr &error, const CKvStdsFixPtr &fix)
{
    CKvLineStyleRepair(drawing(), error, fix, [this](const CKvString &path) {
        return standardsDatabase(path);
    }).run();
}
