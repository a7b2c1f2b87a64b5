// SPDX-License-Identifier: MIT
#include "CKvDrawingStore.h"
#include "CKvEntityIndex.h"
#include "CKvObjectAccess.h"
#include "OdDbBlockTableRecord.h"
#include "OdDbEntity.h"
#include "entityLayer.h"
#include "objectClasses.h"
#include "objectTags.h"
#include "recordNames.h"
#include "rxConstruction.h"

namespace
{

constexpr int kExternalReferenceFlags = 4 | 8;

/// A name that all entities have, in the part that is common to them.
struct CKvEntityName {
    CKvTableKind table;
    int code;
    /// What counts when the group is missing.
    std::string_view fallback;
    /// New groups stand behind the first of these that is there.
    std::initializer_list<int> anchors;
};

constexpr CKvEntityName kLayer = { CKvTableKind::Layer, 8, "0", { 100, 67, 330, 5, 0 } };
constexpr CKvEntityName kLineStyle = {
    CKvTableKind::Linetype, 6, "ByLayer", { 8, 100, 67, 330, 5, 0 }
};

std::string_view encodedName(const CKvObjectSlot &slot, const CKvEntityName &name)
{
    if (name.code == kLayer.code && slot.hasPlainLayer()) {
        return slot.movedTo != 0
            ? slot.store->movedLayerName(slot)
            : slot.store->image()->bytes().substr(slot.begin + slot.layerAt, slot.layerSize);
    }
    const std::optional<CKvTag> tag = findTag(slot, name.code, CKvTagScope::EntityPart);
    return tag ? tag->value : name.fallback;
}

CKvObjectSlot &recordOf(const CKvObjectSlot &slot, const CKvEntityName &name)
{
    return slot.store->table(name.table).findOrStandIn(encodedName(slot, name));
}

void writeName(CKvObjectSlot &slot, const CKvEntityName &name, std::string_view encoded)
{
    const bool isPlainMove = name.code == kLayer.code && slot.hasPlainLayer();
    if (isPlainMove && slot.store->moveToLayer(slot, encoded)) {
        return;
    }
    setTag(slot, name.code, encoded, name.anchors, CKvTagScope::EntityPart);
}

/// Vertices and the end mark follow where they had the same record; the attributes of an insertion
/// stand between it and its end mark and are entities of their own.
void writeNameOfParts(const CKvObjectSlot &slot,
                      const CKvEntityName &name,
                      std::string_view encoded)
{
    static const OdRxClass *const s_attribute = objectClass("ATTRIB", CKvObjectSlot::Role::Entity);
    if (slot.rxClass == s_attribute) {
        return;
    }
    for (CKvObjectSlot *part = slot.store->slotBehind(slot); part && part->owner == slot.owner;
         part = slot.store->slotBehind(*part)) {
        const bool isPart = part->role == CKvObjectSlot::Role::SubEntity;
        if (!isPart && part->rxClass != s_attribute) {
            return;
        }
        if (isPart && !part->isErased && &recordOf(*part, name) == &recordOf(slot, name)) {
            writeName(*part, name, encoded);
        }
    }
}

void setName(CKvObjectSlot &slot, const CKvEntityName &name, OdDbObjectId id, bool withParts)
{
    if (id.isNull() || id.slot()->store != slot.store) {
        throw OdError(OdResult::kInvalidInput,
                      name.code == kLayer.code ? "The layer is not one of this drawing."
                                               : "The line style is not one of this drawing.");
    }
    const std::string &encoded = slot.store->table(name.table).encodedNameOf(*id.slot());
    // The parts first, while the entity still tells what it had.
    if (withParts) {
        writeNameOfParts(slot, name, encoded);
    }
    writeName(slot, name, encoded);
}

} // namespace

std::string_view encodedLayer(const CKvObjectSlot &slot)
{
    return encodedName(slot, kLayer);
}

/// The entities of a block as they were when the walk began.
class CKvEntityWalk
{
public:
    CKvEntityWalk(std::vector<CKvObjectSlot *> entities, bool fromBeginning, bool skipErased)
        : m_entities(std::move(entities))
    {
        start(fromBeginning, skipErased);
    }
    void start(bool fromBeginning, bool skipErased)
    {
        m_at = fromBeginning ? 0 : std::ptrdiff_t(m_entities.size()) - 1;
        pass(fromBeginning, skipErased);
    }
    bool isDone() const { return m_at < 0 || m_at >= std::ptrdiff_t(m_entities.size()); }
    void step(bool isForward, bool skipErased)
    {
        m_at += isForward ? 1 : -1;
        pass(isForward, skipErased);
    }
    CKvObjectSlot &entity() const
    {
        if (isDone()) {
            throw OdError(OdResult::kInvalidInput, "The walk over the block is done.");
        }
        return *m_entities[std::size_t(m_at)];
    }

private:
    void pass(bool isForward, bool skipErased)
    {
        while (!isDone()) {
            const CKvObjectSlot &slot = *m_entities[std::size_t(m_at)];
            if (slot.role == CKvObjectSlot::Role::Entity && !(skipErased && slot.isErased)) {
                return;
            }
            m_at += isForward ? 1 : -1;
        }
    }

    std::vector<CKvObjectSlot *> m_entities;
    std::ptrdiff_t m_at = 0;
};

OdDbObjectIterator::OdDbObjectIterator(std::unique_ptr<CKvEntityWalk> walk)
    : m_walk(std::move(walk))
{
}

OdDbObjectIterator::~OdDbObjectIterator() = default;

void OdDbObjectIterator::start(bool fromBeginning, bool skipErased)
{
    m_walk->start(fromBeginning, skipErased);
}

bool OdDbObjectIterator::done() const
{
    return m_walk->isDone();
}

void OdDbObjectIterator::step(bool forward, bool skipErased)
{
    m_walk->step(forward, skipErased);
}

OdDbObjectId OdDbObjectIterator::objectId() const
{
    return m_walk->entity().id();
}

OdDbEntityPtr OdDbObjectIterator::entity(OdDb::OpenMode mode, bool openErased) const
{
    return OdDbEntityPtr(objectId().openObject(mode, openErased));
}

OdRxClass *OdDbBlockTableRecord::desc()
{
    static OdRxClass s_class(OdString("OdDbBlockTableRecord"),
                             OdDbSymbolTableRecord::desc(),
                             &constructRx<OdDbBlockTableRecord>,
                             OdString("BLOCK_RECORD"));
    return &s_class;
}

OdDbBlockTableRecordPtr OdDbBlockTableRecord::cast(const OdRxObject *object)
{
    return castRx<OdDbBlockTableRecord>(object);
}

bool OdDbBlockTableRecord::isFromExternalReference() const
{
    CKvObjectSlot &slot = *CKvObjectAccess::slotOf(*this);
    const CKvObjectSlot *begin = slot.store->entities().contentsOf(slot).begin;
    const std::optional<CKvTag> flags = begin ? findTag(*begin, 70) : std::nullopt;
    return flags && (flags->integer() & kExternalReferenceFlags) != 0;
}

OdDbObjectIteratorPtr
OdDbBlockTableRecord::newIterator(bool fromBeginning, bool skipErased, bool) const
{
    CKvObjectSlot &slot = *CKvObjectAccess::slotOf(*this);
    auto walk = std::make_unique<CKvEntityWalk>(
        slot.store->entities().contentsOf(slot).entities, fromBeginning, skipErased);
    return OdDbObjectIteratorPtr(new OdDbObjectIterator(std::move(walk)), kOdRxObjAttach);
}

OdRxClass *OdDbEntity::desc()
{
    static OdRxClass s_class(
        OdString("OdDbEntity"), OdDbObject::desc(), &constructRx<OdDbEntity>, OdString::kEmpty);
    return &s_class;
}

OdDbEntityPtr OdDbEntity::cast(const OdRxObject *object)
{
    return castRx<OdDbEntity>(object);
}

OdDbObjectId OdDbEntity::layerId() const
{
    return recordOf(*CKvObjectAccess::slotOf(*this), kLayer).id();
}

OdString OdDbEntity::layer() const
{
    const CKvObjectSlot &slot = *CKvObjectAccess::slotOf(*this);
    return OdString(slot.format().codec.decode(encodedName(slot, kLayer)));
}

void OdDbEntity::setLayer(OdDbObjectId layerId, bool doSubents, bool)
{
    setName(CKvObjectAccess::beginChange(*this), kLayer, layerId, doSubents);
}

OdDbObjectId OdDbEntity::linetypeId() const
{
    return recordOf(*CKvObjectAccess::slotOf(*this), kLineStyle).id();
}

void OdDbEntity::setLinetype(OdDbObjectId linetypeId, bool doSubents)
{
    setName(CKvObjectAccess::beginChange(*this), kLineStyle, linetypeId, doSubents);
}
