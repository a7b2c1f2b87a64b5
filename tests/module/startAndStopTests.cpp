// SPDX-License-Identifier: MIT
#include "CKvDrawingBuilder.h"
#include "CKvModuleTest.h"
#include "registeredClasses.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdlib>

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace
{

using StartAndStop = CKvModuleTest;

constexpr char kDimStyles[] = "4396F213-94B2-44ed-98BC-777707D15528";
constexpr char kLayers[] = "E81A7EB1-A22C-4bd4-96F8-725D0798DE29";
constexpr char kLineStyles[] = "6AA1E422-764F-4b58-83DE-69F5897B7D78";
constexpr char kTextStyles[] = "AAC6DB88-85CC-4d38-BA98-511A5845362E";

} // namespace

TEST_F(StartAndStop, TheConstructedModuleHasNothingRegistered)
{
    load();

    EXPECT_THAT(commandEvents, IsEmpty());
    EXPECT_EQ(GetKvStandardManager(), nullptr);
    EXPECT_THAT(registeredClasses(), IsEmpty());
    unload();
}

TEST_F(StartAndStop, TheCommandsComeInTheirOrderWithTheirFlags)
{
    start();

    EXPECT_THAT(commandEvents,
                ElementsAre("add _DRAWINGSTANDARDS 0",
                            "add _VERIFYSTANDARDS " + std::to_string(0x20000000),
                            "add _INTERSTATEVERIFY " + std::to_string(0x35841002)));
}

TEST_F(StartAndStop, TheManagerKnowsTheCategoriesInTheirOrder)
{
    start();

    EXPECT_THAT(pluginIds(), ElementsAre(kDimStyles, kLayers, kLineStyles, kTextStyles));
    EXPECT_THAT(registeredClasses(), testing::ElementsAreArray(moduleClasses()));
}

TEST_F(StartAndStop, WithNoDocumentOpenTheFirstOneThatBecomesCurrentIsRead)
{
    start();
    EXPECT_THAT(standards(), IsEmpty());

    open("plan.dxf", QStringList(file("office.dws")));

    EXPECT_THAT(standards(), ElementsAre("office.dws"));
    EXPECT_TRUE(hears());
}

TEST_F(StartAndStop, TheOpenDocumentIsReadAndWatchedBeforeThereIsAPlugin)
{
    open("plan.dxf", { file("b.dws"), file("a.dws") });

    start();

    EXPECT_THAT(standards(), ElementsAre("b.dws", "a.dws"));
    EXPECT_TRUE(hears());
}

TEST_F(StartAndStop, EachTimeADocumentBecomesCurrentItsFilesAreReadAnew)
{
    CKvHostDocument &first = open("first.dxf", QStringList(file("a.dws")));
    start();

    CKvHostDocument &second = open("second.dxf", {});
    EXPECT_THAT(standards(), IsEmpty());

    session->documentManager()->activate(first);
    EXPECT_THAT(standards(), ElementsAre("a.dws"));

    QFile::remove(folder.filePath(QStringLiteral("a.dws")));
    session->documentManager()->activate(second);
    session->documentManager()->activate(first);
    EXPECT_THAT(standards(), IsEmpty());
    EXPECT_FALSE(hears());
}

TEST_F(StartAndStop, TheLastDocumentThatGoesLeavesNothingToWatch)
{
    CKvHostDocument &first = open("first.dxf", QStringList(file("a.dws")));
    start();

    session->documentManager()->close(first);
    open("second.dxf", {});

    EXPECT_FALSE(hears());
    EXPECT_THAT(standards(), IsEmpty());
}

TEST_F(StartAndStop, ADocumentOpenedAgainIsWatchedAgain)
{
    const QStringList files(file("a.dws"));
    start();
    for (int i = 0; i < 3; ++i) {
        CKvHostDocument &document = open("plan.dxf", files);

        EXPECT_TRUE(hears()) << i;

        session->documentManager()->close(document);
    }
}

TEST_F(StartAndStop, AListThatIsNoDictionaryReachesTheHostAndTheNextDocumentIsReadAllTheSame)
{
    CKvDrawingBuilder damaged;
    damaged.namedObjects().xrecord("AcStStandard").group(1, "a.dws");
    const QString path = folder.filePath(QStringLiteral("damaged.dxf"));
    damaged.saveTo(path);
    start();

    EXPECT_THROW(session->documentManager()->open(path), OdError_NotThatKindOfClass);
    EXPECT_THROW(session->commandLine().run(QStringLiteral("VERIFYSTANDARDS")),
                 OdError_NotThatKindOfClass);

    EXPECT_THAT(standards(), IsEmpty());
    open("plan.dxf", QStringList(file("a.dws")));
    EXPECT_THAT(standards(), ElementsAre("a.dws"));
    EXPECT_TRUE(hears());
}

TEST_F(StartAndStop, WithoutAManagerTheEventsOfDocumentsAreTolerated)
{
    CKvHostDocument &first = open("first.dxf", QStringList(file("a.dws")));
    start();
    CKvStdsManager *manager = GetKvStandardManager();
    SetKvStandardManager(nullptr);

    CKvHostDocument &second = open("second.dxf", {});
    session->documentManager()->close(second);

    SetKvStandardManager(manager);
    EXPECT_EQ(session->documentManager()->active(), &first);
    EXPECT_THAT(standards(), ElementsAre("a.dws"));
    EXPECT_TRUE(hears());
}

TEST_F(StartAndStop, AHostWithoutServicesAndCommandLineGetsTheRest)
{
    session.reset();

    start();

    EXPECT_THAT(pluginIds(), SizeIs(4));
    EXPECT_THAT(registeredClasses(), testing::ElementsAreArray(moduleClasses()));

    stop();

    EXPECT_EQ(GetKvStandardManager(), nullptr);
    EXPECT_THAT(registeredClasses(), IsEmpty());
}

TEST_F(StartAndStop, TheEndTakesEverythingAwayAgain)
{
    open("plan.dxf", QStringList(file("a.dws")));
    start();
    commandEvents.clear();

    module->uninitApp();

    EXPECT_THAT(commandEvents,
                ElementsAre("remove _DRAWINGSTANDARDS 0",
                            "remove _VERIFYSTANDARDS " + std::to_string(0x20000000),
                            "remove _INTERSTATEVERIFY " + std::to_string(0x35841002)));
    EXPECT_EQ(session->commands().names(), QStringList(QStringLiteral("RECOLOR")));
    EXPECT_EQ(GetKvStandardManager(), nullptr);
    EXPECT_THAT(registeredClasses(), IsEmpty());
    unload();
}

TEST_F(StartAndStop, TheEndWithoutAManagerStillUnregistersTheClasses)
{
    start();
    CKvStdsManager *lost = GetKvStandardManager();
    SetKvStandardManager(nullptr);

    module->uninitApp();

    EXPECT_EQ(GetKvStandardManager(), nullptr);
    EXPECT_THAT(registeredClasses(), ElementsAre("CKvStdsFix", "CKvStdsError"));
    // Its reactor would be left on the editor.
    session.reset();
    delete lost;
    unload();
}

TEST_F(StartAndStop, ADocumentThatStaysOpenCanBeChangedAfterTheEnd)
{
    open("plan.dxf", QStringList(file("a.dws")));
    start();
    EXPECT_TRUE(hears());

    stop();

    EXPECT_FALSE(isResident());
    EXPECT_FALSE(hears());
}

TEST_F(StartAndStop, ACheckThatWaitsWhileTheModuleGoesIsAnUnknownCommand)
{
    open("plan.dxf", QStringList(file("a.dws")));
    start();
    session->commandLine().run(QStringLiteral("RECOLOR"));
    ASSERT_TRUE(session->commandLine().hasPosted());

    stop();
    while (session->commandLine().hasPosted()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    EXPECT_FALSE(isResident());
}

TEST_F(StartAndStop, AHundredLoadsLeaveNothingBehind)
{
    open("plan.dxf", QStringList(file("a.dws")));
    for (int i = 0; i < 100; ++i) {
        start();
        ASSERT_THAT(pluginIds(), SizeIs(4));
        ASSERT_TRUE(hears());

        stop();

        ASSERT_FALSE(isResident());
        ASSERT_EQ(session->commands().names(), QStringList(QStringLiteral("RECOLOR")));
        ASSERT_EQ(GetKvStandardManager(), nullptr);
        ASSERT_THAT(registeredClasses(), IsEmpty());
    }
    EXPECT_FALSE(hears());
}

TEST_F(StartAndStop, AClassThatIsThereAlreadyStopsTheStart)
{
    // In a process of its own: a start that breaks off leaves its beginning behind.
    const auto startWithForeignClass = [this] {
        registerForeignClass("CKvLineStylePluginImpl");
        load();
        int code = 0;
        try {
            module->initApp();
        } catch (const OdError &error) {
            code = error.code();
        }
        std::vector<std::string> upToThat = moduleClasses();
        upToThat.pop_back();
        const bool isAsFarAsThat = registeredClasses() == upToThat;
        std::_Exit(code == 313 && isAsFarAsThat && commandEvents.size() == 3 ? 0 : 1);
    };

    EXPECT_EXIT(startWithForeignClass(), testing::ExitedWithCode(0), "");
}

TEST_F(StartAndStop, AnEndWithoutAStartThrows)
{
    load();

    int code = 0;
    try {
        module->uninitApp();
    } catch (const OdError &error) {
        code = error.code();
    }

    EXPECT_EQ(code, 255);
    unload();
}

TEST_F(StartAndStop, WhatReadingTheStandardsThrowsReachesTheHost)
{
    const auto startOverDamage = [this] {
        CKvDrawingBuilder damaged;
        damaged.namedObjects().xrecord("AcStStandard").group(1, "a.dws");
        const QString path = folder.filePath(QStringLiteral("damaged.dxf"));
        damaged.saveTo(path);
        session->documentManager()->open(path);
        load();
        bool isThrown = false;
        try {
            module->initApp();
        } catch (const OdError_NotThatKindOfClass &) {
            isThrown = true;
        }
        std::_Exit(isThrown ? 0 : 1);
    };

    EXPECT_EXIT(startOverDamage(), testing::ExitedWithCode(0), "");
}
