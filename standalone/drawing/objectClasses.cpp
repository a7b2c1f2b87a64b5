// SPDX-License-Identifier: MIT
#include "objectClasses.h"

#include "OdDbBlockTable.h"
#include "OdDbBlockTableRecord.h"
#include "OdDbDictionary.h"
#include "OdDbDimStyleTable.h"
#include "OdDbDimStyleTableRecord.h"
#include "OdDbEntity.h"
#include "OdDbLayerTable.h"
#include "OdDbLayerTableRecord.h"
#include "OdDbLinetypeTable.h"
#include "OdDbLinetypeTableRecord.h"
#include "OdDbMaterial.h"
#include "OdDbMlineStyle.h"
#include "OdDbPlaceHolder.h"
#include "OdDbTextStyleTable.h"
#include "OdDbTextStyleTableRecord.h"
#include "OdDbViewportTableRecord.h"
#include "OdDbXrecord.h"
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
        known = isEntity ? makeGenericClass<OdDbEntity>(name)
            : isRecord   ? makeGenericClass<OdDbSymbolTableRecord>(name)
                         : makeGenericClass<OdDbObject>(name);
    }
    return known.get();
}

OdRxClass *recordClass(std::string_view type)
{
    struct Row {
        std::string_view type;
        OdRxClass *(*desc)();
    };
    static constexpr Row kRows[] = {
        { "LAYER", &OdDbLayerTableRecord::desc },
        { "LTYPE", &OdDbLinetypeTableRecord::desc },
        { "STYLE", &OdDbTextStyleTableRecord::desc },
        { "DIMSTYLE", &OdDbDimStyleTableRecord::desc },
        { "BLOCK_RECORD", &OdDbBlockTableRecord::desc },
        { "VPORT", &OdDbViewportTableRecord::desc },
    };
    for (const Row &row : kRows) {
        if (row.type == type) {
            return row.desc();
        }
    }
    return nullptr;
}

OdRxClass *namedObjectClass(std::string_view type)
{
    struct Row {
        std::string_view type;
        OdRxClass *(*desc)();
    };
    static constexpr Row kRows[] = {
        { "DICTIONARY", &OdDbDictionary::desc }, { "ACDBDICTIONARYWDFLT", &OdDbDictionary::desc },
        { "XRECORD", &OdDbXrecord::desc },       { "MLINESTYLE", &OdDbMlineStyle::desc },
        { "MATERIAL", &OdDbMaterial::desc },     { "ACDBPLACEHOLDER", &OdDbPlaceHolder::desc },
    };
    for (const Row &row : kRows) {
        if (row.type == type) {
            return row.desc();
        }
    }
    return nullptr;
}

} // namespace

OdRxClass *objectClass(std::string_view type, CKvObjectSlot::Role role)
{
    OdRxClass *own = nullptr;
    if (role == CKvObjectSlot::Role::Record || role == CKvObjectSlot::Role::StandIn) {
        own = recordClass(type);
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
