// SPDX-License-Identifier: MIT
#include "CKvDrawingBuilder.h"
#include "CKvDrawingFile.h"
#include "CKvDrawingStore.h"
#include "CKvDwgProgram.h"
#include "CKvDxfError.h"
#include "CKvOrdinaryUser.h"
#include "OdDbLayerTableRecord.h"
#include "drawingText.h"
#include "gzip.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <string>

namespace
{

class FileForm : public testing::Test
{
protected:
    FileForm() { m_builder.withDefaults().layer("WALLS").color(1); }

    QString path(const char *name) const { return m_folder.filePath(QLatin1String(name)); }
    void write(const QString &path, const QByteArray &bytes) const
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QByteArray bytesOf(const QString &path) const
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    QByteArray packed() const
    {
        QByteArray bytes;
        CKvGzipPacker packer(
            [&](std::string_view piece) { bytes.append(piece.data(), int(piece.size())); });
        packer.add(m_builder.toBytes().toStdString());
        packer.finish();
        // As another packer has it: with the name of the file in its head.
        bytes[3] = 8;
        return bytes.insert(10, "plan.dxf\0", 9);
    }
    static void paint(const OdDbDatabasePtr &drawing, int color)
    {
        OdDbLayerTableRecordPtr(
            recordId(drawing->getLayerTableId(), "WALLS").openObject(OdDb::kForWrite))
            ->setColor(OdCmColor::byIndex(std::uint16_t(color)));
    }
    /// The file with the layer in that colour.
    QByteArray painted(int color) const
    {
        CKvDrawingBuilder builder = m_builder;
        QByteArray bytes = builder.toBytes();
        return bytes.replace(" 62\n1\n", " 62\n" + QByteArray::number(color) + '\n');
    }
    /// @return why the drawing can't be saved, empty when it was.
    static std::string refusal(const OdDbDatabasePtr &drawing, const QString &path)
    {
        try {
            CKvDrawingFile::save(*drawing, path);
        } catch (const CKvDxfError &error) {
            EXPECT_EQ(error.file(), path);
            return error.reason().toStdString();
        }
        return {};
    }

    CKvDrawingBuilder m_builder;
    QTemporaryDir m_folder;
};

QByteArray unpackedBytes(const QByteArray &bytes)
{
    return unpacked({ bytes.constData(), std::size_t(bytes.size()) }, QString());
}

} // namespace

TEST_F(FileForm, APackedDrawingIsReadAndStaysTheSameFileUnchanged)
{
    for (const char *name : { "plan.dxf.gz", "plan.dxf" }) {
        write(path(name), packed());
        const OdDbDatabasePtr drawing = CKvDrawingFile::open(path(name));

        EXPECT_EQ(CKvDrawingFile::toBytes(*drawing), m_builder.toBytes());
        EXPECT_FALSE(CKvDrawingFile::isChanged(*drawing));
        CKvDrawingFile::save(*drawing, path(name));
        EXPECT_EQ(bytesOf(path(name)).toHex(), packed().toHex());
    }
}

TEST_F(FileForm, ARepairedPackedDrawingIsPackedAgain)
{
    for (const char *name : { "plan.dxf.gz", "plan.dxf" }) {
        write(path(name), packed());
        const OdDbDatabasePtr drawing = CKvDrawingFile::open(path(name));

        paint(drawing, 6);
        CKvDrawingFile::save(*drawing, path(name));

        EXPECT_EQ(unpackedBytes(bytesOf(path(name))), painted(6));
        EXPECT_EQ(CKvDrawingFile::toBytes(*CKvDrawingFile::open(path(name))), painted(6));
    }
}

TEST_F(FileForm, TheEndOfTheNewNameSaysWhetherItIsPacked)
{
    write(path("packed.dxf.gz"), packed());
    write(path("plain.dxf"), m_builder.toBytes());

    CKvDrawingFile::save(*CKvDrawingFile::open(path("packed.dxf.gz")), path("a.dxf"));
    CKvDrawingFile::save(*CKvDrawingFile::open(path("plain.dxf")), path("b.DXF.GZ"));

    EXPECT_EQ(bytesOf(path("a.dxf")), m_builder.toBytes());
    EXPECT_EQ(unpackedBytes(bytesOf(path("b.DXF.GZ"))), m_builder.toBytes());
}

TEST_F(FileForm, TwoDatabasesShareAFileAndKeepTheirOwnChanges)
{
    write(path("plan.dxf"), m_builder.toBytes());
    while (!CKvFileIdentity::ofPath(path("plan.dxf"))->isSettled) { }
    const OdDbDatabasePtr first = CKvDrawingFile::open(path("plan.dxf"));
    const OdDbDatabasePtr second = CKvDrawingFile::open(path("plan.dxf"));

    paint(first, 6);

    EXPECT_EQ(first->store().image(), second->store().image());
    EXPECT_EQ(CKvDrawingFile::toBytes(*first), painted(6));
    EXPECT_EQ(CKvDrawingFile::toBytes(*second), m_builder.toBytes());
}

TEST_F(FileForm, AFileThatSomebodyElseChangedIsNotReplaced)
{
    write(path("plan.dxf"), m_builder.toBytes());
    const OdDbDatabasePtr drawing = CKvDrawingFile::open(path("plan.dxf"));
    paint(drawing, 6);
    write(path("plan.dxf"), painted(3) + "999\nlater\n");

    EXPECT_EQ(refusal(drawing, path("plan.dxf")),
              "The file can't be written: it was changed by somebody else since it was read.");
    EXPECT_EQ(refusal(drawing, path("./plan.dxf")),
              "The file can't be written: it was changed by somebody else since it was read.");
    EXPECT_EQ(bytesOf(path("plan.dxf")), painted(3) + "999\nlater\n");
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files),
              QStringList { QStringLiteral("plan.dxf") });
    EXPECT_EQ(refusal(drawing, path("other.dxf")), "");
    EXPECT_EQ(bytesOf(path("other.dxf")), painted(6));
}

TEST_F(FileForm, TheOwnFileCanBeSavedAgainAndAgainAndAlsoWhenItWasGone)
{
    write(path("plan.dxf"), m_builder.toBytes());
    const OdDbDatabasePtr drawing = CKvDrawingFile::open(path("plan.dxf"));

    for (const int color : { 3, 4, 5 }) {
        paint(drawing, color);
        EXPECT_EQ(refusal(drawing, path("plan.dxf")), "");
        EXPECT_EQ(bytesOf(path("plan.dxf")), painted(color));
    }
    QFile::remove(path("plan.dxf"));
    for (const int color : { 6, 2 }) {
        paint(drawing, color);
        EXPECT_EQ(refusal(drawing, path("plan.dxf")), "");
        EXPECT_EQ(bytesOf(path("plan.dxf")), painted(color));
    }
}

TEST_F(FileForm, AFolderWithoutPermissionIsAnErrorAndTheOldFileIsAsItWas)
{
    write(path("plan.dxf"), m_builder.toBytes());
    const OdDbDatabasePtr drawing = CKvDrawingFile::open(path("plan.dxf"));
    paint(drawing, 6);
    QFile::setPermissions(m_folder.path(),
                          QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup | QFile::ExeGroup
                              | QFile::ReadOther | QFile::ExeOther);
    std::string reason;
    {
        const CKvOrdinaryUser user;

        reason = refusal(drawing, path("plan.dxf"));
    }

    QFile::setPermissions(m_folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_EQ(reason, "The file can't be written: Permission denied.");
    EXPECT_EQ(bytesOf(path("plan.dxf")), m_builder.toBytes());
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files),
              QStringList { QStringLiteral("plan.dxf") });
}

TEST_F(FileForm, AFolderThatMayNotBeSearchedIsAnErrorAndTheOldFileIsAsItWas)
{
    write(path("plan.dxf"), m_builder.toBytes());
    const OdDbDatabasePtr drawing = CKvDrawingFile::open(path("plan.dxf"));
    paint(drawing, 6);
    QFile::setPermissions(m_folder.path(), QFile::ReadOwner | QFile::ReadGroup);
    std::string reason;
    {
        const CKvOrdinaryUser user;

        reason = refusal(drawing, path("plan.dxf"));
    }

    QFile::setPermissions(m_folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_EQ(reason, "The file can't be written: Permission denied.");
    EXPECT_EQ(bytesOf(path("plan.dxf")), m_builder.toBytes());
}

TEST_F(FileForm, ADwgFileIsReadByTheProgramOnThePathAndNeverReplaced)
{
    write(path("made.dxf"), m_builder.toBytes());
    const CKvDwgProgram program(path("made.dxf"));
    CKvDwgProgram::writeDwg(path("plan.dwg"));

    const OdDbDatabasePtr drawing = CKvDrawingFile::open(path("plan.dwg"));

    EXPECT_EQ(drawing->getFilename().toQString(), path("plan.dwg"));
    EXPECT_EQ(CKvDrawingFile::toBytes(*drawing), m_builder.toBytes());
    EXPECT_EQ(refusal(drawing, path("plan.dwg")),
              "A DWG file can't be written. Save the drawing as DXF.");
    EXPECT_TRUE(CKvDwgProgram::isAsWritten(path("plan.dwg")));
    QFile::remove(path("plan.dwg"));
    EXPECT_EQ(refusal(drawing, path("plan.dwg")),
              "A DWG file can't be written. Save the drawing as DXF.");
    EXPECT_FALSE(QFile::exists(path("plan.dwg")));
    EXPECT_EQ(refusal(drawing, path("plan.dxf")), "");
    EXPECT_EQ(bytesOf(path("plan.dxf")), m_builder.toBytes());
}

TEST_F(FileForm, NoDrawingIsWrittenOverADwgFileOrUnderItsKindOfName)
{
    const std::string reason = "A DWG file can't be written. Save the drawing as DXF.";
    write(path("plan.dxf"), m_builder.toBytes());
    CKvDwgProgram::writeDwg(path("others.DWG"));
    CKvDwgProgram::writeDwg(path("misnamed.dxf"));
    const OdDbDatabasePtr drawing = CKvDrawingFile::open(path("plan.dxf"));

    EXPECT_EQ(refusal(drawing, path("others.DWG")), reason);
    EXPECT_EQ(refusal(drawing, path("misnamed.dxf")), reason);
    EXPECT_EQ(refusal(drawing, path("new.dwg")), reason);

    EXPECT_TRUE(CKvDwgProgram::isAsWritten(path("others.DWG")));
    EXPECT_TRUE(CKvDwgProgram::isAsWritten(path("misnamed.dxf")));
    EXPECT_FALSE(QFile::exists(path("new.dwg")));
}

TEST_F(FileForm, ADxfFileThatIsCalledDwgIsReadAndReplacedAsWhatItIs)
{
    write(path("plan.dwg"), m_builder.toBytes());
    const OdDbDatabasePtr drawing = CKvDrawingFile::open(path("plan.dwg"));
    paint(drawing, 6);

    EXPECT_EQ(refusal(drawing, path("plan.dwg")), "");

    EXPECT_EQ(bytesOf(path("plan.dwg")), painted(6));
}
