// SPDX-License-Identifier: MIT
#pragma once

#include "CKvStandardDatabaseReactor.h"
#include "CKvStandardEditorReactor.h"
#include "CKvStandardsFiles.h"
#include "CKvStdsManager.h"
#include "CKvStdsViolation.h"
#include "OdDbDimStyleTableRecord.h"
#include "OdStaticRxObject.h"

#include <QWidget>

#include <map>
#include <set>

class QTimer;

/// The state of the standards in the running session: the files of the document that was loaded
/// last, the plug-ins, the documents that are watched, and the changed objects that wait for the
/// check. A hidden widget, so that it can own a timer and be the parent of a dialog.
class CKvStdsManagerImpl : public QWidget, public CKvStdsManager
{
    Q_OBJECT

public:
    /// Registers the classes of violations and fixes, so there can be one manager only.
    /// @throws OdError 313 when there is another.
    CKvStdsManagerImpl();
    /// Leaves the reactor on the databases that are still watched.
    ~CKvStdsManagerImpl() override;

    /// The manager of the running session when it is one of these; null otherwise.
    static CKvStdsManagerImpl *current();

    std::vector<CKvString> standardsPaths() const override { return m_standardsFiles.paths(); }
    void setStandardsPaths(std::vector<CKvString> paths) override;
    void pluginInfo(CKvStdsPluginsPtr plugin,
                    CKvString &name,
                    CKvString &version,
                    CKvString &description,
                    CKvString &author,
                    CKvString &link) const override;
    void addPlugin(CKvStdsPluginsPtr plugin) override;
    void removePlugin(CKvStdsPluginsPtr plugin) override;
    bool plugins(CKvStdsPluginList &plugins) const override;
    CKvString currentPluginId() const override { return m_currentPluginId; }
    void setCurrentPluginId(CKvString id) override;
    CKvStdsPluginsPtr findPlugin(CKvString id) const override;
    bool loadDocumentStandards(CKvDocument *document) override;
    bool runAudit(OdDbDatabase *database, OdDbObjectIdArray ids, bool isInteractive) override;
    void reservedOperation1() override { }
    void reservedOperation2() override { }
    void reservedOperation3() override { }
    void beginInterStateCheck() override { m_isInterStateCheck = true; }
    void endInterStateCheck() override { m_isInterStateCheck = false; }
    bool isInterStateCheck() const override { return m_isInterStateCheck; }

    /// The bare names, position by position the same files as standardsPaths.
    const std::vector<CKvString> &standardsNames() const { return m_standardsFiles.names(); }
    bool hasUsableStandards() const;
    /// Attaches the database reactor to the document's drawing, once. Without a drawing nothing
    /// happens.
    void trackDocument(CKvDocument *document);
    void untrackDocument(CKvDocument *document);
    bool isTracked(CKvDocument *document) const;

    CKvStandardEditorReactor *editorReactor() { return &m_editorReactor; }

    /// Puts a changed object into the queue. Xrecords and dictionaries are passed over, and so is a
    /// dimension style that is as it was before the change.
    void noteChangedObject(const OdDbObject *object);
    const std::set<OdDbObjectId> &changedObjects() const { return m_changedObjects; }
    void clearChangedObjects() { m_changedObjects.clear(); }
    /// @param snapshot a copy of the dimension style that is about to change.
    void setDimStyleSnapshot(OdDbDimStyleTableRecordPtr snapshot);
    /// Checks objects of the active document and tells the user what an edit has broken. Without a
    /// document does nothing.
    /// @throws what runAudit throws; isInterStateCheck stays true then.
    void verifyChangedObjects(OdDbObjectIdArray ids);

    /// The next tick comes a whole interval from now.
    void restartTimer();
    void stopTimer();
    bool isTimerActive() const;
    /// Posts the check of the changed objects when there are any.
    void postInterStateVerifyIfPending();

protected:
    /// Asks whether the violations are to be shown.
    virtual bool notifyViolation();
    /// Shows the violations in the verification dialog until the user closes it.
    virtual void showVerificationDialog(const OdArray<CKvStdsViolation> &violations);

private slots:
    /// Posts the check when the host is idle.
    void timerTimeout();

private:
    OdStaticRxObject<CKvStandardEditorReactor> m_editorReactor;
    OdStaticRxObject<CKvStandardDatabaseReactor> m_databaseReactor;
    QTimer *m_timer;
    std::map<CKvDocument *, bool> m_trackedDocuments;
    std::set<OdDbObjectId> m_changedObjects;
    CKvStandardsFiles m_standardsFiles;
    /// Nothing fills it.
    OdDbObjectIdArray m_reservedObjectIds;
    CKvStdsPluginList m_plugins;
    CKvString m_currentPluginId;
    bool m_isInterStateCheck = false;
    OdDbDimStyleTableRecordPtr m_dimStyleSnapshot;
};
