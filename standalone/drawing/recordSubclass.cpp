// SPDX-License-Identifier: MIT
#include "recordSubclass.h"

std::vector<std::string_view> recordSubclasses(std::string_view type)
{
    struct Row {
        std::string_view type;
        std::string_view mark;
    };
    static constexpr Row kRows[] = {
        { "LAYER", "AcDbLayerTableRecord" },        { "LTYPE", "AcDbLinetypeTableRecord" },
        { "STYLE", "AcDbTextStyleTableRecord" },    { "DIMSTYLE", "AcDbDimStyleTableRecord" },
        { "BLOCK_RECORD", "AcDbBlockTableRecord" }, { "APPID", "AcDbRegAppTableRecord" },
    };
    for (const Row &row : kRows) {
        if (row.type == type) {
            return { "AcDbSymbolTableRecord", row.mark };
        }
    }
    return {};
}
