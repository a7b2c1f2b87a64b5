// SPDX-License-Identifier: MIT
#include "CKvCommandContext.h"
#include "CKvDatabase.h"
#include "CKvDocument.h"
#include "CKvStdsManagerImpl.h"
#include "CKvSystemServices.h"
#include "OdDbDictionary.h"
#include "OdDbXrecord.h"
#include "compareDimStyles.h"

#include <QApplication>
#include <QTimer>

namespace
{

constexpr char kCheckCommand[] = "_INTERSTATEVERIFY";

void postCheck()
{
    CKvSystemServices *services = GetKvSystemServices();
    if (!services) {
        return;
    }
    const OdResBufPtr request = OdResBuf::newRb(OdResBuf::kRtString);
    request->setString(OdString(kCheckCommand));
    request->setNext(OdResBuf::newRb(OdResBuf::kRtEnd));
    services->postCommand(request);
}

/// False while the user, a script or the host is at work in the document.
bool isIdle(const CKvDocument &document)
{
    const CKvCommandContext *context = document.commandContext();
    if (!context || context->activeCommandDepth() > 0) {
        return false;
    }
    // Keeps the check from coming up in the middle of a verification.
    if (QApplication::activeModalWidget()) {
        return false;
    }
    return !document.isDocumentBusy() && !context->isInputSuspended()
        && !context->isScriptRunning();
}

/// Whether a dimension style differs from how it was before the change.
bool isChanged(const OdDbObject &object, const OdDbDimStyleTableRecordPtr &snapshot)
{
    const OdDbDimStyleTableRecordPtr record(object.objectId().openObject(OdDb::kForRead));
    return !compareDimStyles(record, snapshot, false).empty();
}

} // namespace

void CKvStdsManagerImpl::noteChangedObject(const OdDbObject *object)
{
    if (!GetKvStandardManager() || !object->isKindOf(OdDbObject::desc())
        || object->isKindOf(OdDbXrecord::desc()) || object->isKindOf(OdDbDictionary::desc())) {
        return;
    }
    // The snapshot may be of another style; whatever differs from it counts as changed.
    if (object->isKindOf(OdDbDimStyleTableRecord::desc()) && m_dimStyleSnapshot
        && !isChanged(*object, m_dimStyleSnapshot)) {
        return;
    }
    m_changedObjects.insert(object->objectId());
}

void CKvStdsManagerImpl::setDimStyleSnapshot(OdDbDimStyleTableRecordPtr snapshot)
{
    m_dimStyleSnapshot = std::move(snapshot);
}

void CKvStdsManagerImpl::verifyChangedObjects(OdDbObjectIdArray ids)
{
    CKvDocument *document = ACTIVE_DOCUMENT();
    CKvStdsManager *manager = GetKvStandardManager();
    CKvDatabase *database = document ? document->GetKvDatabase() : nullptr;
    if (!manager || !database) {
        return;
    }
    manager->beginInterStateCheck();
    manager->loadDocumentStandards(document);
    manager->runAudit(database, std::move(ids), /*isInteractive*/ false);
    manager->endInterStateCheck();
}

void CKvStdsManagerImpl::restartTimer()
{
    m_timer->stop();
    m_timer->start();
}

void CKvStdsManagerImpl::stopTimer()
{
    m_timer->stop();
}

bool CKvStdsManagerImpl::isTimerActive() const
{
    return m_timer->isActive();
}

void CKvStdsManagerImpl::postInterStateVerifyIfPending()
{
    if (GetKvStandardManager() && !m_changedObjects.empty()) {
        postCheck();
    }
}

void CKvStdsManagerImpl::timerTimeout()
{
    const CKvDocument *document = ACTIVE_DOCUMENT();
    // The timer goes on: what waits is posted at a later tick.
    if (document && isIdle(*document)) {
        postInterStateVerifyIfPending();
    }
}
