// SPDX-License-Identifier: MIT
#include "CKvLayerTest.h"

namespace
{

class LayerCandidates : public CKvLayerTest
{
};

} // namespace

TEST_F(LayerCandidates, ANameViolationIsOfferedEverythingButDefpoints)
{
    m_drawing.layer("ATTIC").color(1);
    m_office.layer("0");
    m_office.layer("DEFPOINTS");
    m_office.layer("WALLS").color(1);
    m_office.layer("*HIDDEN");

    EXPECT_EQ(report(),
              "ATTIC: Layer name is non-standard. 0@/office.dxf WALLS@/office.dxf "
              "*HIDDEN@/office.dxf\n");
}

TEST_F(LayerCandidates, APropertyViolationIsOfferedEveryRecordOfOtherProperties)
{
    m_drawing.layer("WALLS").color(1).lineWeight(25).lineStyle("DASHED");
    m_office.layer("EQUAL").color(1).lineWeight(25).lineStyle("dashed");
    m_office.layer("COLOR").color(2).lineWeight(25).lineStyle("DASHED");
    m_office.layer("WEIGHT").color(1).lineWeight(30).lineStyle("DASHED");
    m_office.layer("STYLE").color(1).lineWeight(25).lineStyle("CENTER");
    m_office.layer("Defpoints").color(5);
    m_office.layer("0").color(6);
    m_office.layer("walls").color(3);

    EXPECT_EQ(report(),
              "WALLS: Layer properties are non-standard. COLOR@/office.dxf WEIGHT@/office.dxf "
              "STYLE@/office.dxf Defpoints@/office.dxf 0@/office.dxf walls@/office.dxf*\n");
}

TEST_F(LayerCandidates, TheWholeColorCountsForTheChoice)
{
    m_drawing.layer("WALLS").trueColor(1, 2, 3, 5).lineWeight(25);
    m_office.layer("SAME").trueColor(1, 2, 3, 5).lineWeight(25);
    m_office.layer("INDEX").color(5).lineWeight(25);
    m_office.layer("OTHER").trueColor(9, 8, 7, 5).lineWeight(25);
    m_office.layer("BOOK").trueColor(1, 2, 3, 5).colorBook("RAL$1000").lineWeight(25);
    m_office.layer("WALLS").trueColor(1, 2, 3, 5).lineWeight(30);

    EXPECT_EQ(report(),
              "WALLS: Layer properties are non-standard. INDEX@/office.dxf OTHER@/office.dxf "
              "BOOK@/office.dxf WALLS@/office.dxf*\n");
}

TEST_F(LayerCandidates, LayerZeroIsOfferedItsExactNameOnly)
{
    m_drawing.layer("0").color(1);
    m_office.layer("WALLS").color(2);
    m_office.layer("0").color(3);

    EXPECT_EQ(report(), "0: Layer properties are non-standard. 0@/office.dxf*\n");
}

TEST_F(LayerCandidates, DefpointsInItsUsualLettersIsOfferedItsExactNameOnly)
{
    CKvDrawingBuilder firm;
    firm.layer("Defpoints").color(4);
    m_services.setDrawing("/firm.dxf", firm);
    m_drawing.layer("Defpoints").color(1);
    m_office.layer("DEFPOINTS").color(2);
    m_office.layer("WALLS").color(3);

    EXPECT_EQ(report({ QStringLiteral("/office.dxf"), QStringLiteral("/firm.dxf") }),
              "Defpoints: Layer properties are non-standard. Defpoints@/firm.dxf*\n");
}

TEST_F(LayerCandidates, ATiedNameIsNotOfferedARecordOfItsOwnProperties)
{
    CKvDrawingBuilder firm;
    firm.layer("0").color(1);
    m_services.setDrawing("/firm.dxf", firm);
    m_drawing.layer("0").color(1);
    m_office.layer("0").color(2);

    EXPECT_EQ(report({ QStringLiteral("/office.dxf"), QStringLiteral("/firm.dxf") }),
              "0: Layer properties are non-standard. 0@/office.dxf*\n");
}

// A lineweight without a name reads back as Default; that is intended.
TEST_F(LayerCandidates, ALineweightWithoutANameCountsAsDefaultInTheChoice)
{
    m_drawing.layer("WALLS").lineWeight(33);
    m_office.layer("DEFAULT");
    m_office.layer("WALLS").lineWeight(25);

    EXPECT_EQ(report(), "WALLS: Layer properties are non-standard. WALLS@/office.dxf*\n");
    EXPECT_EQ(propertiesText(violationOf("WALLS").error),
              "LineColor=white LineStyle=Continuous LineWeight= Name=WALLS");
}

TEST_F(LayerCandidates, TheSameNameInTwoFilesIsOfferedTwiceAndTheFirstIsRecommended)
{
    CKvDrawingBuilder firm;
    firm.layer("WALLS").color(3);
    m_services.setDrawing("/firm.dxf", firm);
    m_drawing.layer("WALLS").color(1);
    m_office.layer("DOORS").color(2);
    m_office.layer("WALLS").color(2);

    EXPECT_EQ(report({ QStringLiteral("/office.dxf"), QStringLiteral("/firm.dxf") }),
              "WALLS: Layer properties are non-standard. DOORS@/office.dxf WALLS@/office.dxf* "
              "WALLS@/firm.dxf\n");
}

TEST_F(LayerCandidates, AFixHoldsTheValuesOfItsRecord)
{
    m_drawing.layer("ATTIC");
    m_office.layer("WALLS").trueColor(10, 20, 30, 5).lineWeight(35).lineStyle("Dashed");
    report();

    const CKvStdsFixPtr fix = fixOf(violationOf("ATTIC"), "WALLS");

    EXPECT_EQ(fix->name(), CKvString("WALLS"));
    EXPECT_EQ(fix->objectName(), CKvString("WALLS"));
    EXPECT_EQ(fix->standardsFile(), CKvString("/office.dxf"));
    EXPECT_TRUE(fix->objectId().isNull());
    EXPECT_EQ(fix->propertyCount(), 4);
    EXPECT_EQ(valueText(fix->property(CKvString("Name"))), "WALLS");
    EXPECT_EQ(valueText(fix->property(CKvString("LineColor"))), "10,20,30");
    EXPECT_EQ(valueText(fix->property(CKvString("LineWeight"))), "0.35 mm");
    EXPECT_EQ(valueText(fix->property(CKvString("LineStyle"))), "Dashed");
}

TEST_F(LayerCandidates, ViolationsOfOneSetOfValuesShareTheirArray)
{
    m_office.layer("OTHER").color(1);
    for (const char *name : { "WALLS", "DOORS", "ATTIC" }) {
        m_drawing.layer(name).color(1);
        m_office.layer(name).color(2);
    }
    m_drawing.layer("CELLAR").color(3);
    m_office.layer("CELLAR").color(2);

    report();

    EXPECT_TRUE(violationOf("WALLS").fixes.sharesWith(violationOf("DOORS").fixes));
    EXPECT_TRUE(violationOf("WALLS").fixes.sharesWith(violationOf("ATTIC").fixes));
    EXPECT_FALSE(violationOf("WALLS").fixes.sharesWith(violationOf("CELLAR").fixes));
    EXPECT_EQ(violationsText({ violationOf("CELLAR") }),
              "CELLAR: Layer properties are non-standard. OTHER@/office.dxf WALLS@/office.dxf "
              "DOORS@/office.dxf ATTIC@/office.dxf CELLAR@/office.dxf*\n");
}

namespace
{

/// Keeps the fix that is made and thrown away while candidates are collected.
class CKvListeningPlugin : public CKvLayerPluginImpl
{
public:
    CKvStdsFixPtr recommendedFix(CKvStdsErrorPtr error) override
    {
        lastRecommended = CKvLayerPluginImpl::recommendedFix(error);
        return lastRecommended;
    }

    CKvStdsFixPtr lastRecommended;
};

} // namespace

TEST_F(LayerCandidates, TheRecommendedFixIsNewAndHoldsTheLineweightAsANumber)
{
    m_drawing.layer("WALLS").color(1);
    m_office.layer("walls").color(2).lineWeight(35);
    report();
    CKvListeningPlugin plugin;

    const auto violations = audit(plugin, m_database, { QStringLiteral("/office.dxf") });
    const CKvStdsFixPtr fix = plugin.lastRecommended;

    EXPECT_NE(fix, violations.at(0).fixes.at(0));
    EXPECT_EQ(fix->name(), CKvString("walls"));
    EXPECT_EQ(fix->objectName(), CKvString("walls"));
    EXPECT_EQ(fix->standardsFile(), CKvString("/office.dxf"));
    EXPECT_EQ(fix->property(CKvString("LineWeight"))->restype(), 5010);
    EXPECT_EQ(valueText(fix->property(CKvString("LineWeight"))), "35");
    EXPECT_EQ(valueText(fix->property(CKvString("LineColor"))), "yellow");
    EXPECT_EQ(valueText(fix->property(CKvString("LineStyle"))), "Continuous");
    EXPECT_EQ(valueText(fix->property(CKvString("Name"))), "walls");
}

TEST_F(LayerCandidates, WithoutARecommendationTheFixIsEmpty)
{
    m_drawing.layer("ATTIC");
    m_office.layer("WALLS");
    report();
    CKvListeningPlugin plugin;

    audit(plugin, m_database, { QStringLiteral("/office.dxf") });

    EXPECT_EQ(plugin.lastRecommended->propertyCount(), 0);
    EXPECT_EQ(plugin.lastRecommended->name(), CKvString());
}
