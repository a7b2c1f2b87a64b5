// SPDX-License-Identifier: MIT
#include "auditText.h"
#include "lineweightNames.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace
{

const std::map<int, std::string> &expectedNames()
{
    static const std::map<int, std::string> s_names {
        { -3, "Default" },  { -2, "ByBlock" },  { -1, "ByLayer" },  { 0, "0.00 mm" },
        { 5, "0.05 mm" },   { 9, "0.09 mm" },   { 13, "0.13 mm" },  { 15, "0.15 mm" },
        { 18, "0.18 mm" },  { 20, "0.20 mm" },  { 25, "0.25 mm" },  { 30, "0.30 mm" },
        { 35, "0.35 mm" },  { 40, "0.40 mm" },  { 50, "0.50 mm" },  { 53, "0.53 mm" },
        { 60, "0.60 mm" },  { 70, "0.70 mm" },  { 80, "0.80 mm" },  { 90, "0.90 mm" },
        { 100, "1.00 mm" }, { 106, "1.06 mm" }, { 120, "1.20 mm" }, { 140, "1.40 mm" },
        { 158, "1.58 mm" }, { 200, "2.00 mm" }, { 211, "2.11 mm" }
    };
    return s_names;
}

std::string nameOfWeight(int lineWeight)
{
    return ConvertLineweightToName(OdDb::LineWeight(lineWeight)).toQString().toStdString();
}

/// "true 25", with the lineweight that the call left in a variable that held 77.
std::string converted(const char *name)
{
    auto lineWeight = OdDb::LineWeight(77);
    const bool isKnown = ConvertNameToLineweight(CKvString(name), lineWeight);
    return (isKnown ? "true " : "false ") + std::to_string(int(lineWeight));
}

} // namespace

TEST(LineweightNames, TheNamedLineweightsHaveNamesAndNoOthers)
{
    for (int lineWeight = -10; lineWeight <= 300; ++lineWeight) {
        const auto expected = expectedNames().find(lineWeight);
        EXPECT_EQ(nameOfWeight(lineWeight),
                  expected == expectedNames().end() ? std::string() : expected->second)
            << lineWeight;
    }
}

TEST(LineweightNames, EveryNameTurnsBackIntoItsLineweight)
{
    for (const auto &[lineWeight, name] : expectedNames()) {
        EXPECT_EQ(converted(name.c_str()), "true " + std::to_string(lineWeight)) << name;
    }
}

TEST(LineweightNames, APartOfOneWordIsEnough)
{
    EXPECT_EQ(converted("Lay"), "true -1");
    EXPECT_EQ(converted("block"), "true -2");
    EXPECT_EQ(converted("Default"), "true -3");
    EXPECT_EQ(converted("Defa"), "true -3");
    EXPECT_EQ(converted("BYD"), "true -3");
}

TEST(LineweightNames, APartOfSeveralWordsIsRefused)
{
    EXPECT_EQ(converted("By"), "false 77");
    EXPECT_EQ(converted(""), "false 77");
    // ByBlock and ByLayer.
    EXPECT_EQ(converted("yl"), "true -1");
    EXPECT_EQ(converted("l"), "false 77");
    EXPECT_EQ(converted("ByL"), "true -1");
}

TEST(LineweightNames, AWholeNameInMillimetresIsFoundInAnyCase)
{
    EXPECT_EQ(converted("0.25 MM"), "true 25");
    EXPECT_EQ(converted("2.11 mm"), "true 211");
}

TEST(LineweightNames, AnUnknownNameStoresNothingAndIsNotRefused)
{
    EXPECT_EQ(converted("0.26 mm"), "true 77");
    EXPECT_EQ(converted("0.25"), "true 77");
    EXPECT_EQ(converted("ByLayers"), "true 77");
}
