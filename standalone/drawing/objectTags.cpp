// SPDX-License-Identifier: MIT
#include "objectTags.h"

#include "CKvDrawingFormat.h"
#include "CKvObjectSlot.h"
#include "CKvTagReader.h"

namespace
{

/// Calls action for each own tag until it gives false.
template <class Action> void forEachOwnTag(std::string_view bytes, CKvTagForm form, Action action)
{
    CKvTagReader reader(bytes, form);
    bool isInBraces = false;
    while (reader.next()) {
        const CKvTag &tag = reader.tag();
        if (tag.code == 1001 || tag.code == 101) {
            return;
        }
        if (tag.code == 102) {
            isInBraces = tag.word() != "}";
            continue;
        }
        if (!isInBraces && !action(tag)) {
            return;
        }
    }
}

} // namespace

std::optional<CKvTag> findTag(std::string_view bytes, CKvTagForm form, int code, CKvTagScope scope)
{
    std::optional<CKvTag> found;
    int subclasses = 0;
    forEachOwnTag(bytes, form, [&](const CKvTag &tag) {
        if (tag.code == 100 && scope == CKvTagScope::EntityPart && ++subclasses == 2) {
            return false;
        }
        if (tag.code == code) {
            found = tag;
        }
        return true;
    });
    return found;
}

std::optional<CKvTag> findTag(const CKvObjectSlot &slot, int code, CKvTagScope scope)
{
    return findTag(slot.bytes(), slot.form(), code, scope);
}

std::optional<CKvTag> findFirstTag(const CKvObjectSlot &slot, int code)
{
    std::optional<CKvTag> found;
    forEachOwnTag(slot.bytes(), slot.form(), [&](const CKvTag &tag) {
        if (tag.code == code) {
            found = tag;
        }
        return !found;
    });
    return found;
}

std::vector<CKvTag> ownTags(const CKvObjectSlot &slot)
{
    std::vector<CKvTag> tags;
    forEachOwnTag(slot.bytes(), slot.form(), [&](const CKvTag &tag) {
        tags.push_back(tag);
        return true;
    });
    return tags;
}

std::size_t endOfOwnTags(const CKvObjectSlot &slot)
{
    CKvTagReader reader(slot.bytes(), slot.form());
    std::size_t end = 0;
    while (reader.next() && reader.tag().code != 1001 && reader.tag().code != 101) {
        end = reader.tag().end;
    }
    return end;
}

std::optional<CKvTagRange> findBracedGroup(const CKvObjectSlot &slot, std::string_view name)
{
    CKvTagReader reader(slot.bytes(), slot.form());
    CKvTagRange range;
    bool isInside = false;
    while (reader.next() && reader.tag().code != 1001) {
        const CKvTag &tag = reader.tag();
        if (tag.code != 102) {
            continue;
        }
        if (isInside) {
            range.end = tag.end;
            return range;
        }
        const std::string_view word = tag.word();
        isInside = word.size() == name.size() + 1 && word.front() == '{' && word.substr(1) == name;
        range.begin = tag.begin;
    }
    return std::nullopt;
}

void setTag(CKvObjectSlot &slot,
            int code,
            std::string_view value,
            std::initializer_list<int> anchors,
            CKvTagScope scope)
{
    if (const std::optional<CKvTag> tag = findTag(slot, code, scope)) {
        replaceTagValue(slot.ownBytes(), *tag, value);
        return;
    }
    std::size_t at = 0;
    for (const int anchor : anchors) {
        if (const std::optional<CKvTag> tag = findTag(slot, anchor, scope)) {
            at = tag->end;
            break;
        }
    }
    if (at == 0) {
        at = endOfOwnTags(slot);
    }
    insertTag(slot.ownBytes(), at, slot.format().style, code, value);
}

void dropTags(CKvObjectSlot &slot, int code)
{
    while (const std::optional<CKvTag> tag = findTag(slot, code)) {
        removeTag(slot.ownBytes(), *tag);
    }
}
