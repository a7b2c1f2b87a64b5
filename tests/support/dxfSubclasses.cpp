// SPDX-License-Identifier: MIT
#include "dxfSubclasses.h"

namespace
{

constexpr CKvSubclass kSubclasses[] = {
    { "APPID", "AcDbRegAppTableRecord", nullptr },
    { "ARCALIGNEDTEXT", "AcDbArcAlignedText", nullptr },
    { "ATTDEF", "AcDbText", nullptr },
    { "ATTRIB", "AcDbText", nullptr },
    { "BLOCK_RECORD", "AcDbBlockTableRecord", nullptr },
    { "CIRCLE", "AcDbCircle", nullptr },
    { "DIMENSION", "AcDbDimension", nullptr },
    { "DIMSTYLE", "AcDbDimStyleTableRecord", nullptr },
    { "INSERT", "AcDbBlockReference", nullptr },
    { "LAYER", "AcDbLayerTableRecord", nullptr },
    { "LEADER", "AcDbLeader", nullptr },
    { "LINE", "AcDbLine", nullptr },
    { "LTYPE", "AcDbLinetypeTableRecord", nullptr },
    { "LWPOLYLINE", "AcDbPolyline", nullptr },
    { "MTEXT", "AcDbMText", nullptr },
    { "POLYLINE", "AcDb2dPolyline", nullptr },
    { "RTEXT", "RText", nullptr },
    { "STYLE", "AcDbTextStyleTableRecord", nullptr },
    { "TEXT", "AcDbText", nullptr },
    { "UCS", "AcDbUCSTableRecord", nullptr },
    { "VERTEX", "AcDbVertex", "AcDb2dVertex" },
    { "VIEW", "AcDbViewTableRecord", nullptr },
    { "VPORT", "AcDbViewportTableRecord", nullptr },
};

} // namespace

const CKvSubclass *subclassOf(const QString &type)
{
    for (const CKvSubclass &entry : kSubclasses) {
        if (type == QLatin1String(entry.type)) {
            return &entry;
        }
    }
    return nullptr;
}
