// SPDX-License-Identifier: MIT
#include "CKvObjectImporter.h"

#include "CKvDrawingStore.h"
#include "CKvEntityIndex.h"
#include "CKvObjectAccess.h"
#include "CKvTagReader.h"
#include "OdDbDatabase.h"
#include "extensionDictionary.h"
#include "groupValueType.h"
#include "nameUses.h"
#include "objectTags.h"
#include "recordNames.h"
#include "recordSubclass.h"

#include <algorithm>

namespace
{

/// The drawing that the handles of an object count in; null for a new object.
CKvDrawingStore *storeOf(const CKvObjectSlot &slot)
{
    if (slot.store) {
        return slot.store;
    }
    const auto &detached = static_cast<const CKvDetachedSlot &>(slot);
    return detached.origin ? &static_cast<OdDbDatabase *>(detached.origin.get())->store() : nullptr;
}

const CKvTextCodec &codecOf(const CKvObjectSlot &slot)
{
    const CKvDrawingStore *store = storeOf(slot);
    return store ? store->format().codec : slot.format().codec;
}

CKvTagForm formOf(const CKvObjectSlot &slot)
{
    const CKvDrawingStore *store = storeOf(slot);
    return store ? store->format().style.form : slot.form();
}

bool isOwnHandle(const CKvTag &tag, std::string_view type)
{
    return tag.code == (type == "DIMSTYLE" ? 105 : 5);
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

bool CKvObjectImporter::isAllowed(int code) const
{
    // Owners, subclass marks and handles came with R13; R12 has group codes up to 79 and those of
    // dimension styles and extended data.
    const bool isNewer = code == 100 || code == 102 || (code >= 320 && code <= 481);
    return m_destination.format().hasDictionaries() || !isNewer;
}

std::string CKvObjectImporter::translatedText(const CKvObjectSlot &source,
                                              std::string_view value) const
{
    const bool isPlain = value.find('\\') == std::string_view::npos
        && std::all_of(value.begin(), value.end(), [](char c) {
                             return static_cast<unsigned char>(c) < 128;
                         });
    if (isPlain || codecOf(source) == m_destination.format().codec) {
        return std::string(value);
    }
    return m_destination.format().codec.encode(codecOf(source).decode(value));
}

std::uint64_t CKvObjectImporter::translatedHandle(CKvDrawingStore *source, std::uint64_t handle)
{
    CKvObjectSlot *named = source ? source->findByHandle(handle) : nullptr;
    if (source == &m_destination) {
        return named ? handle : 0;
    }
    if (!named || named->role != CKvObjectSlot::Role::Record || named->isErased) {
        return 0;
    }
    for (const CKvTableKind kind :
         { CKvTableKind::TextStyle, CKvTableKind::Block, CKvTableKind::Linetype }) {
        if (!source->isRecordOf(*named, kind)) {
            continue;
        }
        CKvObjectSlot *own = findCounterpart(*named, kind);
        if (!own) {
            own = &cloneRecord(*named, kind);
        }
        requireHandle(*own);
        return own->handle;
    }
    return 0;
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

std::string CKvObjectImporter::translated(const CKvObjectSlot &source,
                                          std::uint64_t handle,
                                          std::uint64_t owner,
                                          std::string_view extensionGroup,
                                          CKvExtendedData extendedData)
{
    const CKvTagStyle &style = m_destination.format().style;
    CKvDrawingStore *sourceStore = storeOf(source);
    CKvTagReader reader(source.bytes(), source.store ? source.form() : formOf(source));
    std::string bytes;
    std::string_view type;
    bool isInBraces = false;
    bool isExtended = false;
    bool hasOwner = false;
    bool hasSubclass = findTag(source.bytes(), formOf(source), 100).has_value();
    while (reader.next()) {
        const CKvTag &tag = reader.tag();
        if (tag.code == 0) {
            type = tag.word();
            appendTag(bytes, style, 0, type);
            if (handle != 0) {
                appendTag(bytes, style, type == "DIMSTYLE" ? 105 : 5, handleToText(handle));
            }
            bytes += extensionGroup;
            if (m_destination.format().hasDictionaries() && owner != 0) {
                appendTag(bytes, style, 330, handleToText(owner));
            }
            if (!hasSubclass && m_destination.format().hasDictionaries()) {
                for (const std::string_view mark : recordSubclasses(type)) {
                    appendTag(bytes, style, 100, mark);
                }
            }
            continue;
        }
        isExtended = isExtended || (tag.code == 1001 && type != "XRECORD");
        if (isExtended && extendedData == CKvExtendedData::LeftOut) {
            break;
        }
        if (isExtended && tag.code == 1001) {
            requireApplication(codecOf(source).decode(tag.value));
        }
        if (tag.code == 102 && type != "XRECORD") {
            isInBraces = tag.word() != "}";
            continue;
        }
        if (isInBraces || tag.code == 999 || (!isExtended && isOwnHandle(tag, type))
            || !isAllowed(tag.code)) {
            continue;
        }
        if (tag.code == 330 && !hasOwner && !isExtended) {
            hasOwner = true;
            continue;
        }
        const CKvGroupValueType valueType = groupValueType(tag.code);
        if (valueType == CKvGroupValueType::Handle) {
            appendTag(
                bytes, style, tag.code, handleToText(translatedHandle(sourceStore, tag.handle())));
        } else if (valueType == CKvGroupValueType::Text) {
            appendTag(bytes, style, tag.code, translatedText(source, tag.value));
        } else {
            appendTagCopy(bytes, style, tag);
        }
    }
    return bytes;
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
    if (CKvObjectSlot *own = m_destination.table(kind).find(name)) {
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
    std::string &bytes = slot.ownBytes();
    appendTag(bytes, style, 0, "APPID");
    if (slot.handle != 0) {
        appendTag(bytes, style, 5, handleToText(slot.handle));
    }
    if (m_destination.format().hasDictionaries()) {
        appendTag(bytes, style, 330, handleToText(ownerHandle(&applications.head())));
        for (const std::string_view mark : recordSubclasses("APPID")) {
            appendTag(bytes, style, 100, mark);
        }
    }
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

CKvObjectSlot &CKvObjectImporter::cloneEntity(CKvObjectSlot &source, CKvObjectSlot &block)
{
    const std::string type(findTag(source, 0)->word());
    CKvObjectSlot &slot = m_destination.makeSlot(source.role, type);
    slot.owner = &block;
    slot.handle = m_destination.hasHandles() ? m_destination.newHandle() : 0;
    slot.isNew = true;
    bringNames(source);
    slot.own = std::make_unique<std::string>(translated(source, slot.handle, block.handle, {}));
    m_destination.entities().add(slot);
    return slot;
}

void CKvObjectImporter::cloneContents(CKvObjectSlot &sourceBlock, CKvObjectSlot &block)
{
    const CKvBlockContents contents = sourceBlock.store->entities().contentsOf(sourceBlock);
    CKvEntityIndex &index = m_destination.entities();
    if (contents.begin) {
        index.contentsOf(block).begin = &cloneEntity(*contents.begin, block);
    }
    for (CKvObjectSlot *entity : contents.entities) {
        if (!entity->isErased) {
            CKvObjectSlot &copy = cloneEntity(*entity, block);
            index.contentsOf(block).entities.push_back(&copy);
        }
    }
    if (contents.end) {
        index.contentsOf(block).end = &cloneEntity(*contents.end, block);
    }
    // Only now, so that blocks that came along stand before this one and not within it.
    const CKvBlockContents &copies = index.contentsOf(block);
    if (copies.begin) {
        m_destination.touch(*copies.begin);
    }
    for (CKvObjectSlot *entity : copies.entities) {
        m_destination.touch(*entity);
    }
    if (copies.end) {
        m_destination.touch(*copies.end);
    }
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
