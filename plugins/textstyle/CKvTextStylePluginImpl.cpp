// SPDX-License-Identifier: MIT
#include "CKvTextStylePluginImpl.h"

#include "CKvTextStyleRepair.h"
#include "CKvTextStyleTexts.h"
#include "foldCase.h"
#include "newPluginClass.h"
#include "textStyleRecords.h"

#include "OdDbTextStyleTable.h"

namespace
{

OdRxClass *s_class = nullptr;

const CKvStdsTextStyleRecord &asTextStyle(const CKvStdsRecord &record)
{
    return static_cast<const CKvStdsTextStyleRecord &>(record);
}

} // namespace

OdRxClass *CKvTextStylePluginImpl::desc()
{
    return s_class;
}

void CKvTextStylePluginImpl::rxInit()
{
    s_class = newPluginClass<CKvTextStylePluginImpl>("CKvTextStylePluginImpl");
}

void CKvTextStylePluginImpl::rxUninit()
{
    deleteOdRxClass(s_class);
    s_class = nullptr;
}

OdRxObject *CKvTextStylePluginImpl::queryX(const OdRxClass *wanted) const
{
    return CKvStdsPluginFrame::queryX(wanted);
}

OdRxClass *CKvTextStylePluginImpl::isA() const
{
    return s_class ? s_class : CKvStdsPluginFrame::isA();
}

CKvString CKvTextStylePluginImpl::description() const
{
    return CKvTextStyleTexts::description();
}

CKvString CKvTextStylePluginImpl::pluginName() const
{
    return CKvTextStyleTexts::pluginName();
}

CKvString CKvTextStylePluginImpl::pluginId() const
{
    return CKvString("AAC6DB88-85CC-4d38-BA98-511A5845362E");
}

CKvString CKvTextStylePluginImpl::objectType() const
{
    return CKvString("STYLE");
}

CKvString CKvTextStylePluginImpl::objectTypeLabel() const
{
    return CKvTextStyleTexts::objectTypeLabel();
}

CKvString CKvTextStylePluginImpl::messageWord() const
{
    return CKvTextStyleTexts::messageWord();
}

OdRxClass *CKvTextStylePluginImpl::recordClass() const
{
    return OdDbTextStyleTableRecord::desc();
}

OdDbObjectId CKvTextStylePluginImpl::tableId(const OdDbDatabase &drawing) const
{
    return drawing.getTextStyleTableId();
}

bool CKvTextStylePluginImpl::isCheckedInTable(const OdDbSymbolTableRecordPtr &record) const
{
    return isStandard(record) && !record->getName().isEmpty();
}

bool CKvTextStylePluginImpl::isCheckedWhenSelected(const OdDbSymbolTableRecordPtr &record) const
{
    // One without a name is kept; the scan passes it over.
    return isStandard(record);
}

bool CKvTextStylePluginImpl::isStandard(const OdDbSymbolTableRecordPtr &record) const
{
    return !record->isDependent() && !OdDbTextStyleTableRecordPtr(record)->isShapeFile();
}

bool CKvTextStylePluginImpl::isJudged(const OdDbSymbolTableRecordPtr &record) const
{
    const OdDbTextStyleTablePtr styles(drawing()->getTextStyleTableId().openObject(OdDb::kForRead));
    return styles && !styles->getAt(record->getName()).isNull();
}

std::unique_ptr<CKvStdsRecord>
CKvTextStylePluginImpl::readRecord(const OdDbSymbolTableRecordPtr &record) const
{
    return readTextStyle(OdDbTextStyleTableRecordPtr(record));
}

std::unique_ptr<CKvStdsRecord>
CKvTextStylePluginImpl::readViolation(const CKvStdsErrorPtr &error) const
{
    return readTextStyleRecord(/*fromFix*/ false, CKvStdsFixPtr(), error);
}

bool CKvTextStylePluginImpl::agrees(const OdDbSymbolTableRecordPtr &object,
                                    const CKvStdsRecord &standard)
{
    return matchesTextStyleRecord(OdDbTextStyleTableRecordPtr(object), asTextStyle(standard));
}

CKvStdsPropertyList CKvTextStylePluginImpl::properties(const CKvStdsRecord &record) const
{
    return textStyleProperties(asTextStyle(record));
}

bool CKvTextStylePluginImpl::isTiedToNamesakes(const CKvString &name) const
{
    return name.compareNoCase(CKvString("Standard")) == 0;
}

bool CKvTextStylePluginImpl::isTwin(const CKvStdsRecord &violation,
                                    const CKvStdsRecord &standard) const
{
    return sameTextStyleRecord(asTextStyle(violation), asTextStyle(standard));
}

QString CKvTextStylePluginImpl::twinKey(const CKvStdsRecord &record) const
{
    // Twins have one name, and few records share theirs.
    return foldCase(record.name.toQString());
}

bool CKvTextStylePluginImpl::isPreviewRow(const CKvString & /*property*/,
                                          const OdResBufPtr &current,
                                          const OdResBufPtr &standard) const
{
    return !sameResBuf(current, standard);
}

void CKvTextStylePluginImpl::repair(const CKvStdsErrorPtr &error, const CKvStdsFixPtr &fix)
{
    CKvTextStyleRepair(drawing(), error, fix).run();
}
