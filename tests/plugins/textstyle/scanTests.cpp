// SPDX-License-Identifier: MIT
#include "CKvTextStyleTest.h"

namespace
{

class TextStyleScan : public CKvTextStyleTest
{
};

struct CKvStylePair {
    const char *what;
    void (*change)(CKvTextStyleBuilder &drawn, CKvTextStyleBuilder &standard);
};

void PrintTo(const CKvStylePair &pair, std::ostream *out)
{
    *out << pair.what;
}

class TextStyleAgreement : public CKvTextStyleTest, public testing::WithParamInterface<CKvStylePair>
{
};

class TextStyleDisagreement : public CKvTextStyleTest,
                              public testing::WithParamInterface<CKvStylePair>
{
};

std::string nameOfCase(const testing::TestParamInfo<CKvStylePair> &info)
{
    return info.param.what;
}

using Style = CKvTextStyleBuilder;

} // namespace

TEST_P(TextStyleAgreement, IsNoViolation)
{
    GetParam().change(m_drawing.textStyle("NOTES"), m_office.textStyle("NOTES"));

    EXPECT_EQ(report(), "");
}

INSTANTIATE_TEST_SUITE_P(
    Of,
    TextStyleAgreement,
    testing::Values(
        CKvStylePair {
            "AllValues",
            [](Style &drawn, Style &standard) {
                for (Style *style : { &drawn, &standard }) {
                    style->font("arial.ttf").bigFont("big.shx").height(2.5).width(0.8);
                    style->obliqueDegrees(15).generation(6).flags(4);
                    style->typeface("Arial", kBoldFont).annotative(1).matchOrientation(1);
                }
            } },
        CKvStylePair { "FilesInOtherLetters",
                       [](Style &drawn, Style &standard) {
                           drawn.font("ROMANS.SHX").bigFont("Big.shx");
                           standard.font("romans.shx").bigFont("BIG.SHX");
                       } },
        CKvStylePair { "HeightsWithinTheTolerance",
                       [](Style &drawn, Style &standard) {
                           drawn.height(2.5);
                           standard.height(2.50000000001);
                       } },
        CKvStylePair { "WidthsWithinTheTolerance",
                       [](Style &drawn, Style &standard) {
                           drawn.width(0.8);
                           standard.width(0.8 - 1e-11);
                       } },
        CKvStylePair { "AnglesWithinTheTolerance",
                       [](Style &drawn, Style &standard) {
                           drawn.obliqueDegrees(15);
                           standard.obliqueDegrees(15 + 1e-9);
                       } },
        CKvStylePair { "TypefacesOfOneFile",
                       [](Style &drawn, Style &standard) {
                           drawn.font("arial.ttf").typeface("Arial", 34);
                           standard.font("arial.ttf").typeface("Helvetica", 0);
                       } },
        CKvStylePair { "LastHeights",
                       [](Style &drawn, Style &) { drawn.without(42).group(42, 7.5); } },
        CKvStylePair { "TheDefaultsOfWhatIsLeftOut",
                       [](Style &drawn, Style &) {
                           drawn.without(40).without(41).without(50).without(71).without(4);
                       } },
        CKvStylePair { "NotAnnotativeAndNotTold",
                       [](Style &drawn, Style &) { drawn.annotative(0).matchOrientation(0); } }),
    nameOfCase);

TEST_P(TextStyleDisagreement, IsAPropertyViolation)
{
    GetParam().change(m_drawing.textStyle("NOTES"), m_office.textStyle("NOTES"));

    EXPECT_EQ(report(), "NOTES: TextStyle properties are non-standard. NOTES@/office.dxf*\n");
}

INSTANTIATE_TEST_SUITE_P(
    Of,
    TextStyleDisagreement,
    testing::Values(
        CKvStylePair { "Font", [](Style &drawn, Style &) { drawn.font("romans.shx"); } },
        CKvStylePair { "BigFont", [](Style &drawn, Style &) { drawn.bigFont("big.shx"); } },
        CKvStylePair { "Height",
                       [](Style &drawn, Style &standard) {
                           drawn.height(2.5);
                           standard.height(2.500001);
                       } },
        CKvStylePair { "UpsideDown", [](Style &drawn, Style &) { drawn.generation(4); } },
        CKvStylePair { "Backwards", [](Style &drawn, Style &) { drawn.generation(2); } },
        CKvStylePair { "Vertical", [](Style &drawn, Style &) { drawn.flags(4); } },
        CKvStylePair { "Width", [](Style &drawn, Style &) { drawn.width(0.999999); } },
        CKvStylePair { "Angle", [](Style &drawn, Style &) { drawn.obliqueDegrees(0.00001); } },
        CKvStylePair { "Bold",
                       [](Style &drawn, Style &standard) {
                           drawn.font("arial.ttf").typeface("Arial", kBoldFont);
                           standard.font("arial.ttf").typeface("Arial", 0);
                       } },
        CKvStylePair { "Italic",
                       [](Style &drawn, Style &standard) {
                           drawn.font("arial.ttf").typeface("Arial", kItalicFont);
                           standard.font("arial.ttf").typeface("Arial", 0);
                       } },
        CKvStylePair { "ATypefaceBesideAFileOfShapes",
                       [](Style &drawn, Style &) { drawn.typeface("Arial", 0); } },
        CKvStylePair { "Annotative", [](Style &drawn, Style &) { drawn.annotative(1); } },
        CKvStylePair { "MatchOrientation",
                       [](Style &drawn, Style &standard) {
                           drawn.annotative(1).matchOrientation(1);
                           standard.annotative(1);
                       } }),
    nameOfCase);

TEST_F(TextStyleScan, ANameThatTheStandardsLackIsANameViolation)
{
    m_drawing.textStyle("NOTES");
    m_office.textStyle("TITLES");

    EXPECT_EQ(report(), "NOTES: TextStyle name is non-standard. TITLES@/office.dxf\n");
}

TEST_F(TextStyleScan, ANameThatDiffersOnlyInLetterCaseIsNoViolation)
{
    m_drawing.textStyle("notes").height(2.5);
    m_office.textStyle("NOTES").height(2.5);

    EXPECT_EQ(report(), "");
}

TEST_F(TextStyleScan, AViolationHoldsAllTwelveValuesOfTheStyle)
{
    m_drawing.textStyle("Notes")
        .font("arialbi.ttf")
        .bigFont("big.shx")
        .height(2.5)
        .width(0.8)
        .obliqueDegrees(15)
        .generation(6)
        .flags(4)
        .typeface("Arial", kBoldFont | kItalicFont)
        .annotative(1)
        .matchOrientation(1);
    m_drawing.textStyle("MINE");
    m_office.textStyle("NOTES");

    report();

    EXPECT_EQ(propertiesText(violationOf("Notes").error),
              "Annotative=1 Backwards=1 BigFont=big.shx Font=arialbi.ttf Font Style=Bold Italic "
              "Match orientation to sheet=1 Name=Notes Oblique Angle=0.2618 Text Height=2.5000 "
              "Upside Down=1 Vertical=1 Width=0.8000");
    EXPECT_EQ(propertiesText(violationOf("MINE").error),
              "Annotative=0 Backwards=0 BigFont= Font=txt Font Style= Match orientation to sheet=0 "
              "Name=MINE Oblique Angle=0.0000 Text Height=0.0000 Upside Down=0 Vertical=0 "
              "Width=1.0000");
    EXPECT_EQ(violationOf("MINE").error->objectType(), CKvString("TextStyle"));
    EXPECT_EQ(violationOf("MINE").error->objectId(), styleId("MINE"));
}

TEST_F(TextStyleScan, TheValuesHaveTheirTypeCodes)
{
    m_drawing.textStyle("MINE");
    m_office.textStyle("NOTES");
    report();
    const CKvStdsErrorPtr error = violationOf("MINE").error;

    for (const char *text : { "Name", "Font", "BigFont", "Font Style" }) {
        EXPECT_EQ(error->property(CKvString(text))->restype(), 5005) << text;
    }
    for (const char *real : { "Text Height", "Width", "Oblique Angle" }) {
        EXPECT_EQ(error->property(CKvString(real))->restype(), 5001) << real;
    }
    for (const char *flag :
         { "Upside Down", "Vertical", "Backwards", "Annotative", "Match orientation to sheet" }) {
        EXPECT_EQ(error->property(CKvString(flag))->restype(), 290) << flag;
    }
}

TEST_F(TextStyleScan, TheFontStyleIsOneOfFourWordsOrEmptyForShapes)
{
    struct Case {
        const char *file;
        int flags;
        const char *word;
    };
    constexpr Case kCases[] = {
        { "arial.ttf", 0, "Normal" },
        { "arial.ttf", kBoldFont, "Bold" },
        { "arial.ttf", kItalicFont, "Italic" },
        { "arial.ttf", kBoldFont | kItalicFont, "Bold Italic" },
    };
    for (const Case &each : kCases) {
        m_drawing = CKvDrawingBuilder();
        m_office = CKvDrawingBuilder();
        m_drawing.textStyle("MINE").font(each.file).typeface("Arial", each.flags);
        m_office.textStyle("NOTES");
        report();

        EXPECT_EQ(valueText(violationOf("MINE").error->property(CKvString("Font Style"))),
                  each.word);
    }
}

TEST_F(TextStyleScan, TheFlagsOfAFontOfShapesSayNothing)
{
    m_drawing.textStyle("MINE").font("romans.shx").typeface("", kBoldFont);
    m_office.textStyle("NOTES");
    report();

    EXPECT_EQ(valueText(violationOf("MINE").error->property(CKvString("Font Style"))), "");
}

TEST_F(TextStyleScan, AShapeFileIsNeverJudged)
{
    m_drawing.textStyle("").flags(1).font("ltypeshp.shx");
    m_drawing.textStyle("SHAPES").flags(65).font("shapes.shx");
    m_drawing.textStyle("NOTES");
    m_office.textStyle("TITLES");

    EXPECT_EQ(report(), "NOTES: TextStyle name is non-standard. TITLES@/office.dxf\n");
    EXPECT_EQ(restricted({ "SHAPES", "NOTES" }),
              "NOTES: TextStyle name is non-standard. TITLES@/office.dxf\n");
}

TEST_F(TextStyleScan, OnlyShapeFilesGivenLeadToTheWholeTable)
{
    m_drawing.textStyle("SHAPES").flags(1).font("shapes.shx");
    m_drawing.textStyle("NOTES");
    m_office.textStyle("TITLES");
    report();

    EXPECT_EQ(restricted({ "SHAPES" }),
              "NOTES: TextStyle name is non-standard. TITLES@/office.dxf\n");
}

TEST_F(TextStyleScan, AShapeFileOfAStandardsFileIsNoRecord)
{
    m_drawing.textStyle("NOTES");
    m_office.textStyle("").flags(1).font("ltypeshp.shx");
    m_office.textStyle("NOTES").flags(1);
    m_office.textStyle("TITLES");

    EXPECT_EQ(report(), "NOTES: TextStyle name is non-standard. TITLES@/office.dxf\n");
}

TEST_F(TextStyleScan, AStyleOfAnExternalReferenceNeverAppears)
{
    m_drawing.textStyle("SITE|NOTES");
    m_drawing.textStyle("BOUND").flags(16);
    m_drawing.textStyle("MINE");
    m_office.textStyle("SITE|TITLES");
    m_office.textStyle("HERE").flags(16);
    m_office.textStyle("NOTES");

    EXPECT_EQ(report(), "MINE: TextStyle name is non-standard. NOTES@/office.dxf\n");
    EXPECT_EQ(restricted({ "SITE|NOTES", "BOUND", "MINE" }),
              "MINE: TextStyle name is non-standard. NOTES@/office.dxf\n");
}

TEST_F(TextStyleScan, AnUnnamedStyleIsNotListedAndPassedOverWhereItIsGiven)
{
    m_drawing.textStyle("").handle("ABC");
    m_drawing.textStyle("MINE");
    m_office.textStyle("NOTES");

    EXPECT_EQ(report(), "MINE: TextStyle name is non-standard. NOTES@/office.dxf\n");

    OdDbObjectIdArray ids;
    ids.append(m_database->getOdDbObjectId(OdDbHandle(0xABC)));
    ids.append(styleId("MINE"));
    EXPECT_EQ(violationsText(audit(m_plugin, m_database, { QStringLiteral("/office.dxf") }, ids)),
              "MINE: TextStyle name is non-standard. NOTES@/office.dxf\n");
    ids.removeAt(1);
    // Kept, so there is no way back to the whole table; passed over all the same.
    EXPECT_EQ(violationsText(audit(m_plugin, m_database, { QStringLiteral("/office.dxf") }, ids)),
              "");
}

TEST_F(TextStyleScan, AnUnnamedStyleOfAStandardsFileIsARecord)
{
    m_drawing.textStyle("MINE");
    m_office.textStyle("").font("romans.shx");

    EXPECT_EQ(report(), "MINE: TextStyle name is non-standard. @/office.dxf\n");
}

TEST_F(TextStyleScan, StandardThatTheStandardsLackIsANameViolation)
{
    m_drawing.textStyle("Standard");
    m_office.textStyle("NOTES");

    EXPECT_EQ(report(), "Standard: TextStyle name is non-standard. NOTES@/office.dxf\n");
}

TEST_F(TextStyleScan, OnlyTheFirstRecordOfANameJudges)
{
    CKvDrawingBuilder firm;
    firm.textStyle("NOTES").height(2.5);
    m_services.setDrawing("/firm.dxf", firm);
    m_drawing.textStyle("NOTES").height(2.5);
    m_office.textStyle("NOTES").height(3.5);

    EXPECT_EQ(report({ QStringLiteral("/office.dxf"), QStringLiteral("/firm.dxf") }),
              "NOTES: TextStyle properties are non-standard. NOTES@/office.dxf*\n");
    EXPECT_EQ(report({ QStringLiteral("/firm.dxf"), QStringLiteral("/office.dxf") }), "");
}

TEST_F(TextStyleScan, AnOldDrawingWithoutHandlesIsJudgedLikeAnyOther)
{
    m_drawing = CKvDrawingBuilder("AC1009");
    m_drawing.textStyle("NOTES").height(2.5);
    m_office = CKvDrawingBuilder("AC1009");
    m_office.textStyle("NOTES").height(3.5);

    EXPECT_EQ(report(), "NOTES: TextStyle properties are non-standard. NOTES@/office.dxf*\n");
}

TEST_F(TextStyleScan, AnObjectThatOnlyBearsTheNameOfTheCategoryIsRefused)
{
    m_drawing.textStyle("MINE");
    m_drawing.namedObjects().object("STYLE", "ODD").handle("ABC");
    m_office.textStyle("NOTES");
    report();
    OdDbObjectIdArray ids;
    ids.append(m_database->getOdDbObjectId(OdDbHandle(0xABC)));
    ASSERT_FALSE(ids.first().isNull());

    EXPECT_THROW(m_plugin.setObjectsToCheck(ids, /*scanAll*/ false), OdError_NotThatKindOfClass);
}
