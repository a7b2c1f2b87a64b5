// SPDX-License-Identifier: MIT
#include "nameUses.h"

#include "CKvDrawingStore.h"
#include "CKvTagReader.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

namespace
{

struct CKvNameUseRow {
    std::string_view holder;
    int code;
    CKvTableKind table;
    /// Each such group is a use; of the others the last one counts.
    bool isRepeated = false;
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
    { "ACAD_TABLE", 7, CKvTableKind::TextStyle, true },
    { "TABLESTYLE", 7, CKvTableKind::TextStyle, true },
    { "MLINESTYLE", 6, CKvTableKind::Linetype, true },
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

namespace
{

/// Goes through the tags of one object; of a group that occurs twice where one is meant it tells
/// the last.
class CKvNameUseScan
{
public:
    CKvNameUseScan(const CKvObjectSlot &slot,
                   std::string_view type,
                   CKvUses uses,
                   const CKvNameUse &use)
        : m_rows(type)
        , m_use(use)
        , m_uses(uses)
        , m_isDrawn(isEntity(slot))
        , m_isFilter(uses == CKvUses::All && type == "LAYER_FILTER")
        , m_isXrecord(type == "XRECORD")
    {
    }
    /// @return false when the tag belongs to the extended data.
    bool note(const CKvTag &tag)
    {
        m_isExtended = m_isExtended || (tag.code == 1001 && !m_isXrecord);
        if (m_isExtended) {
            if (m_uses == CKvUses::All && tag.code == 1003) {
                m_use(CKvTableKind::Layer, tag);
            }
            return false;
        }
        if (tag.code == 100) {
            ++m_subclasses;
        } else if (tag.code == 101) {
            // An embedded object has uses of its own.
            tellLast(m_lastOfRow);
        }
        const bool isCommon = m_isDrawn && m_subclasses < 2;
        if (tag.code == 8 && isCommon) {
            m_lastLayer = { CKvTableKind::Layer, tag };
        } else if (tag.code == 6 && isCommon) {
            m_lastLineStyle = { CKvTableKind::Linetype, tag };
        } else if (tag.code == 8 && m_isFilter) {
            m_use(CKvTableKind::Layer, tag);
        } else if (const CKvNameUseRow *row = m_rows.find(tag.code)) {
            noteRow(*row, tag);
        }
        return true;
    }
    void tellRest()
    {
        tellLast(m_lastLayer);
        tellLast(m_lastLineStyle);
        tellLast(m_lastOfRow);
        tellLast(m_lastOfOtherRow);
    }

private:
    using Last = std::optional<std::pair<CKvTableKind, CKvTag>>;

    void noteRow(const CKvNameUseRow &row, const CKvTag &tag)
    {
        if (row.isRepeated) {
            m_use(row.table, tag);
        } else if (row.table == CKvTableKind::Block) {
            m_lastOfOtherRow = { row.table, tag };
        } else {
            m_lastOfRow = { row.table, tag };
        }
    }
    void tellLast(Last &last)
    {
        if (last) {
            m_use(last->first, last->second);
            last.reset();
        }
    }

    CKvObjectUses m_rows;
    const CKvNameUse &m_use;
    CKvUses m_uses;
    bool m_isDrawn;
    bool m_isFilter;
    bool m_isXrecord;
    bool m_isExtended = false;
    int m_subclasses = 0;
    Last m_lastLayer;
    Last m_lastLineStyle;
    Last m_lastOfRow;
    /// A dimension has a style and a block.
    Last m_lastOfOtherRow;
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
    CKvNameUseScan scan(slot, reader.tag().word(), uses, use);
    while (reader.next()) {
        if (scan.note(reader.tag()) && plainTag) {
            plainTag(reader.tag());
        }
    }
    scan.tellRest();
}

bool hasOwnNameUses(std::string_view type)
{
    return std::any_of(std::begin(kObjectUses), std::end(kObjectUses), [&](const auto &row) {
        return row.holder == type;
    });
}

bool namesRecordOf(std::string_view type, CKvTableKind kind)
{
    return std::any_of(std::begin(kObjectUses), std::end(kObjectUses), [&](const auto &row) {
        return row.holder == type && row.table == kind;
    });
}

bool isKeepingPointer(int code)
{
    return (code >= 320 && code <= 329) || (code >= 340 && code <= 369)
        || (code >= 390 && code <= 399) || code == 480 || code == 481;
}

void forEachUndrawnSlot(CKvDrawingStore &store, const std::function<void(CKvObjectSlot &)> &action)
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
    for (CKvObjectSlot *object : store.objects()) {
        tell(*object);
    }
}
