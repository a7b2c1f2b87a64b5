// SPDX-License-Identifier: MIT
#include "annotation.h"

#include "CKvDrawingStore.h"
#include "CKvObjectAccess.h"
#include "extendedData.h"

namespace
{

constexpr std::string_view kAnnotativeApplication = "AcadAnnotative";
constexpr std::string_view kOrientationApplication = "AcadAnnoPO";
constexpr int kFlagGroup = 1070;
/// Extended data came with R11.
constexpr int kExtendedDataVersion = 1009;

bool isRecordOf(const OdDbObject &object, CKvTableKind kind)
{
    const CKvObjectSlot *slot = CKvObjectAccess::slotOf(object);
    return slot && slot->store && slot->store->isRecordOf(*slot, kind);
}

/// The tag behind this many others of the flags' group; the end when there are fewer.
std::vector<CKvTag>::const_iterator flagBehind(const std::vector<CKvTag> &tags, int others)
{
    auto tag = tags.begin();
    while (tag != tags.end() && (tag->code != kFlagGroup || others-- > 0)) {
        ++tag;
    }
    return tag;
}

bool isFlagSet(const OdDbObject &style, std::string_view application, int others)
{
    const CKvObjectSlot *slot = CKvObjectAccess::slotOf(style);
    if (!slot) {
        return false;
    }
    const std::vector<CKvTag> tags = extendedData(*slot, application);
    const auto flag = flagBehind(tags, others);
    return flag != tags.end() && flag->integer() != 0;
}

/// @param whole what is written where there is no such flag yet.
void setFlag(OdDbObject &style,
             std::string_view application,
             int others,
             bool isSet,
             const CKvExtendedGroups &whole)
{
    CKvObjectSlot &slot = CKvObjectAccess::beginChange(style);
    if (slot.format().version < kExtendedDataVersion) {
        return;
    }
    const std::vector<CKvTag> tags = extendedData(slot, application);
    const auto flag = flagBehind(tags, others);
    if (flag == tags.end()) {
        setExtendedData(slot, application, whole);
        return;
    }
    CKvExtendedGroups groups;
    for (auto tag = tags.begin(); tag != tags.end(); ++tag) {
        groups.emplace_back(tag->code,
                            tag == flag ? std::string(isSet ? "1" : "0") : asciiValue(*tag));
    }
    setExtendedData(slot, application, groups);
}

} // namespace

bool canBeAnnotative(const OdDbObject &style)
{
    return isRecordOf(style, CKvTableKind::TextStyle) || isRecordOf(style, CKvTableKind::DimStyle);
}

bool isAnnotative(const OdDbObject &style)
{
    // The version of the data comes first.
    return isFlagSet(style, kAnnotativeApplication, 1);
}

void setAnnotative(OdDbObject &style, bool isAnnotative)
{
    if (::isAnnotative(style) != isAnnotative) {
        setFlag(style,
                kAnnotativeApplication,
                1,
                isAnnotative,
                { { 1000, "AnnotativeData" },
                  { 1002, "{" },
                  { kFlagGroup, "1" },
                  { kFlagGroup, isAnnotative ? "1" : "0" },
                  { 1002, "}" } });
    }
}

bool matchesOrientation(const OdDbObject &style)
{
    return isRecordOf(style, CKvTableKind::TextStyle)
        && isFlagSet(style, kOrientationApplication, 0);
}

void setMatchesOrientation(OdDbObject &style, bool matchesOrientation)
{
    if (isRecordOf(style, CKvTableKind::TextStyle)
        && ::matchesOrientation(style) != matchesOrientation) {
        setFlag(style,
                kOrientationApplication,
                0,
                matchesOrientation,
                { { kFlagGroup, matchesOrientation ? "1" : "0" } });
    }
}
