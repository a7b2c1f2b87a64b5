// SPDX-License-Identifier: MIT
#include "CKvDxfError.h"
#include "CKvFileImage.h"
#include "CKvOrdinaryUser.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <string>

namespace
{

using Holding = CKvFileImage::Holding;

class FileImage : public testing::TestWithParam<Holding>
{
protected:
    QString write(const char *name, const QByteArray &bytes) const
    {
        QFile file(m_folder.filePath(QLatin1String(name)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(bytes), bytes.size());
        return file.fileName();
    }
    QString path(const char *name) const { return m_folder.filePath(QLatin1String(name)); }

    QTemporaryDir m_folder;
};

// @return the reason for which the file is refused, empty when it is not.
std::string refusal(const QString &path, Holding holding)
{
    try {
        CKvFileImage::open(path, holding);
    } catch (const CKvDxfError &error) {
        EXPECT_EQ(error.file().toStdString(), path.toStdString());
        EXPECT_EQ(error.line(), 0);
        return error.reason().toStdString();
    }
    return {};
}

} // namespace

TEST_P(FileImage, GivesTheBytesOfTheFileAsTheyAre)
{
    const QByteArray bytes("0\r\nSECTION\n\0\xff\n", 14);
    const QString file = write("a.dxf", bytes);

    const CKvFileImagePtr image = CKvFileImage::open(file, GetParam());

    EXPECT_EQ(image->bytes(), std::string_view(bytes.constData(), 14));
    EXPECT_EQ(image->path().toStdString(), file.toStdString());
}

TEST_P(FileImage, OpensAFileWhoseNameIsNotAscii)
{
    const QString file = write("stra\xdf"
                               "e.dxf",
                               "x");

    const CKvFileImagePtr image = CKvFileImage::open(file, GetParam());

    EXPECT_EQ(image->bytes(), "x");
}

TEST_P(FileImage, OpensWhatASymbolicLinkLeadsTo)
{
    write("a.dxf", "x");
    ASSERT_TRUE(QFile::link(path("a.dxf"), path("link.dxf")));

    const CKvFileImagePtr image = CKvFileImage::open(path("link.dxf"), GetParam());

    EXPECT_EQ(image->bytes(), "x");
}

TEST_P(FileImage, LastsWhenTheFileIsRemoved)
{
    const QString file = write("a.dxf", "0\nEOF\n");
    const CKvFileImagePtr image = CKvFileImage::open(file, GetParam());

    ASSERT_TRUE(QFile::remove(file));

    EXPECT_EQ(image->bytes(), "0\nEOF\n");
}

TEST_P(FileImage, HoldsNoFileOpen)
{
    const QString file = write("a.dxf", "0\nEOF\n");
    // More than a process may have open as a rule.
    constexpr int kMany = 3000;
    std::vector<CKvFileImagePtr> images;
    images.reserve(kMany);

    for (int i = 0; i < kMany; ++i) {
        images.push_back(CKvFileImage::open(file, GetParam()));
    }

    EXPECT_EQ(images.back()->bytes(), "0\nEOF\n");
}

TEST_P(FileImage, RefusesAFileThatIsNotThere)
{
    EXPECT_EQ(refusal(path("none.dxf"), GetParam()), "There is no such file.");
}

TEST_P(FileImage, RefusesAnEmptyPath)
{
    EXPECT_EQ(refusal(QString(), GetParam()), "There is no such file.");
}

TEST_P(FileImage, RefusesALinkThatLeadsNowhere)
{
    ASSERT_TRUE(QFile::link(path("none.dxf"), path("link.dxf")));

    EXPECT_EQ(refusal(path("link.dxf"), GetParam()), "There is no such file.");
}

TEST_P(FileImage, RefusesAFolder)
{
    EXPECT_EQ(refusal(m_folder.path(), GetParam()), "This is a folder, not a file.");
}

TEST_P(FileImage, RefusesAnEmptyFile)
{
    const QString file = write("empty.dxf", {});

    EXPECT_EQ(refusal(file, GetParam()), "The file is empty.");
}

TEST_P(FileImage, RefusesAPipeWithoutWaitingForItsWriter)
{
    ASSERT_EQ(mkfifo(QFile::encodeName(path("pipe.dxf")).constData(), 0600), 0);

    EXPECT_EQ(refusal(path("pipe.dxf"), GetParam()),
              "This is a device or a pipe, not an ordinary file.");
}

TEST_P(FileImage, RefusesADeviceThatNeverEnds)
{
    EXPECT_EQ(refusal(QStringLiteral("/dev/zero"), GetParam()),
              "This is a device or a pipe, not an ordinary file.");
}

TEST_P(FileImage, RefusesAFileWithoutPermission)
{
    const QString file = write("secret.dxf", "x");
    ASSERT_TRUE(QFile::setPermissions(file, QFileDevice::Permissions()));
    ASSERT_TRUE(QFile::setPermissions(m_folder.path(),
                                      QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner
                                          | QFile::ReadGroup | QFile::ExeGroup));
    const CKvOrdinaryUser user;

    EXPECT_EQ(refusal(file, GetParam()), "The file can't be opened: Permission denied.");
}

TEST_P(FileImage, RefusesAFileInAFolderThatMayNotBeSearched)
{
    const QString file = write("a.dxf", "x");
    ASSERT_TRUE(QFile::setPermissions(m_folder.path(), QFile::ReadOwner | QFile::ReadGroup));
    {
        const CKvOrdinaryUser user;

        EXPECT_EQ(refusal(file, GetParam()), "The file can't be opened: Permission denied.");
    }
    QFile::setPermissions(m_folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

TEST_P(FileImage, RefusesAFileWhoseBytesCannotBeRead)
{
    // The memory of this process is an ordinary file by its kind, and its first page is no memory.
    EXPECT_EQ(refusal(QStringLiteral("/proc/self/mem"), GetParam()),
              "The file can't be read: Input/output error.");
}

INSTANTIATE_TEST_SUITE_P(HeldEitherWay,
                         FileImage,
                         testing::Values(Holding::Mapped, Holding::Copied),
                         [](const auto &row) {
                             return std::string(row.param == Holding::Mapped ? "Mapped" : "Copied");
                         });

TEST_F(FileImage, ACopyStaysAsItWasWhenTheFileIsShortened)
{
    const QString path = write("a.dxf", "0\nEOF\n");
    const CKvFileImagePtr image = CKvFileImage::open(path, Holding::Copied);

    ASSERT_TRUE(QFile::resize(path, 0));

    EXPECT_EQ(image->bytes(), "0\nEOF\n");
}

TEST_F(FileImage, AFileOfMoreThanTwoGigabytesIsMappedButNotCopied)
{
    const QString path = write("large.dxf", "0\n");
    if (!QFile::resize(path, Q_INT64_C(3) << 30)) {
        GTEST_SKIP() << "the file system has no files with gaps of this size";
    }

    EXPECT_EQ(refusal(path, Holding::Copied),
              "The file is too large to be kept in memory (over 2 GB).");
    EXPECT_EQ(CKvFileImage::open(path, Holding::Mapped)->bytes().size(), std::size_t(3) << 30);
}

TEST_F(FileImage, BytesFromMemoryKeepTheNameTheyWereGiven)
{
    const CKvFileImagePtr image = CKvFileImage::fromBytes("abc", QStringLiteral("drawing"));

    EXPECT_EQ(image->bytes(), "abc");
    EXPECT_EQ(image->path().toStdString(), "drawing");
}

TEST_F(FileImage, ALineEndBelongsToTheLineThatItEnds)
{
    const CKvFileImagePtr image = CKvFileImage::fromBytes("ab\r\n\nc", {});

    std::vector<qint64> lines;
    for (std::size_t offset = 0; offset <= 7; ++offset) {
        lines.push_back(image->lineAt(offset));
    }

    // The last two offsets are behind the end.
    EXPECT_EQ(lines, (std::vector<qint64> { 1, 1, 1, 1, 2, 3, 3, 3 }));
}
