// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDrawingBuilder.h"
#include "CKvModalScript.h"
#include "CKvRecordingPlugin.h"
#include "CKvSessionDocument.h"
#include "CKvSessionHost.h"
#include "CKvStdsManagerImpl.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

/// A host with a manager that has one plug-in, a document, and a user who answers dialogs.
class CKvCommandTest : public testing::Test
{
protected:
    CKvCommandTest();
    ~CKvCommandTest() override;

    QString path(const char *name) const { return folder.filePath(QString::fromUtf8(name)); }
    /// Makes a standards file.
    QString file(const char *name) const;
    /// A drawing with the layer WALLS that lists these files.
    static CKvDrawingBuilder drawing(const QStringList &files);
    void open(const QStringList &files) { document.emplace(drawing(files)); }
    /// Takes the manager away.
    void withoutManager();

    /// The user presses this button of each dialog of the class.
    void press(const char *className, int standardButton);
    /// The user takes the check box off first.
    void uncheckAndPress(const char *className, int standardButton);
    /// The user looks at the verification and closes it.
    void closeVerification();
    /// "evaluate 5005=_DWGSTANDARDS ..." a call.
    std::vector<std::string> requests() const { return host.callsOf("evaluate"); }
    std::vector<std::string> shown() const;
    /// Whether the plug-in was asked to read standards files, and which.
    std::vector<std::string> openedStandards() const;

    QTemporaryDir folder;
    CKvSessionHost host;
    std::vector<std::string> calls;
    CKvRecordingPlugin plugin { "layers", calls };
    std::optional<CKvStdsManagerImpl> manager;
    std::optional<CKvSessionDocument> document;
    CKvModalScript user;
};
