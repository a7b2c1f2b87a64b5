// SPDX-License-Identifier: MIT
#include "OdDbDatabase.h"

#include "CKvDrawingStore.h"
#include "CKvEntityIndex.h"
#include "CKvObjectAccess.h"
#include "CKvObjectImporter.h"
#include "OdDbDatabaseReactor.h"
#include "OdDbDictionary.h"
#include "OdDbIdMapping.h"
#include "OdDbLinetypeTable.h"
#include "OdDbLinetypeTableRecord.h"
#include "entitiesInWalkOrder.h"
#include "groupValueType.h"
#include "lineTypeLoading.h"
#include "purge.h"
#include "readLineTypeFile.h"
#include "recordNames.h"
#include "rxConstruction.h"

#include <algorithm>

namespace
{

/// A header variable by the type that its group code stands for.
OdResBufPtr headerValue(const CKvTag &tag, const CKvDrawingFormat &format)
{
    OdResBufPtr value;
    switch (groupValueType(tag.code)) {
    case CKvGroupValueType::Real:
        value = OdResBuf::newRb(OdResBuf::kRtDouble);
        value->setDouble(tag.real());
        break;
    case CKvGroupValueType::Bool:
    case CKvGroupValueType::Int16:
        value = OdResBuf::newRb(OdResBuf::kRtInt16);
        value->setInt64(tag.integer());
        break;
    case CKvGroupValueType::Int32:
    case CKvGroupValueType::Int64:
        value = OdResBuf::newRb(OdResBuf::kRtInt32);
        value->setInt64(tag.integer());
        break;
    case CKvGroupValueType::Text:
    case CKvGroupValueType::Handle:
    case CKvGroupValueType::Bytes:
        value = OdResBuf::newRb(OdResBuf::kRtString);
        value->setString(OdString(format.codec.decode(tag.value)));
        break;
    }
    return value;
}

} // namespace

OdDbDatabase::OdDbDatabase(std::unique_ptr<CKvDrawingStore> store)
    : m_store(std::move(store))
{
    m_store->database = this;
}

OdDbDatabase::~OdDbDatabase()
{
    while (!m_store->reactors.empty()) {
        removeReactor(m_store->reactors.back());
    }
}

OdRxClass *OdDbDatabase::desc()
{
    static OdRxClass s_class(
        OdString("OdDbDatabase"), OdRxObject::desc(), nullptr, OdString::kEmpty);
    return &s_class;
}

OdRxClass *OdDbDatabase::isA() const
{
    return desc();
}

OdString OdDbDatabase::getFilename() const
{
    return OdString(m_store->image()->path());
}

OdDbObjectId OdDbDatabase::getLayerTableId() const
{
    return m_store->table(CKvTableKind::Layer).head().id();
}

OdDbObjectId OdDbDatabase::getLinetypeTableId() const
{
    return m_store->table(CKvTableKind::Linetype).head().id();
}

OdDbObjectId OdDbDatabase::getTextStyleTableId() const
{
    return m_store->table(CKvTableKind::TextStyle).head().id();
}

OdDbObjectId OdDbDatabase::getDimStyleTableId() const
{
    return m_store->table(CKvTableKind::DimStyle).head().id();
}

OdDbObjectId OdDbDatabase::getBlockTableId() const
{
    return m_store->table(CKvTableKind::Block).head().id();
}

OdDbObjectId OdDbDatabase::getNamedObjectsDictionaryId() const
{
    if (!m_store->format().hasDictionaries()) {
        return OdDbObjectId();
    }
    return m_store->requireRootDictionary().id();
}

OdDbObjectId OdDbDatabase::getPlotStyleNameDictionaryId() const
{
    const OdString key("ACAD_PLOTSTYLENAME");
    const OdDbDictionaryPtr root(getNamedObjectsDictionaryId().openObject(OdDb::kForRead));
    if (!root || root->has(key)) {
        return root ? root->getAt(key) : OdDbObjectId();
    }
    root->upgradeOpen();
    return root->setAt(key, OdDbDictionary::createObject());
}

OdDbObjectId OdDbDatabase::getOdDbObjectId(OdDbHandle handle) const
{
    return m_store->hasHandles() ? OdDbObjectId(m_store->findByHandle(handle.value()))
                                 : OdDbObjectId();
}

OdDbObjectId
OdDbDatabase::addOdDbObject(const OdDbObjectPtr &object, OdDbObjectId ownerId, OdDbHandle handle)
{
    if (!object || object->database() == this) {
        throw OdError(OdResult::kInvalidInput, "There is no object of another drawing to add.");
    }
    const bool isRecord = object->isKindOf(OdDbSymbolTableRecord::desc());
    CKvObjectImporter(*m_store).adopt(*object,
                                      isRecord ? CKvObjectSlot::Role::Record
                                               : CKvObjectSlot::Role::Object,
                                      ownerId.slot(),
                                      handle.value());
    CKvObjectAccess::tellAppended(*object);
    return object->objectId();
}

OdDbObjectId OdDbDatabase::getCLAYER() const
{
    const std::optional<CKvTag> name = m_store->header().find("$CLAYER");
    return m_store->table(CKvTableKind::Layer)
        .findOrStandIn(name ? name->value : std::string_view("0"))
        .id();
}

void OdDbDatabase::setCLAYER(OdDbObjectId layerId)
{
    if (layerId.isNull() || layerId.database() != this) {
        throw OdError_InvalidSysvarValue("CLAYER");
    }
    const std::string name(encodedRecordName(*layerId.slot()));
    m_store->header().set("$CLAYER", name, 8);
}

int OdDbDatabase::getMEASUREMENT() const
{
    const std::optional<CKvTag> value = m_store->header().find("$MEASUREMENT");
    return value ? int(value->integer()) : 0;
}

OdResBufPtr OdDbDatabase::getSysVar(const OdString &name) const
{
    const QString upper = QLatin1Char('$') + name.toQString().toUpper();
    const std::optional<CKvTag> value = m_store->header().find(upper.toStdString());
    if (!value) {
        throw OdError(OdResult::kInvalidInput,
                      "There is no variable " + name.toQString().toStdString() + '.');
    }
    return headerValue(*value, m_store->format());
}

void OdDbDatabase::loadLineTypeFile(const OdString &name, const OdString &path, int, int)
{
    const CKvLineTypeDefinition definition = readLineTypeFile(path.toQString(), name.toQString());
    const OdDbLinetypeTablePtr table(getLinetypeTableId().openObject(OdDb::kForWrite));
    table->add(newLineType(*m_store, definition));
}

void OdDbDatabase::wblockCloneObjects(const OdDbObjectIdArray &ids,
                                      OdDbObjectId ownerId,
                                      OdDbIdMapping &mapping,
                                      OdDb::DuplicateRecordCloning duplicates,
                                      bool)
{
    if (!mapping.destDb() || ownerId.isNull() || ownerId.database() != mapping.destDb()) {
        throw OdError(OdResult::kInvalidInput, "The destination of the clones is not known.");
    }
    CKvDrawingStore &destination = mapping.destDb()->store();
    CKvObjectImporter importer(destination);
    for (const OdDbObjectId id : ids) {
        CKvObjectSlot *source = id.slot();
        for (std::size_t i = 0; source && !source->isErased && i < kTableCount; ++i) {
            const auto kind = CKvTableKind(i);
            if (!m_store->isRecordOf(*source, kind)
                || &destination.table(kind).head() != ownerId.slot()) {
                continue;
            }
            CKvObjectSlot *own = destination.table(kind).find(recordName(*source));
            if (own && duplicates == OdDb::kReplaceDuplicates) {
                importer.replaceContent(*own,
                                        *source,
                                        /*keepExtendedData*/ false,
                                        /*keepExtensionDictionary*/ true);
            } else if (!own) {
                own = &importer.cloneRecord(*source, kind);
            }
            mapping.assign(id, own->id());
        }
    }
}

void OdDbDatabase::purgeIds(OdDbObjectIdArray &ids) const
{
    keepPurgeable(*m_store, ids);
}

OdDbObjectIdArray OdDbDatabase::entitiesNaming(OdDbObjectId recordId) const
{
    const std::vector<CKvObjectSlot *> entities = entitiesInWalkOrder(*m_store, recordId.slot());
    OdDbObjectIdArray found;
    found.resize(unsigned(entities.size()));
    for (unsigned i = 0; i < found.size(); ++i) {
        found[i] = entities[i]->id();
    }
    return found;
}

void OdDbDatabase::addReactor(OdDbDatabaseReactor *reactor)
{
    std::vector<OdDbDatabaseReactor *> &reactors = m_store->reactors;
    if (reactor && std::find(reactors.begin(), reactors.end(), reactor) == reactors.end()) {
        reactors.push_back(reactor);
        reactor->m_databases.push_back(this);
    }
}

void OdDbDatabase::removeReactor(OdDbDatabaseReactor *reactor)
{
    std::vector<OdDbDatabaseReactor *> &reactors = m_store->reactors;
    const auto found = std::find(reactors.begin(), reactors.end(), reactor);
    if (found == reactors.end()) {
        return;
    }
    reactors.erase(found);
    std::vector<OdDbDatabase *> &databases = reactor->m_databases;
    databases.erase(std::find(databases.begin(), databases.end(), this));
}
