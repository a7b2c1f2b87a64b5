// SPDX-License-Identifier: MIT
#include "CKvLayerTest.h"

namespace
{

class LayerScan : public CKvLayerTest
{
protected:
    std::string restricted(std::initializer_list<const char *> names)
    {
        return CKvLayerTest::restricted(m_database->getLayerTableId(), names);
    }
};

struct CKvLayerPair {
    const char *what;
    void (*change)(CKvLayerBuilder &drawn, CKvLayerBuilder &standard);
};

void PrintTo(const CKvLayerPair &pair, std::ostream *out)
{
    *out << pair.what;
}

class LayerAgreement : public CKvLayerTest, public testing::WithParamInterface<CKvLayerPair>
{
};

class LayerDisagreement : public CKvLayerTest, public testing::WithParamInterface<CKvLayerPair>
{
};

std::string nameOfCase(const testing::TestParamInfo<CKvLayerPair> &info)
{
    return info.param.what;
}

} // namespace

TEST_P(LayerAgreement, IsNoViolation)
{
    GetParam().change(m_drawing.layer("WALLS"), m_office.layer("WALLS"));

    EXPECT_EQ(report(), "");
}

INSTANTIATE_TEST_SUITE_P(
    Of,
    LayerAgreement,
    testing::Values(CKvLayerPair { "AllValues",
                                   [](CKvLayerBuilder &drawn, CKvLayerBuilder &standard) {
                                       drawn.color(1).lineWeight(25).lineStyle("DASHED");
                                       standard.color(1).lineWeight(25).lineStyle("DASHED");
                                   } },
                    CKvLayerPair { "LineStylesInOtherLetters",
                                   [](CKvLayerBuilder &drawn, CKvLayerBuilder &standard) {
                                       drawn.lineStyle("Dashed");
                                       standard.lineStyle("DASHED");
                                   } },
                    CKvLayerPair { "TrueColorsOfOneIndex",
                                   [](CKvLayerBuilder &drawn, CKvLayerBuilder &standard) {
                                       drawn.trueColor(1, 2, 3, 5);
                                       standard.trueColor(9, 8, 7, 5);
                                   } },
                    CKvLayerPair { "ATrueColorAndItsIndex",
                                   [](CKvLayerBuilder &drawn, CKvLayerBuilder &standard) {
                                       drawn.trueColor(1, 2, 3, 5);
                                       standard.color(5);
                                   } },
                    CKvLayerPair { "ColorsOfTwoBooks",
                                   [](CKvLayerBuilder &drawn, CKvLayerBuilder &standard) {
                                       drawn.trueColor(1, 2, 3, 5).colorBook("RAL$1000");
                                       standard.trueColor(1, 2, 3, 5).colorBook("RAL$2000");
                                   } },
                    CKvLayerPair { "ALayerThatIsOff",
                                   [](CKvLayerBuilder &drawn, CKvLayerBuilder &standard) {
                                       drawn.color(-3);
                                       standard.color(3);
                                   } },
                    CKvLayerPair {
                        "AFrozenAndLockedLayer",
                        [](CKvLayerBuilder &drawn, CKvLayerBuilder &) { drawn.flags(5); } },
                    CKvLayerPair { "TheDefaultsOfWhatIsLeftOut",
                                   [](CKvLayerBuilder &drawn, CKvLayerBuilder &standard) {
                                       drawn.without(62).without(6);
                                       standard.color(7).lineStyle("Continuous").lineWeight(-3);
                                   } }),
    nameOfCase);

TEST_P(LayerDisagreement, IsAPropertyViolation)
{
    GetParam().change(m_drawing.layer("WALLS"), m_office.layer("WALLS"));

    EXPECT_EQ(report(), "WALLS: Layer properties are non-standard. WALLS@/office.dxf*\n");
}

INSTANTIATE_TEST_SUITE_P(
    Of,
    LayerDisagreement,
    testing::Values(CKvLayerPair { "Color",
                                   [](CKvLayerBuilder &drawn, CKvLayerBuilder &standard) {
                                       drawn.color(1);
                                       standard.color(2);
                                   } },
                    CKvLayerPair { "TrueColorsOfTwoIndexes",
                                   [](CKvLayerBuilder &drawn, CKvLayerBuilder &standard) {
                                       drawn.trueColor(1, 2, 3, 5);
                                       standard.trueColor(9, 8, 7, 6);
                                   } },
                    CKvLayerPair { "LineStyle",
                                   [](CKvLayerBuilder &drawn, CKvLayerBuilder &standard) {
                                       drawn.lineStyle("DASHED");
                                       standard.lineStyle("CENTER");
                                   } },
                    CKvLayerPair { "LineWeight",
                                   [](CKvLayerBuilder &drawn, CKvLayerBuilder &standard) {
                                       drawn.lineWeight(25);
                                       standard.lineWeight(30);
                                   } },
                    CKvLayerPair { "LineWeightDefaultAndNamed",
                                   [](CKvLayerBuilder &, CKvLayerBuilder &standard) {
                                       standard.lineWeight(25);
                                   } }),
    nameOfCase);

TEST_F(LayerScan, ANameThatTheStandardsLackIsANameViolation)
{
    m_drawing.layer("WALLS");
    m_office.layer("DOORS");

    EXPECT_EQ(report(), "WALLS: Layer name is non-standard. DOORS@/office.dxf\n");
}

TEST_F(LayerScan, ANameThatDiffersOnlyInLetterCaseIsNoViolation)
{
    m_drawing.layer("walls").color(1);
    m_office.layer("WALLS").color(1);

    EXPECT_EQ(report(), "");
}

TEST_F(LayerScan, AViolationHoldsTheValuesOfTheLayer)
{
    m_drawing.layer("WALLS").trueColor(10, 20, 30, 5).lineWeight(35).lineStyle("Dashed");
    m_office.layer("WALLS");

    report();

    EXPECT_EQ(propertiesText(violationOf("WALLS").error),
              "LineColor=10,20,30 LineStyle=Dashed LineWeight=0.35 mm Name=WALLS");
    EXPECT_EQ(violationOf("WALLS").error->objectType(), CKvString("Layer"));
}

TEST_F(LayerScan, ANameViolationHoldsTheSameProperties)
{
    m_drawing.layer("ATTIC").color(1);
    m_office.layer("WALLS");

    report();

    EXPECT_EQ(propertiesText(violationOf("ATTIC").error),
              "LineColor=red LineStyle=Continuous LineWeight=Default Name=ATTIC");
}

TEST_F(LayerScan, TheValuesHaveTheirTypeCodes)
{
    m_drawing.layer("ATTIC");
    m_office.layer("WALLS");

    report();
    const CKvStdsErrorPtr error = violationOf("ATTIC").error;

    EXPECT_EQ(error->property(CKvString("Name"))->restype(), 5005);
    EXPECT_EQ(error->property(CKvString("LineColor"))->restype(), 5011);
    EXPECT_EQ(error->property(CKvString("LineWeight"))->restype(), 5005);
    EXPECT_EQ(error->property(CKvString("LineStyle"))->restype(), 5005);
}

TEST_F(LayerScan, DefpointsIsNoViolationWhereTheStandardsLackIt)
{
    m_drawing.layer("defpoints").color(1);
    m_office.layer("WALLS");

    EXPECT_EQ(report(), "");
}

TEST_F(LayerScan, DefpointsIsComparedWhereTheStandardsHaveIt)
{
    m_drawing.layer("defpoints").color(1);
    m_office.layer("WALLS").color(2);
    m_office.layer("Defpoints").color(3);

    EXPECT_EQ(report(),
              "defpoints: Layer properties are non-standard. WALLS@/office.dxf "
              "Defpoints@/office.dxf*\n");
}

TEST_F(LayerScan, LayerZeroThatTheStandardsLackIsANameViolation)
{
    m_drawing.layer("0");
    m_office.layer("WALLS");
    m_office.layer("DEFPOINTS");

    EXPECT_EQ(report(), "0: Layer name is non-standard. WALLS@/office.dxf\n");
}

TEST_F(LayerScan, ALayerOfAnExternalReferenceNeverAppears)
{
    m_drawing.layer("SITE|WALLS");
    m_drawing.layer("BOUND").flags(16);
    m_drawing.layer("WALLS");
    m_office.layer("DOORS");

    EXPECT_EQ(report(), "WALLS: Layer name is non-standard. DOORS@/office.dxf\n");
    EXPECT_EQ(restricted({ "SITE|WALLS", "BOUND", "WALLS" }),
              "WALLS: Layer name is non-standard. DOORS@/office.dxf\n");
}

TEST_F(LayerScan, AHiddenLayerNeverAppears)
{
    m_drawing.layer("*ADSK_CONSTRAINTS");
    m_drawing.layer("WALLS");
    m_office.layer("DOORS");

    EXPECT_EQ(report(), "WALLS: Layer name is non-standard. DOORS@/office.dxf\n");
    EXPECT_EQ(restricted({ "*ADSK_CONSTRAINTS", "WALLS" }),
              "WALLS: Layer name is non-standard. DOORS@/office.dxf\n");
}

TEST_F(LayerScan, OnlyHiddenAndDependentLayersGivenLeadToTheWholeTable)
{
    m_drawing.layer("*HIDDEN");
    m_drawing.layer("SITE|WALLS");
    m_drawing.layer("WALLS");
    m_office.layer("DOORS");
    report();

    EXPECT_EQ(restricted({ "*HIDDEN", "SITE|WALLS" }),
              "WALLS: Layer name is non-standard. DOORS@/office.dxf\n");
}

TEST_F(LayerScan, AHiddenLayerOfAStandardsFileIsARecordAndADependentOneIsNot)
{
    m_drawing.layer("WALLS");
    m_office.layer("*HIDDEN");
    m_office.layer("SITE|DOORS");
    m_office.layer("BOUND").flags(16);

    EXPECT_EQ(report(), "WALLS: Layer name is non-standard. *HIDDEN@/office.dxf\n");
}

TEST_F(LayerScan, TwoLayersOfOneNameAreBothJudged)
{
    m_drawing.layer("WALLS").color(1);
    m_drawing.layer("walls").color(2);
    m_office.layer("WALLS").color(2);

    EXPECT_EQ(report(), "WALLS: Layer properties are non-standard. WALLS@/office.dxf*\n");
}

TEST_F(LayerScan, OnlyTheFirstRecordOfANameJudges)
{
    CKvDrawingBuilder firm;
    firm.layer("WALLS").color(1);
    m_services.setDrawing("/firm.dxf", firm);
    m_drawing.layer("WALLS").color(1);
    m_office.layer("WALLS").color(2);

    EXPECT_EQ(report({ QStringLiteral("/office.dxf"), QStringLiteral("/firm.dxf") }),
              "WALLS: Layer properties are non-standard. WALLS@/office.dxf*\n");
    EXPECT_EQ(report({ QStringLiteral("/firm.dxf"), QStringLiteral("/office.dxf") }), "");
}

TEST_F(LayerScan, AnOldDrawingWithoutHandlesIsJudgedLikeAnyOther)
{
    m_drawing = CKvDrawingBuilder("AC1009");
    m_drawing.layer("WALLS").color(1);
    m_office = CKvDrawingBuilder("AC1009");
    m_office.layer("WALLS").color(2);

    EXPECT_EQ(report(), "WALLS: Layer properties are non-standard. WALLS@/office.dxf*\n");
}

TEST_F(LayerScan, AnObjectThatOnlyBearsTheNameOfTheCategoryIsRefused)
{
    m_drawing.layer("WALLS");
    m_drawing.namedObjects().object("LAYER", "ODD").handle("ABC");
    m_office.layer("DOORS");
    report();
    OdDbObjectIdArray ids;
    ids.append(m_database->getOdDbObjectId(OdDbHandle(0xABC)));
    ASSERT_FALSE(ids.first().isNull());

    EXPECT_THROW(m_plugin.setObjectsToCheck(ids, /*scanAll*/ false), OdError_NotThatKindOfClass);
}
