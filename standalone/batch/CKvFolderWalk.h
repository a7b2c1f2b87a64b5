// SPDX-License-Identifier: MIT
#pragma once

#include "collectDrawings.h"

#include <filesystem>

/// Finds the drawings of a folder and of all folders below, and tells what it can't look into.
class CKvFolderWalk
{
public:
    /// @param folder as the user named it, with forward slashes.
    /// @param outputFolder passed over where it is met below the folder; empty for none.
    CKvFolderWalk(const QString &folder, const QString &outputFolder);

    /// Adds what it finds, drawings in the order of their names. A folder without any is an error.
    void addTo(CKvDrawingList &list);

private:
    void walk(const std::filesystem::path &folder, const QString &relativeFolder);
    void meet(const std::filesystem::directory_entry &entry, const QString &relativeFolder);
    void meetFolder(const std::filesystem::directory_entry &entry, const QString &relativePath);
    /// As the user would name it.
    QString shown(const QString &relativePath) const { return m_prefix + relativePath; }

    QString m_folder;
    QString m_prefix;
    /// Canonical; empty for none.
    QString m_outputFolder;
    /// Below the folder.
    QStringList m_found;
    QStringList m_errors;
    QStringList m_notes;
};
