// SPDX-License-Identifier: MIT
#include "collectDrawings.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace
{

class CollectDrawings : public ::testing::Test
{
protected:
    void makeFile(const char *name)
    {
        const QString path = folder.filePath(QString::fromUtf8(name));
        QDir().mkpath(QFileInfo(path).absolutePath());
        ASSERT_TRUE(QFile(path).open(QIODevice::WriteOnly));
    }
    /// "path -> relative path" a line, the folder of the test as "/".
    std::string collected(const QStringList &inputs) const
    {
        std::string lines;
        for (const CKvDrawingInput &drawing : collectDrawings(inputs, QString()).drawings) {
            QString path = drawing.path;
            path.replace(folder.path(), QString());
            lines += path.toStdString() + " -> " + drawing.relativePath.toStdString() + "\n";
        }
        return lines;
    }

    QTemporaryDir folder;
};

} // namespace

TEST_F(CollectDrawings, AFolderGivesItsDrawingsByName)
{
    makeFile("b.dxf");
    makeFile("a.dws");
    makeFile("c.DWS");
    makeFile("sub/deep/a.dxf");
    makeFile("a.dwg");
    makeFile("dxf");
    makeFile("d.dxf.gz");
    makeFile("e.gz");

    EXPECT_EQ(collected({ folder.path() }),
              "/a.dws -> a.dws\n/b.dxf -> b.dxf\n/c.DWS -> c.DWS\n/d.dxf.gz -> d.dxf.gz\n"
              "/sub/deep/a.dxf -> sub/deep/a.dxf\n");
    EXPECT_EQ(collected({ folder.path() + QStringLiteral("/sub/") }),
              "/sub/deep/a.dxf -> deep/a.dxf\n");
}

TEST_F(CollectDrawings, ANamedDrawingMayHaveAnyNameAndNeedNotExist)
{
    makeFile("plan");

    EXPECT_EQ(collected({ folder.filePath(QStringLiteral("sub/gone.dxf")),
                          folder.filePath(QStringLiteral("plan")) }),
              "/sub/gone.dxf -> gone.dxf\n/plan -> plan\n");
}

TEST_F(CollectDrawings, AFolderCalledLikeADrawingIsAFolder)
{
    makeFile("plans.dxf/a.dxf");

    EXPECT_EQ(collected({ folder.path() }), "/plans.dxf/a.dxf -> plans.dxf/a.dxf\n");
    EXPECT_EQ(collected({ folder.filePath(QStringLiteral("plans.dxf")) }),
              "/plans.dxf/a.dxf -> a.dxf\n");
}

TEST_F(CollectDrawings, AListThatCannotBeReadIsAnError)
{
    const CKvDrawingList list = collectDrawings({}, folder.filePath(QStringLiteral("gone.txt")));

    EXPECT_TRUE(list.drawings.empty());
    EXPECT_EQ(list.errors.size(), 1);
}

TEST_F(CollectDrawings, AListIsReadByLinesOrByZeros)
{
    const auto listed = [this](const QByteArray &text) {
        QFile file(folder.filePath(QStringLiteral("list")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        file.close();
        std::string paths;
        for (const CKvDrawingInput &drawing : collectDrawings({}, file.fileName()).drawings) {
            paths += drawing.path.toStdString() + "|";
        }
        return paths;
    };

    EXPECT_EQ(listed("a.dxf\r\n  \nb c.dxf\n"), "a.dxf|b c.dxf|");
    EXPECT_EQ(listed(QByteArray("a.dxf\0b\nc.dxf\0", 14)), "a.dxf|b\nc.dxf|");
}
