// SPDX-License-Identifier: MIT
#include "CKvBatchTest.h"

namespace
{

class BatchShow : public CKvBatchTest
{
protected:
    void SetUp() override
    {
        CKvDrawingBuilder drawing("AC1032");
        drawing.lineStyle("DASHED").dashes({ 1, -1 });
        drawing.layer("WALLS").color(1).lineWeight(25).lineStyle("DASHED").handle("2A0");
        drawing.layer("壁").trueColor(1, 2, 3, 8).handle("2A1").stamped(1, "anna");
        drawing.layer("*ADSK").lineWeight(7).handle("2A2");
        drawing.layer("XREF|DOORS").handle("2A3");
        save(QStringLiteral("a.dxf"), drawing);
    }
    CKvBatchRun show(const QStringList &arguments) const
    {
        return run(QStringList { QStringLiteral("show"), QStringLiteral("a.dxf") } + arguments);
    }
};

} // namespace

TEST_F(BatchShow, ListsTheLayersWithTheirValues)
{
    const CKvBatchRun result = show({ QStringLiteral("--only"), QStringLiteral("layers") });

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output,
              "Layer       LineColor  LineStyle   LineWeight\n"
              "WALLS       red        DASHED      0.25 mm\n"
              "壁          1,2,3      Continuous  Default     ignored by anna\n"
              "*ADSK       white      Continuous  7           hidden\n"
              "XREF|DOORS  white      Continuous  Default     external reference\n");
}

TEST_F(BatchShow, JsonHasTheSameValues)
{
    const auto report = json(show({ QStringLiteral("-f"),
                                    QStringLiteral("json"),
                                    QStringLiteral("--only"),
                                    QStringLiteral("layers") }));

    EXPECT_EQ(report.at("path"), "a.dxf");
    EXPECT_EQ(report.at("layers").size(), 4U);
    EXPECT_EQ(
        report.at("layers").at(1).dump(),
        R"({"name":"壁","handle":"2A1","properties":{"LineColor":"1,2,3","LineStyle":"Continuous",)"
        R"("LineWeight":"Default"},"hidden":false,"externalReference":false,"ignored":true,)"
        R"("ignoredBy":"anna"})");
}

TEST_F(BatchShow, ADrawingThatCannotBeReadEndsWith3)
{
    write(QStringLiteral("a.dxf"), "rubbish\n");

    const CKvBatchRun result = show({});

    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.output, "");
    EXPECT_NE(result.errors, "");
}

TEST_F(BatchShow, ListsEachCategoryUnderItsHeading)
{
    const CKvBatchRun result =
        show({ QStringLiteral("--only"), QStringLiteral("linestyles,layers") });

    EXPECT_EQ(result.output,
              "Layer       LineColor  LineStyle   LineWeight\n"
              "WALLS       red        DASHED      0.25 mm\n"
              "壁          1,2,3      Continuous  Default     ignored by anna\n"
              "*ADSK       white      Continuous  7           hidden\n"
              "XREF|DOORS  white      Continuous  Default     external reference\n"
              "\n"
              "Line style  Dashes  Pattern Length\n"
              "DASHED      2       2.0000\n");
}

TEST_F(BatchShow, JsonHasAListForEachCategory)
{
    const auto report = json(show({ QStringLiteral("-f"), QStringLiteral("json") }));

    EXPECT_EQ(report.at("layers").size(), 4U);
    EXPECT_EQ(report.at("linestyles").dump(),
              R"([{"name":"DASHED","handle":"11","properties":{"Dashes":"2",)"
              R"("Pattern Length":"2.0000"},"externalReference":false,"ignored":false,)"
              R"("ignoredBy":""}])");
}

TEST_F(BatchShow, ACategoryWithoutRecordsHasItsHeadingOnly)
{
    save(QStringLiteral("a.dxf"), CKvDrawingBuilder());

    EXPECT_EQ(show({ QStringLiteral("--only"), QStringLiteral("layers,linestyles") }).output,
              "Layer\n\nLine style\n");
}
