// SPDX-License-Identifier: MIT
#include "dimStyleTags.h"

#include "CKvDrawingFormat.h"
#include "CKvObjectSlot.h"
#include "CKvTagReader.h"
#include "extendedData.h"
#include "nearestColorIndex.h"
#include "objectTags.h"
#include "tagWriting.h"

#include <algorithm>

namespace
{

/// Extended data came with R11.
constexpr int kExtendedDataVersion = 1009;
/// From R2007 on the groups alone count.
constexpr int kGroupsOnlyVersion = 1021;
constexpr int kHandlesVersion = 1015;
/// The flags of the record and the background colour share it; the flags come first.
constexpr int kFlagsGroup = 70;

constexpr std::size_t kColorAt = 8;
// How the byte behind the components names the method.
constexpr unsigned kByLayerMethod = 0xC0;
constexpr unsigned kByBlockMethod = 0xC1;
constexpr unsigned kTrueColorMethod = 0xC2;
constexpr unsigned kIndexMethod = 0xC3;

bool isSameWord(std::string_view a, std::string_view b)
{
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c; };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [&](char x, char y) {
        return lower(x) == lower(y);
    });
}

int groupOf(const CKvObjectSlot &slot, const CKvDimensionVariable &variable)
{
    if (namesArrowBlocks(slot)) {
        switch (variable.variable) {
        case OdDbDimVariable::kDimblk:
            return 5;
        case OdDbDimVariable::kDimblk1:
            return 6;
        case OdDbDimVariable::kDimblk2:
            return 7;
        default:
            break;
        }
    }
    return variable.group;
}

bool isKeyOf(const CKvTag &tag, const CKvDimensionVariable &variable)
{
    return variable.extended.number != 0
        ? tag.code == 1070 && tag.integer() == variable.extended.number
        : tag.isWord(1000, variable.name);
}

/// Goes through a style once and keeps what belongs to one setting.
class CKvSettingSearch
{
public:
    CKvSettingSearch(const CKvDimensionVariable &variable, int group, bool readsExtended)
        : m_variable(variable)
        , m_group(group)
        , m_passesOver(group == kFlagsGroup ? 1 : 0)
        , m_readsExtended(readsExtended)
    {
    }
    /// @return false when the rest can't matter.
    bool note(const CKvTag &tag)
    {
        if (tag.code == 1001) {
            m_isExtended = true;
            m_isInside = isSameWord(tag.word(), m_variable.extended.application);
            m_isValueNext = false;
            m_isKey = true;
            return m_readsExtended && !m_isFound;
        }
        if (m_isExtended) {
            noteExtended(tag);
        } else if (tag.code == 102) {
            m_isInBraces = tag.word() != "}";
        } else if (tag.code == m_group && !m_isInBraces && m_passesOver-- <= 0) {
            keep(tag, /*isExtended*/ false);
        }
        return true;
    }
    std::optional<CKvDimStyleTag> found() const
    {
        return m_isFound ? std::optional<CKvDimStyleTag>(m_found) : std::nullopt;
    }

private:
    /// The last one counts.
    void keep(const CKvTag &tag, bool isExtended)
    {
        m_found.tag = tag;
        m_found.isExtended = isExtended;
        m_isFound = true;
    }
    void noteExtended(const CKvTag &tag)
    {
        if (!m_isInside || tag.code == 999) {
            return;
        }
        if (m_isKey) {
            m_isValueNext = isKeyOf(tag, m_variable);
        } else if (m_isValueNext && tag.code == m_variable.extended.code) {
            keep(tag, /*isExtended*/ true);
        }
        m_isKey = !m_isKey;
    }

    const CKvDimensionVariable &m_variable;
    int m_group;
    int m_passesOver;
    bool m_readsExtended;
    bool m_isInBraces = false;
    bool m_isExtended = false;
    bool m_isInside = false;
    bool m_isKey = true;
    bool m_isValueNext = false;
    bool m_isFound = false;
    CKvDimStyleTag m_found;
};

/// Settings stand in the order of their groups behind the flags.
void insertSetting(CKvObjectSlot &slot, int group, std::string_view value)
{
    const CKvTagStyle &style = slot.format().style;
    std::optional<CKvTag> before = findFirstTag(slot, kFlagsGroup);
    if (!before) {
        // A second 70 needs a first one.
        setTag(slot, kFlagsGroup, "0", { 2, 100, 105, 0 });
        before = findFirstTag(slot, kFlagsGroup);
    }
    std::size_t at = before->end;
    for (const CKvTag &tag : ownTags(slot)) {
        if (tag.begin >= before->end && tag.code <= group) {
            at = tag.end;
        }
    }
    insertTag(slot.ownBytes(), at, style, group, value);
}

void writeExtended(CKvObjectSlot &slot,
                   const CKvDimensionVariable &variable,
                   const std::string &value)
{
    const CKvDimensionVariable::Extended &place = variable.extended;
    CKvExtendedGroups groups;
    bool isWritten = false;
    bool isKey = true;
    bool isValueNext = false;
    for (const CKvTag &tag : extendedData(slot, place.application)) {
        groups.emplace_back(tag.code, asciiValue(tag));
        if (isKey) {
            isValueNext = isKeyOf(tag, variable);
        } else if (isValueNext) {
            groups.back() = { place.code, value };
            isWritten = true;
        }
        isKey = !isKey;
    }
    if (!isWritten && place.number != 0) {
        groups.emplace_back(1070, std::to_string(place.number));
    } else if (!isWritten) {
        groups.emplace_back(1000, variable.name);
    }
    if (!isWritten) {
        groups.emplace_back(place.code, value);
    }
    setExtendedData(slot, place.application, groups);
}

unsigned byteAt(std::string_view hex, std::size_t at)
{
    return hex.size() >= 2 * at + 2 ? unsigned(handleFromText(hex.substr(2 * at, 2))) : 0;
}

void appendByte(std::string &hex, unsigned byte)
{
    constexpr char kDigits[] = "0123456789ABCDEF";
    hex.push_back(kDigits[byte >> 4 & 15]);
    hex.push_back(kDigits[byte & 15]);
}

} // namespace

bool namesArrowBlocks(const CKvObjectSlot &slot)
{
    return slot.format().version < kHandlesVersion;
}

std::optional<CKvDimStyleTag> findDimStyleTag(const CKvObjectSlot &slot,
                                              const CKvDimensionVariable &variable)
{
    const bool hasGroup = variable.group != 0;
    const bool readsExtended = !variable.extended.application.empty()
        && (!hasGroup || slot.format().version < kGroupsOnlyVersion);
    CKvSettingSearch search(variable, hasGroup ? groupOf(slot, variable) : -1, readsExtended);
    CKvTagReader reader(slot.bytes(), slot.form());
    while (reader.next() && search.note(reader.tag())) { }
    return search.found();
}

void writeDimStyleTag(CKvObjectSlot &slot,
                      const CKvDimensionVariable &variable,
                      const CKvDimStyleValue &value)
{
    const std::optional<CKvDimStyleTag> found = findDimStyleTag(slot, variable);
    const int version = slot.format().version;
    if (found && !found->isExtended) {
        replaceTagValue(slot.ownBytes(), found->tag, value.plain);
    } else if (version >= variable.since) {
        insertSetting(slot, groupOf(slot, variable), value.plain);
    } else if (!variable.extended.application.empty() && version >= kExtendedDataVersion) {
        writeExtended(slot, variable, value.extended);
    }
}

OdCmColor colorFromBytes(const CKvTag &tag)
{
    const std::string value = asciiValue(tag);
    const std::string_view hex = trimmed(value);
    const unsigned blueOrIndex = byteAt(hex, kColorAt);
    switch (byteAt(hex, kColorAt + 3)) {
    case kByLayerMethod:
        return OdCmColor();
    case kTrueColorMethod: {
        const auto red = std::uint8_t(byteAt(hex, kColorAt + 2));
        const auto green = std::uint8_t(byteAt(hex, kColorAt + 1));
        const auto blue = std::uint8_t(blueOrIndex);
        return OdCmColor::byColor(red, green, blue, nearestColorIndex(red, green, blue));
    }
    case kIndexMethod:
        return OdCmColor::byIndex(int(blueOrIndex));
    default:
        return OdCmColor::byIndex(0);
    }
}

std::string bytesOfColor(const OdCmColor &color)
{
    std::string hex("1800000001000000");
    if (color.isByColor()) {
        appendByte(hex, color.blue());
        appendByte(hex, color.green());
        appendByte(hex, color.red());
        appendByte(hex, kTrueColorMethod);
    } else {
        appendByte(hex, color.isByIndex() ? unsigned(color.colorIndex()) : 0);
        appendByte(hex, 0);
        appendByte(hex, 0);
        appendByte(hex,
                   color.isByLayer()       ? kByLayerMethod
                       : color.isByIndex() ? kIndexMethod
                                           : kByBlockMethod);
    }
    return hex + std::string(24, '0');
}
