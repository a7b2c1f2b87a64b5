// SPDX-License-Identifier: MIT
#include "CKvStdsManagerImpl.h"

#include "CKvDatabase.h"
#include "CKvDocument.h"
#include "CKvStdsError.h"
#include "CKvStdsFix.h"
#include "CKvSystemServices.h"
#include "areStandardsUsable.h"

#include <QFileInfo>
#include <QTimer>

#include <algorithm>

namespace
{

/// Short enough to seem immediate, long enough to let a row of changes end.
constexpr int kIntervalMs = 50;

/// Null without a document, and while the document has no drawing.
CKvDatabase *databaseOf(const CKvDocument *document)
{
    return document ? document->GetKvDatabase() : nullptr;
}

} // namespace

CKvStdsManagerImpl::CKvStdsManagerImpl()
    : QWidget(nullptr, Qt::WindowFlags())
    , m_timer(new QTimer(this))
{
    m_timer->setInterval(kIntervalMs);
    connect(m_timer, &QTimer::timeout, this, &CKvStdsManagerImpl::timerTimeout);
    CKvStdsFix::rxInit();
    CKvStdsError::rxInit();
}

CKvStdsManagerImpl::~CKvStdsManagerImpl()
{
    m_standardsFiles.clear();
    m_reservedObjectIds.clear();
    delete m_timer;
    CKvStdsFix::rxUninit();
    CKvStdsError::rxUninit();
    m_dimStyleSnapshot.release();
}

CKvStdsManagerImpl *CKvStdsManagerImpl::current()
{
    return dynamic_cast<CKvStdsManagerImpl *>(GetKvStandardManager());
}

void CKvStdsManagerImpl::setStandardsPaths(std::vector<CKvString> /*paths*/)
{
    // Only the drawing's own list counts.
}

void CKvStdsManagerImpl::pluginInfo(CKvStdsPluginsPtr plugin,
                                    CKvString &name,
                                    CKvString &version,
                                    CKvString &description,
                                    CKvString &author,
                                    CKvString &link) const
{
    if (!plugin) {
        return;
    }
    name = plugin->pluginName();
    version = plugin->versionText();
    description = plugin->description();
    author = plugin->authorName();
    link = plugin->linkText();
}

void CKvStdsManagerImpl::addPlugin(CKvStdsPluginsPtr plugin)
{
    m_plugins.push_back(std::move(plugin));
}

void CKvStdsManagerImpl::removePlugin(CKvStdsPluginsPtr plugin)
{
    m_plugins.remove(plugin);
}

bool CKvStdsManagerImpl::plugins(CKvStdsPluginList &plugins) const
{
    if (&plugins != &m_plugins) {
        plugins = m_plugins;
    }
    return true;
}

void CKvStdsManagerImpl::setCurrentPluginId(CKvString id)
{
    m_currentPluginId = std::move(id);
}

CKvStdsPluginsPtr CKvStdsManagerImpl::findPlugin(CKvString id) const
{
    const auto found =
        std::find_if(m_plugins.begin(), m_plugins.end(), [&](const CKvStdsPluginsPtr &plugin) {
            return plugin->pluginId().equalNoCase(id);
        });
    return found == m_plugins.end() ? CKvStdsPluginsPtr() : *found;
}

bool CKvStdsManagerImpl::loadDocumentStandards(CKvDocument *document)
{
    CKvDatabase *database = databaseOf(document);
    CKvSystemServices *services = GetKvSystemServices();
    if (!database || !services) {
        return false;
    }
    m_standardsFiles.load(*database, *services);
    if (hasUsableStandards()) {
        trackDocument(document);
        return true;
    }
    untrackDocument(document);
    return false;
}

bool CKvStdsManagerImpl::hasUsableStandards() const
{
    const auto isFound = [](const CKvString &path) {
        const QFileInfo file(path.toQString());
        if (file.exists()) {
            return true;
        }
        const CKvString found = GetKvSystemServices()->findFile(
            CKvString(file.fileName()), 0, databaseOf(ACTIVE_DOCUMENT()), 0);
        return QFileInfo::exists(found.toQString());
    };
    return areStandardsUsable(
        m_standardsFiles.paths(), m_standardsFiles.names(), m_plugins, isFound);
}

void CKvStdsManagerImpl::trackDocument(CKvDocument *document)
{
    CKvDatabase *database = databaseOf(document);
    if (database && m_trackedDocuments.emplace(document, true).second) {
        database->addReactor(&m_databaseReactor);
    }
}

void CKvStdsManagerImpl::untrackDocument(CKvDocument *document)
{
    if (m_trackedDocuments.erase(document) == 0) {
        return;
    }
    if (CKvDatabase *database = databaseOf(document)) {
        database->removeReactor(&m_databaseReactor);
    }
}

bool CKvStdsManagerImpl::isTracked(CKvDocument *document) const
{
    return m_trackedDocuments.count(document) > 0;
}
