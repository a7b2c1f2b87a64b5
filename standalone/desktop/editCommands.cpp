// SPDX-License-Identifier: MIT
#include "CKvDesktop.h"
#include "CKvHostDocument.h"
#include "CKvMainWindow.h"
#include "OdDbSymbolTableRecord.h"
#include "OdError.h"
#include "desktopCommands.h"
#include "recordTables.h"

#include <algorithm>

namespace
{

constexpr int kMostSteps = 1000000;

int askCount(CKvDesktop &desktop)
{
    const QString text = desktop.commandLine().ask(CKvMainWindow::tr("Number of commands <1>:"));
    bool isNumber = false;
    const int count = text.isEmpty() ? 1 : text.toInt(&isNumber);
    if (!text.isEmpty() && (!isNumber || count < 1)) {
        throw OdError(OdResult::kInvalidInput, "\"" + text.toStdString() + "\" is no number.");
    }
    return std::min(count, kMostSteps);
}

bool takeBack(CKvDesktop &desktop, int count)
{
    CKvUndoStack &steps = desktop.requireDocument().undoStack();
    for (int i = 0; i < count; ++i) {
        const QString name = steps.undo();
        if (name.isEmpty()) {
            desktop.commandLine().print(CKvMainWindow::tr("Nothing is left to undo."));
            break;
        }
        desktop.commandLine().print(CKvMainWindow::tr("Undone: %1").arg(name));
    }
    return true;
}

bool bringAgain(CKvDesktop &desktop, int count)
{
    CKvUndoStack &steps = desktop.requireDocument().undoStack();
    for (int i = 0; i < count; ++i) {
        const QString name = steps.redo();
        if (name.isEmpty()) {
            desktop.commandLine().print(CKvMainWindow::tr("Nothing is left to redo."));
            break;
        }
        desktop.commandLine().print(CKvMainWindow::tr("Redone: %1").arg(name));
    }
    return true;
}

bool undo(CKvDesktop &desktop)
{
    // A bare UNDO, as a menu or a key gives it, asks nothing.
    desktop.requireDocument();
    return takeBack(desktop, desktop.commandLine().hasAnswer() ? askCount(desktop) : 1);
}

bool redo(CKvDesktop &desktop)
{
    return bringAgain(desktop, 1);
}

bool redoMany(CKvDesktop &desktop)
{
    desktop.requireDocument();
    return bringAgain(desktop, askCount(desktop));
}

CKvRecordKind askKind(CKvDesktop &desktop, const QString &prompt)
{
    const QString word = desktop.commandLine().ask(prompt);
    CKvRecordKind kind = CKvRecordKind::Layer;
    if (!recordKindFromWord(word, kind)) {
        throw OdError(OdResult::kInvalidInput, "\"" + word.toStdString() + "\" is no option.");
    }
    return kind;
}

bool renameRecord(CKvDesktop &desktop)
{
    desktop.requireDocument();
    const CKvRecordKind kind =
        askKind(desktop, CKvMainWindow::tr("[Layer/LType/Style/Dimstyle/Block]:"));
    const OdDbSymbolTableRecordPtr record =
        askRecord(desktop, kind, CKvMainWindow::tr("Old name:"), OdDb::kForRead);
    if (record->getName().toQString().startsWith(QLatin1Char('*'))) {
        throw OdError(OdResult::kInvalidInput, "What the host has named can't be renamed.");
    }
    const QString name = desktop.commandLine().ask(CKvMainWindow::tr("New name:"));
    record->upgradeOpen();
    record->setName(OdString(name));
    return true;
}

void appendRecords(const CKvHostDocument &document, CKvRecordKind kind, OdDbObjectIdArray &ids)
{
    const OdDbSymbolTablePtr table = openTable(document, kind);
    for (OdDbSymbolTableIteratorPtr walk = table->newIterator(); !walk->done(); walk->step()) {
        if (!walk->getRecord()->getName().toQString().startsWith(QLatin1Char('*'))) {
            ids.append(walk->getRecordId());
        }
    }
}

bool purgeRecords(CKvDesktop &desktop)
{
    const CKvHostDocument &document = desktop.requireDocument();
    const QString word =
        desktop.commandLine().ask(CKvMainWindow::tr("[All/Layer/LType/Style/Dimstyle] <All>:"));
    const bool isAll = word.isEmpty() || QLatin1String("ALL").startsWith(word, Qt::CaseInsensitive);
    CKvRecordKind only = CKvRecordKind::Layer;
    if (!isAll && (!recordKindFromWord(word, only) || only == CKvRecordKind::Block)) {
        desktop.commandLine().print(CKvMainWindow::tr("\"%1\" is no option.").arg(word));
        return false;
    }
    OdDbObjectIdArray ids;
    for (const CKvRecordKind kind : { CKvRecordKind::Layer,
                                      CKvRecordKind::LineStyle,
                                      CKvRecordKind::TextStyle,
                                      CKvRecordKind::DimStyle }) {
        if (isAll || kind == only) {
            appendRecords(document, kind, ids);
        }
    }
    document.GetKvDatabase()->purgeIds(ids);
    for (const OdDbObjectId id : ids) {
        id.openObject(OdDb::kForWrite)->erase();
    }
    desktop.commandLine().print(CKvMainWindow::tr("%n records purged.", nullptr, int(ids.size())));
    return true;
}

} // namespace

void addEditCommands(CKvDesktop &desktop)
{
    desktop.addCommand("UNDO", &undo);
    desktop.addCommand("REDO", &redo);
    desktop.addCommand("REDON", &redoMany);
    desktop.addCommand("RENAME", &renameRecord);
    desktop.addCommand("PURGE", &purgeRecords);
}
