// SPDX-License-Identifier: MIT
#include "nameUses.h"

#include "CKvDrawingStore.h"
#include "CKvEntityIndex.h"
#include "CKvTagReader.h"

namespace
{

struct CKvNameUseRow {
    std::string_view holder;
    int code;
    CKvTableKind table;
};

constexpr CKvNameUseRow kHeaderUses[] = {
    { "$CLAYER", 8, CKvTableKind::Layer },        { "$CELTYPE", 6, CKvTableKind::Linetype },
    { "$TEXTSTYLE", 7, CKvTableKind::TextStyle }, { "$DIMSTYLE", 2, CKvTableKind::DimStyle },
    { "$DIMTXSTY", 7, CKvTableKind::TextStyle },  { "$DIMBLK", 1, CKvTableKind::Block },
    { "$DIMBLK1", 1, CKvTableKind::Block },       { "$DIMBLK2", 1, CKvTableKind::Block },
    { "$DIMLDRBLK", 1, CKvTableKind::Block },     { "$DIMLTYPE", 6, CKvTableKind::Linetype },
    { "$DIMLTEX1", 6, CKvTableKind::Linetype },   { "$DIMLTEX2", 6, CKvTableKind::Linetype },
};

/// Groups of records, entities and objects that hold a name, by the word behind their group 0.
constexpr CKvNameUseRow kObjectUses[] = {
    { "LAYER", 6, CKvTableKind::Linetype },
    { "TEXT", 7, CKvTableKind::TextStyle },
    { "MTEXT", 7, CKvTableKind::TextStyle },
    { "ATTRIB", 7, CKvTableKind::TextStyle },
    { "ATTDEF", 7, CKvTableKind::TextStyle },
    { "ARCALIGNEDTEXT", 7, CKvTableKind::TextStyle },
    { "RTEXT", 7, CKvTableKind::TextStyle },
    { "ACAD_TABLE", 7, CKvTableKind::TextStyle },
    { "TABLESTYLE", 7, CKvTableKind::TextStyle },
    { "MLINESTYLE", 6, CKvTableKind::Linetype },
    { "DIMENSION", 3, CKvTableKind::DimStyle },
    { "ARC_DIMENSION", 3, CKvTableKind::DimStyle },
    { "LARGE_RADIAL_DIMENSION", 3, CKvTableKind::DimStyle },
    { "LEADER", 3, CKvTableKind::DimStyle },
    { "TOLERANCE", 3, CKvTableKind::DimStyle },
    { "INSERT", 2, CKvTableKind::Block },
    { "DIMENSION", 2, CKvTableKind::Block },
    { "ARC_DIMENSION", 2, CKvTableKind::Block },
    { "LARGE_RADIAL_DIMENSION", 2, CKvTableKind::Block },
    { "ACAD_TABLE", 2, CKvTableKind::Block },
};

void forEachHeaderUse(const CKvObjectSlot &slot, const CKvNameUse &use)
{
    for (const CKvHeaderVariables::Variable &variable : slot.store->header().all()) {
        for (const CKvNameUseRow &row : kHeaderUses) {
            if (row.holder == variable.name && row.code == variable.value.code) {
                use(row.table, variable.value);
            }
        }
    }
}

bool isEntity(const CKvObjectSlot &slot)
{
    using Role = CKvObjectSlot::Role;
    return slot.role == Role::Entity || slot.role == Role::SubEntity
        || slot.role == Role::BlockEdge;
}

/// The rows for one kind of object, found once per object and not once per tag.
class CKvObjectUses
{
public:
    explicit CKvObjectUses(std::string_view type)
    {
        for (const CKvNameUseRow &row : kObjectUses) {
            if (row.holder == type && m_count < std::size(m_rows)) {
                m_rows[m_count++] = &row;
            }
        }
    }
    const CKvNameUseRow *find(int code) const
    {
        for (std::size_t i = 0; i < m_count; ++i) {
            if (m_rows[i]->code == code) {
                return m_rows[i];
            }
        }
        return nullptr;
    }

private:
    const CKvNameUseRow *m_rows[4] = {};
    std::size_t m_count = 0;
};

} // namespace

void forEachNameUse(const CKvObjectSlot &slot,
                    CKvUses uses,
                    const CKvNameUse &use,
                    const CKvPlainTag &plainTag)
{
    if (slot.role == CKvObjectSlot::Role::Header) {
        forEachHeaderUse(slot, use);
        return;
    }
    CKvTagReader reader(slot.bytes(), slot.form());
    if (!reader.next()) {
        return;
    }
    const std::string_view type = reader.tag().word();
    const CKvObjectUses rows(type);
    const bool isDrawn = isEntity(slot);
    const bool isFilter = uses == CKvUses::All && type == "LAYER_FILTER";
    const bool isXrecord = type == "XRECORD";
    int subclasses = 0;
    bool isExtended = false;
    while (reader.next()) {
        const CKvTag &tag = reader.tag();
        if (tag.code == 1001 && !isXrecord) {
            isExtended = true;
        }
        if (isExtended) {
            if (uses == CKvUses::All && tag.code == 1003) {
                use(CKvTableKind::Layer, tag);
            }
            continue;
        }
        if (plainTag) {
            plainTag(tag);
        }
        subclasses += tag.code == 100 ? 1 : 0;
        if (tag.code == 8 && ((isDrawn && subclasses < 2) || isFilter)) {
            use(CKvTableKind::Layer, tag);
        } else if (tag.code == 6 && isDrawn && subclasses < 2) {
            use(CKvTableKind::Linetype, tag);
        } else if (const CKvNameUseRow *row = rows.find(tag.code)) {
            use(row->table, tag);
        }
    }
}

void forEachSlot(CKvDrawingStore &store, const std::function<void(CKvObjectSlot &)> &action)
{
    const auto tell = [&](CKvObjectSlot &slot) {
        if (!slot.isErased) {
            action(slot);
        }
    };
    tell(store.headerSlot());
    for (std::size_t i = 0; i < kTableCount; ++i) {
        for (CKvObjectSlot *record : store.table(CKvTableKind(i)).records()) {
            tell(*record);
        }
    }
    for (CKvObjectSlot *entity : store.entities().all()) {
        tell(*entity);
    }
    for (CKvObjectSlot *object : store.objects()) {
        tell(*object);
    }
}
