// SPDX-License-Identifier: MIT
#include "CKvStandaloneServices.h"

#include "CKvDrawingBuilder.h"
#include "CKvDrawingFile.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace
{

void writeFile(const QString &path, const QByteArray &bytes = "text")
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

class StandaloneServices : public ::testing::Test
{
protected:
    std::string find(const char *name, OdDbDatabase *database = nullptr)
    {
        return services.findFile(CKvString(name), 0, database, 0).toQString().toStdString();
    }
    QString path(const char *name) const { return folder.filePath(QString::fromUtf8(name)); }
    std::string fullPath(const char *name) const { return path(name).toStdString(); }
    OdDbDatabasePtr openDrawing(const char *name)
    {
        QDir().mkpath(QFileInfo(path(name)).absolutePath());
        CKvDrawingBuilder().saveTo(path(name));
        return CKvDrawingFile::open(path(name));
    }

    QTemporaryDir folder;
    CKvStandaloneServices services;
};

} // namespace

TEST_F(StandaloneServices, AFileThatIsNowhereIsAnEmptyPath)
{
    EXPECT_EQ(find("no-such-file.dws"), "");
    EXPECT_EQ(find(""), "");
}

TEST_F(StandaloneServices, TheFolderOfTheDrawingComesBeforeTheSearchPaths)
{
    const OdDbDatabasePtr drawing = openDrawing("plans/drawing.dxf");
    writeFile(path("plans/office.dws"));
    writeFile(path("std/office.dws"));
    services.setSearchPaths({ path("std") });

    EXPECT_EQ(find("office.dws", drawing.get()), fullPath("plans/office.dws"));
    EXPECT_EQ(find("office.dws"), fullPath("std/office.dws"));
}

TEST_F(StandaloneServices, SearchPathsCountInTheirOrder)
{
    writeFile(path("a/office.dws"));
    writeFile(path("b/office.dws"));
    services.setSearchPaths({ path("b"), path("a") });

    EXPECT_EQ(find("office.dws"), fullPath("b/office.dws"));
}

TEST_F(StandaloneServices, AFolderOfThatNameIsNoFile)
{
    QDir(folder.path()).mkpath(QStringLiteral("a/office.dws"));
    services.setSearchPaths({ path("a") });

    EXPECT_EQ(find("office.dws"), "");
}

TEST_F(StandaloneServices, LineStyleFilesAreFoundWithoutADrawing)
{
    EXPECT_TRUE(QString::fromStdString(find("mm.lin")).endsWith(QStringLiteral("/mm.lin")));
    EXPECT_TRUE(QFileInfo::exists(QString::fromStdString(find("inch.lin"))));
}

TEST_F(StandaloneServices, ALineStyleFileOfTheOfficeComesBeforeThatOfTheHost)
{
    writeFile(path("std/mm.lin"));
    services.setSearchPaths({ path("std") });

    EXPECT_EQ(find("mm.lin"), fullPath("std/mm.lin"));
}

TEST_F(StandaloneServices, ADrawingFromMemoryHasNoFolder)
{
    const OdDbDatabasePtr drawing = CKvDrawingBuilder().open(QString());

    EXPECT_EQ(find("no-such-file.dws", drawing.get()), "");
}
