// SPDX-License-Identifier: MIT
#pragma once

#include "CKvStandardsSettings.h"

#include <QSettings>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <memory>

/// Settings that outlive the program.
class CKvStoredSettings : public CKvStandardsSettings
{
public:
    /// @param file an ini file; empty for the place where the system keeps settings.
    explicit CKvStoredSettings(const QString &file = QString());

    CKvString preferredStandardsFile() const override;
    bool fixAutomatically() const override;
    bool showIgnored() const override;

    /// @param path empty for none.
    void setPreferredStandardsFile(const QString &path);
    void setFixAutomatically(bool isAutomatic);
    void setShowIgnored(bool isShown);

    /// 0: an edit that breaks a standard is not told; any other value: it is.
    std::int16_t standardsViolation() const;
    void setStandardsViolation(std::int16_t value);
    /// Folders where support files are searched, the folder of the drawing aside.
    QStringList supportPaths() const;
    void setSupportPaths(const QStringList &folders);
    /// Ids of the categories that are not checked.
    QStringList disabledCategories() const;
    void setDisabledCategories(const QStringList &ids);
    /// Newest first.
    QStringList recentFiles() const;
    void addRecentFile(const QString &path);

    /// Whatever else the program wants to keep.
    QSettings &store() const { return *m_store; }

private:
    std::unique_ptr<QSettings> m_store;
};
