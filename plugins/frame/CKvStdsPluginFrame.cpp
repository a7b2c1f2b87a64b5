// SPDX-License-Identifier: MIT
#include "CKvStdsPluginFrame.h"

#include "walkDrawing.h"

#include "CKvSystemServices.h"
#include "OdDbHostAppServices.h"

#include <QCoreApplication>

#include <algorithm>

CKvStdsPluginFrame::CKvStdsPluginFrame()
    : m_objects(std::make_unique<CKvStdsObjectList>())
{
}

CKvStdsPluginFrame::~CKvStdsPluginFrame()
{
    dropRecords();
}

void CKvStdsPluginFrame::setManager(CKvStdsManager *manager)
{
    m_manager = manager;
}

std::vector<CKvString> CKvStdsPluginFrame::objectFilter()
{
    m_typeNames.clear();
    m_typeNames.push_back(objectType());
    return m_typeNames;
}

CKvString CKvStdsPluginFrame::authorName() const
{
    return CKvString();
}

CKvString CKvStdsPluginFrame::linkText() const
{
    return CKvString();
}

CKvString CKvStdsPluginFrame::versionText() const
{
    return CKvString("1.0");
}

bool CKvStdsPluginFrame::isEnabled() const
{
    return m_enabled;
}

void CKvStdsPluginFrame::setEnabled(bool isEnabled)
{
    m_enabled = isEnabled;
}

bool CKvStdsPluginFrame::acceptValue(CKvString /*value*/)
{
    return true;
}

void CKvStdsPluginFrame::releaseError(CKvStdsErrorPtr &error)
{
    error.release();
}

CKvString CKvStdsPluginFrame::nameMessage() const
{
    return CKvString(
        QCoreApplication::translate("CKvStandardsPluginImpl", "%1 name is non-standard.")
            .arg(messageWord().toQString(), 0, QChar(u' ')));
}

CKvString CKvStdsPluginFrame::propertyMessage() const
{
    return CKvString(
        QCoreApplication::translate("CKvStandardsPluginImpl", "%1 properties are non-standard.")
            .arg(messageWord().toQString(), 0, QChar(u' ')));
}

CKvStdsPropertyList CKvStdsPluginFrame::valuesOf(const OdDbSymbolTableRecordPtr &record) const
{
    return properties(*readRecord(record));
}

CKvStdsViolationKind CKvStdsPluginFrame::violationKind(const CKvStdsErrorPtr &error) const
{
    if (!error) {
        return CKvStdsViolationKind::None;
    }
    const CKvString message = error->message();
    if (message.compare(nameMessage()) == 0) {
        return CKvStdsViolationKind::Name;
    }
    return message.compare(propertyMessage()) == 0 ? CKvStdsViolationKind::Properties
                                                   : CKvStdsViolationKind::None;
}

void CKvStdsPluginFrame::setObjectsToCheck(OdDbObjectIdArray ids, bool scanAll)
{
    const std::vector<CKvString> typeNames = objectFilter();
    OdDbObjectIdArray kept;
    for (const OdDbObjectId &id : ids) {
        const OdDbObjectPtr object = id.openObject(OdDb::kForRead);
        if (!object) {
            continue;
        }
        const CKvString type(object->isA()->dxfName());
        const bool isOfCategory =
            std::any_of(typeNames.begin(), typeNames.end(), [&type](const CKvString &name) {
                return type.compareNoCase(name) == 0;
            });
        if (isOfCategory && isCheckedWhenSelected(openRecord(id))) {
            kept.append(id);
        }
    }

    // A run over given objects of which none takes part is meant to visit the whole table.
    m_objects->useAll = scanAll || kept.isEmpty();
    if (m_objects->useAll) {
        m_objects->selected.clear();
        return;
    }
    for (const OdDbObjectId &id : kept) {
        m_objects->selected.append(id);
        m_objects->all.append(id);
    }
}

void CKvStdsPluginFrame::openStandards(OdDbDatabasePtr drawing,
                                       CKvString /*drawingName*/,
                                       std::vector<CKvString> /*standardsNames*/,
                                       std::vector<CKvString> standardsPaths)
{
    if (!drawing) {
        return;
    }
    m_drawing = std::move(drawing);
    forgetCandidates();
    listObjects();
    m_standardsDatabases.clear();
    for (const CKvString &path : standardsPaths) {
        readStandardsFile(path);
    }
}

void CKvStdsPluginFrame::listObjects()
{
    walkTable(tableId(*m_drawing), OdDb::kForRead, [this](const OdDbSymbolTableRecordPtr &record) {
        if (isCheckedInTable(record)) {
            m_objects->all.append(record->objectId());
        }
    });
}

void CKvStdsPluginFrame::readStandardsFile(const CKvString &path)
{
    const OdDbDatabasePtr database = readDatabase(path);
    if (!database) {
        return;
    }
    m_standardsDatabases[path] = database;
    walkTable(tableId(*database), OdDb::kForRead, [&](const OdDbSymbolTableRecordPtr &record) {
        if (isStandard(record)) {
            addRecord(readRecord(record), path);
        }
    });
}

void CKvStdsPluginFrame::addRecord(std::unique_ptr<CKvStdsRecord> record, const CKvString &path)
{
    record->standardsFile = path;
    record->position = int(m_records.size());
    record->fix = CKvStdsFix::createObject();
    record->fix->setName(record->name);
    record->fix->setStandardsFile(path);
    record->fix->setObjectName(record->name);
    addIdentity(record->fix, *record);
    addProperties(record->fix, properties(*record));

    const QString key = twinKey(*record);
    m_records.append(record.get());
    m_index.add(record.release(), key);
}

OdDbDatabasePtr CKvStdsPluginFrame::readDatabase(const CKvString &path)
{
    CKvSystemServices *services = GetKvSystemServices();
    if (!services) {
        return OdDbDatabasePtr();
    }
    return services->hostAppServices()->readFile(path.toOdString(),
                                                 /*allowCodePageConversion*/ false,
                                                 /*partialLoad*/ true,
                                                 kShareReadWrite,
                                                 OdString::kEmpty);
}

OdDbDatabasePtr CKvStdsPluginFrame::standardsDatabase(const CKvString &path)
{
    const OdDbDatabasePtr &opened = m_standardsDatabases[path];
    return opened ? opened : readDatabase(path);
}

OdDbSymbolTableRecordPtr CKvStdsPluginFrame::openRecord(OdDbObjectId id) const
{
    const OdDbObjectPtr object = id.openObject(OdDb::kForRead);
    if (object && !object->isKindOf(recordClass())) {
        throw OdError_NotThatKindOfClass(object->isA()->nameUtf8(), recordClass()->nameUtf8());
    }
    return OdDbSymbolTableRecordPtr(object);
}

void CKvStdsPluginFrame::clear()
{
    m_recommended = -1;
    m_cursor = -1;
    m_previewCount = 0;
    m_currentProperty = CKvString();
    m_drawing.release();
    if (m_currentError) {
        m_currentError->clear();
    }
    dropRecords();
    m_objects->all.clear();
    m_objects->selected.clear();
}

void CKvStdsPluginFrame::forgetCandidates()
{
    m_offeredForName.reset();
    m_offeredForProperties.reset();
    m_sharedCandidates.clear();
}

void CKvStdsPluginFrame::dropRecords()
{
    forgetCandidates();
    m_index.clear();
    for (CKvStdsRecord *record : m_records) {
        delete record;
    }
    m_records.clear();
}
