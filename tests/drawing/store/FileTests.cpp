// SPDX-License-Identifier: MIT
#include "CKvDrawingBuilder.h"
#include "CKvDrawingFile.h"
#include "CKvDxfError.h"
#include "OdDbDictionary.h"
#include "OdDbLayerTable.h"
#include "OdDbLayerTableRecord.h"
#include "OdDbXrecord.h"
#include "drawingText.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>

#include <sys/resource.h>

namespace
{

void changeLayer(const OdDbDatabasePtr &drawing, const char *name)
{
    const OdDbLayerTablePtr layers(drawing->getLayerTableId().openObject());
    const OdDbLayerTableRecordPtr layer(layers->getAt(OdString(name)).openObject(OdDb::kForWrite));
    layer->setColor(OdCmColor::byIndex(6));
}

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

/// The error that opening these bytes gives, or the warnings behind "opened".
QString outcome(const QByteArray &bytes)
{
    try {
        const OdDbDatabasePtr drawing = CKvDrawingFile::fromBytes(bytes, QStringLiteral("x.dxf"));
        const QByteArray again = CKvDrawingFile::toBytes(*drawing);
        EXPECT_EQ(again, bytes);
        return QStringLiteral("opened ")
            + CKvDrawingFile::warnings(*drawing).join(QStringLiteral("; "));
    } catch (const CKvDxfError &error) {
        return error.text();
    }
}

/// While it lives no file can grow beyond a size, as on a full disk.
class CKvFileSizeLimit
{
public:
    explicit CKvFileSizeLimit(rlim_t bytes)
    {
        m_oldHandler = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_oldLimit);
        rlimit limit = m_oldLimit;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~CKvFileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_oldLimit);
        std::signal(SIGXFSZ, m_oldHandler);
    }
    CKvFileSizeLimit(const CKvFileSizeLimit &) = delete;
    CKvFileSizeLimit &operator=(const CKvFileSizeLimit &) = delete;

private:
    rlimit m_oldLimit = {};
    void (*m_oldHandler)(int);
};

constexpr const char *kSmallest = "0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF\n";

} // namespace

TEST(Saving, AnUnchangedDrawingIsTheSameFile)
{
    CKvDrawingBuilder builder;
    builder.withDefaults().modelSpace().line();

    EXPECT_EQ(CKvDrawingFile::toBytes(*builder.open()), builder.toBytes());
}

TEST(Saving, LineEndsAndBlanksOfOtherLinesStayAsTheyWere)
{
    CKvDrawingBuilder builder;
    builder.withDefaults().layer("WALLS").color(1);
    QByteArray odd = builder.toBytes();
    odd.replace("\n", "\r\n");
    odd.replace(" 62\r\n1\r\n", "   62  \n     1\r\n");
    const OdDbDatabasePtr drawing = CKvDrawingFile::fromBytes(odd);

    changeLayer(drawing, "WALLS");

    QByteArray expected = odd;
    expected.replace("   62  \n     1\r\n", "   62  \n     6\r\n");
    EXPECT_EQ(CKvDrawingFile::toBytes(*drawing), expected);
}

TEST(Saving, NewObjectsStandAtTheEndOfTheirSectionInTheSpellingOfTheFile)
{
    CKvDrawingBuilder builder;
    builder.withDefaults();
    QByteArray bytes = builder.toBytes();
    bytes.replace("\n", "\r\n");
    const OdDbDatabasePtr drawing = CKvDrawingFile::fromBytes(bytes);
    const OdDbDictionaryPtr root(
        drawing->getNamedObjectsDictionaryId().openObject(OdDb::kForWrite));

    root->setAt(OdString("NOTE"), OdDbXrecord::createObject());

    const QByteArray saved = CKvDrawingFile::toBytes(*drawing);
    EXPECT_EQ(saved.count('\n'), saved.count("\r\n"));
    EXPECT_TRUE(saved.contains("AcDbXrecord\r\n280\r\n1\r\n  0\r\nENDSEC\r\n  0\r\nEOF\r\n"));
}

TEST(Saving, TheHandleSeedLiesAboveEveryHandleAfterANewObject)
{
    CKvDrawingBuilder builder;
    builder.withDefaults().header("HANDSEED", 5, "5").layer("HIGH").handle("ABCDE");
    const OdDbDatabasePtr drawing = builder.open();
    const OdDbDictionaryPtr root(
        drawing->getNamedObjectsDictionaryId().openObject(OdDb::kForWrite));

    const OdDbObjectId note = root->setAt(OdString("NOTE"), OdDbXrecord::createObject());

    EXPECT_EQ(note.handle().ascii().toQString(), QStringLiteral("ABCDF"));
    EXPECT_TRUE(CKvDrawingFile::toBytes(*drawing).contains("HANDSEED\n  5\nABCE0\n"));
}

TEST(Saving, TheCountOfATableStaysTrueWhenItWasAndWrongWhenItWasNot)
{
    CKvDrawingBuilder builder;
    builder.withDefaults().layer("WALLS");
    const QByteArray right = builder.toBytes();
    QByteArray wrong = right;
    wrong.replace("AcDbSymbolTable\n 70\n2\n", "AcDbSymbolTable\n 70\n9\n");
    ASSERT_NE(right, wrong);

    for (const QByteArray &bytes : { right, wrong }) {
        const OdDbDatabasePtr drawing = CKvDrawingFile::fromBytes(bytes);
        const OdDbLayerTablePtr layers(drawing->getLayerTableId().openObject());
        layers->getAt(OdString("WALLS")).openObject(OdDb::kForWrite)->erase();
        const QByteArray saved = CKvDrawingFile::toBytes(*drawing);
        const int declared = bytes == right ? 1 : 9;
        EXPECT_TRUE(saved.contains("AcDbSymbolTable\n 70\n" + QByteArray::number(declared) + "\n"))
            << declared;
        EXPECT_EQ(CKvDrawingFile::warnings(*CKvDrawingFile::fromBytes(saved)).isEmpty(),
                  bytes == right);
    }
}

TEST(Saving, ABlockThatItsTableLacksIsWalkedAndNotCounted)
{
    const QByteArray bytes =
        "0\nSECTION\n2\nHEADER\n9\n$"
        "ACADVER\n1\nAC1015\n0\nENDSEC\n0\nSECTION\n2\nTABLES\n0\nTABLE\n"
        "2\nBLOCK_RECORD\n70\n1\n0\nBLOCK_RECORD\n2\nDOOR\n0\nENDTAB\n0\nENDSEC\n0\nSECTION\n2\n"
        "BLOCKS\n0\nBLOCK\n2\nDOOR\n0\nENDBLK\n0\nBLOCK\n2\nWINDOW\n0\nENDBLK\n0\nENDSEC\n0\nEOF\n";
    const OdDbDatabasePtr drawing = CKvDrawingFile::fromBytes(bytes);

    drawing->getOdDbObjectId(OdDbHandle(0xABC));

    EXPECT_EQ(namesText(drawing->getBlockTableId()), "DOOR\nWINDOW\n");
    EXPECT_FALSE(CKvDrawingFile::isChanged(*drawing));
    EXPECT_EQ(CKvDrawingFile::toBytes(*drawing).toStdString(), bytes.toStdString());
}

TEST(Saving, TheCountOfATableStaysWhenItStandsBehindABlockThatItLacks)
{
    const QByteArray bytes =
        "0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n2\nWINDOW\n0\nENDBLK\n0\nENDSEC\n0\nSECTION\n2\nTABLES\n"
        "0\nTABLE\n2\nBLOCK_RECORD\n70\n1\n0\nBLOCK_"
        "RECORD\n2\nDOOR\n0\nENDTAB\n0\nENDSEC\n0\nEOF\n";
    const OdDbDatabasePtr drawing = CKvDrawingFile::fromBytes(bytes);

    EXPECT_FALSE(CKvDrawingFile::isChanged(*drawing));
    EXPECT_TRUE(CKvDrawingFile::warnings(*drawing).isEmpty());
    EXPECT_EQ(CKvDrawingFile::toBytes(*drawing).toStdString(), bytes.toStdString());
}

TEST(Saving, TheFileIsReplacedWhole)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("plan.dxf"));
    CKvDrawingBuilder builder;
    builder.withDefaults().layer("WALLS").color(1);
    builder.saveTo(path);
    const OdDbDatabasePtr drawing = CKvDrawingFile::open(path);
    changeLayer(drawing, "WALLS");

    CKvDrawingFile::save(*drawing, path);

    EXPECT_EQ(bytesOf(path), CKvDrawingFile::toBytes(*drawing));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files),
              QStringList { QStringLiteral("plan.dxf") });
}

TEST(Saving, AFolderThatIsMissingIsAnErrorThatNamesTheFile)
{
    CKvDrawingBuilder builder;
    const OdDbDatabasePtr drawing = builder.open();

    try {
        CKvDrawingFile::save(*drawing, QStringLiteral("/no/such/folder/plan.dxf"));
        FAIL() << "nothing was thrown";
    } catch (const CKvDxfError &error) {
        EXPECT_EQ(error.file(), QStringLiteral("/no/such/folder/plan.dxf"));
        EXPECT_TRUE(error.reason().startsWith(QStringLiteral("The file can't be written: ")));
    }
}

TEST(Saving, AFolderOrADeviceIsNeverReplaced)
{
    const QTemporaryDir folder;
    CKvDrawingBuilder builder;
    const OdDbDatabasePtr drawing = builder.withDefaults().open();

    EXPECT_THROW(CKvDrawingFile::save(*drawing, folder.path()), CKvDxfError);
    EXPECT_THROW(CKvDrawingFile::save(*drawing, QStringLiteral("/dev/null")), CKvDxfError);
}

TEST(Saving, ADiskThatTakesNoMoreIsAnErrorAndTheOldFileIsAsItWas)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("plan.dxf"));
    CKvDrawingBuilder builder;
    builder.withDefaults().layer("WALLS").color(1);
    builder.saveTo(path);
    const OdDbDatabasePtr drawing = CKvDrawingFile::open(path);
    changeLayer(drawing, "WALLS");
    {
        const CKvFileSizeLimit limit(100);

        EXPECT_THROW(CKvDrawingFile::save(*drawing, path), CKvDxfError);
    }

    EXPECT_EQ(bytesOf(path), builder.toBytes());
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files),
              QStringList { QStringLiteral("plan.dxf") });
}

TEST(Opening, WhatIsToleratedIsToldAsAWarningWithItsLine)
{
    EXPECT_EQ(outcome(kSmallest), QStringLiteral("opened "));
    EXPECT_EQ(outcome("0\nSECTION\n2\nENTITIES\n0\nENDSEC\n"),
              QStringLiteral("opened line 7: The EOF mark is missing."));
    EXPECT_EQ(
        outcome(QByteArray(kSmallest) + "trailing"),
        QStringLiteral(
            "opened line 9: There are bytes behind the EOF mark; they are kept and not read."));
    EXPECT_EQ(outcome("0\nENDSEC\n" + QByteArray(kSmallest)),
              QStringLiteral("opened line 1: A section ends that has not begun."));
    EXPECT_EQ(outcome("0\nSECTION\n2\nENTITIES\n0\nSECTION\n2\nOBJECTS\n0\nENDSEC\n0\nEOF\n"),
              QStringLiteral("opened line 5: The section before is not closed."));
}

TEST(Opening, ADamagedFileIsRefusedWithTheLine)
{
    EXPECT_EQ(outcome(""), QStringLiteral("x.dxf: The file is empty."));
    EXPECT_EQ(outcome("0\nSECTION\n2\nENTITIES\n0\nLINE\n8\n0\n"),
              QStringLiteral("x.dxf:9: The file ends within a section."));
    EXPECT_EQ(outcome("0\nSECTION\n2\nENTITIES\n0\nLINE\nlayer\n0\n0\nENDSEC\n0\nEOF\n"),
              QStringLiteral("x.dxf:7: A group code must stand here, a whole number."));
    EXPECT_EQ(outcome("0\nSECTION\n2\nENTITIES\n0\nLINE\n8\n"),
              QStringLiteral("x.dxf:7: The file ends within a group: its value is missing."));
    EXPECT_EQ(outcome("this is a letter\n"),
              QStringLiteral("x.dxf:1: A group code must stand here, a whole number."));
    EXPECT_EQ(outcome("AC1032\0\0\0"),
              QStringLiteral("x.dxf: This is a DWG file. Save it as DXF and try again."));
    EXPECT_EQ(outcome("999\nonly a comment\n"),
              QStringLiteral("x.dxf:1: There is no section; this is not a drawing."));
}

TEST(Opening, DamageAmongTheEntitiesIsFoundWhenTheyAreFirstWalked)
{
    CKvDrawingBuilder builder;
    builder.withDefaults().modelSpace().line();
    QByteArray bytes = builder.toBytes();
    bytes.replace("AcDbLine\n", "AcDbLine\nno code\n0\n");
    const OdDbDatabasePtr drawing = CKvDrawingFile::fromBytes(bytes, QStringLiteral("x.dxf"));
    OdDbObjectIdArray ids;
    ids.append(drawing->getLayerTableId());

    EXPECT_THROW(drawing->getOdDbObjectId(OdDbHandle(0xFFFFFF)), CKvDxfError);
    EXPECT_EQ(CKvDrawingFile::toBytes(*drawing), bytes);
}
