// SPDX-License-Identifier: MIT
#include "CKvFileImage.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <string>

namespace
{

using Holding = CKvFileImage::Holding;

class SharedImage : public testing::Test
{
protected:
    QString path() const { return m_folder.filePath(QStringLiteral("a.dxf")); }
    void write(const QByteArray &bytes) const
    {
        QFile file(path());
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    /// A file is shared only when a further change would show in its times.
    void writeAndLetSettle(const QByteArray &bytes) const
    {
        write(bytes);
        while (!CKvFileIdentity::ofPath(path())->isSettled) { }
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(SharedImage, TwoOfAnUnchangedFileAreOne)
{
    writeAndLetSettle("0\nEOF\n");

    for (const Holding holding : { Holding::Copied, Holding::Mapped }) {
        const CKvFileImagePtr first = CKvFileImage::open(path(), holding);
        const CKvFileImagePtr second = CKvFileImage::open(path(), holding);

        EXPECT_EQ(first, second);
    }
}

TEST_F(SharedImage, AChangedFileIsReadAgainAndTheOldImageStaysWhatItWas)
{
    writeAndLetSettle("0\nEOF\n");
    const CKvFileImagePtr before = CKvFileImage::open(path(), Holding::Copied);

    write("0\neof\n");
    const CKvFileImagePtr after = CKvFileImage::open(path(), Holding::Copied);

    EXPECT_EQ(before->bytes(), "0\nEOF\n");
    EXPECT_EQ(after->bytes(), "0\neof\n");
}

TEST_F(SharedImage, AFileThatWasJustWrittenIsNotSharedUnlessItsChangesShow)
{
    for (int i = 0; i < 200; ++i) {
        const QByteArray bytes = QByteArray::number(1000 + i);
        write(bytes);

        const CKvFileImagePtr image = CKvFileImage::open(path(), Holding::Copied);

        EXPECT_EQ(std::string(image->bytes()), bytes.toStdString());
    }
}

TEST_F(SharedImage, AMappingNeverServesWhereACopyIsAskedForButACopyForAMapping)
{
    writeAndLetSettle("0\nEOF\n");
    const CKvFileImagePtr mapped = CKvFileImage::open(path(), Holding::Mapped);
    const CKvFileImagePtr copied = CKvFileImage::open(path(), Holding::Copied);

    EXPECT_NE(mapped, copied);
    EXPECT_TRUE(mapped->isMapped());
    EXPECT_FALSE(copied->isMapped());
    const CKvFileImagePtr third = CKvFileImage::open(path(), Holding::Mapped);
    EXPECT_TRUE(third == mapped || third == copied);
}

TEST_F(SharedImage, AnImageThatNobodyHoldsIsGone)
{
    writeAndLetSettle("0\nEOF\n");
    std::weak_ptr<const CKvFileImage> gone = CKvFileImage::open(path(), Holding::Copied);

    EXPECT_TRUE(gone.expired());
}

TEST_F(SharedImage, AnotherSpellingOfThePathKeepsItsName)
{
    writeAndLetSettle("0\nEOF\n");
    const QString other = m_folder.filePath(QStringLiteral("./a.dxf"));
    const CKvFileImagePtr first = CKvFileImage::open(path(), Holding::Copied);

    const CKvFileImagePtr second = CKvFileImage::open(other, Holding::Copied);

    EXPECT_EQ(second->path(), other);
    EXPECT_EQ(second->bytes(), first->bytes());
}
