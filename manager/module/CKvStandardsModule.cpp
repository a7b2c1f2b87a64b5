// SPDX-License-Identifier: MIT
#include "CKvStandardsModule.h"

#include "CKvDimStylePluginImpl.h"
#include "CKvDocument.h"
#include "CKvDocumentManager.h"
#include "CKvLayerPluginImpl.h"
#include "CKvLineStylePluginImpl.h"
#include "CKvStdsManagerImpl.h"
#include "CKvSystemServices.h"
#include "CKvTextStylePluginImpl.h"
#include "OdEdCommandStack.h"
#include "OdEditor.h"

namespace
{

struct Category {
    void (*rxInit)();
    void (*rxUninit)();
    OdRxClass *(*desc)();
};

/// In this order they are registered, made, and from then on checked.
constexpr Category kCategories[] = {
    { &CKvDimStylePluginImpl::rxInit,
      &CKvDimStylePluginImpl::rxUninit,
      &CKvDimStylePluginImpl::desc },
    { &CKvLayerPluginImpl::rxInit, &CKvLayerPluginImpl::rxUninit, &CKvLayerPluginImpl::desc },
    { &CKvLineStylePluginImpl::rxInit,
      &CKvLineStylePluginImpl::rxUninit,
      &CKvLineStylePluginImpl::desc },
    { &CKvTextStylePluginImpl::rxInit,
      &CKvTextStylePluginImpl::rxUninit,
      &CKvTextStylePluginImpl::desc },
};

CKvDocumentManager *documentManager()
{
    CKvSystemServices *services = GetKvSystemServices();
    return services ? services->documentManager() : nullptr;
}

CKvStdsPluginsPtr makePlugin(const OdRxClass *pluginClass)
{
    if (!pluginClass) {
        throw OdError(OdResult::kClassNotRegistered);
    }
    return CKvStdsPluginsPtr(pluginClass->create());
}

} // namespace

CKvStandardsModule::CKvStandardsModule() = default;

CKvStandardsModule::~CKvStandardsModule() = default;

void CKvStandardsModule::initApp()
{
    // Held to the end, so that the stack outlives what is added to it.
    const OdEdCommandStackPtr stack = odedRegCmds();
    if (stack) {
        stack->addCommand(&m_drawingStandardsCommand);
        stack->addCommand(&m_verifyStandardsCommand);
        stack->addCommand(&m_interStateVerifyCommand);
    }
    auto *manager = new CKvStdsManagerImpl;
    SetKvStandardManager(manager);
    CKvStdsPlugins::rxInit();
    for (const Category &category : kCategories) {
        category.rxInit();
    }
    if (CKvDocumentManager *documents = documentManager()) {
        documents->addDocumentReactor(this);
        if (CKvDocument *document = ACTIVE_DOCUMENT()) {
            // No category is there yet: the files alone decide whether the document is watched.
            manager->loadDocumentStandards(document);
        }
    }
    if (OdEditor *editor = odedEditor()) {
        editor->addReactor(manager->editorReactor());
    }
    createPlugins();
}

void CKvStandardsModule::createPlugins()
{
    CKvStdsManager *manager = GetKvStandardManager();
    if (!manager) {
        return;
    }
    for (const Category &category : kCategories) {
        m_lastPlugin = makePlugin(category.desc());
        m_lastPlugin->setManager(manager);
        manager->addPlugin(m_lastPlugin);
    }
}

void CKvStandardsModule::uninitApp()
{
    if (const OdEdCommandStackPtr stack = odedRegCmds()) {
        stack->removeCommand(&m_drawingStandardsCommand);
        stack->removeCommand(&m_verifyStandardsCommand);
        stack->removeCommand(&m_interStateVerifyCommand);
    }
    if (CKvDocumentManager *documents = documentManager()) {
        documents->removeDocumentReactor(this);
    }
    if (CKvStdsManager *manager = GetKvStandardManager()) {
        OdEditor *editor = odedEditor();
        CKvStdsManagerImpl *own = CKvStdsManagerImpl::current();
        if (editor && own) {
            editor->removeReactor(own->editorReactor());
        }
        delete manager;
    }
    SetKvStandardManager(nullptr);
    for (const Category &category : kCategories) {
        category.rxUninit();
    }
    CKvStdsPlugins::rxUninit();
}

void CKvStandardsModule::DocumentToBeDestroyed(CKvDocument *document)
{
    if (CKvStdsManagerImpl *manager = CKvStdsManagerImpl::current()) {
        manager->untrackDocument(document);
    }
}

void CKvStandardsModule::DocumentDestroyed(CKvDocument * /*document*/) { }

void CKvStandardsModule::DocumentToBeDeactivated(CKvDocument * /*document*/) { }

void CKvStandardsModule::DocumentBecameCurrent(CKvDocument *document)
{
    CKvStdsManager *manager = GetKvStandardManager();
    if (manager && document) {
        manager->loadDocumentStandards(document);
    }
}
