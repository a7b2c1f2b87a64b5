// SPDX-License-Identifier: MIT
#include "CKvDesktop.h"
#include "CKvDrawingStore.h"
#include "CKvHostDocument.h"
#include "CKvMainWindow.h"
#include "OdDbSymbolTableRecord.h"
#include "OdError.h"
#include "askPoint.h"
#include "desktopCommands.h"
#include "newEntity.h"
#include "recordNames.h"
#include "recordTables.h"
#include "tagWriting.h"

#include <cmath>

namespace
{

CKvDrawingStore &storeOf(CKvDesktop &desktop)
{
    return desktop.requireDocument().GetKvDatabase()->store();
}

void appendPoint(CKvNewEntity &entity, int code, QPointF point)
{
    entity.groups.emplace_back(code, spelledReal(point.x()));
    entity.groups.emplace_back(code + 10, spelledReal(point.y()));
    entity.groups.emplace_back(code + 20, spelledReal(0));
}

/// On the current layer.
CKvNewEntity begun(CKvDesktop &desktop, std::string_view type, std::string_view subclass)
{
    const OdDbObjectId layer = desktop.requireDocument().GetKvDatabase()->getCLAYER();
    return { type, subclass, std::string(encodedRecordName(*layer.slot())), {} };
}

bool drawLine(CKvDesktop &desktop)
{
    desktop.requireDocument();
    QPointF from = askPoint(desktop, CKvMainWindow::tr("First point:"));
    while (const std::optional<QPointF> to =
               askPointOrEnd(desktop, CKvMainWindow::tr("Next point <end>:"))) {
        CKvNewEntity line = begun(desktop, "LINE", "AcDbLine");
        appendPoint(line, 10, from);
        appendPoint(line, 11, *to);
        addToModelSpace(storeOf(desktop), line);
        from = *to;
    }
    return true;
}

bool drawCircle(CKvDesktop &desktop)
{
    desktop.requireDocument();
    const QPointF center = askPoint(desktop, CKvMainWindow::tr("Centre:"));
    const double radius = askLength(desktop, CKvMainWindow::tr("Radius:"));
    CKvNewEntity circle = begun(desktop, "CIRCLE", "AcDbCircle");
    appendPoint(circle, 10, center);
    circle.groups.emplace_back(40, spelledReal(radius));
    addToModelSpace(storeOf(desktop), circle);
    return true;
}

bool drawText(CKvDesktop &desktop)
{
    desktop.requireDocument();
    const QPointF place = askPoint(desktop, CKvMainWindow::tr("Place:"));
    const double height = askLength(desktop, CKvMainWindow::tr("Height:"));
    const QString text =
        desktop.commandLine().ask(CKvMainWindow::tr("Text:"), CKvInput::Kind::Text);
    CKvDrawingStore &store = storeOf(desktop);
    CKvNewEntity entity = begun(desktop, "TEXT", "AcDbText");
    appendPoint(entity, 10, place);
    entity.groups.emplace_back(40, spelledReal(height));
    entity.groups.emplace_back(1, store.format().codec.encode(text));
    if (const std::optional<CKvTag> style = store.header().find("$TEXTSTYLE")) {
        entity.groups.emplace_back(7, std::string(style->value));
    }
    if (store.format().hasDictionaries()) {
        entity.groups.emplace_back(100, "AcDbText");
    }
    addToModelSpace(store, entity);
    return true;
}

bool insertBlock(CKvDesktop &desktop)
{
    const OdDbSymbolTableRecordPtr block =
        askRecord(desktop, CKvRecordKind::Block, CKvMainWindow::tr("Block:"), OdDb::kForRead);
    if (block->getName().toQString().startsWith(QLatin1Char('*'))) {
        throw OdError(OdResult::kInvalidInput, "A space can't be inserted.");
    }
    const QPointF place = askPoint(desktop, CKvMainWindow::tr("Place:"));
    CKvNewEntity insert = begun(desktop, "INSERT", "AcDbBlockReference");
    insert.groups.emplace_back(2, std::string(encodedRecordName(*block->objectId().slot())));
    appendPoint(insert, 10, place);
    addToModelSpace(storeOf(desktop), insert);
    return true;
}

} // namespace

void addDrawCommands(CKvDesktop &desktop)
{
    desktop.addCommand("LINE", &drawLine);
    desktop.addCommand("CIRCLE", &drawCircle);
    desktop.addCommand("TEXT", &drawText);
    desktop.addCommand("INSERTBLOCK", &insertBlock);
}
