// SPDX-License-Identifier: MIT
#include "CKvStandardEditorReactor.h"

#include "CKvCommandContext.h"
#include "CKvDocument.h"
#include "CKvStdsManagerImpl.h"
#include "OdEdCommand.h"

#include <initializer_list>

namespace
{

bool isOneOf(const OdString &name, std::initializer_list<const char *> names)
{
    for (const char *other : names) {
        if (name.iCompare(OdString(other)) == 0) {
            return true;
        }
    }
    return false;
}

void dropChangedObjects()
{
    if (CKvStdsManagerImpl *manager = CKvStdsManagerImpl::current()) {
        manager->clearChangedObjects();
    }
}

void postCheck()
{
    if (CKvStdsManagerImpl *manager = CKvStdsManagerImpl::current()) {
        manager->postInterStateVerifyIfPending();
    }
}

/// A command inside another one, one that a script runs, or one of a busy document.
bool isPartOfSomethingLarger(const OdString &name, const CKvCommandContext &context)
{
    if (context.activeCommandDepth() > 1) {
        return true;
    }
    if (context.isScriptRunning() && !isOneOf(name, { "_LOADSCRIPT" })) {
        return true;
    }
    const CKvDocument *document = ACTIVE_DOCUMENT();
    return document && document->isDocumentBusy();
}

void trackAfterRedo(CKvStdsManagerImpl &manager)
{
    if (manager.hasUsableStandards()) {
        manager.trackDocument(ACTIVE_DOCUMENT());
    } else {
        manager.stopTimer();
    }
}

} // namespace

void CKvStandardEditorReactor::commandWillStart(OdEdCommand *command,
                                                OdEdCommandContext * /*context*/)
{
    if (!isOneOf(command->globalName(), { "_INTERSTATEVERIFY", "_INSERTBLOCK", "_-INSERTBLOCK" })) {
        dropChangedObjects();
    }
}

void CKvStandardEditorReactor::commandEnded(OdEdCommand *command, OdEdCommandContext *context)
{
    const CKvCommandContext *commandContext = GetKvCommandContext(context);
    if (!commandContext) {
        return;
    }
    const OdString name = command->globalName();
    if (isPartOfSomethingLarger(name, *commandContext)) {
        return;
    }
    CKvStdsManagerImpl *manager = CKvStdsManagerImpl::current();
    if (!manager) {
        return;
    }
    if (isOneOf(name, { "_REDO", "_REDON" })) {
        // The timer sees what was redone; nothing is posted at once.
        trackAfterRedo(*manager);
        return;
    }
    if (isOneOf(name, { "_SAVE", "_QSAVE", "_SAVEAS", "_VERIFYSTANDARDS", "_DRAWINGSTANDARDS" })) {
        manager->stopTimer();
        return;
    }
    manager->postInterStateVerifyIfPending();
}

void CKvStandardEditorReactor::commandCancelled(OdEdCommand * /*command*/,
                                                OdEdCommandContext * /*context*/)
{
    dropChangedObjects();
}

void CKvStandardEditorReactor::lispWillStart(const OdString & /*firstLine*/)
{
    dropChangedObjects();
}

void CKvStandardEditorReactor::lispEnded()
{
    postCheck();
}

void CKvStandardEditorReactor::lispCancelled()
{
    dropChangedObjects();
}
