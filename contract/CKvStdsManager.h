// SPDX-License-Identifier: MIT
#pragma once

#include "CKvStdsPlugins.h"
#include "CKvString.h"
#include "OdDbObjectId.h"
#include "hostApi.h"

#include <list>
#include <vector>

class CKvDocument;
class OdDbDatabase;

using CKvStdsPluginList = std::list<CKvStdsPluginsPtr>;

/// Knows the plug-ins and the standards files of the document that was loaded last, and runs the
/// checks. There is at most one; everybody reaches it through GetKvStandardManager.
class CKvStdsManager
{
public:
    virtual ~CKvStdsManager() = default;

    /// Full paths of the files that were found, the preferred one first.
    virtual std::vector<CKvString> standardsPaths() const = 0;
    /// Changes nothing: the paths are those of the drawing.
    virtual void setStandardsPaths(std::vector<CKvString> paths) = 0;
    /// The plug-in's texts; without a plug-in they stay as they are.
    virtual void pluginInfo(CKvStdsPluginsPtr plugin,
                            CKvString &name,
                            CKvString &version,
                            CKvString &description,
                            CKvString &author,
                            CKvString &link) const = 0;
    /// Puts the plug-in behind all others; that is the order of every check.
    virtual void addPlugin(CKvStdsPluginsPtr plugin) = 0;
    /// Takes every entry of this very plug-in out.
    virtual void removePlugin(CKvStdsPluginsPtr plugin) = 0;
    /// @param plugins replaced by a copy of the list.
    /// @return true.
    virtual bool plugins(CKvStdsPluginList &plugins) const = 0;
    /// Id of the plug-in that a check started last; empty before the first.
    virtual CKvString currentPluginId() const = 0;
    virtual void setCurrentPluginId(CKvString id) = 0;
    /// @param id letter case counts for nothing.
    /// @return the first plug-in of that id, null when there is none.
    virtual CKvStdsPluginsPtr findPlugin(CKvString id) const = 0;
    /// Reads the document's list of standards files, finds the files, and watches the document when
    /// it has usable ones.
    /// @param document null, or one without a drawing, changes nothing.
    /// @return whether it has usable ones.
    /// @throws OdError_NotThatKindOfClass for a damaged list, and what reading the preferred file
    /// throws; the former files are forgotten then.
    virtual bool loadDocumentStandards(CKvDocument *document) = 0;
    /// Checks a drawing and shows the violations.
    /// @param ids only these objects; everything when empty.
    /// @param isInteractive true: the dialog comes up whatever is found. false: only when there are
    /// violations and the user wants to see them.
    /// @return true when a plug-in ran and the check came to its end.
    /// @throws what the drawing library and the plug-ins throw.
    virtual bool runAudit(OdDbDatabase *database, OdDbObjectIdArray ids, bool isInteractive) = 0;
    /// These three do nothing.
    virtual void reservedOperation1() = 0;
    virtual void reservedOperation2() = 0;
    virtual void reservedOperation3() = 0;
    virtual void beginInterStateCheck() = 0;
    virtual void endInterStateCheck() = 0;
    /// True while the check after an edit runs, its dialogs included.
    virtual bool isInterStateCheck() const = 0;
};

/// The manager that a module has set; null before and after.
KV_HOST_API CKvStdsManager *GetKvStandardManager();
/// @param manager not owned; null takes it away.
KV_HOST_API void SetKvStandardManager(CKvStdsManager *manager);
