// SPDX-License-Identifier: MIT
#include "CKvLineStyleTest.h"

namespace
{

/// Towards the namesake, and towards a name that the drawing lacks.
class LineStyleRepair : public CKvLineStyleTest
{
protected:
    LineStyleRepair()
    {
        m_drawing.withReservedLineStyles();
        m_office.withReservedLineStyles();
    }
};

} // namespace

TEST_F(LineStyleRepair, TheFixOfTheSameNameReplacesTheLineStyleInPlace)
{
    m_drawing.lineStyle("dashed").dashes({ 1, -1 });
    m_drawing.layer("WALLS").lineStyle("DASHED");
    m_drawing.modelSpace().line("WALLS").lineStyle("dashed");
    m_drawing.currentLineStyle("dashed");
    m_office.lineStyle("DASHED").description("__ __").dashes({ 0.5, -0.25 });
    report();
    const OdDbObjectId id = lineStyleId("dashed");
    const OdDbHandle handle = id.handle();

    repair("dashed", "DASHED");

    EXPECT_EQ(lineStyles(),
              "ByBlock 0 0.0000\nByLayer 0 0.0000\nContinuous 0 0.0000\n"
              "DASHED 2 0.7500\n");
    EXPECT_EQ(lineStyleId("DASHED"), id);
    EXPECT_EQ(id.handle(), handle);
    // Users keep the letters that they name the line style by.
    EXPECT_EQ(changedLines(),
              "- dashed\n+ DASHED\n"
              "- \n+ __ __\n"
              "- 2.0\n+ 0.75\n"
              "- 1.0\n+ 0.5\n"
              "- -1.0\n+ -0.25\n");
    EXPECT_EQ(entityLineStyles(), "*Model_Space LINE DASHED\n");
    EXPECT_EQ(currentLineStyle(), "DASHED");
    EXPECT_EQ(reportAgain(), "");
}

TEST_F(LineStyleRepair, AReplacementInPlaceKeepsExtendedDataAndExtensionDictionary)
{
    m_drawing.lineStyle("DASHED")
        .dashes({ 1, -1 })
        .extendedData("OURS", { { 1000, "kept" } })
        .extensionDictionary()
        .xrecord("OURS")
        .group(1, "kept too");
    m_office.lineStyle("DASHED")
        .dashes({ 0.5, -0.25 })
        .extendedData("THEIRS", { { 1000, "left" } });
    report();

    repair("DASHED", "DASHED");

    const QByteArray bytes = CKvDrawingFile::toBytes(*m_database);
    EXPECT_EQ(bytes.count("1001\nOURS\n1000\nkept\n"), 1);
    EXPECT_EQ(bytes.count("kept too"), 1);
    EXPECT_FALSE(bytes.contains("THEIRS"));
    EXPECT_FALSE(lineStyleId("DASHED").openObject()->extensionDictionary().isNull());
    EXPECT_EQ(reportAgain(), "");
}

TEST_F(LineStyleRepair, TheStandardsRecordServesAgainAfterAReplacementInPlace)
{
    m_drawing.lineStyle("DASHED").dashes({ 1, -1 });
    m_drawing.lineStyle("STRICHE").dashes({ 1, -1 });
    m_office.lineStyle("DASHED").dashes({ 0.5, -0.25 });
    report();

    repair("DASHED", "DASHED");
    repair("STRICHE", "DASHED");

    EXPECT_EQ(lineStyles(),
              "ByBlock 0 0.0000\nByLayer 0 0.0000\nContinuous 0 0.0000\nDASHED 2 0.7500\n");
    EXPECT_EQ(reportAgain(), "");
}

TEST_F(LineStyleRepair, ANameThatTheDrawingLacksBringsTheRecordItselfOver)
{
    m_drawing.lineStyle("STRICHE").dashes({ 1, -1 });
    m_drawing.layer("WALLS").lineStyle("striche");
    m_drawing.layer("DOORS").lineStyle("Continuous");
    m_drawing.layer("SITE|WALLS").lineStyle("STRICHE");
    m_drawing.block("DOOR").line().lineStyle("STRICHE");
    m_drawing.modelSpace().line().lineStyle("striche");
    m_drawing.modelSpace().line().lineStyle("Continuous");
    m_drawing.modelSpace().line();
    m_drawing.modelSpace().insert("DOOR").attribute("NO", "17").lastChild().lineStyle("STRICHE");
    m_drawing.modelSpace().polyline().lineStyle("STRICHE").vertex(0, 0).lastChild().lineStyle(
        "STRICHE");
    m_drawing.paperSpace().text("Plan").lineStyle("STRICHE");
    m_drawing.currentLineStyle("striche");
    m_office.lineStyle("DASHED").description("__ __").dashes({ 0.5, -0.25 });
    report();
    const OdDbObjectId standard =
        recordId(m_services.lastRead("/office.dxf")->getLinetypeTableId(), "DASHED");

    repair("STRICHE", "DASHED");

    EXPECT_EQ(lineStyles(),
              "ByBlock 0 0.0000\nByLayer 0 0.0000\nContinuous 0 0.0000\nDASHED 2 0.7500\n");
    EXPECT_EQ(layers(),
              "WALLS white DASHED -3\nDOORS white Continuous -3\nSITE|WALLS white DASHED -3\n");
    EXPECT_EQ(entityLineStyles(),
              "*Model_Space LINE DASHED\n"
              "*Model_Space LINE Continuous\n"
              "*Model_Space LINE ByLayer\n"
              "*Model_Space INSERT ByLayer\n"
              "*Model_Space ATTRIB DASHED\n"
              "*Model_Space POLYLINE DASHED\n"
              "*Paper_Space TEXT DASHED\n"
              "DOOR LINE DASHED\n");
    EXPECT_EQ(currentLineStyle(), "DASHED");
    // No copy: the standards drawing has it no longer.
    EXPECT_TRUE(standard.isErased());
    EXPECT_EQ(reportAgain(), "");
}

TEST_F(LineStyleRepair, ACurrentLineStyleThatIsNotTheOldOneStays)
{
    m_drawing.lineStyle("STRICHE").dashes({ 1, -1 });
    m_drawing.currentLineStyle("ByBlock");
    m_office.lineStyle("DASHED").dashes({ 0.5, -0.25 });
    report();

    repair("STRICHE", "DASHED");

    EXPECT_EQ(currentLineStyle(), "ByBlock");
}

TEST_F(LineStyleRepair, TheOldOneStaysWhereSomethingStillRefersToIt)
{
    m_drawing.lineStyle("STRICHE").dashes({ 1, -1 });
    m_drawing.externalReference("SITE").line().lineStyle("STRICHE");
    m_drawing.modelSpace().line().lineStyle("STRICHE");
    m_office.lineStyle("DASHED").dashes({ 0.5, -0.25 });
    report();

    repair("STRICHE", "DASHED");

    EXPECT_EQ(lineStyles(),
              "ByBlock 0 0.0000\nByLayer 0 0.0000\nContinuous 0 0.0000\nSTRICHE 2 2.0000\n"
              "DASHED 2 0.7500\n");
    EXPECT_EQ(entityLineStyles(), "*Model_Space LINE DASHED\nSITE LINE STRICHE\n");
}

TEST_F(LineStyleRepair, ADimensionStyleThatNamesTheOldOneKeepsIt)
{
    m_drawing.lineStyle("STRICHE").dashes({ 1, -1 });
    m_drawing.dimStyle("ISO").handleOf(345, "LTYPE", "STRICHE");
    m_office.lineStyle("DASHED").dashes({ 0.5, -0.25 });
    report();

    repair("STRICHE", "DASHED");

    EXPECT_FALSE(lineStyleId("STRICHE").isNull());
}

TEST_F(LineStyleRepair, TextsOfAComplexLineStyleComeAlong)
{
    m_drawing.textStyle("Standard");
    m_drawing.lineStyle("GASLEITUNG").dashes({ 1, -1 });
    m_drawing.modelSpace().line().lineStyle("GASLEITUNG");
    m_office.textStyle("PIPES").font("isocp.shx");
    m_office.textStyle("").flags(1).font("ltypeshp.shx").handle("ABC");
    m_office.lineStyle("GAS")
        .dashes({})
        .patternLength(0.95)
        .group(49, 0.5)
        .group(74, 2)
        .group(75, 0)
        .handleOf(340, "STYLE", "PIPES")
        .group(9, "GAS")
        .group(49, -0.45)
        .group(74, 4)
        .group(75, 130)
        .group(340, "ABC");
    report();

    repair("GASLEITUNG", "GAS");

    const OdDbLinetypeTableRecordPtr gas(lineStyleId("GAS").openObject());
    EXPECT_EQ(gas->shapeStyleAt(0), recordId(m_database->getTextStyleTableId(), "PIPES"));
    EXPECT_EQ(gas->textAt(0), OdString("GAS"));
    EXPECT_EQ(gas->shapeNumberAt(1), 130);
    EXPECT_EQ(gas->shapeStyleAt(1).database(), m_database.get());
    EXPECT_EQ(namesText(m_database->getTextStyleTableId()), "Standard\nPIPES\n\n");
}

TEST_F(LineStyleRepair, ItTakesTheFileThatTheFixNames)
{
    CKvDrawingBuilder firm;
    firm.lineStyle("DASHED").dashes({ 3, -3 });
    m_services.setDrawing("/firm.dxf", firm);
    m_drawing.lineStyle("STRICHE").dashes({ 1, -1 });
    m_office.lineStyle("DASHED").dashes({ 2, -2 });
    report({ QStringLiteral("/office.dxf"), QStringLiteral("/firm.dxf") });
    const CKvStdsViolation violation = violationOf("STRICHE");
    CKvString message;

    m_plugin.applyFix(
        violation.error, violation.fixes.at(unsigned(violation.fixes.size()) - 1), message);

    EXPECT_EQ(OdDbLinetypeTableRecordPtr(lineStyleId("DASHED").openObject())->patternLength(), 6);
}

TEST_F(LineStyleRepair, TheFilesThatWereOpenedServeAndNoneIsReadAnew)
{
    m_drawing.lineStyle("STRICHE").dashes({ 1, -1 });
    m_office.lineStyle("DASHED").dashes({ 2, -2 });
    report();

    repair("STRICHE", "DASHED");

    EXPECT_TRUE(m_services.calls().empty());
}

TEST_F(LineStyleRepair, AFileThatIsNotOpenIsReadAndNotKept)
{
    m_drawing.lineStyle("STRICHE").dashes({ 1, -1 });
    m_office.lineStyle("DASHED").dashes({ 2, -2 });
    report();
    const CKvStdsViolation violation = violationOf("STRICHE");
    const CKvStdsFixPtr fix = fixOf(violation, "DASHED");
    audit(m_plugin, m_database, {});
    m_services.forgetCalls();
    CKvString message;

    m_plugin.applyFix(violation.error, fix, message);
    m_plugin.applyFix(violation.error, fix, message);

    EXPECT_EQ(m_services.calls(),
              std::vector<std::string>({ "readFile /office.dxf false true 64 ''",
                                         "readFile /office.dxf false true 64 ''" }));
    EXPECT_FALSE(lineStyleId("DASHED").isNull());
}

TEST_F(LineStyleRepair, AFileThatCanNoLongerBeReadEndsTheRepairWithNothingChanged)
{
    m_drawing.lineStyle("STRICHE").dashes({ 1, -1 });
    m_office.lineStyle("DASHED").dashes({ 2, -2 });
    report();
    const CKvStdsViolation violation = violationOf("STRICHE");
    audit(m_plugin, m_database, {});
    m_services.removeDrawing("/office.dxf");
    CKvString message;

    m_plugin.applyFix(violation.error, fixOf(violation, "DASHED"), message);

    EXPECT_FALSE(CKvDrawingFile::isChanged(*m_database));
}

TEST_F(LineStyleRepair, WhatReadingTheFileThrowsGoesToTheCaller)
{
    m_drawing.lineStyle("STRICHE").dashes({ 1, -1 });
    m_office.lineStyle("DASHED").dashes({ 2, -2 });
    report();
    const CKvStdsViolation violation = violationOf("STRICHE");
    audit(m_plugin, m_database, {});
    m_services.setFailure("/office.dxf", 9);
    CKvString message;

    EXPECT_THROW(m_plugin.applyFix(violation.error, fixOf(violation, "DASHED"), message), OdError);
}

TEST_F(LineStyleRepair, AnEmptyFixChangesNothing)
{
    m_drawing.lineStyle("STRICHE").dashes({ 1, -1 });
    m_office.lineStyle("DASHED").dashes({ 2, -2 });
    report();
    CKvString message("left over");

    m_plugin.applyFix(violationOf("STRICHE").error, CKvStdsFixPtr(), message);
    m_plugin.applyFix(CKvStdsErrorPtr(), fixOf(violationOf("STRICHE"), "DASHED"), message);

    EXPECT_EQ(message, CKvString());
    EXPECT_FALSE(CKvDrawingFile::isChanged(*m_database));
}

TEST_F(LineStyleRepair, AnOldDrawingIsRepairedLikeAnyOther)
{
    m_drawing = CKvDrawingBuilder("AC1009");
    m_drawing.withReservedLineStyles();
    m_drawing.lineStyle("STRICHE").dashes({ 1, -1 });
    m_drawing.layer("WALLS").lineStyle("STRICHE");
    m_drawing.modelSpace().line().lineStyle("STRICHE");
    m_office.lineStyle("DASHED").dashes({ 0.5, -0.25 });
    report();

    repair("STRICHE", "DASHED");

    EXPECT_EQ(lineStyles(),
              "ByBlock 0 0.0000\nByLayer 0 0.0000\nContinuous 0 0.0000\nDASHED 2 0.7500\n");
    EXPECT_EQ(entityLineStyles(), "*Model_Space LINE DASHED\n");
    EXPECT_EQ(layers(), "WALLS white DASHED -3\n");
    EXPECT_EQ(reportAgain(), "");
}
