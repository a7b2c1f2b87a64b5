// SPDX-License-Identifier: MIT
#include "CKvDrawingStore.h"
#include "CKvObjectAccess.h"
#include "CKvObjectImporter.h"
#include "OdDbBlockTable.h"
#include "OdDbDatabase.h"
#include "OdDbDimStyleTable.h"
#include "OdDbLayerTable.h"
#include "OdDbLinetypeTable.h"
#include "OdDbTextStyleTable.h"
#include "recordNames.h"
#include "rxConstruction.h"

namespace
{

CKvTable &tableOf(const OdDbSymbolTable &table)
{
    const CKvObjectSlot *slot = CKvObjectAccess::slotOf(table);
    for (std::size_t i = 0; i < kTableCount; ++i) {
        CKvTable &candidate = slot->store->table(CKvTableKind(i));
        if (&candidate.head() == slot) {
            return candidate;
        }
    }
    throw OdError(OdResult::kInvalidInput, "The table belongs to no drawing.");
}

CKvObjectSlot *findErased(const CKvTable &table, const QString &name)
{
    for (CKvObjectSlot *record : table.records()) {
        if (foldedName(recordName(*record)) == foldedName(name)) {
            return record;
        }
    }
    return nullptr;
}

} // namespace

/// The records of a table as they were when the walk began, so that changes don't disturb it.
class CKvSymbolTableWalk
{
public:
    CKvSymbolTableWalk(std::vector<CKvObjectSlot *> records, bool fromBeginning, bool skipErased)
        : m_records(std::move(records))
    {
        start(fromBeginning, skipErased);
    }
    void start(bool fromBeginning, bool skipErased)
    {
        m_at = fromBeginning ? 0 : std::ptrdiff_t(m_records.size()) - 1;
        pass(fromBeginning, skipErased);
    }
    bool isDone() const { return m_at < 0 || m_at >= std::ptrdiff_t(m_records.size()); }
    void step(bool isForward, bool skipErased)
    {
        m_at += isForward ? 1 : -1;
        pass(isForward, skipErased);
    }
    CKvObjectSlot &record() const
    {
        if (isDone()) {
            throw OdError(OdResult::kInvalidInput, "The walk over the table is done.");
        }
        return *m_records[std::size_t(m_at)];
    }

private:
    void pass(bool isForward, bool skipErased)
    {
        while (skipErased && !isDone() && m_records[std::size_t(m_at)]->isErased) {
            m_at += isForward ? 1 : -1;
        }
    }

    std::vector<CKvObjectSlot *> m_records;
    std::ptrdiff_t m_at = 0;
};

OdDbSymbolTableIterator::OdDbSymbolTableIterator(std::unique_ptr<CKvSymbolTableWalk> walk)
    : m_walk(std::move(walk))
{
}

OdDbSymbolTableIterator::~OdDbSymbolTableIterator() = default;

void OdDbSymbolTableIterator::start(bool fromBeginning, bool skipErased)
{
    m_walk->start(fromBeginning, skipErased);
}

bool OdDbSymbolTableIterator::done() const
{
    return m_walk->isDone();
}

void OdDbSymbolTableIterator::step(bool forward, bool skipErased)
{
    m_walk->step(forward, skipErased);
}

OdDbObjectId OdDbSymbolTableIterator::getRecordId() const
{
    return m_walk->record().id();
}

OdDbSymbolTableRecordPtr OdDbSymbolTableIterator::getRecord(OdDb::OpenMode mode,
                                                            bool openErased) const
{
    return OdDbSymbolTableRecordPtr(getRecordId().openObject(mode, openErased));
}

OdRxClass *OdDbSymbolTable::desc()
{
    static OdRxClass s_class(OdString("OdDbSymbolTable"),
                             OdDbObject::desc(),
                             &constructRx<OdDbSymbolTable>,
                             OdString("TABLE"));
    return &s_class;
}

OdDbSymbolTablePtr OdDbSymbolTable::cast(const OdRxObject *object)
{
    return castRx<OdDbSymbolTable>(object);
}

OdDbObjectId OdDbSymbolTable::getAt(const OdString &name, bool getErased) const
{
    CKvTable &table = tableOf(*this);
    CKvObjectSlot *found = table.find(name.toQString());
    return OdDbObjectId(found || !getErased ? found : findErased(table, name.toQString()));
}

OdDbSymbolTableRecordPtr
OdDbSymbolTable::getAt(const OdString &name, OdDb::OpenMode mode, bool getErased) const
{
    return OdDbSymbolTableRecordPtr(getAt(name, getErased).openObject(mode, getErased));
}

bool OdDbSymbolTable::has(OdDbObjectId id) const
{
    const CKvObjectSlot *record = id.slot();
    return record && !record->isErased && record->role == CKvObjectSlot::Role::Record
        && record->owner == CKvObjectAccess::slotOf(*this);
}

OdDbSymbolTableIteratorPtr OdDbSymbolTable::newIterator(bool fromBeginning, bool skipErased) const
{
    CKvTable &table = tableOf(*this);
    if (table.kind() == CKvTableKind::Block) {
        // Blocks without a record in the table are known only once the entities were read.
        CKvObjectAccess::slotOf(*this)->store->entities();
    }
    auto walk = std::make_unique<CKvSymbolTableWalk>(table.records(), fromBeginning, skipErased);
    return OdDbSymbolTableIteratorPtr(new OdDbSymbolTableIterator(std::move(walk)), kOdRxObjAttach);
}

OdDbObjectId OdDbSymbolTable::add(const OdDbSymbolTableRecordPtr &record)
{
    CKvTable &table = tableOf(*this);
    CKvObjectSlot &head = CKvObjectAccess::beginChange(*this);
    if (!record) {
        throw OdError(OdResult::kInvalidInput, "There is no record to add.");
    }
    if (table.find(record->getName().toQString())) {
        throw OdError(OdResult::kDuplicateName,
                      "The drawing has a record of the name \""
                          + record->getName().toQString().toStdString() + "\" already.");
    }
    const bool isNew = record->database() != head.store->database;
    if (isNew) {
        CKvObjectImporter(*head.store).adopt(*record, CKvObjectSlot::Role::Record, &head, 0);
    }
    table.add(*CKvObjectAccess::slotOf(*record));
    if (isNew) {
        CKvObjectAccess::tellAppended(*record);
    }
    return record->objectId();
}

OdRxClass *OdDbLayerTable::desc()
{
    static OdRxClass s_class(OdString("OdDbLayerTable"),
                             OdDbSymbolTable::desc(),
                             &constructRx<OdDbLayerTable>,
                             OdString("TABLE"));
    return &s_class;
}

OdDbLayerTablePtr OdDbLayerTable::cast(const OdRxObject *object)
{
    return castRx<OdDbLayerTable>(object);
}

OdRxClass *OdDbLinetypeTable::desc()
{
    static OdRxClass s_class(OdString("OdDbLinetypeTable"),
                             OdDbSymbolTable::desc(),
                             &constructRx<OdDbLinetypeTable>,
                             OdString("TABLE"));
    return &s_class;
}

OdDbLinetypeTablePtr OdDbLinetypeTable::cast(const OdRxObject *object)
{
    return castRx<OdDbLinetypeTable>(object);
}

OdRxClass *OdDbBlockTable::desc()
{
    static OdRxClass s_class(OdString("OdDbBlockTable"),
                             OdDbSymbolTable::desc(),
                             &constructRx<OdDbBlockTable>,
                             OdString("TABLE"));
    return &s_class;
}

OdDbBlockTablePtr OdDbBlockTable::cast(const OdRxObject *object)
{
    return castRx<OdDbBlockTable>(object);
}

OdRxClass *OdDbTextStyleTable::desc()
{
    static OdRxClass s_class(OdString("OdDbTextStyleTable"),
                             OdDbSymbolTable::desc(),
                             &constructRx<OdDbTextStyleTable>,
                             OdString("TABLE"));
    return &s_class;
}

OdDbTextStyleTablePtr OdDbTextStyleTable::cast(const OdRxObject *object)
{
    return castRx<OdDbTextStyleTable>(object);
}

OdRxClass *OdDbDimStyleTable::desc()
{
    static OdRxClass s_class(OdString("OdDbDimStyleTable"),
                             OdDbSymbolTable::desc(),
                             &constructRx<OdDbDimStyleTable>,
                             OdString("TABLE"));
    return &s_class;
}

OdDbDimStyleTablePtr OdDbDimStyleTable::cast(const OdRxObject *object)
{
    return castRx<OdDbDimStyleTable>(object);
}
