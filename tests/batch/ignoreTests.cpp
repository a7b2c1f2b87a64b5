// SPDX-License-Identifier: MIT
#include "CKvBatchTest.h"

#include "CKvUtilsBase.h"

#include <gmock/gmock.h>

using ::testing::HasSubstr;

namespace
{

class BatchIgnore : public CKvBatchTest
{
protected:
    void SetUp() override
    {
        save(QStringLiteral("std.dxf"), officeStandards());
        save(QStringLiteral("a.dxf"), redWalls());
    }
    CKvBatchRun ignore(const QStringList &arguments) const
    {
        return run(QStringList {
                       QStringLiteral("ignore"), QStringLiteral("a.dxf"), QStringLiteral("layers") }
                   + arguments);
    }
    CKvBatchRun check() const
    {
        return run({ QStringLiteral("check"),
                     QStringLiteral("a.dxf"),
                     QStringLiteral("-s"),
                     QStringLiteral("std.dxf"),
                     QStringLiteral("-f"),
                     QStringLiteral("json") });
    }
    static std::string user() { return CKvUtilsBase::getUserName().toQString().toStdString(); }
};

} // namespace

TEST_F(BatchIgnore, StampsTheObjectWithTheUser)
{
    const CKvBatchRun result = ignore({ QStringLiteral("WALLS") });

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, "a.dxf: layer \"WALLS\" is ignored by " + user() + "\n");
    EXPECT_EQ(check().status, 0);
    EXPECT_EQ(firstDrawing(check()).at("violations").at(0).at("ignored"), true);
    EXPECT_EQ(firstDrawing(check()).at("violations").at(0).at("ignoredBy"), user());
}

TEST_F(BatchIgnore, OffTakesItBack)
{
    ignore({ QStringLiteral("WALLS") });
    const CKvBatchRun result = ignore({ QStringLiteral("WALLS"), QStringLiteral("--off") });

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, "a.dxf: layer \"WALLS\" is no longer ignored\n");
    EXPECT_EQ(check().status, 1);
    EXPECT_EQ(firstDrawing(check()).at("violations").at(0).at("ignoredBy"), "");
}

TEST_F(BatchIgnore, TheNameIsFoundWithoutRegardToCase)
{
    EXPECT_EQ(ignore({ QStringLiteral("walls") }).status, 0);
    EXPECT_EQ(check().status, 0);
}

TEST_F(BatchIgnore, AnObjectThatThereIsNoneOfEndsWith3)
{
    const CKvBatchRun result = ignore({ QStringLiteral("FLUR") });

    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.errors, "a.dxf: There is no layer \"FLUR\" in the drawing.\n");
    EXPECT_EQ(bytes(QStringLiteral("a.dxf")), redWalls().toBytes());
}

TEST_F(BatchIgnore, ADrawingOfR12RefusesAStampAndSaysWhatToDo)
{
    CKvDrawingBuilder drawing("AC1009");
    drawing.layer("WALLS");
    save(QStringLiteral("a.dxf"), drawing);

    const CKvBatchRun result = ignore({ QStringLiteral("WALLS") });

    EXPECT_EQ(result.status, 3);
    EXPECT_THAT(result.errors, HasSubstr("R2000 or newer"));
    EXPECT_EQ(bytes(QStringLiteral("a.dxf")), drawing.toBytes());
}

TEST_F(BatchIgnore, ADrawingThatIsGoneEndsWith3)
{
    EXPECT_EQ(run({ QStringLiteral("ignore"),
                    QStringLiteral("gone.dxf"),
                    QStringLiteral("layers"),
                    QStringLiteral("X") })
                  .status,
              3);
}
