// SPDX-License-Identifier: MIT
#include "CKvStandardsFiles.h"

#include "CKvDrawingBuilder.h"
#include "CKvDrawingFile.h"
#include "CKvStandaloneServices.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace
{

/// A folder with standards files; the drawing is in "plans".
class StandardsFiles : public ::testing::Test
{
protected:
    QString path(const char *name) const { return folder.filePath(QString::fromUtf8(name)); }
    /// Makes a standards file.
    QString file(const char *name)
    {
        QDir().mkpath(QFileInfo(path(name)).absolutePath());
        CKvDrawingBuilder().saveTo(path(name));
        return path(name);
    }
    void prefer(const QString &preferred)
    {
        services.standardsSettings()->setPreferredStandardsFile(CKvString(preferred));
    }
    /// "path (name)" a line, then "missing: path".
    std::string loaded(const QStringList &listed)
    {
        CKvDrawingBuilder drawing;
        drawing.standardsFiles(listed);
        return loadedFrom(drawing);
    }
    std::string loadedFrom(const CKvDrawingBuilder &drawing)
    {
        QDir().mkpath(path("plans"));
        drawing.saveTo(path("plans/drawing.dxf"));
        const OdDbDatabasePtr database = CKvDrawingFile::open(path("plans/drawing.dxf"));
        files.load(*database, services);
        return text();
    }
    std::string text() const
    {
        std::string lines;
        for (std::size_t i = 0; i < files.paths().size(); ++i) {
            lines += files.paths()[i].toQString().toStdString() + " ("
                + files.names().at(i).toQString().toStdString() + ")\n";
        }
        for (const CKvString &missing : files.missing()) {
            lines += "missing: " + missing.toQString().toStdString() + "\n";
        }
        return lines;
    }
    static std::string line(const QString &path)
    {
        return path.toStdString() + " (" + QFileInfo(path).fileName().toStdString() + ")\n";
    }

    QTemporaryDir folder;
    CKvStandaloneServices services;
    CKvStandardsFiles files;
};

} // namespace

TEST_F(StandardsFiles, ADrawingWithoutAListHasNone)
{
    EXPECT_EQ(loadedFrom(CKvDrawingBuilder()), "");
    EXPECT_EQ(loadedFrom(CKvDrawingBuilder("AC1009")), "");
}

TEST_F(StandardsFiles, FilesThatExistComeInTheOrderOfTheList)
{
    const QString b = file("std/b.dws");
    const QString a = file("std/a.dws");

    EXPECT_EQ(loaded({ b, a }), line(b) + line(a));
}

TEST_F(StandardsFiles, BackslashesCountAsForwardSlashes)
{
    const QString a = file("std/a.dws");
    QString stored = a;
    stored.replace(QLatin1Char('/'), QLatin1Char('\\'));

    EXPECT_EQ(loaded({ stored }), line(a));
}

TEST_F(StandardsFiles, AFileThatIsGoneIsSearchedByItsBareName)
{
    const QString beside = file("plans/a.dws");

    EXPECT_EQ(loaded({ QStringLiteral("C:\\std\\a.dws") }), line(beside));
}

TEST_F(StandardsFiles, AFileThatIsNowhereIsMissingAndSpelledAsStored)
{
    const QString a = file("std/a.dws");

    EXPECT_EQ(loaded({ QStringLiteral("C:\\std\\gone.dws"), a }),
              line(a) + "missing: C:\\std\\gone.dws\n");
}

TEST_F(StandardsFiles, AllFilesMissingLeavesNone)
{
    EXPECT_EQ(loaded({ QStringLiteral("/no/a.dws"), QStringLiteral("/no/b.dws") }),
              "missing: /no/a.dws\nmissing: /no/b.dws\n");
}

TEST_F(StandardsFiles, APathListedTwiceInOneSpellingCountsOnce)
{
    const QString a = file("std/a.dws");

    EXPECT_EQ(loaded({ a, a }), line(a));
}

#ifdef __linux__
TEST_F(StandardsFiles, APathListedTwiceInDifferentCaseCountsTwice)
{
    const QString lower = file("std/a.dws");
    const QString upper = file("std/A.dws");

    EXPECT_EQ(loaded({ lower, upper }), line(lower) + line(upper));
}
#endif

TEST_F(StandardsFiles, TwoGonePathsThatTheSearchLeadsToOneFileGiveItTwice)
{
    const QString beside = file("plans/a.dws");

    EXPECT_EQ(loaded({ QStringLiteral("/old/a.dws"), QStringLiteral("/older/a.dws") }),
              line(beside) + line(beside));
}

TEST_F(StandardsFiles, FilesOfOneNameInDifferentFoldersAreTwo)
{
    const QString first = file("one/a.dws");
    const QString second = file("two/a.dws");

    EXPECT_EQ(loaded({ first, second }), line(first) + line(second));
}

TEST_F(StandardsFiles, ThePreferredFileComesFirstOnce)
{
    const QString a = file("std/a.dws");
    const QString b = file("std/b.dws");
    prefer(b);

    EXPECT_EQ(loaded({ a, b }), line(b) + line(a));
    EXPECT_EQ(loaded({ a, b, b }), line(b) + line(a));
}

TEST_F(StandardsFiles, ThePreferredFileIsFoundWithoutRegardToCaseAndSpelledAsTheSettingHasIt)
{
    const QString a = file("std/a.dws");
    const QString b = file("std/b.dws");
    prefer(b);

    EXPECT_EQ(loaded({ a, path("STD/B.dws") }), line(b) + line(a));
}

TEST_F(StandardsFiles, ThePreferredFileIsReadOnceAndLetGo)
{
    const QString a = file("std/a.dws");
    prefer(a);

    loaded({ a });

    const auto outcome = services.hostAppServices()->outcome(a);
    EXPECT_EQ(outcome.status, CKvStandaloneAppServices::ReadStatus::Read);
}

TEST_F(StandardsFiles, APreferredFileThatTheDrawingDoesNotListIsNotAdded)
{
    const QString a = file("std/a.dws");
    prefer(file("std/b.dws"));

    EXPECT_EQ(loaded({ a }), line(a));
}

TEST_F(StandardsFiles, APreferredFileThatIsGoneIsDroppedWithoutASearch)
{
    const QString a = file("std/a.dws");
    file("plans/b.dws");
    prefer(path("std/b.dws"));

    EXPECT_EQ(loaded({ a, path("std/b.dws") }),
              line(a) + "missing: " + path("std/b.dws").toStdString() + "\n");
}

TEST_F(StandardsFiles, ThePreferredTextIsNotNormalised)
{
    const QString a = file("std/a.dws");
    const QString b = file("std/b.dws");
    QString backslashed = b;
    backslashed.replace(QLatin1Char('/'), QLatin1Char('\\'));
    prefer(backslashed);

    EXPECT_EQ(loaded({ a, backslashed }), line(a) + line(b));
}

TEST_F(StandardsFiles, NoneKeepsTheOrderOfTheListAlsoWhenAFileIsCalledSo)
{
    const QString a = file("std/a.dws");
    const QString none = file("plans/none");
    prefer(QStringLiteral("None"));

    EXPECT_EQ(loaded({ a }), line(a));
    // Listed by this name it has the treatment of the preferred file, and that leaves it out.
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(path("plans")));
    const std::string listed = loaded({ a, QStringLiteral("none") });
    QDir::setCurrent(before);
    EXPECT_EQ(listed, line(a) + "missing: none\n");
}

TEST_F(StandardsFiles, ADamagedListThrowsAndLeavesNothing)
{
    loaded({ file("std/a.dws") });
    CKvDrawingBuilder damaged;
    damaged.namedObjects().xrecord("AcStStandard").group(1, "/std/a.dws");

    EXPECT_THROW(loadedFrom(damaged), OdError_NotThatKindOfClass);
    EXPECT_EQ(text(), "");
}

TEST_F(StandardsFiles, AForeignEntryIsPassedOver)
{
    const QString a = file("std/a.dws");
    CKvDrawingBuilder drawing;
    auto &list = drawing.namedObjects().dictionary("AcStStandard");
    list.dictionary("0");
    list.xrecord("1").group(1, a);

    EXPECT_EQ(loadedFrom(drawing), line(a));
}

TEST_F(StandardsFiles, LoadingAgainDropsWhatWasThere)
{
    const QString a = file("std/a.dws");
    const QString b = file("std/b.dws");
    loaded({ a, QStringLiteral("/no/gone.dws") });

    EXPECT_EQ(loaded({ b }), line(b));
}

TEST_F(StandardsFiles, AFileIsFoundAtItsPathElseByItsNameElseNowhere)
{
    const QString there = file("std/there.dws");
    const QString beside = file("plans/beside.dws");
    CKvDrawingBuilder().saveTo(path("plans/drawing.dxf"));
    const OdDbDatabasePtr database = CKvDrawingFile::open(path("plans/drawing.dxf"));
    const auto found = [&](const QString &listed) {
        return CKvStandardsFiles::find(CKvString(listed), *database, services).toQString();
    };

    EXPECT_EQ(found(QString(there).replace(QLatin1Char('/'), QLatin1Char('\\'))), there);
    EXPECT_EQ(found(QStringLiteral("C:\\std\\beside.dws")), beside);
    EXPECT_EQ(found(QStringLiteral("C:\\std\\there.dws")), QString());
}
