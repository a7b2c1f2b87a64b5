// SPDX-License-Identifier: MIT
#include "CKvTextStyleTest.h"
#include "textStyleRecords.h"

namespace
{

class TextStyleRepair : public CKvTextStyleTest
{
protected:
    /// Repairs a style from its own values with another word for the font style.
    void repairFontStyle(const char *name, const char *fontStyle)
    {
        const std::unique_ptr<CKvStdsTextStyleRecord> record =
            readTextStyle(OdDbTextStyleTableRecordPtr(styleId(name).openObject()));
        record->fontStyle = CKvString(fontStyle);
        const CKvStdsFixPtr fix = CKvStdsFix::createObject();
        writeTextStyleProperties(true, fix, CKvStdsErrorPtr(), *record);
        CKvString message;
        m_plugin.applyFix(violationOf(name).error, fix, message);
    }
    /// The word for the font style that a style has now.
    std::string fontStyle(const char *name) const
    {
        return readTextStyle(OdDbTextStyleTableRecordPtr(styleId(name).openObject()))
            ->fontStyle.toQString()
            .toStdString();
    }
};

} // namespace

TEST_F(TextStyleRepair, TheFixOfTheSameNameUpdatesTheStyleInPlace)
{
    m_drawing.textStyle("notes").height(2).font("txt");
    m_drawing.modelSpace().text("a").textStyle("NOTES");
    m_drawing.currentTextStyle("NOTES");
    m_office.textStyle("NOTES").height(2.5).font("romans.shx").width(0.8);
    report();
    const OdDbObjectId id = styleId("notes");

    repair("notes", "NOTES");

    EXPECT_EQ(styles(), "notes\n");
    EXPECT_EQ(styleId("notes"), id);
    EXPECT_EQ(changedLines(),
              "- 2.0\n+ 2.5\n"
              "- 1.0\n+ 0.8\n"
              "- txt\n+ romans.shx\n");
    EXPECT_EQ(reportAgain(), "");
}

TEST_F(TextStyleRepair, AllValuesComeOver)
{
    m_drawing.textStyle("NOTES");
    m_office.textStyle("NOTES")
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
    report();

    repair("NOTES", "NOTES");

    m_database = CKvDrawingFile::fromBytes(CKvDrawingFile::toBytes(*m_database));
    EXPECT_EQ(values("NOTES"),
              "Annotative=1 Backwards=1 BigFont=big.shx Font=arialbi.ttf Font Style=Bold Italic "
              "Match orientation to sheet=1 Name=NOTES Oblique Angle=0.2618 Text Height=2.5000 "
              "Upside Down=1 Vertical=1 Width=0.8000");
    EXPECT_EQ(reportAgain(), "");
}

TEST_F(TextStyleRepair, AllValuesGoBackToo)
{
    m_drawing.textStyle("NOTES")
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
    m_office.textStyle("NOTES").font("arial.ttf").typeface("Arial", 0);
    report();

    repair("NOTES", "NOTES");

    EXPECT_EQ(
        values("NOTES"),
        "Annotative=0 Backwards=0 BigFont= Font=arial.ttf Font Style=Normal Match orientation "
        "to sheet=0 Name=NOTES Oblique Angle=0.0000 Text Height=0.0000 Upside Down=0 "
        "Vertical=0 Width=1.0000");
    EXPECT_EQ(reportAgain(), "");
}

TEST_F(TextStyleRepair, TheTypefaceAndWhatBelongsToItStayWhenTheFontStyleChanges)
{
    m_drawing.textStyle("NOTES").font("arial.ttf").typeface("Arial", 0xCC22);
    m_office.textStyle("NOTES").font("arial.ttf").typeface("Helvetica", kBoldFont | 0x11);
    report();

    repair("NOTES", "NOTES");

    OdString typeface;
    bool isBold = false;
    bool isItalic = true;
    int charset = 0;
    int pitchAndFamily = 0;
    OdDbTextStyleTableRecordPtr(styleId("NOTES").openObject())
        ->font(typeface, isBold, isItalic, charset, pitchAndFamily);
    EXPECT_EQ(typeface, OdString("Arial"));
    EXPECT_TRUE(isBold);
    EXPECT_FALSE(isItalic);
    EXPECT_EQ(charset, 0xCC);
    EXPECT_EQ(pitchAndFamily, 0x22);
}

TEST_F(TextStyleRepair, TheWordOfTheFontStyleCountsInAnyLetterCaseAndAnUnknownOneIsNormal)
{
    m_drawing.textStyle("MINE").font("arial.ttf").typeface("Arial", 0);
    m_office.textStyle("NOTES");
    report();

    repairFontStyle("MINE", "bold ITALIC");
    EXPECT_EQ(fontStyle("MINE"), "Bold Italic");
    repairFontStyle("MINE", "BOLD");
    EXPECT_EQ(fontStyle("MINE"), "Bold");
    repairFontStyle("MINE", "italic");
    EXPECT_EQ(fontStyle("MINE"), "Italic");
    repairFontStyle("MINE", "Slanted");
    EXPECT_EQ(fontStyle("MINE"), "Normal");
}

TEST_F(TextStyleRepair, AFontOfShapesLeavesTheFontFlagsOfTheTargetAlone)
{
    m_drawing.textStyle("NOTES").font("arial.ttf").typeface("Arial", kBoldFont | 0x22);
    m_office.textStyle("NOTES").font("romans.shx");
    report();

    repair("NOTES", "NOTES");

    OdString typeface;
    bool isBold = false;
    bool isItalic = false;
    int charset = 0;
    int pitchAndFamily = 0;
    OdDbTextStyleTableRecordPtr(styleId("NOTES").openObject())
        ->font(typeface, isBold, isItalic, charset, pitchAndFamily);
    EXPECT_TRUE(isBold);
    EXPECT_EQ(pitchAndFamily, 0x22);
    EXPECT_EQ(reportAgain(), "");
}

TEST_F(TextStyleRepair, ANewNameRenamesTheStyleInPlace)
{
    m_drawing.textStyle("NOTE").height(2);
    m_drawing.modelSpace().text("a").textStyle("note");
    m_drawing.dimStyle("ISO").handleOf(340, "STYLE", "NOTE");
    m_drawing.currentTextStyle("NOTE");
    m_office.textStyle("NOTES").height(2.5);
    report();
    const OdDbObjectId id = styleId("NOTE");

    repair("NOTE", "NOTES");

    EXPECT_EQ(styles(), "NOTES\n");
    EXPECT_EQ(styleId("NOTES"), id);
    EXPECT_EQ(users(), "*Model_Space TEXT NOTES\n");
    EXPECT_EQ(currentStyle(), "NOTES");
    EXPECT_EQ(reportAgain(), "");
}

TEST_F(TextStyleRepair, ANameThatExistsTakesTheUsersAndTheOldStyleGoes)
{
    m_drawing.textStyle("NOTE").height(2);
    m_drawing.textStyle("NOTES").height(9).font("arial.ttf").typeface("Arial", 0);
    m_drawing.modelSpace().text("a").textStyle("NOTE");
    m_drawing.currentTextStyle("note");
    m_office.textStyle("NOTES").height(2.5).font("arial.ttf").typeface("Arial", kItalicFont);
    report();

    repair("NOTE", "NOTES");

    // The surviving style is the repaired one, the violating one is gone.
    EXPECT_EQ(styles(), "NOTES\n");
    EXPECT_EQ(
        values("NOTES"),
        "Annotative=0 Backwards=0 BigFont= Font=arial.ttf Font Style=Italic Match orientation "
        "to sheet=0 Name=NOTES Oblique Angle=0.0000 Text Height=2.5000 Upside Down=0 "
        "Vertical=0 Width=1.0000");
    EXPECT_EQ(users(), "*Model_Space TEXT NOTES\n");
    EXPECT_EQ(currentStyle(), "NOTES");
    EXPECT_EQ(reportAgain(), "");
}

TEST_F(TextStyleRepair, ACurrentStyleThatIsNotTheOldOneStays)
{
    m_drawing.textStyle("Standard");
    m_drawing.textStyle("NOTE");
    m_drawing.textStyle("NOTES");
    m_drawing.currentTextStyle("Standard");
    m_office.textStyle("Standard");
    m_office.textStyle("NOTES");
    report();

    repair("NOTE", "NOTES");

    EXPECT_EQ(currentStyle(), "Standard");
}

TEST_F(TextStyleRepair, TheOldStyleStaysWhereADimensionStyleRefersToIt)
{
    m_drawing.textStyle("NOTE");
    m_drawing.textStyle("NOTES");
    m_drawing.dimStyle("ISO").handleOf(340, "STYLE", "NOTE");
    m_drawing.modelSpace().text("a").textStyle("NOTE");
    m_office.textStyle("NOTES");
    report();

    repair("NOTE", "NOTES");

    EXPECT_EQ(styles(), "NOTE\nNOTES\n");
    EXPECT_EQ(users(), "*Model_Space TEXT NOTES\n");
}

TEST_F(TextStyleRepair, TheOldStyleStaysWhereTheDimensionSettingsOfTheDrawingNameIt)
{
    m_drawing.textStyle("NOTE");
    m_drawing.textStyle("NOTES");
    m_drawing.header("DIMTXSTY", 7, "NOTE");
    m_office.textStyle("NOTES");
    report();

    repair("NOTE", "NOTES");

    EXPECT_EQ(styles(), "NOTE\nNOTES\n");
}

TEST_F(TextStyleRepair, TheOldStyleStaysWhereALineStyleDrawsWithIt)
{
    m_drawing.textStyle("NOTE");
    m_drawing.textStyle("NOTES");
    m_drawing.lineStyle("GAS").dashes({ 1, -1 }).group(74, 2).handleOf(340, "STYLE", "NOTE");
    m_office.textStyle("NOTES");
    report();

    repair("NOTE", "NOTES");

    EXPECT_EQ(styles(), "NOTE\nNOTES\n");
}

TEST_F(TextStyleRepair, StandardLosesItsUsersAndStays)
{
    m_drawing.textStyle("Standard");
    m_drawing.textStyle("NOTES");
    m_drawing.modelSpace().text("a");
    m_office.textStyle("NOTES");
    report();

    repair("Standard", "NOTES");

    EXPECT_EQ(styles(), "Standard\nNOTES\n");
    EXPECT_EQ(users(), "*Model_Space TEXT NOTES\n");
}

TEST_F(TextStyleRepair, TheOldNameIsThatOfTheAudit)
{
    m_drawing.textStyle("NOTE");
    m_drawing.textStyle("NOTES");
    m_drawing.modelSpace().text("a").textStyle("NOTE");
    m_office.textStyle("NOTES").height(2.5);
    report();
    OdDbSymbolTableRecordPtr(styleId("NOTE").openObject(OdDb::kForWrite))
        ->setName(OdString("NOTE 2"));

    repair("NOTE", "NOTES");

    // No style of the old name is left, so there is nothing to move and nothing to purge.
    EXPECT_EQ(styles(), "NOTE 2\nNOTES\n");
    EXPECT_EQ(users(), "*Model_Space TEXT NOTE 2\n");
    EXPECT_EQ(valueText(CKvStdsProperty::real(
                            CKvString(),
                            OdDbTextStyleTableRecordPtr(styleId("NOTES").openObject())->textSize())
                            .value),
              "2.5000");
}

TEST_F(TextStyleRepair, ANameThatIsInTheTableNoMoreChangesNothing)
{
    m_drawing.textStyle("NOTE");
    m_office.textStyle("NOTES").height(2.5);
    report();
    styleId("NOTE").safeOpenObject(OdDb::kForWrite)->erase();

    repair("NOTE", "NOTES");

    EXPECT_EQ(styles(), "");
}

TEST_F(TextStyleRepair, ARenameThatTheDrawingRefusesGoesToTheCaller)
{
    m_drawing.textStyle("NOTE");
    m_office.textStyle("A<B");
    report();

    EXPECT_THROW(repair("NOTE", "A<B"), OdError);
    EXPECT_EQ(styles(), "NOTE\n");
}

TEST_F(TextStyleRepair, TheEmptyNameOfAStandardIsRefusedAsAName)
{
    m_drawing.textStyle("NOTE");
    m_office.textStyle("").height(2.5);
    report();

    EXPECT_THROW(repair("NOTE", ""), OdError);
    EXPECT_EQ(styles(), "NOTE\n");
}

TEST_F(TextStyleRepair, TwoStylesCanBecomeOne)
{
    m_drawing.textStyle("NOTE 1").height(1);
    m_drawing.textStyle("NOTE 2").height(2);
    m_drawing.modelSpace().text("a").textStyle("NOTE 1");
    m_drawing.modelSpace().text("b").textStyle("NOTE 2");
    m_office.textStyle("NOTES").height(2.5);
    report();

    repair("NOTE 1", "NOTES");
    repair("NOTE 2", "NOTES");

    EXPECT_EQ(styles(), "NOTES\n");
    EXPECT_EQ(users(), "*Model_Space TEXT NOTES\n*Model_Space TEXT NOTES\n");
    EXPECT_EQ(reportAgain(), "");
}

TEST_F(TextStyleRepair, NoStandardsFileIsNeeded)
{
    m_drawing.textStyle("NOTES").height(2);
    m_office.textStyle("NOTES").height(2.5);
    report();
    m_services.removeDrawing("/office.dxf");

    repair("NOTES", "NOTES");

    EXPECT_TRUE(m_services.calls().empty());
    EXPECT_EQ(changedLines(), "- 2.0\n+ 2.5\n");
}

TEST_F(TextStyleRepair, AnEmptyFixChangesNothing)
{
    m_drawing.textStyle("MINE");
    m_office.textStyle("NOTES");
    report();
    CKvString message("left over");

    m_plugin.applyFix(violationOf("MINE").error, CKvStdsFixPtr(), message);
    m_plugin.applyFix(CKvStdsErrorPtr(), fixOf(violationOf("MINE"), "NOTES"), message);

    EXPECT_EQ(message, CKvString());
    EXPECT_FALSE(CKvDrawingFile::isChanged(*m_database));
}

TEST_F(TextStyleRepair, AnOldDrawingIsRepairedLikeAnyOther)
{
    m_drawing = CKvDrawingBuilder("AC1009");
    m_drawing.textStyle("NOTE").height(1);
    m_drawing.textStyle("NOTES").height(2);
    m_drawing.modelSpace().text("a").textStyle("NOTE");
    m_office.textStyle("NOTES").height(2.5).font("arial.ttf").typeface("Arial", kBoldFont);
    report();

    repair("NOTE", "NOTES");

    EXPECT_EQ(styles(), "NOTES\n");
    EXPECT_EQ(users(), "*Model_Space TEXT NOTES\n");
    EXPECT_EQ(reportAgain(), "");
}
