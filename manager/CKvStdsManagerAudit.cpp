// SPDX-License-Identifier: MIT
#include "CKvApplicationFrame.h"
#include "CKvDatabase.h"
#include "CKvDocument.h"
#include "CKvDocumentManager.h"
#include "CKvGatheringPass.h"
#include "CKvSelectionSetImpl.h"
#include "CKvStandardViolationMessage.h"
#include "CKvStdsManagerImpl.h"
#include "CKvSystemServices.h"
#include "CKvVerifyStandards.h"

namespace
{

/// What the pass asks the manager: whether the user wants to be told of edits at all.
class CKvAuditPolicy : public CKvGatheringPass::CKvPolicy
{
public:
    CKvAuditPolicy(CKvStdsManager &manager, const OdDbDatabase &database)
        : m_manager(manager)
        , m_database(database)
    {
    }

    void pluginStarts(const CKvString &pluginId) override
    {
        m_manager.setCurrentPluginId(pluginId);
    }
    bool mayCheckGivenObjects() override
    {
        const OdResBufPtr value = m_database.getSysVar(OdString("STANDARDSVIOLATION"));
        return value->getInt16() != 0;
    }

private:
    CKvStdsManager &m_manager;
    const OdDbDatabase &m_database;
};

/// The drawing of the document that shows the database; null when none does.
CKvDatabase *documentDatabase(OdDbDatabase *database)
{
    CKvSystemServices *services = GetKvSystemServices();
    CKvDocumentManager *documents = services ? services->documentManager() : nullptr;
    const CKvDocument *document = documents ? documents->documentForDatabase(database) : nullptr;
    return document ? document->GetKvDatabase() : nullptr;
}

OdArray<CKvStdsViolation> toArray(const std::vector<CKvStdsViolation> &violations)
{
    OdArray<CKvStdsViolation> array;
    for (const CKvStdsViolation &violation : violations) {
        array.append(violation);
    }
    return array;
}

/// What is selected must not hide what the dialog is about.
void clearActiveSelection()
{
    const CKvDocument *document = ACTIVE_DOCUMENT();
    CKvSelectionSet *selection = document ? document->selectionSet() : nullptr;
    CKvSelectionSetImpl *objects = selection ? selection->ss_impl() : nullptr;
    if (objects && !objects->selectedObjectIds().isEmpty()) {
        objects->clearSelection();
    }
}

} // namespace

bool CKvStdsManagerImpl::runAudit(OdDbDatabase *database, OdDbObjectIdArray ids, bool isInteractive)
{
    CKvDatabase *drawing = database && hasUsableStandards() ? documentDatabase(database) : nullptr;
    if (!drawing) {
        return false;
    }
    CKvGatheringRequest request;
    request.drawing = OdDbDatabasePtr(drawing);
    request.drawingName = drawing->drawingFileName();
    request.standardsNames = m_standardsFiles.names();
    request.standardsPaths = m_standardsFiles.paths();
    request.ids = std::move(ids);
    CKvAuditPolicy policy(*this, *database);
    CKvGatheringPass pass(&policy);
    const std::vector<CKvStdsPluginsPtr> plugins(m_plugins.begin(), m_plugins.end());
    if (pass.run(plugins, request) != CKvGatheringPass::Outcome::Finished) {
        return false;
    }
    const OdArray<CKvStdsViolation> violations = toArray(pass.violations());
    if (isInteractive || (!violations.isEmpty() && notifyViolation())) {
        showVerificationDialog(violations);
    }
    return true;
}

bool CKvStdsManagerImpl::notifyViolation()
{
    CKvStandardViolationMessage message(this);
    const int result = message.exec();
    return message.runRequested() && result != QDialog::Rejected;
}

void CKvStdsManagerImpl::showVerificationDialog(const OdArray<CKvStdsViolation> &violations)
{
    clearActiveSelection();
    CKvApplicationFrame *frame = GetKvSystemServices()->applicationFrame();
    CKvVerifyStandards dialog(frame ? frame->mainWindow() : nullptr);
    dialog.setViolations(violations);
    dialog.exec();
}
