// SPDX-License-Identifier: MIT
#pragma once

#include "CKvCommandDrawingStandards.h"
#include "CKvCommandInterStateVerify.h"
#include "CKvCommandVerifyStandards.h"
#include "CKvDocumentManagerReactor.h"
#include "CKvStdsPlugins.h"
#include "OdRxModule.h"
#include "OdStaticRxObject.h"

/// What the host loads: brings the commands, the manager and the categories, and takes them away
/// again. Carries the manager along when documents become current and go.
class CKvStandardsModule : public OdRxModule, public CKvDocumentManagerReactor
{
public:
    CKvStandardsModule();
    ~CKvStandardsModule() override;

    /// What the host does not have (a command stack, documents, an editor) is left out.
    /// @throws OdError 313 when a class of the module is registered already, and what reading the
    /// active document's standards throws.
    void initApp() override;
    /// Undoes initApp. The plug-ins stay behind: nothing ever destroys them.
    /// @throws OdError 255 when a class of the module is not registered.
    void uninitApp() override;

    /// The document is no longer watched.
    void DocumentToBeDestroyed(CKvDocument *document) override;
    void DocumentDestroyed(CKvDocument *document) override;
    void DocumentToBeDeactivated(CKvDocument *document) override;
    /// Reads the document's standards files anew.
    void DocumentBecameCurrent(CKvDocument *document) override;

private:
    void createPlugins();

    OdStaticRxObject<CKvCommandDrawingStandards> m_drawingStandardsCommand;
    OdStaticRxObject<CKvCommandVerifyStandards> m_verifyStandardsCommand;
    OdStaticRxObject<CKvCommandInterStateVerify> m_interStateVerifyCommand;
    CKvStdsPluginsPtr m_lastPlugin;
};
