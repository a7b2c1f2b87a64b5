// SPDX-License-Identifier: MIT
#include "workOnDrawing.h"

#include "CKvDrawingFile.h"
#include "reportFailure.h"
#include "terminal.h"

bool workOnDrawing(const QString &path, const std::function<void(OdDbDatabase &)> &work)
{
    // The end of the command's work; whatever went wrong is told to the user here.
    try {
        const OdDbDatabasePtr drawing = CKvDrawingFile::open(path, CKvFileImage::Holding::Copied);
        work(*drawing);
        if (CKvDrawingFile::isChanged(*drawing)) {
            CKvDrawingFile::save(*drawing, path);
        }
        return true;
    } catch (const std::exception &error) {
        printError(failureText(path, error));
        return false;
    }
}
