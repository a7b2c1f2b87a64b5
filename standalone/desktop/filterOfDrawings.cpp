// SPDX-License-Identifier: MIT
#include "filterOfDrawings.h"

#include "CKvMainWindow.h"

QString filterOfDrawings()
{
    return CKvMainWindow::tr("Drawings (*.dxf *.DXF *.dxf.gz *.dws *.DWS *.dwg *.DWG);;"
                             "All files (*)");
}
