// SPDX-License-Identifier: MIT
#include "CKvDimStylePluginImpl.h"

#include "CKvDimStyleRepair.h"
#include "CKvDimStyleTexts.h"
#include "CKvStdsDimStyleRecord.h"
#include "compareDimStyles.h"
#include "dimStylePropertyLabel.h"
#include "newPluginClass.h"

#include "OdDbDimStyleTable.h"

#include <QRegExp>

namespace
{

OdRxClass *s_class = nullptr;

const CKvStdsDimStyleRecord &asDimStyle(const CKvStdsRecord &record)
{
    return static_cast<const CKvStdsDimStyleRecord &>(record);
}

/// Styles that the format keeps beside a style for one kind of dimension. The comma in the bracket
/// counts as a digit; that is intended.
bool isSubStyle(const QString &name)
{
    // Qt remembers patterns until the program ends, so this one must not lie in the module's file.
    return name.contains(QRegExp(QString::fromLatin1("\\$[0,2-4,6-7]{1,1}$")));
}

bool takesPart(const OdDbSymbolTableRecordPtr &record)
{
    return !record->isDependent() && !isSubStyle(record->getName().toQString());
}

CKvStdsPropertyList valuesOfStyle(const OdDbDimStyleTableRecordPtr &style)
{
    CKvStdsPropertyList values;
    for (const DimStylePropertyRow &row : compareDimStyles(style, style, /*includeAll*/ true)) {
        values.push_back(CKvStdsProperty::text(CKvString(row.key), CKvString(row.firstValue)));
    }
    return values;
}

} // namespace

OdRxClass *CKvDimStylePluginImpl::desc()
{
    return s_class;
}

void CKvDimStylePluginImpl::rxInit()
{
    s_class = newPluginClass<CKvDimStylePluginImpl>("CKvDimStylePluginImpl");
}

void CKvDimStylePluginImpl::rxUninit()
{
    deleteOdRxClass(s_class);
    s_class = nullptr;
}

OdRxObject *CKvDimStylePluginImpl::queryX(const OdRxClass *wanted) const
{
    return CKvStdsPluginFrame::queryX(wanted);
}

OdRxClass *CKvDimStylePluginImpl::isA() const
{
    return s_class ? s_class : CKvStdsPluginFrame::isA();
}

CKvString CKvDimStylePluginImpl::description() const
{
    return CKvDimStyleTexts::description();
}

CKvString CKvDimStylePluginImpl::pluginName() const
{
    return CKvDimStyleTexts::pluginName();
}

CKvString CKvDimStylePluginImpl::pluginId() const
{
    return CKvString("4396F213-94B2-44ed-98BC-777707D15528");
}

CKvString CKvDimStylePluginImpl::objectType() const
{
    return CKvString("DIMSTYLE");
}

CKvString CKvDimStylePluginImpl::objectTypeLabel() const
{
    return CKvDimStyleTexts::objectTypeLabel();
}

CKvString CKvDimStylePluginImpl::messageWord() const
{
    return CKvDimStyleTexts::messageWord();
}

OdRxClass *CKvDimStylePluginImpl::recordClass() const
{
    return OdDbDimStyleTableRecord::desc();
}

OdDbObjectId CKvDimStylePluginImpl::tableId(const OdDbDatabase &drawing) const
{
    return drawing.getDimStyleTableId();
}

bool CKvDimStylePluginImpl::isCheckedInTable(const OdDbSymbolTableRecordPtr &record) const
{
    return takesPart(record);
}

bool CKvDimStylePluginImpl::isCheckedWhenSelected(const OdDbSymbolTableRecordPtr &record) const
{
    return takesPart(record);
}

bool CKvDimStylePluginImpl::isStandard(const OdDbSymbolTableRecordPtr &record) const
{
    return takesPart(record);
}

std::unique_ptr<CKvStdsRecord>
CKvDimStylePluginImpl::readRecord(const OdDbSymbolTableRecordPtr &record) const
{
    auto values = std::make_unique<CKvStdsDimStyleRecord>();
    values->name = CKvString(record->getName());
    values->objectId = record->objectId();
    return values;
}

std::unique_ptr<CKvStdsRecord>
CKvDimStylePluginImpl::readViolation(const CKvStdsErrorPtr &error) const
{
    auto values = std::make_unique<CKvStdsDimStyleRecord>();
    // The name that the style has now: a violation of this category holds none among its values.
    const OdDbSymbolTableRecordPtr object = openRecord(error->objectId());
    values->name = object ? CKvString(object->getName()) : error->objectName();
    values->objectId = error->objectId();
    return values;
}

void CKvDimStylePluginImpl::addIdentity(const CKvStdsFixPtr &fix, const CKvStdsRecord &record) const
{
    fix->setObjectId(asDimStyle(record).objectId);
}

CKvDimStylePluginImpl::CKvStandardStyle CKvDimStylePluginImpl::standardStyle(const CKvString &path,
                                                                             const CKvString &name)
{
    CKvStandardStyle found;
    found.database = standardsDatabase(path);
    if (!found.database) {
        return found;
    }
    const OdDbDimStyleTablePtr styles(
        found.database->getDimStyleTableId().openObject(OdDb::kForRead));
    if (styles) {
        found.style = OdDbDimStyleTableRecordPtr(styles->getAt(name.toOdString(), OdDb::kForRead));
    }
    return found;
}

bool CKvDimStylePluginImpl::agrees(const OdDbSymbolTableRecordPtr &object,
                                   const CKvStdsRecord &standard)
{
    const CKvStandardStyle wanted = standardStyle(standard.standardsFile, standard.name);
    // A standard that can't be opened any more gives no rows, so the style is passed over.
    return compareDimStyles(OdDbDimStyleTableRecordPtr(object), wanted.style, /*includeAll*/ false)
        .empty();
}

CKvStdsPropertyList CKvDimStylePluginImpl::properties(const CKvStdsRecord &record) const
{
    return valuesOfStyle(OdDbDimStyleTableRecordPtr(openRecord(asDimStyle(record).objectId)));
}

CKvStdsPropertyList CKvDimStylePluginImpl::recommendedProperties(const CKvStdsRecord &record)
{
    const CKvStandardStyle standard = standardStyle(record.standardsFile, record.name);
    return valuesOfStyle(standard.style);
}

bool CKvDimStylePluginImpl::isOffered(const CKvStdsRecord &standard, CKvStdsViolationKind kind)
{
    // Wrong properties are compared with the style of that name in the first file, whatever file
    // the record is of; that is intended. A record that the first file lacks is left out, one
    // without a difference is not.
    return kind != CKvStdsViolationKind::Properties
        || standardStyle(records().first()->standardsFile, standard.name).style;
}

bool CKvDimStylePluginImpl::isTiedToNamesakes(const CKvString &name) const
{
    return name.compareNoCase(CKvString("ISO-25")) == 0;
}

void CKvDimStylePluginImpl::propertyDifferences(CKvStdsErrorPtr error,
                                                CKvStdsFixPtr fix,
                                                std::vector<CKvString> &names,
                                                OdArray<OdResBufPtr> &objectValues,
                                                OdArray<OdResBufPtr> &fixValues,
                                                std::vector<CKvString> & /*units*/)
{
    if (!error || !fix) {
        return;
    }
    const CKvStandardStyle standard = standardStyle(fix->standardsFile(), fix->objectName());
    if (!standard.database) {
        return;
    }
    const OdDbDimStyleTableRecordPtr style(openRecord(error->objectId()));
    for (const DimStylePropertyRow &row :
         compareDimStyles(style, standard.style, /*includeAll*/ false)) {
        const CKvString key(row.key);
        names.push_back(dimStylePropertyLabel(key));
        objectValues.append(error->property(key));
        fixValues.append(fix->property(key));
    }
    countPreview();
}

void CKvDimStylePluginImpl::repair(const CKvStdsErrorPtr &error, const CKvStdsFixPtr &fix)
{
    CKvDimStyleRepair(drawing(), error, fix, [this](const CKvString &path) {
        return standardsDatabase(path);
    }).run();
}
