// SPDX-License-Identifier: MIT
#pragma once

#include "CKvHostDocument.h"
#include "CKvRecolorCommand.h"
#include "CKvSession.h"
#include "CKvStdsManager.h"
#include "OdEdCommandStackReactor.h"
#include "OdRxModule.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

/// The host of the project, which loads the module's file as it would any other and unloads it at
/// the end. It does not tell of violations unless a test asks for it.
class CKvModuleTest : public testing::Test, private OdEdCommandStackReactor
{
protected:
    CKvModuleTest();
    ~CKvModuleTest() override;

    /// Loads the file and makes the module object.
    void load(const QString &path = QStringLiteral(KV_MODULE_FILE));
    /// The same with initApp.
    void start();
    /// uninitApp, deleteModule, and away with the file.
    void stop();
    /// Destroys the module object and lets the file go.
    void unload();
    /// Whether the process still has the file.
    static bool isResident();
    template <class Function> Function function(const char *name) const
    {
        return reinterpret_cast<Function>(symbol(name));
    }

    /// Makes a standards file without any layer.
    QString file(const char *name) const;
    /// Opens a drawing with the layer WALLS that lists these files.
    CKvHostDocument &open(const char *name, const QStringList &files);
    /// The bare names of the standards files that the manager has.
    static std::vector<std::string> standards();
    /// The ids of the plug-ins in the manager's order.
    static std::vector<std::string> pluginIds();
    /// Whether the end of a command that changes the active drawing posts a check.
    bool hears();

    QTemporaryDir folder;
    std::optional<CKvSession> session;
    /// "add _NAME 0", "remove _NAME 0": name and flags of the commands that come and go.
    std::vector<std::string> commandEvents;
    OdRxModuleHandle handle = nullptr;
    OdRxModule *module = nullptr;

private:
    void commandAdded(OdEdCommand *command) override { note("add ", *command); }
    void commandWillBeRemoved(OdEdCommand *command) override { note("remove ", *command); }
    void note(const char *event, const OdEdCommand &command);
    void *symbol(const char *name) const;

    OdStaticRxObject<CKvRecolorCommand> m_recolor;
};
