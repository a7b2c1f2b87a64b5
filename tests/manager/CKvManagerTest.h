// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDrawingBuilder.h"
#include "CKvSessionDocument.h"
#include "CKvSessionHost.h"
#include "CKvTestManager.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>
#include <optional>

/// A host with one manager, and a folder with standards files.
class CKvManagerTest : public testing::Test
{
protected:
    CKvManagerTest();
    ~CKvManagerTest() override;

    /// Takes the manager away, as the end of the module does.
    void removeManager();
    QString path(const char *name) const { return folder.filePath(QString::fromUtf8(name)); }
    /// Makes a standards file.
    QString file(const char *name) const;
    /// Opens a document that lists these files and has the layers WALLS and DOORS.
    CKvSessionDocument &open(const QStringList &files);
    CKvSessionDocument &open(const CKvDrawingBuilder &drawing);
    /// Opens a document with one standards file that is there, and loads its standards.
    CKvSessionDocument &openTracked();
    /// Whether a change in the document reaches the manager.
    bool hears(CKvSessionDocument &changed) const;
    /// "path (name)" a line.
    std::string standardsFiles() const;

    QTemporaryDir folder;
    CKvSessionHost host;
    std::unique_ptr<CKvTestManager> manager;
    std::optional<CKvSessionDocument> document;
};
