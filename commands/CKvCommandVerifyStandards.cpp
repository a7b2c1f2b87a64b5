// SPDX-License-Identifier: MIT
#include "CKvCommandVerifyStandards.h"

#include "CKvApplicationFrame.h"
#include "CKvCommandContext.h"
#include "CKvDatabase.h"
#include "CKvDocument.h"
#include "CKvMissingStandardsFileDlg.h"
#include "CKvNoDwgCategoriesSelectedDlg.h"
#include "CKvNoStandardsFileDlg.h"
#include "CKvStdsManager.h"
#include "CKvSystemServices.h"
#include "requestStandardsSettings.h"
#include "standardsList.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

namespace
{

/// What is known of the drawing's list of standards files.
struct ListedFiles {
    bool hasFound = false;
    bool hasMissing = false;
};

bool hasEditingTarget(const CKvCommandContext *context)
{
    const CKvDocument *document = context ? context->document() : nullptr;
    return document && document->GetKvDatabase();
}

bool isAnyCategoryEnabled(const CKvStdsManager &manager)
{
    CKvStdsPluginList plugins;
    manager.plugins(plugins);
    return std::any_of(plugins.begin(), plugins.end(), [](const CKvStdsPluginsPtr &plugin) {
        return plugin->isEnabled();
    });
}

QWidget *mainWindow()
{
    CKvApplicationFrame *frame = GetKvSystemServices()->applicationFrame();
    return frame ? frame->mainWindow() : nullptr;
}

void offerCategories()
{
    CKvNoDwgCategoriesSelectedDlg dialog(mainWindow());
    if (dialog.exec() == QDialog::Accepted && dialog.isRunChecked()) {
        requestStandardsSettings(StandardsSettingsPage::Categories);
    }
}

/// By the path as it stands in the drawing, then by the host's search.
bool isToBeHad(const CKvString &path, CKvDatabase &database)
{
    const QFileInfo listed(path.toQString());
    if (listed.exists()) {
        return true;
    }
    const CKvString found =
        GetKvSystemServices()->findFile(CKvString(listed.fileName()), 0, &database, 0);
    return QFileInfo::exists(found.toQString());
}

ListedFiles lookForListedFiles(CKvDatabase &database)
{
    ListedFiles files;
    for (const CKvString &path : readStandardsList(database, ForeignListEntry::Throw)) {
        (isToBeHad(path, database) ? files.hasFound : files.hasMissing) = true;
    }
    return files;
}

} // namespace

CKvCommandVerifyStandards::CKvCommandVerifyStandards()
{
    AddFlags(0x20000000);
}

OdString CKvCommandVerifyStandards::globalName() const
{
    return OdString("_VERIFYSTANDARDS");
}

OdString CKvCommandVerifyStandards::localName() const
{
    return OdString(
        QCoreApplication::translate("CKvCommandVerifyStandards",
                                    "VERIFYSTANDARDS",
                                    "Command Name: Needs to be unique and all uppercase."));
}

int CKvCommandVerifyStandards::helpContextId() const
{
    return 3072;
}

int CKvCommandVerifyStandards::executeCommand(CKvCommandContext *context)
{
    if (!hasEditingTarget(context)) {
        return kFailed;
    }
    CKvStdsManager *manager = GetKvStandardManager();
    if (manager && !isAnyCategoryEnabled(*manager)) {
        offerCategories();
        return kNormal;
    }
    const bool needsSettings = checkStandardsFiles();
    if (m_cancelled) {
        return kNormal;
    }
    if (needsSettings) {
        requestStandardsSettings(StandardsSettingsPage::Files);
        return kNormal;
    }
    if (manager) {
        CKvDocument *document = ACTIVE_DOCUMENT();
        manager->loadDocumentStandards(document);
        manager->runAudit(document ? document->GetKvDatabase() : nullptr,
                          OdDbObjectIdArray(),
                          /*isInteractive*/ true);
    }
    return kNormal;
}

/// Tests the list in the drawing: the manager has already left out what is gone, and the user has
/// to know.
/// @return true when the files have to be set before anything can be checked.
bool CKvCommandVerifyStandards::checkStandardsFiles()
{
    m_cancelled = false;
    const CKvDocument *document = ACTIVE_DOCUMENT();
    CKvDatabase *database = document ? document->GetKvDatabase() : nullptr;
    if (!database) {
        return false;
    }
    const ListedFiles files = lookForListedFiles(*database);
    if (files.hasMissing) {
        askForSettings<CKvMissingStandardsFileDlg>();
        return true;
    }
    if (!files.hasFound) {
        askForSettings<CKvNoStandardsFileDlg>();
        return true;
    }
    return false;
}

template <class Dialog> void CKvCommandVerifyStandards::askForSettings()
{
    Dialog dialog(mainWindow());
    const int result = dialog.exec();
    m_cancelled =
        result == QDialog::Rejected || (result == QDialog::Accepted && !dialog.isRunChecked());
}
