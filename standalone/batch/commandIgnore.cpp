// SPDX-License-Identifier: MIT
#include "commandIgnore.h"

#include "CKvCategory.h"
#include "CKvStandaloneServices.h"
#include "CKvUtilsBase.h"
#include "OdDbSymbolTable.h"
#include "displayWidth.h"
#include "terminal.h"
#include "violationStamp.h"
#include "workOnDrawing.h"

namespace
{

/// @throws OdError when the drawing has none of that name.
OdDbObjectId objectOf(const OdDbDatabase &drawing, const CKvCategory &category, const QString &name)
{
    const OdDbSymbolTablePtr table((drawing.*category.tableId)().openObject(OdDb::kForRead));
    const OdDbObjectId id = table ? table->getAt(OdString(name)) : OdDbObjectId();
    if (id.isNull()) {
        throw OdError(OdResult::kInvalidInput,
                      QStringLiteral("There is no %1 \"%2\" in the drawing.")
                          .arg(QLatin1String(category.noun), name)
                          .toStdString());
    }
    return id;
}

} // namespace

CKvExitStatus commandIgnore(const CKvDrawingOptions &options)
{
    const CKvCategory &category = categoryOf(options.category);
    const CKvStandaloneServices services;
    const bool isDone = workOnDrawing(options.drawing, [&](OdDbDatabase &drawing) {
        writeViolationStamp(objectOf(drawing, category, options.name), options.isIgnored);
    });
    if (!isDone) {
        return CKvExitStatus::Incomplete;
    }
    const QString state = options.isIgnored
        ? QStringLiteral("is ignored by %1").arg(CKvUtilsBase::getUserName().toQString())
        : QStringLiteral("is no longer ignored");
    const bool isPrinted = printOutput(QStringLiteral("%1: %2 \"%3\" %4\n")
                                           .arg(printable(options.drawing),
                                                QLatin1String(category.noun),
                                                printable(options.name),
                                                state));
    return isPrinted ? CKvExitStatus::Clean : CKvExitStatus::Incomplete;
}
