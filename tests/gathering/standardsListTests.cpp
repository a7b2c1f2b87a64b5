// SPDX-License-Identifier: MIT
#include "standardsList.h"

#include "CKvDrawingBuilder.h"
#include "CKvDrawingFile.h"
#include "OdDbDictionary.h"

#include <gtest/gtest.h>

namespace
{

/// The paths, one a line.
std::string listed(const OdDbDatabase &drawing,
                   ForeignListEntry foreignEntry = ForeignListEntry::PassOver)
{
    std::string text;
    for (const CKvString &path : readStandardsList(drawing, foreignEntry)) {
        text += path.toQString().toStdString() + "\n";
    }
    return text;
}

/// The drawing as it is when somebody saves and opens it.
OdDbDatabasePtr reopened(const OdDbDatabase &drawing)
{
    return CKvDrawingFile::fromBytes(CKvDrawingFile::toBytes(drawing));
}

} // namespace

TEST(StandardsList, ADrawingWithoutOneHasAnEmptyList)
{
    CKvDrawingBuilder drawing;

    EXPECT_EQ(listed(*drawing.open()), "");
}

TEST(StandardsList, ADrawingWithoutDictionariesHasAnEmptyList)
{
    CKvDrawingBuilder drawing("AC1009");

    EXPECT_EQ(listed(*drawing.open()), "");
}

TEST(StandardsList, PathsComeInTheOrderOfTheKeysAndAsTheyAreStored)
{
    CKvDrawingBuilder drawing;
    auto &list = drawing.namedObjects().dictionary("AcStStandard");
    list.xrecord("2").group(1, "C:\\std\\second.dws");
    list.xrecord("1").group(1, "/std/first.dws");

    EXPECT_EQ(listed(*drawing.open()), "/std/first.dws\nC:\\std\\second.dws\n");
}

TEST(StandardsList, KeysAreNeverLookedAt)
{
    CKvDrawingBuilder drawing;
    auto &list = drawing.namedObjects().dictionary("AcStStandard");
    list.xrecord("whatever").group(1, "/std/b.dws");
    list.xrecord("").group(1, "/std/a.dws");

    EXPECT_EQ(listed(*drawing.open()), "/std/a.dws\n/std/b.dws\n");
}

TEST(StandardsList, OnlyTheFirstValueOfAnEntryCounts)
{
    CKvDrawingBuilder drawing;
    auto &list = drawing.namedObjects().dictionary("AcStStandard");
    list.xrecord("0").group(1, "/std/a.dws").group(1, "/std/ignored.dws").group(70, 3);
    list.xrecord("1").group(70, 1).group(1, "/std/skipped.dws");
    list.xrecord("2").group(2, "/std/skipped-too.dws");
    list.xrecord("3");
    list.xrecord("4").group(1, "/std/b.dws");

    EXPECT_EQ(listed(*drawing.open()), "/std/a.dws\n/std/b.dws\n");
}

TEST(StandardsList, AForeignEntryIsPassedOverOrThrowsAsTheReaderWants)
{
    CKvDrawingBuilder drawing;
    auto &list = drawing.namedObjects().dictionary("AcStStandard");
    list.dictionary("0");
    list.xrecord("1").group(1, "/std/a.dws");
    const OdDbDatabasePtr database = drawing.open();

    EXPECT_EQ(listed(*database, ForeignListEntry::PassOver), "/std/a.dws\n");
    EXPECT_THROW(listed(*database, ForeignListEntry::Throw), OdError_NotThatKindOfClass);
}

TEST(StandardsList, AListThatIsNoDictionaryThrows)
{
    CKvDrawingBuilder drawing;
    drawing.namedObjects().xrecord("AcStStandard").group(1, "/std/a.dws");
    const OdDbDatabasePtr database = drawing.open();

    EXPECT_THROW(listed(*database, ForeignListEntry::PassOver), OdError_NotThatKindOfClass);
    EXPECT_THROW(listed(*database, ForeignListEntry::Throw), OdError_NotThatKindOfClass);
    EXPECT_THROW(appendToStandardsList(*database, CKvString("/std/b.dws")),
                 OdError_NotThatKindOfClass);
}

TEST(StandardsList, ReadingChangesNothing)
{
    CKvDrawingBuilder drawing;
    drawing.standardsFiles({ QStringLiteral("/std/a.dws") });
    const OdDbDatabasePtr database = drawing.open();

    listed(*database);

    EXPECT_FALSE(CKvDrawingFile::isChanged(*database));
}

TEST(StandardsList, AnAppendedFileComesLastAlsoBehindTheTenth)
{
    const OdDbDatabasePtr drawing = CKvDrawingBuilder().open();
    std::string expected;

    for (int i = 0; i < 130; ++i) {
        const QString path = QStringLiteral("/std/%1.dws").arg(i);
        appendToStandardsList(*drawing, CKvString(path));
        expected += path.toStdString() + "\n";
    }

    EXPECT_EQ(listed(*drawing), expected);
    EXPECT_EQ(listed(*reopened(*drawing)), expected);
}

TEST(StandardsList, AnAppendedFileComesBehindKeysOfAnyKind)
{
    CKvDrawingBuilder drawing;
    auto &list = drawing.namedObjects().dictionary("AcStStandard");
    list.xrecord("office").group(1, "/std/a.dws");
    const OdDbDatabasePtr database = drawing.open();

    appendToStandardsList(*database, CKvString("/std/b.dws"));
    appendToStandardsList(*database, CKvString("/std/c.dws"));

    EXPECT_EQ(listed(*reopened(*database)), "/std/a.dws\n/std/b.dws\n/std/c.dws\n");
}

TEST(StandardsList, TheFirstFilesHaveTheUsualKeys)
{
    const OdDbDatabasePtr drawing = CKvDrawingBuilder().open();
    appendToStandardsList(*drawing, CKvString("/std/a.dws"));
    appendToStandardsList(*drawing, CKvString("/std/b.dws"));
    const OdDbDictionaryPtr root(drawing->getNamedObjectsDictionaryId().openObject());
    const OdDbDictionaryPtr list(root->getAt(OdString("AcStStandard"), OdDb::kForRead));

    std::string keys;
    for (auto walk = list->newIterator(); !walk->done(); walk->next()) {
        keys += walk->name().toQString().toStdString() + " ";
    }

    EXPECT_EQ(keys, "0 1 ");
}

TEST(StandardsList, ADrawingOfR12RefusesAListAndSaysWhatToDo)
{
    const OdDbDatabasePtr drawing = CKvDrawingBuilder("AC1009").open();

    try {
        appendToStandardsList(*drawing, CKvString("/std/a.dws"));
        FAIL() << "The list was stored.";
    } catch (const OdError &error) {
        EXPECT_EQ(error.code(), int(OdResult::kUnsupportedByVersion));
        EXPECT_STREQ(error.what(),
                     "A drawing of R12 or older has no place for a list of standards files. Save "
                     "it as R2000 or newer first.");
    }
    EXPECT_FALSE(CKvDrawingFile::isChanged(*drawing));
}

TEST(StandardsList, RemovingTakesOutEveryEntryWithThatText)
{
    CKvDrawingBuilder drawing;
    drawing.standardsFiles({ QStringLiteral("/std/a.dws"),
                             QStringLiteral("/std/b.dws"),
                             QStringLiteral("/std/a.dws"),
                             QStringLiteral("/std/A.dws") });
    const OdDbDatabasePtr database = drawing.open();

    EXPECT_EQ(removeFromStandardsList(*database, CKvString("/std/a.dws")), 2);
    EXPECT_EQ(listed(*reopened(*database)), "/std/b.dws\n/std/A.dws\n");
}

TEST(StandardsList, RemovingWhatIsNotListedChangesNothing)
{
    CKvDrawingBuilder drawing;
    drawing.standardsFiles({ QStringLiteral("/std/a.dws") });
    const OdDbDatabasePtr database = drawing.open();
    const OdDbDatabasePtr without = CKvDrawingBuilder().open();

    EXPECT_EQ(removeFromStandardsList(*database, CKvString("/std/b.dws")), 0);
    EXPECT_EQ(removeFromStandardsList(*without, CKvString("/std/b.dws")), 0);
    EXPECT_FALSE(CKvDrawingFile::isChanged(*database));
    EXPECT_FALSE(CKvDrawingFile::isChanged(*without));
}

TEST(StandardsList, NamesInAnyScriptComeBackFromTheFile)
{
    const QString path = QStringLiteral("/std/Büro 標準.dws");
    for (const char *version : { "AC1015", "AC1032" }) {
        const OdDbDatabasePtr drawing = CKvDrawingBuilder(version).open();

        appendToStandardsList(*drawing, CKvString(path));

        EXPECT_EQ(listed(*reopened(*drawing)), path.toStdString() + "\n") << version;
    }
}
