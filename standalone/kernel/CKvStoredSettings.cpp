// SPDX-License-Identifier: MIT
#include "CKvStoredSettings.h"

namespace
{

constexpr int kMostRecentFiles = 9;
constexpr int kViolationDefault = 2;

QString key(const char *name)
{
    return QString::fromLatin1(name);
}

} // namespace

CKvStoredSettings::CKvStoredSettings(const QString &file)
    : m_store(file.isEmpty() ? std::make_unique<QSettings>(key("KvStandards"), key("kvdesk"))
                             : std::make_unique<QSettings>(file, QSettings::IniFormat))
{
}

CKvString CKvStoredSettings::preferredStandardsFile() const
{
    return CKvString(m_store->value(key("standards/preferredFile"), key("None")).toString());
}

void CKvStoredSettings::setPreferredStandardsFile(const QString &path)
{
    m_store->setValue(key("standards/preferredFile"), path.isEmpty() ? key("None") : path);
}

bool CKvStoredSettings::fixAutomatically() const
{
    return m_store->value(key("standards/fixAutomatically"), false).toBool();
}

void CKvStoredSettings::setFixAutomatically(bool isAutomatic)
{
    m_store->setValue(key("standards/fixAutomatically"), isAutomatic);
}

bool CKvStoredSettings::showIgnored() const
{
    return m_store->value(key("standards/showIgnored"), false).toBool();
}

void CKvStoredSettings::setShowIgnored(bool isShown)
{
    m_store->setValue(key("standards/showIgnored"), isShown);
}

std::int16_t CKvStoredSettings::standardsViolation() const
{
    return std::int16_t(m_store->value(key("standards/violation"), kViolationDefault).toInt());
}

void CKvStoredSettings::setStandardsViolation(std::int16_t value)
{
    m_store->setValue(key("standards/violation"), int(value));
}

QStringList CKvStoredSettings::supportPaths() const
{
    return m_store->value(key("files/supportPaths")).toStringList();
}

void CKvStoredSettings::setSupportPaths(const QStringList &folders)
{
    m_store->setValue(key("files/supportPaths"), folders);
}

QStringList CKvStoredSettings::disabledCategories() const
{
    return m_store->value(key("standards/disabledCategories")).toStringList();
}

void CKvStoredSettings::setDisabledCategories(const QStringList &ids)
{
    m_store->setValue(key("standards/disabledCategories"), ids);
}

QStringList CKvStoredSettings::recentFiles() const
{
    return m_store->value(key("files/recent")).toStringList();
}

void CKvStoredSettings::addRecentFile(const QString &path)
{
    QStringList files = recentFiles();
    files.removeAll(path);
    files.prepend(path);
    while (files.size() > kMostRecentFiles) {
        files.removeLast();
    }
    m_store->setValue(key("files/recent"), files);
}
