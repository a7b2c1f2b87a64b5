// SPDX-License-Identifier: MIT
#include "CKvBatchTest.h"

#include "CKvCategory.h"
#include "CKvUtilsBase.h"

#include <gmock/gmock.h>

using ::testing::HasSubstr;
using ::testing::Not;

namespace
{

enum class Values { Standard, Other };

/// A record of the category, ignored by a user where one is named.
void addRecord(CKvDrawingBuilder &drawing,
               const std::string &category,
               const char *name,
               Values values,
               const char *ignoredBy = nullptr)
{
    const bool isOther = values == Values::Other;
    const auto stamp = [ignoredBy](auto &record) {
        if (ignoredBy) {
            record.stamped(1, ignoredBy);
        }
    };
    if (category == "layers") {
        stamp(drawing.layer(name).color(isOther ? 1 : 5));
    } else if (category == "linestyles") {
        stamp(drawing.lineStyle(name).dashes({ isOther ? 2.0 : 1.0, -1 }));
    } else if (category == "textstyles") {
        stamp(drawing.textStyle(name).width(isOther ? 0.8 : 1.0));
    } else {
        stamp(drawing.dimStyle(name).group(40, isOther ? 2.0 : 1.0));
    }
}

/// What holds for each category alike.
class BatchCategory : public CKvBatchTest, public ::testing::WithParamInterface<const CKvCategory *>
{
protected:
    void SetUp() override
    {
        CKvDrawingBuilder standards;
        standards.withDefaults();
        for (const char *name : { "RIGHT", "WRONG", "TARGET" }) {
            addRecord(standards, word(), name, Values::Standard);
        }
        save(QStringLiteral("std.dxf"), standards);
        CKvDrawingBuilder drawing;
        drawing.withDefaults();
        addRecord(drawing, word(), "Right", Values::Standard);
        addRecord(drawing, word(), "WRONG", Values::Other);
        addRecord(drawing, word(), "OLD", Values::Other);
        addRecord(drawing, word(), "KEPT", Values::Standard, "anna");
        save(QStringLiteral("a.dxf"), drawing);
    }
    static std::string word() { return GetParam()->word; }
    /// Arguments with "CATEGORY" for the category of the test.
    CKvBatchRun start(const char *arguments) const
    {
        return run(QString::fromUtf8(arguments)
                       .replace(QLatin1String("CATEGORY"), QString::fromStdString(word()))
                       .split(QLatin1Char(' ')));
    }
};

std::string wordOf(const ::testing::TestParamInfo<const CKvCategory *> &info)
{
    return info.param->word;
}

} // namespace

TEST_P(BatchCategory, ReportsNamesAndProperties)
{
    for (const char *only : { "", " --only CATEGORY" }) {
        const CKvBatchRun result =
            start(("check a.dxf -s std.dxf -f json" + std::string(only)).c_str());

        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(violations(result),
                  word() + ".properties WRONG\n" + word() + ".name OLD\n" + word()
                      + ".name KEPT\n");
        EXPECT_EQ(json(result).at("summary").dump(),
                  R"({"drawings":1,"failed":0,"violations":2,"ignored":1})");
        EXPECT_EQ(result.errors, "");
    }
}

TEST_P(BatchCategory, IsNoneOfTheOthers)
{
    for (const CKvCategory *other : allCategories()) {
        if (other != GetParam()) {
            const CKvBatchRun result = run({ QStringLiteral("check"),
                                             QStringLiteral("a.dxf"),
                                             QStringLiteral("-s"),
                                             QStringLiteral("std.dxf"),
                                             QStringLiteral("--only"),
                                             QString::fromUtf8(other->word) });
            EXPECT_EQ(result.status, 0) << other->word << ::testing::PrintToString(result);
        }
    }
}

TEST_P(BatchCategory, OffersTheStandardsAndRecommendsTheNamesake)
{
    const CKvBatchRun result = start("check a.dxf -s std.dxf -f json --only CATEGORY");

    const auto wrong = firstDrawing(result).at("violations").at(0);
    EXPECT_EQ(wrong.at("fixes").size(), 1U);
    EXPECT_EQ(wrong.at("fixes").at(0).at("name"), "WRONG");
    EXPECT_EQ(wrong.at("fixes").at(0).at("index"), wrong.at("recommended"));
    EXPECT_EQ(wrong.at("fixes").at(0).at("differences").size(), 1U);
    const auto old = firstDrawing(result).at("violations").at(1);
    EXPECT_EQ(old.at("recommended"), -1);
    EXPECT_GE(old.at("candidates"), 3);
}

TEST_P(BatchCategory, EveryFormatTellsIt)
{
    for (const char *format : { "text", "json", "jsonl", "sarif", "junit", "html", "csv" }) {
        const CKvBatchRun result =
            start(("check a.dxf -s std.dxf --only CATEGORY -f " + std::string(format)).c_str());

        EXPECT_EQ(result.status, 1) << format;
        EXPECT_EQ(result.errors, "") << format;
        EXPECT_THAT(result.output, HasSubstr("WRONG")) << format;
        EXPECT_THAT(result.output, HasSubstr("OLD")) << format;
        EXPECT_THAT(result.output, HasSubstr("anna")) << format;
        EXPECT_THAT(result.output, Not(HasSubstr("Right"))) << format;
    }
}

TEST_P(BatchCategory, IsRepairedAsRecommendedAndAsTheMapSays)
{
    write(QStringLiteral("map.csv"),
          "category,name,target\n" + QByteArray::fromStdString(word()) + ",OLD,TARGET\n");

    const CKvBatchRun result = start("fix a.dxf -s std.dxf --map map.csv -o out -f json");

    EXPECT_EQ(result.status, 0) << ::testing::PrintToString(result);
    std::string repaired;
    const auto drawing = firstDrawing(result);
    for (const auto &repair : drawing.at("repaired")) {
        repaired += repair.at("category").get<std::string>() + " "
            + repair.at("name").get<std::string>() + " as " + repair.at("target").get<std::string>()
            + "\n";
    }
    EXPECT_EQ(repaired, word() + " WRONG as WRONG\n" + word() + " OLD as TARGET\n");
    EXPECT_EQ(drawing.at("notRepaired").size(), 0U);
    EXPECT_EQ(violations(result), word() + ".name KEPT\n");
    EXPECT_EQ(start("check out/a.dxf -s std.dxf").status, 0);
}

TEST_P(BatchCategory, IsIgnoredAndNoLongerIgnored)
{
    const std::string object = std::string(GetParam()->noun) + " \"old\"";
    const std::string user = CKvUtilsBase::getUserName().toQString().toStdString();

    EXPECT_EQ(start("ignore a.dxf CATEGORY old").output,
              "a.dxf: " + object + " is ignored by " + user + "\n");
    EXPECT_EQ(json(start("check a.dxf -s std.dxf -f json")).at("summary").at("ignored"), 2);
    EXPECT_EQ(start("ignore a.dxf CATEGORY old --off").output,
              "a.dxf: " + object + " is no longer ignored\n");
    EXPECT_EQ(json(start("check a.dxf -s std.dxf -f json")).at("summary").at("ignored"), 1);
}

TEST_P(BatchCategory, AnObjectThatThereIsNoneOfCannotBeIgnored)
{
    const CKvBatchRun result = start("ignore a.dxf CATEGORY NONE");

    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.errors,
              "a.dxf: There is no " + std::string(GetParam()->noun)
                  + " \"NONE\" in the drawing.\n");
}

TEST_P(BatchCategory, IsShownWithItsStamps)
{
    const CKvBatchRun text = start("show a.dxf --only CATEGORY");
    EXPECT_EQ(text.status, 0);
    EXPECT_THAT(text.output, HasSubstr("ignored by anna"));

    const auto shown = json(start("show a.dxf --only CATEGORY -f json")).at(word());
    std::string names;
    for (const auto &record : shown) {
        names += record.at("name").get<std::string>()
            + (record.at("ignored").get<bool>() ? " ignored\n" : "\n");
        EXPECT_FALSE(record.at("properties").empty());
    }
    EXPECT_THAT(names, ::testing::EndsWith("Right\nWRONG\nOLD\nKEPT ignored\n"));
}

INSTANTIATE_TEST_SUITE_P(All, BatchCategory, ::testing::ValuesIn(allCategories()), wordOf);
