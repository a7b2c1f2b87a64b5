// SPDX-License-Identifier: MIT
#include "CKvModuleTest.h"
#include "CKvString.h"
#include "OdDb.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

using ::testing::ElementsAre;

namespace
{

using Exports = CKvModuleTest;

/// The names that other files can reach, sorted.
std::vector<std::string> exportedNames()
{
    QProcess nm;
    nm.start(QStringLiteral("nm"),
             { QStringLiteral("--dynamic"),
               QStringLiteral("--defined-only"),
               QStringLiteral("--format=just-symbols"),
               QStringLiteral(KV_MODULE_FILE) });
    EXPECT_TRUE(nm.waitForFinished());
    std::vector<std::string> names;
    for (const QByteArray &name : nm.readAllStandardOutput().trimmed().split('\n')) {
        names.push_back(name.toStdString());
    }
    return names;
}

} // namespace

TEST_F(Exports, AreTheThreeFunctionsAndNothingElse)
{
    EXPECT_THAT(
        exportedNames(),
        ElementsAre("ConvertLineweightToName", "odrxCreateModuleObject", "odrxGetAPIVersion"));
}

TEST_F(Exports, TheVersionOfTheLibraryIsTold)
{
    load();
    std::uint32_t numbers[4] = {};

    function<OdRxGetApiVersion>("odrxGetAPIVersion")(
        numbers[0], numbers[1], numbers[2], numbers[3]);

    EXPECT_THAT(numbers, ElementsAre(4, 1, 1, 72960));
    unload();
}

TEST_F(Exports, OtherModulesGetTheNamesOfLineweights)
{
    load();

    const auto name = function<CKvString (*)(OdDb::LineWeight)>("ConvertLineweightToName");

    EXPECT_EQ(name(OdDb::LineWeight(25)), CKvString("0.25 mm"));
    EXPECT_EQ(name(OdDb::kLineWeightByLayer), CKvString("ByLayer"));
    unload();
}

TEST_F(Exports, TheModuleObjectTakesTheHandleOverOnce)
{
    load();
    const auto create = function<OdRxCreateModuleObject>("odrxCreateModuleObject");
    module->deleteModule();
    OdRxModuleHandle first = handle;
    OdRxModuleHandle second = handle;

    module = create(first);
    OdRxModule *again = create(second);

    EXPECT_EQ(first, nullptr);
    EXPECT_EQ(second, handle);
    EXPECT_EQ(again, module);
    EXPECT_EQ(module->sysModuleHandle(), handle);
    unload();
}

TEST_F(Exports, TheModuleTellsItsFile)
{
    load();

    EXPECT_EQ(module->moduleName().toQString(),
              QFileInfo(QStringLiteral(KV_MODULE_FILE)).absoluteFilePath());
    EXPECT_EQ(QFileInfo(module->moduleName().toQString()).completeBaseName(),
              QStringLiteral("KvStandards"));
    unload();
}

TEST_F(Exports, ALongFileNameIsToldByItsBeginning)
{
    const QString deep = folder.filePath(QString(200, QLatin1Char('a')) + QLatin1Char('/')
                                         + QString(100, QLatin1Char('b')));
    QDir().mkpath(deep);
    const QString copy = deep + QStringLiteral("/KvStandards.so");
    ASSERT_TRUE(QFile::copy(QStringLiteral(KV_MODULE_FILE), copy));
    load(copy);

    EXPECT_EQ(module->moduleName().toQString(), copy.left(259));
    unload();
}

TEST_F(Exports, ReferencesToTheModuleObjectEndNothing)
{
    load();

    module->addRef();
    module->release();
    module->release();

    EXPECT_EQ(module->sysModuleHandle(), handle);
    unload();
}

TEST_F(Exports, ADeletedModuleObjectIsMadeAnew)
{
    load();
    const auto create = function<OdRxCreateModuleObject>("odrxCreateModuleObject");
    module->deleteModule();
    OdRxModuleHandle given = handle;

    module = create(given);

    EXPECT_EQ(given, nullptr);
    EXPECT_EQ(module->sysModuleHandle(), handle);
    unload();
}
