// SPDX-License-Identifier: MIT
#include "objectClasses.h"

#include "OdDbArcAlignedText.h"
#include "OdDbAttribute.h"
#include "OdDbAttributeDefinition.h"
#include "OdDbBlockTable.h"
#include "OdDbBlockTableRecord.h"
#include "OdDbDictionary.h"
#include "OdDbDimStyleTable.h"
#include "OdDbDimStyleTableRecord.h"
#include "OdDbDimension.h"
#include "OdDbEntity.h"
#include "OdDbLayerTable.h"
#include "OdDbLayerTableRecord.h"
#include "OdDbLeader.h"
#include "OdDbLinetypeTable.h"
#include "OdDbLinetypeTableRecord.h"
#include "OdDbMText.h"
#include "OdDbMaterial.h"
#include "OdDbMlineStyle.h"
#include "OdDbPlaceHolder.h"
#include "OdDbTable.h"
#include "OdDbText.h"
#include "OdDbTextStyleTable.h"
#include "OdDbTextStyleTableRecord.h"
#include "OdDbViewportTableRecord.h"
#include "OdDbXrecord.h"
#include "RText.h"
#include "rxConstruction.h"

#include <memory>
#include <string>
#include <unordered_map>

namespace
{

template <class T> std::unique_ptr<OdRxClass> makeGenericClass(const OdString &type)
{
    const OdString name(QStringLiteral("OdDb") + type.toQString());
    return std::make_unique<OdRxClass>(name, T::desc(), &constructRx<T>, type);
}

/// Dimensions that stand under a name of their own.
bool isOddDimension(std::string_view type)
{
    return type == "ARC_DIMENSION" || type == "LARGE_RADIAL_DIMENSION";
}

OdRxClass *genericClass(std::string_view type, CKvObjectSlot::Role role)
{
    using Role = CKvObjectSlot::Role;
    static std::unordered_map<std::string, std::unique_ptr<OdRxClass>> s_classes[3];
    const bool isEntity =
        role == Role::Entity || role == Role::SubEntity || role == Role::BlockEdge;
    const bool isRecord = role == Role::Record || role == Role::StandIn;
    std::unique_ptr<OdRxClass> &known = s_classes[isEntity       ? 0
                                                      : isRecord ? 1
                                                                 : 2][std::string(type)];
    if (!known) {
        const OdString name(QString::fromLatin1(type.data(), int(type.size())));
        known = isOddDimension(type) ? makeGenericClass<OdDbDimension>(name)
            : isEntity               ? makeGenericClass<OdDbEntity>(name)
            : isRecord               ? makeGenericClass<OdDbSymbolTableRecord>(name)
                                     : makeGenericClass<OdDbObject>(name);
    }
    return known.get();
}

struct CKvClassRow {
    std::string_view type;
    OdRxClass *(*desc)();
};

template <std::size_t count>
OdRxClass *classOf(std::string_view type, const CKvClassRow (&rows)[count])
{
    for (const CKvClassRow &row : rows) {
        if (row.type == type) {
            return row.desc();
        }
    }
    return nullptr;
}

OdRxClass *recordClass(std::string_view type)
{
    static constexpr CKvClassRow kRows[] = {
        { "LAYER", &OdDbLayerTableRecord::desc },
        { "LTYPE", &OdDbLinetypeTableRecord::desc },
        { "STYLE", &OdDbTextStyleTableRecord::desc },
        { "DIMSTYLE", &OdDbDimStyleTableRecord::desc },
        { "BLOCK_RECORD", &OdDbBlockTableRecord::desc },
        { "VPORT", &OdDbViewportTableRecord::desc },
    };
    return classOf(type, kRows);
}

OdRxClass *entityClass(std::string_view type)
{
    static constexpr CKvClassRow kRows[] = {
        { "TEXT", &OdDbText::desc },
        { "MTEXT", &OdDbMText::desc },
        { "ATTRIB", &OdDbAttribute::desc },
        { "ATTDEF", &OdDbAttributeDefinition::desc },
        { "ARCALIGNEDTEXT", &OdDbArcAlignedText::desc },
        { "RTEXT", &RText::desc },
        { "ACAD_TABLE", &OdDbTable::desc },
        { "DIMENSION", &OdDbDimension::desc },
        { "LEADER", &OdDbLeader::desc },
    };
    return classOf(type, kRows);
}

OdRxClass *namedObjectClass(std::string_view type)
{
    static constexpr CKvClassRow kRows[] = {
        { "DICTIONARY", &OdDbDictionary::desc }, { "ACDBDICTIONARYWDFLT", &OdDbDictionary::desc },
        { "XRECORD", &OdDbXrecord::desc },       { "MLINESTYLE", &OdDbMlineStyle::desc },
        { "MATERIAL", &OdDbMaterial::desc },     { "ACDBPLACEHOLDER", &OdDbPlaceHolder::desc },
    };
    return classOf(type, kRows);
}

} // namespace

OdRxClass *objectClass(std::string_view type, CKvObjectSlot::Role role)
{
    OdRxClass *own = nullptr;
    if (role == CKvObjectSlot::Role::Record || role == CKvObjectSlot::Role::StandIn) {
        own = recordClass(type);
    } else if (role == CKvObjectSlot::Role::Entity) {
        own = entityClass(type);
    } else if (role == CKvObjectSlot::Role::Object) {
        own = namedObjectClass(type);
    }
    return own ? own : genericClass(type, role);
}

OdRxClass *tableClass(CKvTableKind kind)
{
    switch (kind) {
    case CKvTableKind::Layer:
        return OdDbLayerTable::desc();
    case CKvTableKind::Linetype:
        return OdDbLinetypeTable::desc();
    case CKvTableKind::TextStyle:
        return OdDbTextStyleTable::desc();
    case CKvTableKind::DimStyle:
        return OdDbDimStyleTable::desc();
    case CKvTableKind::Block:
        return OdDbBlockTable::desc();
    case CKvTableKind::AppId:
    case CKvTableKind::Viewport:
    case CKvTableKind::View:
    case CKvTableKind::Ucs:
        break;
    }
    return OdDbSymbolTable::desc();
}
