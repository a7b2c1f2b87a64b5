// SPDX-License-Identifier: MIT
#pragma once

#include "CKvCommandLine.h"
#include "CKvCommandStack.h"
#include "CKvEditor.h"
#include "CKvHostCommandContext.h"
#include "CKvHostDocumentManager.h"
#include "CKvLoadedModules.h"
#include "CKvStandaloneAppServices.h"
#include "CKvStoredSettings.h"
#include "CKvSystemServices.h"
#include "OdStaticRxObject.h"

#include <functional>
#include <map>

class CKvApplicationFrame;

/// A running host: documents, commands, modules and settings. While it lives, GetKvSystemServices,
/// odedRegCmds and odedEditor give what is its own. There is one at a time.
class CKvSession : public CKvSystemServices
{
public:
    /// Runs a request; returns when that has finished.
    /// @param arguments what follows the name, to the end mark.
    using Request = std::function<OdResBufPtr(const OdResBufPtr &arguments)>;

    /// @param settingsFile empty for the place where the system keeps settings.
    explicit CKvSession(const QString &settingsFile = QString());
    /// Closes the documents, then unloads the modules.
    ~CKvSession() override;
    CKvSession(const CKvSession &) = delete;
    CKvSession &operator=(const CKvSession &) = delete;

    /// Null when there is none.
    static CKvSession *current();

    CKvString findFile(const CKvString &name, int hint, OdDbDatabase *database, int flags) override;
    CKvApplicationFrame *applicationFrame() override { return m_frame; }
    CKvHostDocumentManager *documentManager() override { return &m_documents; }
    CKvStandaloneAppServices *hostAppServices() override { return &m_appServices; }
    /// Runs a request that somebody has registered, otherwise a command of that name.
    OdResBufPtr evaluateExpression(CKvExpressionParserData &data, OdResBufPtr request) override;
    void postCommand(OdResBufPtr request) override { m_commandLine.post(std::move(request)); }
    CKvStoredSettings *standardsSettings() override { return &m_settings; }

    CKvStoredSettings &settings() { return m_settings; }
    CKvCommandStack &commands() { return m_stack; }
    CKvEditor &editor() { return m_editor; }
    CKvCommandLine &commandLine() { return m_commandLine; }
    /// Null when none is open.
    CKvHostDocument *activeDocument() const { return m_documents.active(); }
    CKvLoadedModules &modules() { return m_modules; }

    /// @param frame not owned; null when the window goes.
    void setApplicationFrame(CKvApplicationFrame *frame) { m_frame = frame; }
    /// @param name with its underscore, letter case aside; an empty request takes it away.
    void setRequest(const QString &name, Request request);

private:
    CKvSystemServices *m_before;
    CKvStoredSettings m_settings;
    /// What a session has read stays open, and somebody else may shorten the file meanwhile.
    CKvStandaloneAppServices m_appServices { CKvFileImage::Holding::Copied };
    OdStaticRxObject<CKvCommandStack> m_stack;
    OdStaticRxObject<CKvEditor> m_editor;
    OdStaticRxObject<CKvHostCommandContext> m_emptyContext;
    CKvCommandLine m_commandLine;
    CKvLoadedModules m_modules;
    CKvHostDocumentManager m_documents;
    CKvApplicationFrame *m_frame = nullptr;
    std::map<QString, Request> m_requests;
};
