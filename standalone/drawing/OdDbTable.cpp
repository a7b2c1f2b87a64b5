// SPDX-License-Identifier: MIT
#include "OdDbTable.h"

#include "CKvDrawingStore.h"
#include "CKvObjectAccess.h"
#include "objectTags.h"
#include "recordNames.h"
#include "rxConstruction.h"
#include "textUses.h"

#include <array>

namespace
{

/// In the order of the table's own groups 7.
struct CKvRowKind {
    OdDb::RowType type;
    /// In group 93: the rows have a text style of the table's own.
    std::int64_t ownStyleFlag;
    /// Which of the three groups 7 of a table style is theirs.
    std::size_t placeInTableStyle;
};

constexpr std::array<CKvRowKind, 3> kRowKinds = { {
    { OdDb::kTitleRow, 0x20000, 1 },
    { OdDb::kHeaderRow, 0x40000, 2 },
    { OdDb::kDataRow, 0x80000, 0 },
} };

/// What a table says of itself: its tags from the mark of its part up to the first cell, whose
/// groups have other meanings.
std::vector<CKvTag> headTags(const CKvObjectSlot &slot)
{
    std::vector<CKvTag> tags;
    bool isInPart = false;
    for (const CKvTag &tag : ownTags(slot)) {
        isInPart = isInPart || tag.isWord(100, "AcDbTable");
        if (isInPart && tag.code == 171) {
            break;
        }
        if (isInPart) {
            tags.push_back(tag);
        }
    }
    return tags;
}

std::optional<CKvTag> lastOf(const std::vector<CKvTag> &tags, int code)
{
    std::optional<CKvTag> found;
    for (const CKvTag &tag : tags) {
        if (tag.code == code) {
            found = tag;
        }
    }
    return found;
}

std::vector<CKvTag> allOf(const std::vector<CKvTag> &tags, int code)
{
    std::vector<CKvTag> found;
    for (const CKvTag &tag : tags) {
        if (tag.code == code) {
            found.push_back(tag);
        }
    }
    return found;
}

/// The table's own styles by the order of kRowKinds; none where the table style's counts.
using CKvOwnStyles = std::array<std::optional<std::string>, kRowKinds.size()>;

CKvOwnStyles ownStyles(const std::vector<CKvTag> &head)
{
    const std::optional<CKvTag> tag = lastOf(head, 93);
    const std::int64_t flags = tag ? tag->integer() : 0;
    const std::vector<CKvTag> names = allOf(head, 7);
    CKvOwnStyles styles;
    std::size_t given = 0;
    for (const CKvRowKind &row : kRowKinds) {
        given += (flags & row.ownStyleFlag) != 0 ? 1 : 0;
    }
    // Most programs write the groups that count and no others, some write all three.
    const bool areOnlyTheGiven = names.size() == given;
    std::size_t next = 0;
    for (std::size_t i = 0; i < kRowKinds.size(); ++i) {
        const bool isGiven = (flags & kRowKinds[i].ownStyleFlag) != 0;
        const std::size_t at = areOnlyTheGiven ? next : i;
        if (isGiven && at < names.size()) {
            styles[i] = std::string(names[at].value);
        }
        next += isGiven ? 1 : 0;
    }
    return styles;
}

/// Where the groups 7 of a table stand: behind flags (93 to 96) and margins, before the heights.
std::size_t placeOfStyles(const CKvObjectSlot &slot, const std::vector<CKvTag> &head)
{
    for (const int anchor : { 41, 40, 96, 95, 94, 93 }) {
        if (const std::optional<CKvTag> tag = lastOf(head, anchor)) {
            return tag->end;
        }
    }
    return head.empty() ? endOfOwnTags(slot) : head.back().end;
}

void writeOwnStyles(CKvObjectSlot &slot, const CKvOwnStyles &styles)
{
    std::string groups;
    std::int64_t flags = 0;
    for (std::size_t i = 0; i < kRowKinds.size(); ++i) {
        if (styles[i]) {
            appendTag(groups, slot.format().style, 7, *styles[i]);
            flags |= kRowKinds[i].ownStyleFlag;
        }
    }
    for (std::vector<CKvTag> names = allOf(headTags(slot), 7); !names.empty();
         names = allOf(headTags(slot), 7)) {
        removeTag(slot.ownBytes(), names.back());
    }
    slot.ownBytes().insert(placeOfStyles(slot, headTags(slot)), groups);
    const std::vector<CKvTag> head = headTags(slot);
    const std::optional<CKvTag> tag = lastOf(head, 93);
    if (tag) {
        replaceTagValue(slot.ownBytes(), *tag, std::to_string(tag->integer() | flags));
    } else {
        insertTag(slot.ownBytes(),
                  head.empty() ? endOfOwnTags(slot) : head.front().end,
                  slot.format().style,
                  93,
                  std::to_string(flags));
    }
}

/// The name in the table style; Standard when there is none.
std::string
nameInTableStyle(const CKvObjectSlot &slot, const std::vector<CKvTag> &head, const CKvRowKind &row)
{
    const std::optional<CKvTag> pointer = lastOf(head, 342);
    const CKvObjectSlot *style =
        pointer ? slot.store->findRecordByHandle(pointer->handle()) : nullptr;
    if (style && !style->isErased) {
        const std::vector<CKvTag> names = allOf(ownTags(*style), 7);
        if (row.placeInTableStyle < names.size()) {
            return std::string(names[row.placeInTableStyle].value);
        }
    }
    return "Standard";
}

} // namespace

OdRxClass *OdDbTable::desc()
{
    static OdRxClass s_class(
        OdString("OdDbTable"), OdDbEntity::desc(), &constructRx<OdDbTable>, OdString("ACAD_TABLE"));
    return &s_class;
}

OdDbTablePtr OdDbTable::cast(const OdRxObject *object)
{
    return castRx<OdDbTable>(object);
}

OdDbObjectId OdDbTable::textStyle(OdDb::RowType rowType) const
{
    const CKvObjectSlot &slot = *CKvObjectAccess::slotOf(*this);
    const std::vector<CKvTag> head = headTags(slot);
    const CKvOwnStyles own = ownStyles(head);
    CKvTable &styles = slot.store->table(CKvTableKind::TextStyle);
    for (std::size_t i = 0; i < kRowKinds.size(); ++i) {
        if (kRowKinds[i].type == rowType) {
            return styles
                .findOrStandIn(own[i] ? *own[i] : nameInTableStyle(slot, head, kRowKinds[i]))
                .id();
        }
    }
    return OdDbObjectId();
}

void OdDbTable::setTextStyle(OdDbObjectId styleId, unsigned rowTypes)
{
    CKvObjectSlot &slot = CKvObjectAccess::beginChange(*this);
    requireTextStyleOf(slot, styleId);
    CKvOwnStyles styles = ownStyles(headTags(slot));
    for (std::size_t i = 0; i < kRowKinds.size(); ++i) {
        if ((rowTypes & kRowKinds[i].type) != 0) {
            styles[i] = std::string(encodedRecordName(*styleId.slot()));
        }
    }
    writeOwnStyles(slot, styles);
}
