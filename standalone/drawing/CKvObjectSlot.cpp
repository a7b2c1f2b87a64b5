// SPDX-License-Identifier: MIT
#include "CKvObjectSlot.h"

#include "CKvChangeJournal.h"
#include "CKvDrawingStore.h"

std::string_view CKvObjectSlot::bytes() const
{
    if (store && movedTo != 0) {
        const std::string_view slice = store->image()->bytes().substr(begin, end - begin);
        own = std::make_unique<std::string>(slice);
        own->replace(layerAt, layerSize, store->movedLayerName(*this));
        movedTo = 0;
    }
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
    if (store && store->journal) {
        store->journal->willChange(*this);
    }
    const std::string_view now = bytes();
    if (!own) {
        own = std::make_unique<std::string>(now);
    }
    if (store && role != Role::StandIn) {
        store->noteChange(*this);
    }
    return *own;
}
