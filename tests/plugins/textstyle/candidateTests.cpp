// SPDX-License-Identifier: MIT
#include "CKvTextStyleTest.h"

namespace
{

class TextStyleCandidates : public CKvTextStyleTest
{
};

} // namespace

TEST_F(TextStyleCandidates, ANameViolationIsOfferedEveryRecord)
{
    m_drawing.textStyle("MINE");
    m_office.textStyle("Standard");
    m_office.textStyle("NOTES").height(2.5);

    EXPECT_EQ(report(),
              "MINE: TextStyle name is non-standard. Standard@/office.dxf NOTES@/office.dxf\n");
}

TEST_F(TextStyleCandidates, APropertyViolationIsOfferedEveryRecordButThoseThatAreTheSame)
{
    CKvDrawingBuilder firm;
    firm.textStyle("Notes").height(2.50000000001);
    firm.textStyle("NOTES").height(2.6);
    m_services.setDrawing("/firm.dxf", firm);
    m_drawing.textStyle("NOTES").height(2.5);
    m_office.textStyle("Standard");
    m_office.textStyle("EQUAL BUT FOR ITS NAME").height(2.5);
    m_office.textStyle("notes").height(3.5);

    EXPECT_EQ(
        report({ QStringLiteral("/office.dxf"), QStringLiteral("/firm.dxf") }),
        "NOTES: TextStyle properties are non-standard. Standard@/office.dxf EQUAL BUT FOR ITS "
        "NAME@/office.dxf notes@/office.dxf* NOTES@/firm.dxf\n");
}

TEST_F(TextStyleCandidates, StandardIsOfferedItsNamesakesOnlyInAnyLetters)
{
    CKvDrawingBuilder firm;
    firm.textStyle("standard");
    firm.textStyle("STANDARD").height(5);
    m_services.setDrawing("/firm.dxf", firm);
    m_drawing.textStyle("sTandard");
    m_office.textStyle("NOTES").height(2.5);
    m_office.textStyle("Standard").height(2.5);

    // The first of the other file is the style itself.
    EXPECT_EQ(report({ QStringLiteral("/office.dxf"), QStringLiteral("/firm.dxf") }),
              "sTandard: TextStyle properties are non-standard. Standard@/office.dxf* "
              "STANDARD@/firm.dxf\n");
}

TEST_F(TextStyleCandidates, StandardByTheWrongNameIsOfferedEverything)
{
    m_drawing.textStyle("standard");
    m_office.textStyle("NOTES");
    m_office.textStyle("TITLES");

    EXPECT_EQ(report(),
              "standard: TextStyle name is non-standard. NOTES@/office.dxf TITLES@/office.dxf\n");
}

TEST_F(TextStyleCandidates, AFixHoldsTheValuesOfItsRecord)
{
    m_drawing.textStyle("MINE");
    m_office.textStyle("Notes").font("arial.ttf").typeface("Arial", kBoldFont).height(2.5);
    report();

    const CKvStdsFixPtr fix = fixOf(violationOf("MINE"), "Notes");

    EXPECT_EQ(fix->name(), CKvString("Notes"));
    EXPECT_EQ(fix->objectName(), CKvString("Notes"));
    EXPECT_EQ(fix->standardsFile(), CKvString("/office.dxf"));
    EXPECT_TRUE(fix->objectId().isNull());
    EXPECT_EQ(fix->propertyCount(), 12);
    EXPECT_EQ(valueText(fix->property(CKvString("Name"))), "Notes");
    EXPECT_EQ(valueText(fix->property(CKvString("Font"))), "arial.ttf");
    EXPECT_EQ(valueText(fix->property(CKvString("Font Style"))), "Bold");
    EXPECT_EQ(valueText(fix->property(CKvString("Text Height"))), "2.5000");
}

TEST_F(TextStyleCandidates, ViolationsShareTheirArray)
{
    for (const char *name : { "NOTES", "TITLES", "ROOMS" }) {
        m_drawing.textStyle(name).height(1);
        m_office.textStyle(name).height(2);
    }

    report();

    EXPECT_TRUE(violationOf("NOTES").fixes.sharesWith(violationOf("TITLES").fixes));
    EXPECT_TRUE(violationOf("NOTES").fixes.sharesWith(violationOf("ROOMS").fixes));
    EXPECT_EQ(violationOf("ROOMS").recommendedFix, 2);
}
