// SPDX-License-Identifier: MIT
#include "CKvCommandContext.h"
#include "CKvDatabaseReactor.h"
#include "CKvDocumentManagerReactor.h"
#include "CKvEditorReactor.h"
#include "OdEdCommand.h"
#include "OdEdCommandStack.h"
#include "OdEditor.h"
#include "OdRxClass.h"
#include "OdRxModule.h"

OdRxClass *OdEdCommand::desc()
{
    static OdRxClass s_class(OdString("OdEdCommand"), OdRxObject::desc(), nullptr, OdString());
    return &s_class;
}

OdRxClass *OdEdCommand::isA() const
{
    return desc();
}

OdRxClass *OdEdCommandContext::desc()
{
    static OdRxClass s_class(
        OdString("OdEdCommandContext"), OdRxObject::desc(), nullptr, OdString());
    return &s_class;
}

OdRxClass *OdEdCommandContext::isA() const
{
    return desc();
}

OdRxClass *OdEdCommandStack::desc()
{
    static OdRxClass s_class(OdString("OdEdCommandStack"), OdRxObject::desc(), nullptr, OdString());
    return &s_class;
}

OdRxClass *OdEdCommandStack::isA() const
{
    return desc();
}

OdRxClass *OdEditorReactor::desc()
{
    static OdRxClass s_class(OdString("OdEditorReactor"), OdRxObject::desc(), nullptr, OdString());
    return &s_class;
}

OdRxClass *OdEditorReactor::isA() const
{
    return desc();
}

OdRxClass *OdEditor::desc()
{
    static OdRxClass s_class(OdString("OdEditor"), OdRxObject::desc(), nullptr, OdString());
    return &s_class;
}

OdRxClass *OdEditor::isA() const
{
    return desc();
}

OdRxClass *OdRxModule::desc()
{
    static OdRxClass s_class(OdString("OdRxModule"), OdRxObject::desc(), nullptr, OdString());
    return &s_class;
}

OdRxClass *OdRxModule::isA() const
{
    return desc();
}

OdRxClass *CKvCommandContext::desc()
{
    static OdRxClass s_class(
        OdString("CKvCommandContext"), OdEdCommandContext::desc(), nullptr, OdString());
    return &s_class;
}

OdRxClass *CKvCommandContext::isA() const
{
    return desc();
}

CKvCommandContext *GetKvCommandContext(OdEdCommandContext *context)
{
    const bool isOwn = context && context->isKindOf(CKvCommandContext::desc());
    return isOwn ? static_cast<CKvCommandContext *>(context) : nullptr;
}

OdRxClass *CKvDatabaseReactor::desc()
{
    static OdRxClass s_class(
        OdString("CKvDatabaseReactor"), OdDbDatabaseReactor::desc(), nullptr, OdString());
    return &s_class;
}

OdRxClass *CKvDatabaseReactor::isA() const
{
    return desc();
}

OdRxClass *CKvEditorReactor::desc()
{
    static OdRxClass s_class(
        OdString("CKvEditorReactor"), OdEditorReactor::desc(), nullptr, OdString());
    return &s_class;
}

OdRxClass *CKvEditorReactor::isA() const
{
    return desc();
}

OdEdCommandStackReactor::~OdEdCommandStackReactor() = default;
void OdEdCommandStackReactor::commandAdded(OdEdCommand *) { }
void OdEdCommandStackReactor::commandWillBeRemoved(OdEdCommand *) { }
void OdEdCommandStackReactor::commandWillStart(OdEdCommand *, OdEdCommandContext *) { }
void OdEdCommandStackReactor::commandEnded(OdEdCommand *, OdEdCommandContext *) { }
void OdEdCommandStackReactor::commandCancelled(OdEdCommand *, OdEdCommandContext *) { }
void OdEdCommandStackReactor::commandFailed(OdEdCommand *, OdEdCommandContext *) { }
void OdEdCommandStackReactor::unknownCommand(const OdString &, OdEdCommandContext *) { }

OdEdLispEngineReactor::~OdEdLispEngineReactor() = default;
void OdEdLispEngineReactor::lispWillStart(const OdString &) { }
void OdEdLispEngineReactor::lispEnded() { }
void OdEdLispEngineReactor::lispCancelled() { }

CKvDocumentManagerReactor::~CKvDocumentManagerReactor() = default;
void CKvDocumentManagerReactor::DocumentCreateStarted(CKvDocument *) { }
void CKvDocumentManagerReactor::DocumentCreated(CKvDocument *) { }
void CKvDocumentManagerReactor::DocumentToBeDestroyed(CKvDocument *) { }
void CKvDocumentManagerReactor::DocumentDestroyed(CKvDocument *) { }
void CKvDocumentManagerReactor::DatabaseAttached(CKvDocument *) { }
void CKvDocumentManagerReactor::DatabaseDetached(CKvDocument *) { }
void CKvDocumentManagerReactor::DocumentToBeActivated(CKvDocument *) { }
void CKvDocumentManagerReactor::DocumentToBeDeactivated(CKvDocument *) { }
void CKvDocumentManagerReactor::DocumentActivated(CKvDocument *) { }
void CKvDocumentManagerReactor::DocumentCreateCanceled(CKvDocument *) { }
void CKvDocumentManagerReactor::DocumentBecameCurrent(CKvDocument *) { }
void CKvDocumentManagerReactor::DocumentActivationModified(bool) { }
void CKvDocumentManagerReactor::DocumentPreOpen(CKvDocument *, const CKvString &, int, int) { }
