// SPDX-License-Identifier: MIT
#include "CKvStandaloneAppServices.h"

#include "CKvDrawingBuilder.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace
{

using ReadStatus = CKvStandaloneAppServices::ReadStatus;

class StandaloneAppServices : public ::testing::Test
{
protected:
    OdDbDatabasePtr read(const QString &path)
    {
        return services.readFile(OdString(path), false, true, kShareReadWrite, OdString::kEmpty);
    }

    QTemporaryDir folder;
    QString drawing = folder.filePath(QStringLiteral("office.dxf"));
    CKvStandaloneAppServices services;
};

} // namespace

TEST_F(StandaloneAppServices, ADrawingIsReadAndRemembered)
{
    CKvDrawingBuilder().saveTo(drawing);

    const OdDbDatabasePtr database = read(drawing);

    ASSERT_TRUE(database);
    EXPECT_EQ(database->getFilename().toQString(), drawing);
    EXPECT_EQ(services.outcome(drawing).status, ReadStatus::Read);
    EXPECT_EQ(services.outcome(drawing).database, database);
}

TEST_F(StandaloneAppServices, AMissingFileIsNullAndRememberedAsNotFound)
{
    EXPECT_TRUE(read(drawing).isNull());
    EXPECT_EQ(services.outcome(drawing).status, ReadStatus::NotFound);
    EXPECT_EQ(services.outcome(drawing).error, QString());
}

TEST_F(StandaloneAppServices, AFileThatIsNoDrawingIsNullAndRememberedWithLineAndReason)
{
    QFile file(drawing);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("0\nSECTION\nrubbish\n");
    file.close();

    EXPECT_TRUE(read(drawing).isNull());

    const auto outcome = services.outcome(drawing);
    EXPECT_EQ(outcome.status, ReadStatus::Failed);
    EXPECT_TRUE(outcome.error.startsWith(drawing + QStringLiteral(":3: ")))
        << outcome.error.toStdString();
    EXPECT_TRUE(outcome.database.isNull());
}

TEST_F(StandaloneAppServices, AFolderIsNullAndFailed)
{
    EXPECT_TRUE(read(folder.path()).isNull());
    EXPECT_EQ(services.outcome(folder.path()).status, ReadStatus::Failed);
}

TEST_F(StandaloneAppServices, APathThatWasNotReadHasNoOutcome)
{
    EXPECT_EQ(services.outcome(drawing).status, ReadStatus::NotAsked);
}

TEST_F(StandaloneAppServices, TheLastOutcomeOfAPathStands)
{
    read(drawing);
    CKvDrawingBuilder().saveTo(drawing);
    read(drawing);

    EXPECT_EQ(services.outcome(drawing).status, ReadStatus::Read);
}

TEST_F(StandaloneAppServices, ForgettingLetsTheDrawingsGo)
{
    CKvDrawingBuilder().saveTo(drawing);
    const OdDbDatabasePtr database = read(drawing);

    services.forgetOutcomes();

    EXPECT_EQ(services.outcome(drawing).status, ReadStatus::NotAsked);
    EXPECT_EQ(database->numRefs(), 1);
}
