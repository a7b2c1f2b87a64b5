// SPDX-License-Identifier: MIT
#include "CKvChangeJournal.h"

#include "CKvDrawingStore.h"
#include "CKvEntityIndex.h"
#include "CKvObjectAccess.h"
#include "OdDbDatabaseReactor.h"
#include "recordNames.h"
#include "tellReactors.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace
{

using Role = CKvObjectSlot::Role;

bool isMadeHere(const CKvObjectSlot &slot)
{
    const bool isObject = slot.role == Role::Record || slot.role == Role::BlockEdge
        || slot.role == Role::Entity || slot.role == Role::SubEntity || slot.role == Role::Object;
    return isObject && slot.begin == slot.end && slot.own && slot.isTouched;
}

CKvTable *tableOf(const CKvObjectSlot &slot)
{
    for (std::size_t i = 0; slot.role == Role::Record && i < kTableCount; ++i) {
        CKvTable &table = slot.store->table(CKvTableKind(i));
        if (&table.head() == slot.owner) {
            return &table;
        }
    }
    return nullptr;
}

bool isAsBefore(const CKvChangeStep::Before &before)
{
    const CKvObjectSlot &slot = *before.slot;
    if (before.isNew || before.isErased != slot.isErased || before.handle != slot.handle
        || before.movedTo != slot.movedTo) {
        return false;
    }
    const std::string_view inFile =
        slot.store->image()->bytes().substr(slot.begin, slot.end - slot.begin);
    return slot.movedTo != 0
        || slot.bytes() == (before.own ? std::string_view(*before.own) : inFile);
}

/// An object that comes, goes or changes, as reactors are told of it.
void tell(CKvObjectSlot &slot,
          const std::function<void(OdDbDatabaseReactor &, const OdDbObject &)> &event)
{
    const std::vector<OdDbDatabaseReactor *> &reactors = slot.store->reactors;
    if (reactors.empty() || slot.role == Role::Header) {
        return;
    }
    const OdDbObjectPtr object = CKvObjectAccess::open(slot, OdDb::kForRead);
    tellReactors(reactors, [&](OdDbDatabaseReactor &reactor) { event(reactor, *object); });
}

/// The object is still as it was, and is about to become something else.
void tellBefore(CKvObjectSlot &slot, bool wasErased)
{
    if (!wasErased) {
        tell(slot, [&](OdDbDatabaseReactor &reactor, const OdDbObject &object) {
            reactor.objectOpenedForModify(slot.store->database, &object);
        });
    }
}

void tellAfter(CKvObjectSlot &slot, const CKvChangeStep::Before &left)
{
    const OdDbDatabase *database = slot.store->database;
    tell(slot, [&](OdDbDatabaseReactor &reactor, const OdDbObject &object) {
        if (left.isNew && slot.isErased) {
            reactor.objectUnAppended(database, &object);
        } else if (left.isNew) {
            reactor.objectReAppended(database, &object);
        } else if (left.isErased != slot.isErased) {
            reactor.objectErased(database, &object, slot.isErased);
        } else if (!slot.isErased) {
            reactor.objectModified(database, &object);
        }
    });
}

void swapOne(CKvChangeStep::Before &before)
{
    CKvObjectSlot &slot = *before.slot;
    CKvTable *table = tableOf(slot);
    const QString oldName = table ? recordName(slot) : QString();
    const bool wasErased = slot.isErased;
    tellBefore(slot, wasErased);
    slot.store->noteChange(slot);
    std::swap(before.own, slot.own);
    std::swap(before.handle, slot.handle);
    std::swap(before.movedTo, slot.movedTo);
    slot.isErased = std::exchange(before.isErased, slot.isErased);
    slot.store->noteChange(slot);
    if (table && wasErased != slot.isErased) {
        table->erasedChanged(slot);
    } else if (table && !slot.isErased && recordName(slot) != oldName) {
        table->nameChanged(slot, oldName);
    }
    tellAfter(slot, before);
}

} // namespace

void CKvChangeStep::swap(CKvDrawingStore &store)
{
    CKvChangeJournal *journal = store.journal;
    if (journal) {
        journal->m_isSwapping = true;
    }
    for (auto before = objects.rbegin(); before != objects.rend(); ++before) {
        swapOne(*before);
    }
    // The other way round the next time.
    std::reverse(objects.begin(), objects.end());
    if (journal) {
        journal->m_isSwapping = false;
    }
}

CKvChangeJournal::CKvChangeJournal(CKvDrawingStore &store)
    : m_store(store)
    , m_firstNew(store.slotCount())
{
    m_store.journal = this;
}

CKvChangeJournal::~CKvChangeJournal()
{
    m_store.journal = nullptr;
}

void CKvChangeJournal::willChange(CKvObjectSlot &slot)
{
    const bool isListed = slot.role == Role::StandIn || slot.role == Role::Detached
        || (slot.serial > m_firstNew && slot.begin == slot.end);
    if (m_isSwapping || isListed || !m_noted.insert(&slot).second) {
        return;
    }
    CKvChangeStep::Before before;
    before.slot = &slot;
    before.handle = slot.handle;
    before.movedTo = slot.movedTo;
    before.isErased = slot.isErased;
    if (slot.own && slot.movedTo == 0) {
        before.own = std::make_unique<std::string>(*slot.own);
    }
    m_step.objects.push_back(std::move(before));
}

void CKvChangeJournal::noteNewObjects()
{
    for (std::size_t i = m_firstNew; i < m_store.slotCount(); ++i) {
        CKvObjectSlot &slot = m_store.slotAt(i);
        if (isMadeHere(slot) && !slot.isErased) {
            CKvChangeStep::Before before;
            before.slot = &slot;
            before.own = std::make_unique<std::string>(*slot.own);
            before.handle = slot.handle;
            before.isErased = true;
            before.isNew = true;
            m_step.objects.push_back(std::move(before));
        }
    }
    m_firstNew = m_store.slotCount();
}

CKvChangeStep CKvChangeJournal::take()
{
    noteNewObjects();
    m_noted.clear();
    CKvChangeStep step = std::exchange(m_step, CKvChangeStep());
    auto &objects = step.objects;
    objects.erase(std::remove_if(objects.begin(), objects.end(), &isAsBefore), objects.end());
    return step;
}

bool CKvChangeJournal::hasChanges()
{
    for (std::size_t i = m_firstNew; i < m_store.slotCount(); ++i) {
        if (isMadeHere(m_store.slotAt(i)) && !m_store.slotAt(i).isErased) {
            return true;
        }
    }
    return std::any_of(m_step.objects.begin(), m_step.objects.end(), [](const auto &before) {
        return !isAsBefore(before);
    });
}
