// SPDX-License-Identifier: MIT
#include "CKvBatchTest.h"

#include <QDir>
#include <QFile>

namespace
{

const QString &sourceFolder()
{
    static const QString s_folder = QStringLiteral(KV_SOURCE_FOLDER);
    return s_folder;
}

QString contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// What the documents show is what the program does.
class BatchDocuments : public CKvBatchTest
{
protected:
    void SetUp() override
    {
        const QDir samples(sourceFolder() + QStringLiteral("/samples"));
        for (const QString &name :
             samples.entryList({ QStringLiteral("*.dxf"), QStringLiteral("*.csv") }, QDir::Files)) {
            QFile file(samples.filePath(name));
            ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
            write(QStringLiteral("samples/") + name, file.readAll());
        }
    }
    CKvBatchRun start(const QString &arguments) const
    {
        return run(arguments.split(QLatin1Char(' ')));
    }
};

} // namespace

TEST_F(BatchDocuments, TheReadmeShowsWhatTheProgramSaysOfTheFloorPlan)
{
    const QString readme = contentOf(sourceFolder() + QStringLiteral("/README.md"));
    const QString call = QStringLiteral("$ kvstandards check samples/floor-plan.dxf\n");
    const int begin = readme.indexOf(call) + call.size();
    const QString shown = readme.mid(begin, readme.indexOf(QStringLiteral("```"), begin) - begin);

    EXPECT_EQ(start(QStringLiteral("check samples/floor-plan.dxf")).output, shown.toStdString());
}

TEST_F(BatchDocuments, TheGoodSamplesAreCleanAndTheBadOnesAreNot)
{
    for (const char *category : { "layers", "linestyles", "textstyles", "dimstyles" }) {
        const QString sample = QStringLiteral("check samples/") + QString::fromUtf8(category);
        const CKvBatchRun good = start(sample + QStringLiteral("-good.dxf"));
        EXPECT_EQ(good.status, 0) << ::testing::PrintToString(good);

        const CKvBatchRun bad = start(sample + QStringLiteral("-bad.dxf -f json"));
        EXPECT_EQ(bad.status, 1) << category;
        const auto drawing = firstDrawing(bad);
        for (const auto &violation : drawing.at("violations")) {
            EXPECT_EQ(violation.at("category"), category) << violation.dump(2);
        }
    }
}

TEST_F(BatchDocuments, TheMapOfTheSamplesLeavesNothingOpenInTheFloorPlan)
{
    const CKvBatchRun result = start(
        QStringLiteral("fix --map samples/floor-plan-map.csv -o repaired samples/floor-plan.dxf"));

    EXPECT_EQ(result.status, 0) << ::testing::PrintToString(result);
}

TEST_F(BatchDocuments, EverySampleThatNamesStandardsIsRepairedAsFarAsTheyGo)
{
    for (const char *name : { "floor-plan", "flange", "site-plan", "textstyles-bad" }) {
        const QString file = QString::fromUtf8(name) + QStringLiteral(".dxf");
        const CKvBatchRun fixed = start(QStringLiteral("fix -f json --in-place samples/") + file);
        EXPECT_EQ(firstDrawing(fixed).at("notRepaired").size(), 0U) << name;
        const auto drawing = firstDrawing(fixed);
        for (const auto &violation : drawing.at("violations")) {
            EXPECT_TRUE(violation.at("ignored") || violation.at("kind") == "name")
                << violation.dump(2);
        }
    }
}
