// SPDX-License-Identifier: MIT
#include "CKvLineStyleTest.h"

namespace
{

class LineStyleScan : public CKvLineStyleTest
{
};

} // namespace

TEST_F(LineStyleScan, ALineStyleThatAgreesIsNoViolation)
{
    m_drawing.lineStyle("DASHED").dashes({ 0.5, -0.25 });
    m_office.lineStyle("DASHED").dashes({ 0.5, -0.25 });

    EXPECT_EQ(report(), "");
}

TEST_F(LineStyleScan, ANameThatDiffersOnlyInLetterCaseIsNoViolation)
{
    m_drawing.lineStyle("dashed").dashes({ 0.5, -0.25 });
    m_office.lineStyle("DASHED").dashes({ 0.5, -0.25 });

    EXPECT_EQ(report(), "");
}

TEST_F(LineStyleScan, ANameThatTheStandardsLackIsANameViolation)
{
    m_drawing.lineStyle("DASHED").dashes({ 0.5, -0.25 });
    m_office.lineStyle("CENTER").dashes({ 0.5, -0.25 });

    EXPECT_EQ(report(), "DASHED: LineStyle name is non-standard. CENTER@/office.dxf\n");
}

TEST_F(LineStyleScan, AnotherNumberOfDashesIsAPropertyViolation)
{
    m_drawing.lineStyle("DASHED").dashes({ 0.5, -0.25 });
    m_office.lineStyle("DASHED").dashes({ 0.25, -0.25, 0.25 });

    EXPECT_EQ(report(), "DASHED: LineStyle properties are non-standard. DASHED@/office.dxf*\n");
}

TEST_F(LineStyleScan, AnotherPatternLengthIsAPropertyViolation)
{
    m_drawing.lineStyle("DASHED").dashes({ 0.5, -0.25 });
    m_office.lineStyle("DASHED").dashes({ 0.5, -0.5 });

    EXPECT_EQ(report(), "DASHED: LineStyle properties are non-standard. DASHED@/office.dxf*\n");
}

TEST_F(LineStyleScan, NumberAndLengthAloneCount)
{
    m_drawing.lineStyle("DASHED").description("- - -").dashes({ 0.5, -0.25 });
    m_office.lineStyle("DASHED").description("_ _ _").dashes({ 0.25, -0.5 });

    EXPECT_EQ(report(), "");
}

TEST_F(LineStyleScan, APatternLengthMayDifferByLessThanATenBillionth)
{
    struct Case {
        double length;
        bool isViolation;
    };
    constexpr Case kCases[] = { { 0.75 + 1e-11, false },
                                { 0.75 - 1e-11, false },
                                { 0.75 + 1e-9, true },
                                { 0.75 - 1e-9, true } };
    for (const Case &each : kCases) {
        m_drawing = CKvDrawingBuilder();
        m_office = CKvDrawingBuilder();
        m_drawing.lineStyle("DASHED").dashes({ 0.5, -0.25 }).patternLength(each.length);
        m_office.lineStyle("DASHED").dashes({ 0.5, -0.25 });

        EXPECT_EQ(report(),
                  each.isViolation
                      ? "DASHED: LineStyle properties are non-standard. DASHED@/office.dxf*\n"
                      : "")
            << each.length;
    }
}

TEST_F(LineStyleScan, WhatTheFileLeavesOutIsNothing)
{
    m_drawing.lineStyle("SOLID").without(73).without(40);
    m_office.lineStyle("SOLID");

    EXPECT_EQ(report(), "");
}

TEST_F(LineStyleScan, AViolationHoldsTheValuesOfTheLineStyle)
{
    m_drawing.lineStyle("Dashed").dashes({ 0.5, -0.25 });
    m_drawing.lineStyle("MINE").dashes({ 1, -1, 0, -1 });
    m_office.lineStyle("DASHED");

    report();

    EXPECT_EQ(propertiesText(violationOf("Dashed").error),
              "Dashes=2 Name=Dashed Pattern Length=0.7500");
    EXPECT_EQ(propertiesText(violationOf("MINE").error),
              "Dashes=4 Name=MINE Pattern Length=3.0000");
    EXPECT_EQ(violationOf("MINE").error->objectType(), CKvString("LineStyle"));
    EXPECT_EQ(violationOf("MINE").error->objectId(), lineStyleId("MINE"));
}

TEST_F(LineStyleScan, TheValuesHaveTheirTypeCodes)
{
    m_drawing.lineStyle("MINE");
    m_office.lineStyle("DASHED");

    report();
    const CKvStdsErrorPtr error = violationOf("MINE").error;

    EXPECT_EQ(error->property(CKvString("Name"))->restype(), 5005);
    EXPECT_EQ(error->property(CKvString("Dashes"))->restype(), 5010);
    EXPECT_EQ(error->property(CKvString("Pattern Length"))->restype(), 5001);
}

TEST_F(LineStyleScan, TheReservedOnesAreLeftOutOfTheWholeTable)
{
    m_drawing.withReservedLineStyles();
    m_office.lineStyle("BYLAYER").dashes({ 1, -1 });
    m_office.lineStyle("Continuous").dashes({ 1, -1 });

    EXPECT_EQ(report(), "");
}

TEST_F(LineStyleScan, TheReservedOnesAreLeftOutInAnyLetters)
{
    m_drawing.lineStyle("BYLAYER");
    m_drawing.lineStyle("byblock");
    m_drawing.lineStyle("CONTINUOUS");
    m_office.lineStyle("DASHED");

    EXPECT_EQ(report(), "");
}

// They are left out by their ids, so a second record of the name is one like any other.
TEST_F(LineStyleScan, ASecondRecordOfAReservedNameIsJudged)
{
    m_drawing.lineStyle("Continuous");
    m_drawing.lineStyle("CONTINUOUS").dashes({ 1, -1 });
    m_office.lineStyle("DASHED");

    EXPECT_EQ(report(), "CONTINUOUS: LineStyle name is non-standard. DASHED@/office.dxf\n");
}

TEST_F(LineStyleScan, TheReservedOnesAreJudgedWhenTheyAreGivenThemselves)
{
    m_drawing.withReservedLineStyles();
    m_drawing.lineStyle("DASHED");
    m_office.lineStyle("ByLayer").dashes({ 1, -1 });
    m_office.lineStyle("Continuous");
    report();

    EXPECT_EQ(restricted({ "ByLayer", "ByBlock", "Continuous" }),
              "ByLayer: LineStyle properties are non-standard. ByLayer@/office.dxf* "
              "Continuous@/office.dxf\n"
              "ByBlock: LineStyle name is non-standard. ByLayer@/office.dxf "
              "Continuous@/office.dxf\n");
}

TEST_F(LineStyleScan, ALineStyleOfAnExternalReferenceNeverAppears)
{
    m_drawing.lineStyle("SITE|DASHED");
    m_drawing.lineStyle("BOUND").flags(16);
    m_drawing.lineStyle("MINE");
    m_office.lineStyle("DASHED");

    EXPECT_EQ(report(), "MINE: LineStyle name is non-standard. DASHED@/office.dxf\n");
    EXPECT_EQ(restricted({ "SITE|DASHED", "BOUND", "MINE" }),
              "MINE: LineStyle name is non-standard. DASHED@/office.dxf\n");
}

TEST_F(LineStyleScan, OnlyDependentOnesGivenLeadToTheWholeTableWithoutTheReservedOnes)
{
    m_drawing.withReservedLineStyles();
    m_drawing.lineStyle("SITE|DASHED");
    m_drawing.lineStyle("MINE");
    m_office.lineStyle("DASHED");
    report();

    EXPECT_EQ(restricted({ "SITE|DASHED" }),
              "MINE: LineStyle name is non-standard. DASHED@/office.dxf\n");
}

TEST_F(LineStyleScan, EveryRecordOfAStandardsFileCountsButThoseOfExternalReferences)
{
    m_drawing.lineStyle("MINE");
    m_office.withReservedLineStyles();
    m_office.lineStyle("SITE|DASHED");
    m_office.lineStyle("BOUND").flags(16);
    m_office.lineStyle("DASHED");

    EXPECT_EQ(report(),
              "MINE: LineStyle name is non-standard. ByBlock@/office.dxf ByLayer@/office.dxf "
              "Continuous@/office.dxf DASHED@/office.dxf\n");
}

TEST_F(LineStyleScan, OnlyTheFirstRecordOfANameJudges)
{
    CKvDrawingBuilder firm;
    firm.lineStyle("DASHED").dashes({ 0.5, -0.25 });
    m_services.setDrawing("/firm.dxf", firm);
    m_drawing.lineStyle("DASHED").dashes({ 0.5, -0.25 });
    m_office.lineStyle("DASHED").dashes({ 1, -1 });

    EXPECT_EQ(report({ QStringLiteral("/office.dxf"), QStringLiteral("/firm.dxf") }),
              "DASHED: LineStyle properties are non-standard. DASHED@/office.dxf*\n");
    EXPECT_EQ(report({ QStringLiteral("/firm.dxf"), QStringLiteral("/office.dxf") }), "");
}

TEST_F(LineStyleScan, StandardsWithoutALineStyleFindNothing)
{
    m_drawing.lineStyle("DASHED");

    EXPECT_EQ(report(), "");
}

TEST_F(LineStyleScan, AnOldDrawingWithoutHandlesIsJudgedLikeAnyOther)
{
    m_drawing = CKvDrawingBuilder("AC1009");
    m_drawing.lineStyle("DASHED").dashes({ 0.5, -0.25 });
    m_office = CKvDrawingBuilder("AC1009");
    m_office.lineStyle("DASHED").dashes({ 0.5, -0.5 });

    EXPECT_EQ(report(), "DASHED: LineStyle properties are non-standard. DASHED@/office.dxf*\n");
}

TEST_F(LineStyleScan, AnObjectOfAnotherClassIsPassedOver)
{
    m_drawing.layer("WALLS");
    m_drawing.lineStyle("MINE");
    m_drawing.lineStyle("OTHER");
    m_office.lineStyle("DASHED");
    report();
    OdDbObjectIdArray ids;
    ids.append(recordId(m_database->getLayerTableId(), "WALLS"));
    ids.append(lineStyleId("OTHER"));

    EXPECT_EQ(violationsText(audit(m_plugin, m_database, { QStringLiteral("/office.dxf") }, ids)),
              "OTHER: LineStyle name is non-standard. DASHED@/office.dxf\n");
}

TEST_F(LineStyleScan, AnObjectThatOnlyBearsTheNameOfTheCategoryIsRefused)
{
    m_drawing.lineStyle("MINE");
    m_drawing.namedObjects().object("LTYPE", "ODD").handle("ABC");
    m_office.lineStyle("NOTES");
    report();
    OdDbObjectIdArray ids;
    ids.append(m_database->getOdDbObjectId(OdDbHandle(0xABC)));
    ASSERT_FALSE(ids.first().isNull());

    EXPECT_THROW(m_plugin.setObjectsToCheck(ids, /*scanAll*/ false), OdError_NotThatKindOfClass);
}
