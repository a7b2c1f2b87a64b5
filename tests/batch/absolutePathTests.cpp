// SPDX-License-Identifier: MIT
#include "absolutePath.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

TEST(AbsolutePath, CountsFromTheWorkingDirectory)
{
    EXPECT_EQ(absolutePath(QStringLiteral("a.dxf")),
              QDir::currentPath() + QStringLiteral("/a.dxf"));
    EXPECT_EQ(absolutePath(QStringLiteral("./x/../a.dxf")),
              QDir::currentPath() + QStringLiteral("/a.dxf"));
    EXPECT_EQ(absolutePath(QStringLiteral("/std/a.dxf")), QStringLiteral("/std/a.dxf"));
    EXPECT_EQ(absolutePath(QStringLiteral("/std//b/../a.dxf")), QStringLiteral("/std/a.dxf"));
}

#ifndef _WIN32
TEST(AbsolutePath, KeepsDotsBehindASymbolicLinkWhereTheyLeadElsewhere)
{
    const QTemporaryDir folder;
    QDir(folder.path()).mkpath(QStringLiteral("real/deep"));
    QFile(folder.filePath(QStringLiteral("real/a.dxf"))).open(QIODevice::WriteOnly);
    QFile::link(folder.filePath(QStringLiteral("real/deep")),
                folder.filePath(QStringLiteral("link")));
    const QString path = folder.filePath(QStringLiteral("link/../a.dxf"));

    EXPECT_EQ(absolutePath(path), path);
    EXPECT_TRUE(isSameFile(path, folder.filePath(QStringLiteral("real/a.dxf"))));
    EXPECT_FALSE(isSameFile(path, folder.filePath(QStringLiteral("a.dxf"))));
}
#endif

TEST(SameFile, IsToldAlsoForFilesThatDoNotExist)
{
    EXPECT_TRUE(isSameFile(QStringLiteral("gone.dxf"), QStringLiteral("./gone.dxf")));
    EXPECT_FALSE(isSameFile(QStringLiteral("gone.dxf"), QStringLiteral("gone2.dxf")));
}
