// SPDX-License-Identifier: MIT
#include "CKvLineStyleTest.h"

namespace
{

class LineStyleCandidates : public CKvLineStyleTest
{
};

} // namespace

TEST_F(LineStyleCandidates, ANameViolationIsOfferedEveryRecord)
{
    m_drawing.lineStyle("MINE").dashes({ 1, -1 });
    m_office.withReservedLineStyles();
    m_office.lineStyle("SAME").dashes({ 1, -1 });

    EXPECT_EQ(report(),
              "MINE: LineStyle name is non-standard. ByBlock@/office.dxf ByLayer@/office.dxf "
              "Continuous@/office.dxf SAME@/office.dxf\n");
}

TEST_F(LineStyleCandidates, APropertyViolationIsOfferedEveryRecordButThoseThatAreTheSame)
{
    CKvDrawingBuilder firm;
    firm.lineStyle("Dashed").dashes({ 0.5, -0.25 }).patternLength(0.75 + 1e-11);
    firm.lineStyle("DASHED").dashes({ 0.5, -0.25 }).patternLength(0.75 + 1e-9);
    m_services.setDrawing("/firm.dxf", firm);
    m_drawing.lineStyle("DASHED").dashes({ 0.5, -0.25 });
    m_office.lineStyle("Continuous");
    m_office.lineStyle("EQUAL BUT FOR ITS NAME").dashes({ 0.5, -0.25 });
    m_office.lineStyle("dashed").dashes({ 0.5, -0.5 });

    // The first record of the other file is the same line style, its second is not.
    EXPECT_EQ(report({ QStringLiteral("/office.dxf"), QStringLiteral("/firm.dxf") }),
              "DASHED: LineStyle properties are non-standard. Continuous@/office.dxf EQUAL BUT FOR "
              "ITS NAME@/office.dxf dashed@/office.dxf* DASHED@/firm.dxf\n");
}

TEST_F(LineStyleCandidates, NoNameIsTreatedSpecially)
{
    m_drawing.withReservedLineStyles();
    m_office.lineStyle("ByLayer").dashes({ 1, -1 });
    m_office.lineStyle("DASHED").dashes({ 1, -1 });
    report();

    EXPECT_EQ(restricted({ "ByLayer" }),
              "ByLayer: LineStyle properties are non-standard. ByLayer@/office.dxf* "
              "DASHED@/office.dxf\n");
}

TEST_F(LineStyleCandidates, TheFirstNamesakeThatIsOfferedIsRecommended)
{
    CKvDrawingBuilder firm;
    firm.lineStyle("DASHED").dashes({ 3, -3 });
    m_services.setDrawing("/firm.dxf", firm);
    m_drawing.lineStyle("dashed").dashes({ 1, -1 });
    m_office.lineStyle("CENTER").dashes({ 1, -1 });
    m_office.lineStyle("DASHED").dashes({ 2, -2 });

    EXPECT_EQ(report({ QStringLiteral("/office.dxf"), QStringLiteral("/firm.dxf") }),
              "dashed: LineStyle properties are non-standard. CENTER@/office.dxf "
              "DASHED@/office.dxf* DASHED@/firm.dxf\n");
}

TEST_F(LineStyleCandidates, AFixHoldsTheValuesOfItsRecord)
{
    m_drawing.lineStyle("MINE");
    m_office.lineStyle("Dashed").dashes({ 0.5, -0.25 });
    report();

    const CKvStdsFixPtr fix = fixOf(violationOf("MINE"), "Dashed");

    EXPECT_EQ(fix->name(), CKvString("Dashed"));
    EXPECT_EQ(fix->objectName(), CKvString("Dashed"));
    EXPECT_EQ(fix->standardsFile(), CKvString("/office.dxf"));
    EXPECT_TRUE(fix->objectId().isNull());
    EXPECT_EQ(fix->propertyCount(), 3);
    EXPECT_EQ(valueText(fix->property(CKvString("Name"))), "Dashed");
    EXPECT_EQ(fix->property(CKvString("Dashes"))->restype(), 5010);
    EXPECT_EQ(valueText(fix->property(CKvString("Dashes"))), "2");
    EXPECT_EQ(fix->property(CKvString("Pattern Length"))->restype(), 5001);
    EXPECT_EQ(valueText(fix->property(CKvString("Pattern Length"))), "0.7500");
}

TEST_F(LineStyleCandidates, ViolationsShareTheirArray)
{
    for (const char *name : { "DASHED", "CENTER", "HIDDEN" }) {
        m_drawing.lineStyle(name).dashes({ 1, -1 });
        m_office.lineStyle(name).dashes({ 2, -2 });
    }
    m_drawing.lineStyle("MINE");
    m_drawing.lineStyle("YOURS");

    report();

    EXPECT_TRUE(violationOf("DASHED").fixes.sharesWith(violationOf("CENTER").fixes));
    EXPECT_TRUE(violationOf("DASHED").fixes.sharesWith(violationOf("HIDDEN").fixes));
    EXPECT_TRUE(violationOf("MINE").fixes.sharesWith(violationOf("YOURS").fixes));
    EXPECT_EQ(violationOf("HIDDEN").recommendedFix, 2);
}
