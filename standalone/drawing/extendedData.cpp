// SPDX-License-Identifier: MIT
#include "extendedData.h"

#include "CKvDrawingStore.h"
#include "CKvObjectImporter.h"
#include "CKvTagReader.h"
#include "recordNames.h"

#include <algorithm>

namespace
{

/// The data of one application, its name at the beginning included.
struct CKvExtendedBlock {
    std::size_t begin = 0;
    std::size_t end = 0;
    CKvTag name;
    std::vector<CKvTag> groups;
};

bool isNameOf(const CKvObjectSlot &slot, const CKvTag &tag, const QString &foldedApplication)
{
    return foldedName(slot.format().codec.decode(tag.word())) == foldedApplication;
}

std::vector<CKvExtendedBlock> blocksOf(const CKvObjectSlot &slot, std::string_view application)
{
    const QString folded =
        foldedName(QString::fromLatin1(application.data(), int(application.size())));
    std::vector<CKvExtendedBlock> blocks;
    bool isInside = false;
    CKvTagReader reader(slot.bytes(), slot.form());
    while (reader.next()) {
        const CKvTag &tag = reader.tag();
        if (tag.code == 1001) {
            isInside = isNameOf(slot, tag, folded);
            if (isInside) {
                blocks.push_back({ tag.begin, tag.end, tag, {} });
            }
        } else if (isInside && tag.code != 999) {
            blocks.back().end = tag.end;
            blocks.back().groups.push_back(tag);
        }
    }
    return blocks;
}

bool hasSameCodes(const std::vector<CKvTag> &tags, const CKvExtendedGroups &groups)
{
    return std::equal(tags.begin(),
                      tags.end(),
                      groups.begin(),
                      groups.end(),
                      [](const CKvTag &tag, const auto &group) { return tag.code == group.first; });
}

void replaceValues(std::string &bytes,
                   const std::vector<CKvTag> &tags,
                   const CKvExtendedGroups &groups)
{
    // From the last to the first, so that the offsets of those before stay true.
    for (std::size_t i = tags.size(); i-- > 0;) {
        replaceTagValue(bytes, tags[i], groups[i].second);
    }
}

std::string spelled(const CKvTagStyle &style, const CKvExtendedGroups &groups)
{
    std::string bytes;
    for (const auto &[code, value] : groups) {
        appendTag(bytes, style, code, value);
    }
    return bytes;
}

} // namespace

std::vector<CKvTag> extendedData(const CKvObjectSlot &slot, std::string_view application)
{
    std::vector<CKvExtendedBlock> blocks = blocksOf(slot, application);
    return blocks.empty() ? std::vector<CKvTag>() : std::move(blocks.back().groups);
}

void setExtendedData(CKvObjectSlot &slot,
                     std::string_view application,
                     const CKvExtendedGroups &groups)
{
    // The tags point into bytes that must stay where they are.
    slot.ownBytes();
    const std::vector<CKvExtendedBlock> blocks = blocksOf(slot, application);
    std::string &bytes = slot.ownBytes();
    if (groups.empty()) {
        for (auto block = blocks.rbegin(); block != blocks.rend(); ++block) {
            bytes.erase(block->begin, block->end - block->begin);
        }
        return;
    }
    if (blocks.empty()) {
        if (slot.store) {
            CKvObjectImporter(*slot.store)
                .requireApplication(
                    QString::fromLatin1(application.data(), int(application.size())));
        }
        appendTag(bytes, slot.format().style, 1001, application);
        bytes += spelled(slot.format().style, groups);
    } else if (hasSameCodes(blocks.back().groups, groups)) {
        replaceValues(bytes, blocks.back().groups, groups);
    } else {
        const std::size_t begin = blocks.back().name.end;
        bytes.replace(begin, blocks.back().end - begin, spelled(slot.format().style, groups));
    }
}
