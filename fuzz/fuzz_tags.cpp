// SPDX-License-Identifier: MIT
#include "CKvTagReader.h"
#include "tagWriting.h"

#include <cstdint>
#include <cstdlib>
#include <string>

namespace
{

void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

/// A value that is replaced by itself leaves the bytes as they are, and a new one is read back.
void rewrite(const std::string &bytes, const CKvTag &tag)
{
    std::string changed = bytes;
    if (tag.form == CKvTagForm::Ascii) {
        replaceTagValue(changed, tag, tag.value);
        require(changed == bytes);
        replaceTagValue(changed, tag, "7");
        CKvTagReader reader(changed, tag.form, tag.begin);
        require(reader.next() && reader.tag().word() == "7" && reader.tag().code == tag.code);
    }
    changed = bytes;
    removeTag(changed, tag);
    require(changed.size() + (tag.end - tag.begin) == bytes.size());
}

} // namespace

/// The first byte chooses the form of the tags.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0) {
        return 0;
    }
    const std::string bytes(reinterpret_cast<const char *>(data) + 1, size - 1);
    CKvTagReader reader(bytes, CKvTagForm(data[0] % 3));
    std::size_t end = 0;
    int rewritten = 0;
    while (reader.next()) {
        const CKvTag &tag = reader.tag();
        require(tag.begin >= end && tag.valueBegin > tag.begin && tag.end >= tag.valueBegin);
        require(tag.end <= bytes.size() && reader.position() == tag.end);
        require(tag.value.size() <= tag.end - tag.valueBegin);
        tag.word();
        tag.integer();
        tag.real();
        tag.handle();
        // Each costs a copy of all bytes.
        if (rewritten < 20) {
            ++rewritten;
            rewrite(bytes, tag);
        }
        end = tag.end;
    }
    require(reader.fault() != CKvTagReader::Fault::None || reader.position() >= end);
    return 0;
}
