// SPDX-License-Identifier: MIT
#include "CKvCommandTest.h"
#include "CKvCommandVerifyStandards.h"
#include "CKvTranslationNotes.h"
#include "OdStaticRxObject.h"
#include "activeDocument.h"

#include <QCheckBox>
#include <QDialogButtonBox>

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

constexpr char kFilesRequest[] = "evaluate 5005=_DWGSTANDARDS 5003=1 5000";
constexpr char kCategoriesRequest[] = "evaluate 5005=_DWGSTANDARDS 5003=2 5000";
constexpr char kNoFile[] = "CKvNoStandardsFileDlg";
constexpr char kMissing[] = "CKvMissingStandardsFileDlg";
constexpr char kNoCategory[] = "CKvNoDwgCategoriesSelectedDlg";
constexpr char kVerify[] = "CKvVerifyStandards";
constexpr int kOk = QDialogButtonBox::Ok;
constexpr int kCancel = QDialogButtonBox::Cancel;

struct VerifyStandards : CKvCommandTest {
    int run() { return command.execute(document->commandContext()); }
    std::string opened(const QString &path) const
    {
        return "layers.openStandards drawing drawing.dxf ["
            + QFileInfo(path).fileName().toStdString() + "] [" + path.toStdString() + "]";
    }

    OdStaticRxObject<CKvCommandVerifyStandards> command;
};

} // namespace

TEST_F(VerifyStandards, TellsItsNamesFlagsAndHelpTopic)
{
    EXPECT_EQ(command.globalName(), OdString("_VERIFYSTANDARDS"));
    EXPECT_EQ(command.localName(), OdString("VERIFYSTANDARDS"));
    EXPECT_EQ(command.flags(), 0x20000000);
    EXPECT_EQ(command.helpContextId(), 3072);
    EXPECT_EQ(command.groupName(), command.CKvCommand::groupName());
}

TEST_F(VerifyStandards, ItsLocalNameIsTranslated)
{
    const CKvTranslationNotes translator;

    EXPECT_EQ(
        command.localName(),
        OdString("CKvCommandVerifyStandards|VERIFYSTANDARDS|Command Name: Needs to be unique and "
                 "all uppercase."));
}

TEST_F(VerifyStandards, WithoutADrawingToEditItFails)
{
    open(QStringList(file("office.dws")));

    EXPECT_EQ(command.executeCommand(nullptr), -5001);

    document->hasDatabase = false;

    EXPECT_EQ(run(), -5001);
    EXPECT_THAT(shown(), IsEmpty());
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(VerifyStandards, WithAllFilesFoundTheDrawingIsChecked)
{
    const QString office = file("office.dws");
    open(QStringList(office));
    closeVerification();

    EXPECT_EQ(run(), 5100);

    EXPECT_THAT(shown(), ElementsAre(kVerify));
    EXPECT_THAT(openedStandards(), ElementsAre(opened(office)));
    EXPECT_THAT(requests(), IsEmpty());
}

TEST_F(VerifyStandards, TheDialogOverAViolationIsAChildOfTheMainWindow)
{
    open(QStringList(file("office.dws")));
    plugin.finds(document->layer("WALLS"), 1, 0);
    QWidget *parent = nullptr;
    user.answer(QLatin1String(kVerify), [&](QDialog &dialog) {
        parent = dialog.parentWidget();
        dialog.close();
    });

    EXPECT_EQ(run(), 5100);

    EXPECT_EQ(parent, host.mainWindow());
    EXPECT_THAT(shown(), ElementsAre(kVerify));
}

TEST_F(VerifyStandards, WithNoCategoryCheckedTheCategoriesAreOfferedBeforeAnyTestOfTheFiles)
{
    open({});
    plugin.disable();
    press(kNoCategory, kOk);

    EXPECT_EQ(run(), 5100);

    EXPECT_THAT(shown(), ElementsAre(kNoCategory));
    EXPECT_THAT(requests(), ElementsAre(kCategoriesRequest));
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(VerifyStandards, WithoutAnyPluginTheCategoriesAreOfferedToo)
{
    open(QStringList(file("office.dws")));
    manager->removePlugin(CKvStdsPluginsPtr(&plugin));
    press(kNoCategory, kOk);

    EXPECT_EQ(run(), 5100);

    EXPECT_THAT(shown(), ElementsAre(kNoCategory));
    EXPECT_THAT(requests(), ElementsAre(kCategoriesRequest));
}

TEST_F(VerifyStandards, CategoriesThatTheUserDoesNotWantAreNotAskedFor)
{
    open({});
    plugin.disable();
    uncheckAndPress(kNoCategory, kOk);
    EXPECT_EQ(run(), 5100);
    press(kNoCategory, kCancel);
    EXPECT_EQ(run(), 5100);

    EXPECT_THAT(shown(), ElementsAre(kNoCategory, kNoCategory));
    EXPECT_THAT(requests(), IsEmpty());
}

TEST_F(VerifyStandards, AnyOtherResultThanOkAsksForNoCategories)
{
    open({});
    plugin.disable();
    user.answer(QLatin1String(kNoCategory), [](QDialog &dialog) { dialog.done(2); });

    EXPECT_EQ(run(), 5100);

    EXPECT_THAT(requests(), IsEmpty());
}

TEST_F(VerifyStandards, ItsMessagesAreChildrenOfTheMainWindow)
{
    std::vector<const QWidget *> parents;
    for (const char *message : { kNoCategory, kNoFile, kMissing }) {
        user.answer(QLatin1String(message), [&parents](QDialog &dialog) {
            parents.push_back(dialog.parentWidget());
            dialog.reject();
        });
    }
    open({});

    plugin.setEnabled(false);
    run();
    plugin.setEnabled(true);
    run();
    document.reset();
    open(QStringList(path("gone.dws")));
    run();

    EXPECT_THAT(shown(), ElementsAre(kNoCategory, kNoFile, kMissing));
    EXPECT_THAT(parents, testing::AllOf(testing::SizeIs(3), testing::Each(host.mainWindow())));
}

TEST_F(VerifyStandards, OneCategoryThatIsCheckedIsEnough)
{
    CKvRecordingPlugin other("styles", calls);
    manager->addPlugin(CKvStdsPluginsPtr(&other));
    plugin.disable();
    open(QStringList(file("office.dws")));
    closeVerification();

    EXPECT_EQ(run(), 5100);

    EXPECT_THAT(shown(), ElementsAre(kVerify));
    EXPECT_THAT(openedStandards(), testing::SizeIs(1));
    manager->removePlugin(CKvStdsPluginsPtr(&other));
}

TEST_F(VerifyStandards, WithNoFileListedTheFilesAreOffered)
{
    open({});
    press(kNoFile, kOk);

    EXPECT_EQ(run(), 5100);

    EXPECT_THAT(shown(), ElementsAre(kNoFile));
    EXPECT_THAT(requests(), ElementsAre(kFilesRequest));
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(VerifyStandards, AListWithoutAPathCountsAsNone)
{
    CKvDrawingBuilder builder;
    builder.namedObjects().dictionary("AcStStandard").xrecord("0").group(300, "x.dws");
    document.emplace(builder);
    press(kNoFile, kCancel);

    EXPECT_EQ(run(), 5100);

    EXPECT_THAT(shown(), ElementsAre(kNoFile));
}

TEST_F(VerifyStandards, WithNoFileListedAnyOtherAnswerEndsIt)
{
    open({});
    uncheckAndPress(kNoFile, kOk);
    run();
    press(kNoFile, kCancel);
    run();
    uncheckAndPress(kNoFile, kCancel);
    run();

    EXPECT_THAT(shown(), ElementsAre(kNoFile, kNoFile, kNoFile));
    EXPECT_THAT(requests(), IsEmpty());
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(VerifyStandards, ADrawingWithOnlyUnfoundFilesMissesThem)
{
    open(QStringList(path("gone.dws")));
    press(kMissing, kOk);

    EXPECT_EQ(run(), 5100);

    EXPECT_THAT(shown(), ElementsAre(kMissing));
    EXPECT_THAT(requests(), ElementsAre(kFilesRequest));
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(VerifyStandards, OneMissingFileStopsItEvenWhenOthersAreThere)
{
    const QString office = file("office.dws");
    for (const QStringList &files :
         { QStringList { office, path("gone.dws") }, QStringList { path("gone.dws"), office } }) {
        document.reset();
        open(files);
        press(kMissing, kCancel);

        EXPECT_EQ(run(), 5100);
    }

    EXPECT_THAT(shown(), ElementsAre(kMissing, kMissing));
    EXPECT_THAT(requests(), IsEmpty());
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(VerifyStandards, WithAFileMissingTheBoxTakenOffIsARefusal)
{
    open(QStringList(path("gone.dws")));
    uncheckAndPress(kMissing, kOk);

    EXPECT_EQ(run(), 5100);

    EXPECT_THAT(requests(), IsEmpty());
}

TEST_F(VerifyStandards, AnyOtherResultOfTheDialogAsksForTheFiles)
{
    open({});
    user.answer(QLatin1String(kNoFile), [](QDialog &dialog) {
        dialog.findChild<QCheckBox *>()->click();
        dialog.done(2);
    });

    EXPECT_EQ(run(), 5100);

    EXPECT_THAT(requests(), ElementsAre(kFilesRequest));
}

TEST_F(VerifyStandards, AFileThatTheSearchFindsCountsAndIsUsed)
{
    const QString found = file("found/office.dws");
    host.setSupportFile("office.dws", found);
    open(QStringList(path("gone/office.dws")));
    closeVerification();

    EXPECT_EQ(run(), 5100);

    EXPECT_THAT(shown(), ElementsAre(kVerify));
    EXPECT_THAT(openedStandards(), ElementsAre(opened(found)));
    EXPECT_THAT(
        host.callsOf("findFile"),
        ElementsAre("findFile office.dws 0 database 0", "findFile office.dws 0 database 0"));
}

TEST_F(VerifyStandards, AFileThatTheSearchNamesButThatIsNotThereIsMissing)
{
    host.setSupportFile("office.dws", path("found/office.dws"));
    open(QStringList(path("gone/office.dws")));
    press(kMissing, kCancel);

    EXPECT_EQ(run(), 5100);

    EXPECT_THAT(shown(), ElementsAre(kMissing));
}

TEST_F(VerifyStandards, APathWithBackslashesIsTestedAsItStands)
{
    QString listed = file("office.dws");
    listed.replace(QLatin1Char('/'), QLatin1Char('\\'));
    open(QStringList(listed));
    press(kMissing, kCancel);

    EXPECT_EQ(run(), 5100);

    EXPECT_THAT(shown(), ElementsAre(kMissing));
    EXPECT_TRUE(manager->loadDocumentStandards(&*document));
}

TEST_F(VerifyStandards, ARefusalDoesNotCarryOverToTheNextRun)
{
    open(QStringList(path("gone.dws")));
    press(kMissing, kCancel);
    run();
    file("gone.dws");
    closeVerification();

    run();

    EXPECT_THAT(shown(), ElementsAre(kMissing, kVerify));
}

TEST_F(VerifyStandards, WithoutAManagerTheFilesAreTestedAllTheSame)
{
    withoutManager();
    open(QStringList(path("gone.dws")));
    press(kMissing, kOk);

    EXPECT_EQ(run(), 5100);

    EXPECT_THAT(shown(), ElementsAre(kMissing));
    EXPECT_THAT(requests(), ElementsAre(kFilesRequest));
}

TEST_F(VerifyStandards, WithoutAManagerACleanListEndsWithoutACheck)
{
    withoutManager();
    open(QStringList(file("office.dws")));

    EXPECT_EQ(run(), 5100);

    EXPECT_THAT(shown(), IsEmpty());
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(VerifyStandards, WithoutAnActiveDocumentNothingIsShown)
{
    open(QStringList(path("gone.dws")));
    setActiveDocument(nullptr);

    EXPECT_EQ(run(), 5100);

    setActiveDocument(&*document);
    EXPECT_THAT(shown(), IsEmpty());
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(VerifyStandards, AnEntryThatIsNoXrecordThrows)
{
    CKvDrawingBuilder builder;
    builder.namedObjects().dictionary("AcStStandard").dictionary("0");
    document.emplace(builder);

    EXPECT_THROW(run(), OdError_NotThatKindOfClass);
}

TEST_F(VerifyStandards, AListThatIsNoDictionaryThrows)
{
    CKvDrawingBuilder builder;
    builder.namedObjects().xrecord("AcStStandard").group(1, "x.dws");
    document.emplace(builder);

    EXPECT_THROW(run(), OdError_NotThatKindOfClass);
}

TEST_F(VerifyStandards, WhatAPluginThrowsReachesTheHost)
{
    open(QStringList(file("office.dws")));
    plugin.failsIn("openStandards");

    EXPECT_THROW(run(), OdError);
}
