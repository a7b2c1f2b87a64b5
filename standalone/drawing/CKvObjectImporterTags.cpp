// SPDX-License-Identifier: MIT
#include "CKvObjectImporter.h"

#include "CKvDrawingStore.h"
#include "CKvTagReader.h"
#include "extensionDictionary.h"
#include "groupValueType.h"
#include "objectTags.h"
#include "recordNames.h"
#include "recordSubclass.h"
#include "slotOrigin.h"

#include <algorithm>

namespace
{

/// R13 and R14 know neither the flag of an xrecord (280) nor those of a dictionary (280, 281).
constexpr int kFlagsVersion = 1015;
/// What ends a text in one form of file or another.
constexpr std::string_view kTextEnds("\0\n\r", 3);
/// The largest group code that a binary file has room for.
constexpr int kLargestBinaryCode = 0xffff;

bool isOwnHandle(const CKvTag &tag, std::string_view type)
{
    return tag.code == (type == "DIMSTYLE" ? 105 : 5);
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
    if (!value.empty() && value.front() == '*') {
        const auto renamed = m_newBlockNames.find(foldedName(codecOf(source).decode(value)));
        if (renamed != m_newBlockNames.end()) {
            return m_destination.format().codec.encode(renamed->second);
        }
    }
    const bool isPlain = value.find('\\') == std::string_view::npos
        && std::all_of(value.begin(), value.end(), [](char c) {
                             return static_cast<unsigned char>(c) < 128;
                         });
    // A text of another form of file may hold what would end it in this one.
    const bool hasEnd = value.find_first_of(kTextEnds) != std::string_view::npos;
    if (!hasEnd && (isPlain || codecOf(source) == m_destination.format().codec)) {
        return std::string(value);
    }
    return m_destination.format().codec.encode(codecOf(source).decode(value));
}

std::uint64_t CKvObjectImporter::translatedHandle(CKvDrawingStore *source, std::uint64_t handle)
{
    if (!source) {
        // A new object names handles of the drawing that it enters.
        return handle;
    }
    CKvObjectSlot *named = source->findByHandle(handle);
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
        CKvObjectSlot &own = counterpartOrClone(*named, kind);
        requireHandle(own);
        return own.handle;
    }
    return 0;
}

void CKvObjectImporter::appendTranslated(std::string &bytes,
                                         const CKvObjectSlot &source,
                                         const CKvTag &tag)
{
    const CKvTagStyle &style = m_destination.format().style;
    if (style.form != CKvTagForm::Ascii && (tag.code < 0 || tag.code > kLargestBinaryCode)) {
        return;
    }
    const CKvGroupValueType valueType = groupValueType(tag.code);
    if (valueType == CKvGroupValueType::Handle) {
        appendTag(
            bytes, style, tag.code, handleToText(translatedHandle(storeOf(source), tag.handle())));
    } else if (valueType == CKvGroupValueType::Text) {
        appendTag(bytes, style, tag.code, translatedText(source, tag.value));
    } else {
        appendTagCopy(bytes, style, tag);
    }
}

void CKvObjectImporter::skipNewerFlag(CKvTagReader &reader) const
{
    const std::size_t data = reader.position();
    if (m_destination.format().version < kFlagsVersion && reader.next()
        && reader.tag().code != 280) {
        reader.seek(data);
    }
}

void CKvObjectImporter::appendHead(std::string &bytes,
                                   std::string_view type,
                                   std::uint64_t handle,
                                   std::uint64_t owner,
                                   std::string_view extensionGroup) const
{
    const CKvTagStyle &style = m_destination.format().style;
    appendTag(bytes, style, 0, type);
    if (handle != 0) {
        appendTag(bytes, style, type == "DIMSTYLE" ? 105 : 5, handleToText(handle));
    }
    bytes += extensionGroup;
    if (m_destination.format().hasDictionaries() && owner != 0) {
        appendTag(bytes, style, 330, handleToText(owner));
    }
}

void CKvObjectImporter::appendSubclasses(std::string &bytes, std::string_view type) const
{
    if (!m_destination.format().hasDictionaries()) {
        return;
    }
    for (const std::string_view mark : recordSubclasses(type)) {
        appendTag(bytes, m_destination.format().style, 100, mark);
    }
}

std::string CKvObjectImporter::translated(const CKvObjectSlot &source,
                                          std::uint64_t handle,
                                          std::uint64_t owner,
                                          std::string_view extensionGroup,
                                          CKvExtendedData extendedData)
{
    const CKvTagStyle &style = m_destination.format().style;
    CKvTagReader reader(source.bytes(), source.store ? source.form() : formOf(source));
    std::string bytes;
    std::string_view type;
    bool isInBraces = false;
    bool isExtended = false;
    bool isXrecordData = false;
    bool hasOwner = false;
    bool hasSubclass = findTag(source.bytes(), formOf(source), 100).has_value();
    while (reader.next()) {
        const CKvTag &tag = reader.tag();
        if (tag.code == 0) {
            type = tag.word();
            appendHead(bytes, translatedText(source, type), handle, owner, extensionGroup);
            if (!hasSubclass) {
                appendSubclasses(bytes, type);
            }
            continue;
        }
        if (isXrecordData) {
            appendTranslated(bytes, source, tag);
            continue;
        }
        if (tag.isWord(100, "AcDbXrecord")) {
            appendTag(bytes, style, tag.code, tag.word());
            isXrecordData = true;
            skipNewerFlag(reader);
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
        const bool isNewerFlag = type == "DICTIONARY" && (tag.code == 280 || tag.code == 281)
            && m_destination.format().version < kFlagsVersion;
        if (isNewerFlag || isInBraces || tag.code == 999 || (!isExtended && isOwnHandle(tag, type))
            || !isAllowed(tag.code)) {
            continue;
        }
        if (tag.code == 330 && !hasOwner && !isExtended) {
            hasOwner = true;
            continue;
        }
        appendTranslated(bytes, source, tag);
    }
    return bytes;
}
