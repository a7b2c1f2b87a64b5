// SPDX-License-Identifier: MIT
#include "CKvObjectImporter.h"

#include "CKvDrawingStore.h"
#include "CKvEntityIndex.h"
#include "CKvObjectAccess.h"
#include "CKvTagReader.h"
#include "extensionDictionary.h"
#include "nameUses.h"
#include "objectClasses.h"
#include "objectTags.h"
#include "recordNames.h"
#include "slotOrigin.h"

namespace
{

/// A block that programs name: of equal names two drawings have different contents.
bool isAnonymousBlock(CKvTableKind kind, const QString &name)
{
    return kind == CKvTableKind::Block && name.startsWith(QLatin1Char('*')) && !isSpaceName(name);
}

std::string bracedGroupBytes(const CKvObjectSlot &slot)
{
    const std::optional<CKvTagRange> range = findBracedGroup(slot, "ACAD_XDICTIONARY");
    return range ? std::string(slot.bytes().substr(range->begin, range->end - range->begin))
                 : std::string();
}

std::string extendedDataBytes(const CKvObjectSlot &slot)
{
    CKvTagReader reader(slot.bytes(), slot.form());
    while (reader.next()) {
        if (reader.tag().code == 1001) {
            return std::string(slot.bytes().substr(reader.tag().begin));
        }
    }
    return {};
}

} // namespace

CKvObjectSlot &CKvObjectImporter::counterpartOrClone(CKvObjectSlot &source, CKvTableKind kind)
{
    CKvObjectSlot *own =
        isAnonymousBlock(kind, recordName(source)) ? nullptr : findCounterpart(source, kind);
    return own ? *own : cloneRecord(source, kind);
}

CKvObjectSlot *CKvObjectImporter::findCounterpart(const CKvObjectSlot &source, CKvTableKind kind)
{
    const QString name = recordName(source);
    const std::optional<CKvTag> flags = findTag(source, 70);
    const bool isShapeFile =
        kind == CKvTableKind::TextStyle && flags && (flags->integer() & 1) != 0;
    if (!isShapeFile) {
        return m_destination.table(kind).find(name);
    }
    // Shape files have no name as a rule; the file is what they are known by.
    const std::optional<CKvTag> wanted = findTag(source, 3);
    for (CKvObjectSlot *style : m_destination.table(kind).records()) {
        const std::optional<CKvTag> styleFlags = findTag(*style, 70);
        const std::optional<CKvTag> file = findTag(*style, 3);
        if (!style->isErased && styleFlags && (styleFlags->integer() & 1) != 0 && file && wanted
            && foldedName(style->format().codec.decode(file->word()))
                == foldedName(codecOf(source).decode(wanted->word()))) {
            return style;
        }
    }
    return nullptr;
}

std::uint64_t CKvObjectImporter::ownerHandle(CKvObjectSlot *owner)
{
    if (owner && owner->handle == 0 && m_destination.hasHandles()
        && owner->role == CKvObjectSlot::Role::TableHead && owner->begin == owner->end) {
        // A table that the file lacks gets its handle with its first record.
        owner->handle = m_destination.newHandle();
        m_destination.registerHandle(*owner);
    }
    return owner ? owner->handle : 0;
}

void CKvObjectImporter::adopt(OdDbObject &object,
                              CKvObjectSlot::Role role,
                              CKvObjectSlot *owner,
                              std::uint64_t handle)
{
    CKvObjectSlot &source = *CKvObjectAccess::slotOf(object);
    bringNames(source);
    if (role == CKvObjectSlot::Role::Object) {
        m_destination.requireRootDictionary();
    }
    const std::string type(findTag(source.bytes(), formOf(source), 0)->word());
    CKvObjectSlot &slot = m_destination.makeSlot(role, type);
    slot.handle = handle != 0 ? handle : m_destination.hasHandles() ? m_destination.newHandle() : 0;
    slot.owner = role == CKvObjectSlot::Role::Object ? nullptr : owner;
    slot.isNew = true;
    slot.ownBytes() = translated(source, slot.handle, ownerHandle(owner), {});
    if (role == CKvObjectSlot::Role::Object) {
        m_destination.addObject(slot);
    } else {
        m_destination.registerHandle(slot);
    }
    if (source.store) {
        setErased(source, true);
    }
    CKvObjectAccess::moveTo(object, slot);
}

CKvObjectSlot *
CKvObjectImporter::findOrClone(CKvDrawingStore &source, CKvTableKind kind, const QString &name)
{
    CKvObjectSlot *own = m_destination.table(kind).find(name);
    if (own && !isAnonymousBlock(kind, name)) {
        return own;
    }
    CKvObjectSlot *record = source.table(kind).find(name);
    return record ? &cloneRecord(*record, kind) : nullptr;
}

void CKvObjectImporter::requireApplication(const QString &name)
{
    CKvTable &applications = m_destination.table(CKvTableKind::AppId);
    if (applications.find(name)) {
        return;
    }
    const CKvTagStyle &style = m_destination.format().style;
    CKvObjectSlot &slot = m_destination.makeSlot(CKvObjectSlot::Role::Record, "APPID");
    slot.owner = &applications.head();
    slot.handle = m_destination.hasHandles() ? m_destination.newHandle() : 0;
    const bool hasOwner = m_destination.format().hasDictionaries();
    std::string &bytes = slot.ownBytes();
    appendHead(bytes, "APPID", slot.handle, hasOwner ? ownerHandle(&applications.head()) : 0, {});
    appendSubclasses(bytes, "APPID");
    appendTag(bytes, style, 2, m_destination.format().codec.encode(name));
    appendTag(bytes, style, 70, "0");
    m_destination.registerHandle(slot);
    applications.add(slot);
}

void CKvObjectImporter::bringNames(const CKvObjectSlot &source)
{
    CKvDrawingStore *store = storeOf(source);
    if (!store || store == &m_destination) {
        return;
    }
    forEachNameUse(source, CKvUses::OnlyReferences, [&](CKvTableKind kind, const CKvTag &tag) {
        findOrClone(*store, kind, store->format().codec.decode(tag.value));
    });
}

CKvObjectSlot &CKvObjectImporter::cloneRecord(CKvObjectSlot &source, CKvTableKind kind)
{
    CKvObjectSlot *&known = m_clones[&source];
    if (known) {
        return *known;
    }
    CKvTable &table = m_destination.table(kind);
    CKvObjectSlot &slot =
        m_destination.makeSlot(CKvObjectSlot::Role::Record, kTableNames[std::size_t(kind)]);
    known = &slot;
    slot.owner = &table.head();
    slot.handle = m_destination.hasHandles() ? m_destination.newHandle() : 0;
    slot.isNew = true;
    const QString name = recordName(source);
    if (isAnonymousBlock(kind, name)) {
        m_newBlockNames[foldedName(name)] = freeAnonymousName(name);
    }
    bringNames(source);
    slot.ownBytes() = translated(source, slot.handle, ownerHandle(&table.head()), {});
    m_destination.registerHandle(slot);
    table.add(slot);
    if (kind == CKvTableKind::Block) {
        cloneContents(source, slot);
    }
    const OdDbObjectPtr object = CKvObjectAccess::open(slot, OdDb::kForWrite);
    CKvObjectAccess::tellAppended(*object);
    return slot;
}

QString CKvObjectImporter::freeAnonymousName(const QString &name) const
{
    const QString stem = name.left(2).toUpper();
    int number = 1;
    while (m_destination.table(CKvTableKind::Block).find(stem + QString::number(number))) {
        ++number;
    }
    return stem + QString::number(number);
}

CKvObjectImporter::Copy CKvObjectImporter::copyOf(CKvObjectSlot &source, std::uint64_t owner)
{
    Copy copy;
    copy.source = &source;
    copy.handle = m_destination.hasHandles() ? m_destination.newHandle() : 0;
    bringNames(source);
    copy.bytes = translated(source, copy.handle, owner, {});
    return copy;
}

void CKvObjectImporter::cloneContents(CKvObjectSlot &sourceBlock, CKvObjectSlot &block)
{
    const CKvBlockContents contents = sourceBlock.store->entities().contentsOf(sourceBlock);
    std::vector<Copy> copies;
    if (contents.begin) {
        copies.push_back(copyOf(*contents.begin, block.handle));
    }
    std::uint64_t parent = 0;
    for (CKvObjectSlot *entity : contents.entities) {
        if (!entity->isErased) {
            const bool isPart = entity->role == CKvObjectSlot::Role::SubEntity
                || entity->rxClass == objectClass("ATTRIB", entity->role);
            copies.push_back(copyOf(*entity, isPart ? parent : block.handle));
            parent = isPart ? parent : copies.back().handle;
        }
    }
    if (contents.end) {
        copies.push_back(copyOf(*contents.end, block.handle));
    }
    // Only now, when all that comes along is there: an entity and its parts stand side by side, and
    // in the file no other block within this one.
    CKvBlockContents &own = m_destination.entities().contentsOf(block);
    for (Copy &copy : copies) {
        CKvObjectSlot &slot = enter(copy, block);
        if (copy.source == contents.begin) {
            own.begin = &slot;
        } else if (copy.source == contents.end) {
            own.end = &slot;
        } else {
            own.entities.push_back(&slot);
        }
    }
}

CKvObjectSlot &CKvObjectImporter::enter(Copy &copy, CKvObjectSlot &block)
{
    const std::string type(findTag(*copy.source, 0)->word());
    CKvObjectSlot &slot = m_destination.makeSlot(copy.source->role, type);
    slot.owner = &block;
    slot.handle = copy.handle;
    slot.isNew = true;
    slot.ownBytes() = std::move(copy.bytes);
    m_destination.entities().add(slot);
    return slot;
}

void CKvObjectImporter::replaceContent(CKvObjectSlot &target,
                                       CKvObjectSlot &source,
                                       bool keepExtendedData,
                                       bool keepExtensionDictionary)
{
    const QString oldName = recordName(target);
    bringNames(source);
    const std::string extension =
        keepExtensionDictionary ? bracedGroupBytes(target) : std::string();
    std::string bytes =
        translated(source,
                   target.handle,
                   target.owner ? target.owner->handle : 0,
                   extension,
                   keepExtendedData ? CKvExtendedData::LeftOut : CKvExtendedData::Taken);
    if (keepExtendedData) {
        bytes += extendedDataBytes(target);
    }
    target.ownBytes() = std::move(bytes);
    for (std::size_t i = 0; i < kTableCount; ++i) {
        if (m_destination.isRecordOf(target, CKvTableKind(i))) {
            m_destination.table(CKvTableKind(i)).nameChanged(target, oldName);
        }
    }
}
