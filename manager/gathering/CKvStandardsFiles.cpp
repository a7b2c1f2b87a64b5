// SPDX-License-Identifier: MIT
#include "CKvStandardsFiles.h"

#include "CKvStandardsSettings.h"
#include "CKvSystemServices.h"
#include "OdDbDatabase.h"
#include "OdDbHostAppServices.h"
#include "standardsList.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

void CKvStandardsFiles::clear()
{
    m_paths.clear();
    m_names.clear();
    m_missing.clear();
    m_listed.clear();
    m_preferred = CKvString();
    m_storedPreferred = CKvString();
}

void CKvStandardsFiles::load(OdDbDatabase &database, CKvSystemServices &services)
{
    clear();
    m_preferred = services.standardsSettings()->preferredStandardsFile();
    for (const CKvString &stored : readStandardsList(database, ForeignListEntry::PassOver)) {
        addListed(stored, database, services);
    }
    putPreferredFirst(services);
}

void CKvStandardsFiles::addListed(const CKvString &stored,
                                  OdDbDatabase &database,
                                  CKvSystemServices &services)
{
    CKvString path = stored;
    path.replace(QLatin1Char('\\'), QLatin1Char('/'));
    m_listed.push_back(path);
    // Only the listed path is tested for doubles: two that the search leads to one file count
    // twice.
    if (std::find(m_paths.begin(), m_paths.end(), path) != m_paths.end()) {
        return;
    }
    if (path.equalNoCase(m_preferred)) {
        m_storedPreferred = stored;
        return;
    }
    const CKvString found = find(path, database, services);
    if (found.isEmpty()) {
        m_missing.push_back(stored);
    } else {
        add(found.toQString());
    }
}

CKvString CKvStandardsFiles::find(const CKvString &listed,
                                  OdDbDatabase &database,
                                  CKvSystemServices &services)
{
    CKvString path = listed;
    path.replace(QLatin1Char('\\'), QLatin1Char('/'));
    const QFileInfo file(path.toQString());
    if (file.exists()) {
        return path;
    }
    const CKvString found = services.findFile(CKvString(file.fileName()), 0, &database, 0);
    const bool isThere = !found.isEmpty() && QFileInfo::exists(found.toQString());
    return isThere ? found : CKvString();
}

void CKvStandardsFiles::putPreferredFirst(CKvSystemServices &services)
{
    const auto isPreferred = [this](const CKvString &listed) {
        return listed.equalNoCase(m_preferred);
    };
    if (std::none_of(m_listed.begin(), m_listed.end(), isPreferred)) {
        return;
    }
    // The setting's text stays as it is, and is not searched elsewhere.
    const CKvString none(QCoreApplication::translate("CKvStdsManagerImpl", "None"));
    const QFileInfo preferred(m_preferred.toQString());
    if (m_preferred.equalNoCase(none) || !preferred.exists()) {
        m_missing.push_back(m_storedPreferred);
        return;
    }
    services.hostAppServices()->readFile(
        m_preferred.toOdString(), false, true, kShareReadWrite, OdString::kEmpty);
    m_paths.insert(m_paths.begin(), m_preferred);
    m_names.insert(m_names.begin(), CKvString(preferred.fileName()));
}

void CKvStandardsFiles::add(const QString &path)
{
    m_paths.emplace_back(path);
    m_names.emplace_back(QFileInfo(path).fileName());
}
