// SPDX-License-Identifier: MIT
#include "CKvModuleTest.h"

#include "CKvDrawingBuilder.h"
#include "CKvForeignMemory.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>

CKvModuleTest::CKvModuleTest()
{
    session.emplace(folder.filePath(QStringLiteral("settings.ini")));
    session->settings().setStandardsViolation(0);
    session->commands().addCommand(&m_recolor);
    session->commands().addReactor(this);
}

CKvModuleTest::~CKvModuleTest()
{
    if (module) {
        stop();
    }
    if (session) {
        session->commands().removeReactor(this);
        session->commands().removeCommand(&m_recolor);
    }
}

void CKvModuleTest::note(const char *event, const OdEdCommand &command)
{
    commandEvents.push_back(event + command.globalName().toQString().toStdString() + ' '
                            + std::to_string(command.flags()));
}

void CKvModuleTest::load(const QString &path)
{
    handle = dlopen(QFile::encodeName(path).constData(), RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(handle, nullptr) << dlerror();
    OdRxModuleHandle given = handle;
    module = function<OdRxCreateModuleObject>("odrxCreateModuleObject")(given);
    ASSERT_NE(module, nullptr);
}

void CKvModuleTest::start()
{
    load();
    const CKvForeignMemory foreign;
    module->initApp();
}

void CKvModuleTest::stop()
{
    module->uninitApp();
    unload();
}

void CKvModuleTest::unload()
{
    module->deleteModule();
    module = nullptr;
    EXPECT_EQ(dlclose(handle), 0);
    handle = nullptr;
}

bool CKvModuleTest::isResident()
{
    void *resident = dlopen(KV_MODULE_FILE, RTLD_NOW | RTLD_NOLOAD);
    if (resident) {
        dlclose(resident);
    }
    return resident != nullptr;
}

void *CKvModuleTest::symbol(const char *name) const
{
    return dlsym(handle, name);
}

QString CKvModuleTest::file(const char *name) const
{
    QString path = folder.filePath(QString::fromUtf8(name));
    CKvDrawingBuilder().saveTo(path);
    return path;
}

CKvHostDocument &CKvModuleTest::open(const char *name, const QStringList &files)
{
    CKvDrawingBuilder drawing;
    drawing.layer("WALLS").color(1);
    if (!files.isEmpty()) {
        drawing.standardsFiles(files);
    }
    const QString path = folder.filePath(QString::fromUtf8(name));
    drawing.saveTo(path);
    return session->documentManager()->open(path);
}

std::vector<std::string> CKvModuleTest::standards()
{
    std::vector<std::string> names;
    for (const CKvString &path : GetKvStandardManager()->standardsPaths()) {
        names.push_back(QFileInfo(path.toQString()).fileName().toStdString());
    }
    return names;
}

std::vector<std::string> CKvModuleTest::pluginIds()
{
    CKvStdsPluginList plugins;
    GetKvStandardManager()->plugins(plugins);
    std::vector<std::string> ids;
    for (const CKvStdsPluginsPtr &plugin : plugins) {
        ids.push_back(plugin->pluginId().toQString().toStdString());
    }
    return ids;
}

bool CKvModuleTest::hears()
{
    CKvCommandLine &commandLine = session->commandLine();
    EXPECT_FALSE(commandLine.hasPosted());
    commandLine.run(QStringLiteral("RECOLOR"));
    const bool isHeard = commandLine.hasPosted();
    while (commandLine.hasPosted()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return isHeard;
}
