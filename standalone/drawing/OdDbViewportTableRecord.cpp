// SPDX-License-Identifier: MIT
#include "OdDbViewportTableRecord.h"

#include "rxConstruction.h"

OdRxClass *OdDbViewportTableRecord::desc()
{
    static OdRxClass s_class(OdString("OdDbViewportTableRecord"),
                             OdDbSymbolTableRecord::desc(),
                             &constructRx<OdDbViewportTableRecord>,
                             OdString("VPORT"));
    return &s_class;
}
