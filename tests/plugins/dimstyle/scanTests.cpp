// SPDX-License-Identifier: MIT
#include "CKvDimStyleTest.h"

namespace
{

class DimStyleScan : public CKvDimStyleTest
{
};

} // namespace

TEST_F(DimStyleScan, AStyleThatTheStandardsLackIsANameViolation)
{
    m_drawing.dimStyle("MINE");
    m_office.dimStyle("OFFICE");

    EXPECT_EQ(report(), "MINE: DimensionStyle name is non-standard. OFFICE@/office.dxf\n");
}

TEST_F(DimStyleScan, AStyleWithAnotherValueIsAPropertyViolation)
{
    m_drawing.dimStyle("OFFICE").group(41, 2.5);
    m_office.dimStyle("OFFICE").group(41, 3.5);

    EXPECT_EQ(report(),
              "OFFICE: DimensionStyle properties are non-standard. OFFICE@/office.dxf*\n");
}

TEST_F(DimStyleScan, AStyleOfTheSameValuesIsNone)
{
    m_drawing.dimStyle("OFFICE").group(41, 2.5).group(3, "<> mm");
    m_office.dimStyle("OFFICE").group(3, "<> mm").group(41, "2.50");

    EXPECT_EQ(report(), "");
}

TEST_F(DimStyleScan, AnotherLetterCaseIsNoViolation)
{
    m_drawing.dimStyle("office").group(41, 2.5);
    m_office.dimStyle("OFFICE").group(41, 2.5);

    EXPECT_EQ(report(), "");
}

TEST_F(DimStyleScan, InAnotherLetterCaseTheValuesAloneDecide)
{
    m_drawing.dimStyle("office").group(41, 2.5);
    m_office.dimStyle("OFFICE").group(41, 3.5);

    EXPECT_EQ(report(),
              "office: DimensionStyle properties are non-standard. OFFICE@/office.dxf*\n");
}

TEST_F(DimStyleScan, NoNameIsExempt)
{
    m_drawing.dimStyle("Standard");
    m_drawing.dimStyle("ISO-25");
    m_office.dimStyle("OFFICE");

    EXPECT_EQ(report(),
              "Standard: DimensionStyle name is non-standard. OFFICE@/office.dxf\n"
              "ISO-25: DimensionStyle name is non-standard. OFFICE@/office.dxf\n");
}

TEST_F(DimStyleScan, SubStylesOfOneKindOfDimensionAreNotJudged)
{
    for (const char *name : { "A$0", "A$2", "A$3", "A$4", "A$6", "A$7", "$0" }) {
        m_drawing.dimStyle(name);
    }
    m_office.dimStyle("OFFICE");

    EXPECT_EQ(report(), "");
}

TEST_F(DimStyleScan, OtherDigitsBehindADollarSignMakeNoSubStyle)
{
    for (const char *name : { "A$1", "A$5", "A$8", "A$22", "A$2B", "2" }) {
        m_drawing.dimStyle(name);
    }
    m_office.dimStyle("OFFICE");

    EXPECT_EQ(report(),
              "A$1: DimensionStyle name is non-standard. OFFICE@/office.dxf\n"
              "A$5: DimensionStyle name is non-standard. OFFICE@/office.dxf\n"
              "A$8: DimensionStyle name is non-standard. OFFICE@/office.dxf\n"
              "A$22: DimensionStyle name is non-standard. OFFICE@/office.dxf\n"
              "A$2B: DimensionStyle name is non-standard. OFFICE@/office.dxf\n"
              "2: DimensionStyle name is non-standard. OFFICE@/office.dxf\n");
}

// The comma in the pattern is intended.
TEST_F(DimStyleScan, ACommaBehindADollarSignMakesASubStyleToo)
{
    m_drawing.dimStyle("A$,");
    m_office.dimStyle("OFFICE");

    EXPECT_EQ(report(), "");
}

TEST_F(DimStyleScan, SubStylesOfAStandardsFileAreNotOffered)
{
    m_drawing.dimStyle("MINE");
    for (const char *name : { "A$0", "A$1", "A$2", "A$5", "A$7" }) {
        m_office.dimStyle(name);
    }

    EXPECT_EQ(report(),
              "MINE: DimensionStyle name is non-standard. A$1@/office.dxf A$5@/office.dxf\n");
}

TEST_F(DimStyleScan, AStyleOfAnExternalReferenceIsNotChecked)
{
    m_drawing.dimStyle("SITE|MINE");
    m_drawing.dimStyle("BOUND").flags(16);
    m_office.dimStyle("OFFICE");
    m_office.dimStyle("OTHER").flags(16);
    m_drawing.dimStyle("MINE");

    EXPECT_EQ(report(), "MINE: DimensionStyle name is non-standard. OFFICE@/office.dxf\n");
}

TEST_F(DimStyleScan, ABackgroundColorIsNoFlagOfTheRecord)
{
    m_drawing = CKvDrawingBuilder("AC1032");
    m_drawing.dimStyle("MINE").group(70, 16);
    m_office.dimStyle("OFFICE");

    EXPECT_EQ(report(), "MINE: DimensionStyle name is non-standard. OFFICE@/office.dxf\n");
}

TEST_F(DimStyleScan, ASubStyleAmongTheGivenObjectsIsLeftOut)
{
    m_drawing.dimStyle("A$2");
    m_drawing.dimStyle("MINE");
    m_drawing.dimStyle("OTHER");
    m_office.dimStyle("OFFICE");
    report();
    OdDbObjectIdArray ids;
    ids.append(styleId("A$2"));
    ids.append(styleId("OTHER"));

    EXPECT_EQ(violationsText(audit(m_plugin, m_database, { QStringLiteral("/office.dxf") }, ids)),
              "OTHER: DimensionStyle name is non-standard. OFFICE@/office.dxf\n");
}

TEST_F(DimStyleScan, AStyleInTwoFilesIsComparedWithTheFirst)
{
    CKvDrawingBuilder firm;
    firm.dimStyle("OFFICE").group(41, 2.5);
    m_services.setDrawing("/firm.dxf", firm);
    m_drawing.dimStyle("OFFICE").group(41, 2.5);
    m_office.dimStyle("OFFICE").group(41, 3.5);

    EXPECT_EQ(report({ QStringLiteral("/office.dxf"), QStringLiteral("/firm.dxf") }),
              "OFFICE: DimensionStyle properties are non-standard. OFFICE@/office.dxf* "
              "OFFICE@/firm.dxf\n");
    EXPECT_EQ(report({ QStringLiteral("/firm.dxf"), QStringLiteral("/office.dxf") }), "");
}

TEST_F(DimStyleScan, AViolationHoldsAllSeventyNineValuesAsTexts)
{
    m_drawing.dimStyle("MINE").group(41, 2.5).group(3, "<> mm").annotative(1);
    m_office.dimStyle("OFFICE");
    report();

    const CKvStdsErrorPtr error = violationOf("MINE").error;

    EXPECT_EQ(error->propertyCount(), 79);
    EXPECT_EQ(error->property(CKvString("DIMASZ"))->restype(), 5005);
    EXPECT_EQ(valueText(error->property(CKvString("DIMASZ"))), "2.5");
    EXPECT_EQ(valueText(error->property(CKvString("DIMPOST"))), "<> mm");
    EXPECT_EQ(valueText(error->property(CKvString("DIMAPOST"))), "\"\"");
    EXPECT_EQ(valueText(error->property(CKvString("DIMBLK"))), "Null");
    EXPECT_EQ(valueText(error->property(CKvString("ANNOTATIVE"))), "true");
    EXPECT_TRUE(error->property(CKvString("Name")).isNull());
    EXPECT_EQ(error->objectType(), CKvString("DimensionStyle"));
    EXPECT_EQ(error->objectName(), CKvString("MINE"));
    EXPECT_EQ(error->objectId(), styleId("MINE"));
}
