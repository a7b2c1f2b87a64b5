// SPDX-License-Identifier: MIT
#include "CKvDictionaryBuilder.h"
#include "CKvManagerTest.h"
#include "CKvRecordingPlugin.h"

#include <QCoreApplication>
#include <QFile>
#include <QTranslator>

namespace
{

struct LoadStandards : CKvManagerTest {
    static std::string line(const QString &path)
    {
        return path.toStdString() + " (" + QFileInfo(path).fileName().toStdString() + ")\n";
    }
};

/// "None" in the user's language.
class CKvGermanNone : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        const bool isNone =
            qstrcmp(context, "CKvStdsManagerImpl") == 0 && qstrcmp(text, "None") == 0;
        return isNone ? QStringLiteral("Keine") : QString();
    }
};

} // namespace

TEST_F(LoadStandards, ADocumentThatIsNotThereChangesNothing)
{
    openTracked();
    const std::string before = standardsFiles();

    EXPECT_FALSE(manager->loadDocumentStandards(nullptr));

    EXPECT_EQ(standardsFiles(), before);
}

TEST_F(LoadStandards, ADocumentWithoutADrawingChangesNothing)
{
    CKvSessionDocument &opened = openTracked();
    const std::string before = standardsFiles();
    opened.hasDatabase = false;

    EXPECT_FALSE(manager->loadDocumentStandards(&opened));

    opened.hasDatabase = true;
    EXPECT_EQ(standardsFiles(), before);
    EXPECT_TRUE(hears(opened));
}

TEST_F(LoadStandards, FilesThatExistAreUsableAndTheDocumentIsWatched)
{
    const QString a = file("a.dws");
    const QString b = file("b.dws");
    CKvSessionDocument &opened = open({ b, a });

    EXPECT_TRUE(manager->loadDocumentStandards(&opened));

    EXPECT_EQ(standardsFiles(), line(b) + line(a));
    EXPECT_TRUE(manager->isTracked(&opened));
    EXPECT_TRUE(hears(opened));
}

TEST_F(LoadStandards, ADrawingWithoutAListHasNoFilesAndIsNotWatched)
{
    CKvSessionDocument &opened = open(QStringList());

    EXPECT_FALSE(manager->loadDocumentStandards(&opened));

    EXPECT_EQ(standardsFiles(), "");
    EXPECT_FALSE(manager->isTracked(&opened));
    EXPECT_FALSE(hears(opened));
}

TEST_F(LoadStandards, FilesThatAreAllGoneCountAsNone)
{
    CKvSessionDocument &opened = openTracked();
    QFile::remove(path("office.dws"));

    EXPECT_FALSE(manager->loadDocumentStandards(&opened));

    EXPECT_EQ(standardsFiles(), "");
    EXPECT_FALSE(manager->isTracked(&opened));
    EXPECT_FALSE(hears(opened));
}

TEST_F(LoadStandards, AFileThatTheSearchFindsStandsForTheOneThatIsGone)
{
    const QString found = file("found/office.dws");
    host.setSupportFile("office.dws", found);
    CKvSessionDocument &opened = open({ path("gone/office.dws"), path("gone/other.dws") });

    EXPECT_TRUE(manager->loadDocumentStandards(&opened));

    EXPECT_EQ(standardsFiles(), line(found));
    EXPECT_EQ(host.callsOf("findFile"),
              (std::vector<std::string> { "findFile office.dws 0 database 0",
                                          "findFile other.dws 0 database 0" }));
}

TEST_F(LoadStandards, AFileThatTheSearchNamesButThatIsNotThereIsLeftOut)
{
    host.setSupportFile("office.dws", path("found/office.dws"));
    CKvSessionDocument &opened = open(QStringList(path("gone/office.dws")));

    EXPECT_FALSE(manager->loadDocumentStandards(&opened));

    EXPECT_EQ(standardsFiles(), "");
}

TEST_F(LoadStandards, BackslashesBecomeForwardSlashes)
{
    const QString office = file("office.dws");
    QString listed = office;
    listed.replace(QLatin1Char('/'), QLatin1Char('\\'));
    CKvSessionDocument &opened = open(QStringList(listed));

    EXPECT_TRUE(manager->loadDocumentStandards(&opened));

    EXPECT_EQ(standardsFiles(), line(office));
}

TEST_F(LoadStandards, ThePreferredFileNoneLeavesTheOrderOfTheList)
{
    const QString a = file("a.dws");
    const QString b = file("b.dws");
    host.setPreferredStandardsFile(QStringLiteral("none"));

    manager->loadDocumentStandards(&open({ b, a }));

    EXPECT_EQ(standardsFiles(), line(b) + line(a));
    EXPECT_EQ(host.callsOf("readFile"), std::vector<std::string>());
}

TEST_F(LoadStandards, ThePreferredFileNoneIsKnownInTheUsersLanguage)
{
    const QString listed = QDir(folder.path()).filePath(QStringLiteral("Keine"));
    CKvGermanNone german;
    QCoreApplication::installTranslator(&german);
    const QString before = QDir::currentPath();
    QDir::setCurrent(folder.path());
    file("Keine");
    host.setPreferredStandardsFile(QStringLiteral("KEINE"));
    CKvSessionDocument &opened = open(QStringList(QStringLiteral("Keine")));

    EXPECT_FALSE(manager->loadDocumentStandards(&opened));

    QDir::setCurrent(before);
    QCoreApplication::removeTranslator(&german);
    EXPECT_EQ(standardsFiles(), "");
    EXPECT_TRUE(QFileInfo::exists(listed));
}

TEST_F(LoadStandards, AListedPreferredFileStandsFirstOnceAndAsTheSettingSpellsIt)
{
    const QString a = file("a.dws");
    const QString b = file("B.dws");
    host.setPreferredStandardsFile(b);

    EXPECT_TRUE(manager->loadDocumentStandards(&open({ a, path("b.DWS"), b })));

    EXPECT_EQ(standardsFiles(), line(b) + line(a));
    EXPECT_EQ(host.callsOf("readFile"),
              std::vector<std::string> { "readFile " + b.toStdString() + " false true 64 ''" });
}

TEST_F(LoadStandards, APreferredFileThatIsNotListedIsNotAdded)
{
    const QString a = file("a.dws");
    host.setPreferredStandardsFile(file("b.dws"));

    manager->loadDocumentStandards(&open(QStringList(a)));

    EXPECT_EQ(standardsFiles(), line(a));
}

TEST_F(LoadStandards, APreferredFileThatIsGoneIsNotSearched)
{
    const QString a = file("a.dws");
    host.setPreferredStandardsFile(path("gone/b.dws"));
    host.setSupportFile("b.dws", file("b.dws"));

    manager->loadDocumentStandards(&open({ path("gone/b.dws"), a }));

    EXPECT_EQ(standardsFiles(), line(a));
    EXPECT_EQ(host.callsOf("findFile"), std::vector<std::string>());
}

TEST_F(LoadStandards, APathListedTwiceCountsOnce)
{
    const QString a = file("a.dws");

    manager->loadDocumentStandards(&open({ a, a }));

    EXPECT_EQ(standardsFiles(), line(a));
}

TEST_F(LoadStandards, APathListedTwiceInOtherLettersCountsTwice)
{
    const QString lower = file("a.dws");
    const QString upper = file("A.dws");

    manager->loadDocumentStandards(&open({ lower, upper }));

    EXPECT_EQ(standardsFiles(), line(lower) + line(upper));
}

TEST_F(LoadStandards, FilesOfOneNameInTwoFoldersAreTwo)
{
    const QString a = file("x/office.dws");
    const QString b = file("y/office.dws");

    manager->loadDocumentStandards(&open({ a, b }));

    EXPECT_EQ(standardsFiles(), line(a) + line(b));
}

TEST_F(LoadStandards, TwoGonePathsThatTheSearchLeadsToOneFileCountTwice)
{
    const QString found = file("found/a.dws");
    host.setSupportFile("a.dws", found);

    manager->loadDocumentStandards(&open({ path("x/a.dws"), path("y/a.dws") }));

    EXPECT_EQ(standardsFiles(), line(found) + line(found));
}

TEST_F(LoadStandards, EntriesThatAreNoPathArePassedOver)
{
    const QString a = file("a.dws");
    CKvDrawingBuilder drawing;
    CKvDictionaryBuilder &list = drawing.namedObjects().dictionary("AcStStandard");
    list.dictionary("0");
    list.xrecord("1").group(300, path("b.dws"));
    list.xrecord("2").group(1, a).group(1, path("c.dws"));

    manager->loadDocumentStandards(&open(drawing));

    EXPECT_EQ(standardsFiles(), line(a));
}

TEST_F(LoadStandards, AListThatIsNoDictionaryThrowsAndTheFormerFilesAreForgotten)
{
    openTracked();
    CKvDrawingBuilder drawing;
    drawing.namedObjects().xrecord("AcStStandard").group(1, file("a.dws"));
    CKvSessionDocument damaged(drawing);

    EXPECT_THROW(manager->loadDocumentStandards(&damaged), OdError_NotThatKindOfClass);

    EXPECT_EQ(standardsFiles(), "");
}

TEST_F(LoadStandards, WhatReadingThePreferredFileThrowsPassesThrough)
{
    const QString a = file("a.dws");
    host.setPreferredStandardsFile(a);
    host.setFailure(a, 27);

    EXPECT_THROW(manager->loadDocumentStandards(&open(QStringList(a))), OdError);
}

TEST_F(LoadStandards, ADocumentStaysWatchedWhenAnotherOneBecomesCurrent)
{
    CKvSessionDocument &first = openTracked();
    CKvSessionDocument second(CKvDrawingBuilder {});

    EXPECT_FALSE(manager->loadDocumentStandards(&second));

    EXPECT_TRUE(hears(first));
    EXPECT_EQ(standardsFiles(), "");
}

TEST_F(LoadStandards, LoadingTwiceAttachesTheReactorOnce)
{
    CKvSessionDocument &opened = openTracked();
    manager->loadDocumentStandards(&opened);

    manager->untrackDocument(&opened);

    EXPECT_FALSE(hears(opened));
}

TEST_F(LoadStandards, UntrackingADocumentThatIsNotWatchedDoesNothing)
{
    CKvSessionDocument &opened = open(QStringList());

    manager->untrackDocument(&opened);

    EXPECT_FALSE(manager->isTracked(&opened));
}

TEST_F(LoadStandards, ADocumentThatHasLostItsDrawingIsNoLongerWatched)
{
    CKvSessionDocument &opened = openTracked();
    opened.hasDatabase = false;

    manager->untrackDocument(&opened);

    EXPECT_FALSE(manager->isTracked(&opened));
}

TEST_F(LoadStandards, WithoutServicesNothingChanges)
{
    CKvSessionDocument &opened = openTracked();
    const std::string before = standardsFiles();
    SetKvSystemServices(nullptr);

    EXPECT_FALSE(manager->loadDocumentStandards(&opened));

    SetKvSystemServices(&host);
    EXPECT_EQ(standardsFiles(), before);
}

TEST_F(LoadStandards, NoPluginIsNeededForFilesToBeUsable)
{
    CKvSessionDocument &opened = open(QStringList(file("office.dws")));

    EXPECT_TRUE(manager->loadDocumentStandards(&opened));
    EXPECT_TRUE(manager->hasUsableStandards());
}
