// SPDX-License-Identifier: MIT
#include "CKvObjectSlot.h"

#include "CKvDrawingStore.h"

std::string_view CKvObjectSlot::bytes() const
{
    if (own) {
        return *own;
    }
    return store ? store->image()->bytes().substr(begin, end - begin) : std::string_view();
}

const CKvDrawingFormat &CKvObjectSlot::format() const
{
    // What is in no drawing yet is kept in the plainest form: ASCII, UTF-8.
    static const CKvDrawingFormat s_plain;
    return store ? store->format() : s_plain;
}

CKvTagForm CKvObjectSlot::form() const
{
    return format().style.form;
}

std::string &CKvObjectSlot::ownBytes()
{
    if (!own) {
        own = std::make_unique<std::string>(bytes());
    }
    if (store && role != Role::StandIn) {
        store->touch(*this);
    }
    return *own;
}
