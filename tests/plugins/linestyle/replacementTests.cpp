// SPDX-License-Identifier: MIT
#include "CKvLineStyleTest.h"

namespace
{

/// Towards another line style that the drawing has.
class LineStyleReplacement : public CKvLineStyleTest
{
protected:
    LineStyleReplacement()
    {
        m_drawing.withReservedLineStyles();
        m_office.withReservedLineStyles();
    }
};

} // namespace

TEST_F(LineStyleReplacement, TheExistingOneGivesWayToTheStandardsRecord)
{
    m_drawing.lineStyle("DASHED").dashes({ 3, -3 });
    m_drawing.lineStyle("STRICHE").dashes({ 1, -1 });
    m_drawing.layer("WALLS").lineStyle("STRICHE");
    m_drawing.layer("DOORS").lineStyle("DASHED");
    m_drawing.modelSpace().line().lineStyle("STRICHE");
    m_drawing.modelSpace().line().lineStyle("DASHED");
    m_drawing.currentLineStyle("STRICHE");
    m_office.lineStyle("DASHED").dashes({ 0.5, -0.25 });
    report();
    const OdDbObjectId replaced = lineStyleId("DASHED");

    repair("STRICHE", "DASHED");

    EXPECT_EQ(lineStyles(),
              "ByBlock 0 0.0000\nByLayer 0 0.0000\nContinuous 0 0.0000\nDASHED 2 0.7500\n");
    EXPECT_TRUE(replaced.isErased());
    EXPECT_NE(lineStyleId("DASHED"), replaced);
    EXPECT_EQ(layers(), "WALLS white DASHED -3\nDOORS white DASHED -3\n");
    EXPECT_EQ(entityLineStyles(), "*Model_Space LINE DASHED\n*Model_Space LINE DASHED\n");
    EXPECT_EQ(currentLineStyle(), "DASHED");
    EXPECT_EQ(reportAgain(), "");
}

// The object is another one, so pointers to the old one lead nowhere; that is intended.
TEST_F(LineStyleReplacement, PointersToTheReplacedOneAreNotRedirected)
{
    m_drawing.lineStyle("DASHED").dashes({ 3, -3 });
    m_drawing.lineStyle("STRICHE").dashes({ 1, -1 });
    m_drawing.dimStyle("ISO").handleOf(345, "LTYPE", "DASHED");
    m_office.lineStyle("DASHED").dashes({ 0.5, -0.25 });
    report();

    repair("STRICHE", "DASHED");

    EXPECT_EQ(CKvDrawingFile::toBytes(*m_database).count("345\n0\n"), 1);
}

TEST_F(LineStyleReplacement, AReservedOneIsKeptAndOnlyTakesTheUsers)
{
    for (const char *reserved : { "Continuous", "ByLayer", "ByBlock" }) {
        SCOPED_TRACE(reserved);
        m_drawing = CKvDrawingBuilder();
        m_office = CKvDrawingBuilder();
        m_drawing.withReservedLineStyles();
        m_drawing.lineStyle("STRICHE").dashes({ 1, -1 });
        m_drawing.modelSpace().line().lineStyle("STRICHE");
        m_drawing.currentLineStyle("STRICHE");
        m_office.lineStyle(reserved).dashes({ 7, -7 });
        report();
        const OdDbObjectId id = lineStyleId(reserved);

        repair("STRICHE", reserved);

        EXPECT_EQ(lineStyles(), "ByBlock 0 0.0000\nByLayer 0 0.0000\nContinuous 0 0.0000\n");
        EXPECT_EQ(lineStyleId(reserved), id);
        EXPECT_EQ(entityLineStyles(), std::string("*Model_Space LINE ") + reserved + '\n');
        EXPECT_EQ(currentLineStyle(), reserved);
    }
}

TEST_F(LineStyleReplacement, AReservedOneCanBeReplacedInPlace)
{
    m_office = CKvDrawingBuilder();
    m_office.lineStyle("Continuous").dashes({ 7, -7 });
    report();
    const OdDbObjectId id = lineStyleId("Continuous");
    OdDbObjectIdArray ids;
    ids.append(id);
    m_violations = audit(m_plugin, m_database, { QStringLiteral("/office.dxf") }, ids);

    repair("Continuous", "Continuous");

    EXPECT_EQ(lineStyles(), "ByBlock 0 0.0000\nByLayer 0 0.0000\nContinuous 2 14.0000\n");
    EXPECT_EQ(lineStyleId("Continuous"), id);
}

TEST_F(LineStyleReplacement, ALineStyleThatDrawingsAlwaysHaveIsNotPurged)
{
    m_drawing.modelSpace().line().lineStyle("Continuous");
    m_office.lineStyle("DASHED").dashes({ 1, -1 });
    report();
    OdDbObjectIdArray ids;
    ids.append(lineStyleId("Continuous"));
    m_office = CKvDrawingBuilder();
    m_office.lineStyle("DASHED").dashes({ 1, -1 });
    m_services.setDrawing("/office.dxf", m_office);
    m_violations = audit(m_plugin, m_database, { QStringLiteral("/office.dxf") }, ids);

    repair("Continuous", "DASHED");

    EXPECT_EQ(entityLineStyles(), "*Model_Space LINE DASHED\n");
    EXPECT_EQ(lineStyles(),
              "ByBlock 0 0.0000\nByLayer 0 0.0000\nContinuous 0 0.0000\nDASHED 2 2.0000\n");
}

// The first repair took the record out of the standards drawing.
TEST_F(LineStyleReplacement, TwoCanBecomeOne)
{
    m_drawing.lineStyle("STRICHE").dashes({ 1, -1 });
    m_drawing.lineStyle("TRAITS").dashes({ 2, -2 });
    m_drawing.modelSpace().line().lineStyle("STRICHE");
    m_drawing.modelSpace().line().lineStyle("TRAITS");
    m_office.lineStyle("DASHED").dashes({ 0.5, -0.25 });
    report();

    repair("STRICHE", "DASHED");
    repair("TRAITS", "DASHED");

    EXPECT_EQ(lineStyles(),
              "ByBlock 0 0.0000\nByLayer 0 0.0000\nContinuous 0 0.0000\nDASHED 2 0.7500\n");
    EXPECT_EQ(entityLineStyles(), "*Model_Space LINE DASHED\n*Model_Space LINE DASHED\n");
    EXPECT_EQ(reportAgain(), "");
}

TEST_F(LineStyleReplacement, ARecordThatIsInNeitherDrawingAnyMoreChangesNothing)
{
    m_drawing.lineStyle("STRICHE").dashes({ 1, -1 });
    m_drawing.lineStyle("TRAITS").dashes({ 2, -2 });
    m_office.lineStyle("DASHED").dashes({ 0.5, -0.25 });
    report();
    repair("STRICHE", "DASHED");
    OdDbSymbolTableRecordPtr(lineStyleId("DASHED").openObject(OdDb::kForWrite))->erase();
    const std::string before = lineStyles();

    repair("TRAITS", "DASHED");

    EXPECT_EQ(lineStyles(), before);
}

TEST_F(LineStyleReplacement, ALineStyleThatIsGoneHasNoUsers)
{
    m_drawing.lineStyle("STRICHE").dashes({ 1, -1 });
    m_drawing.modelSpace().line().lineStyle("STRICHE");
    m_office.lineStyle("DASHED").dashes({ 0.5, -0.25 });
    report();
    lineStyleId("STRICHE").safeOpenObject(OdDb::kForWrite)->erase();

    repair("STRICHE", "DASHED");

    EXPECT_EQ(lineStyles(),
              "ByBlock 0 0.0000\nByLayer 0 0.0000\nContinuous 0 0.0000\nDASHED 2 0.7500\n");
    EXPECT_EQ(entityLineStyles(), "*Model_Space LINE STRICHE\n");
}

TEST_F(LineStyleReplacement, ALineStyleThatIsGoneComesBackByItsOwnNameAndIsNotPurged)
{
    m_drawing.lineStyle("DASHED").dashes({ 1, -1 });
    m_office.lineStyle("Dashed").dashes({ 0.5, -0.25 });
    report();
    lineStyleId("DASHED").safeOpenObject(OdDb::kForWrite)->erase();

    repair("DASHED", "Dashed");

    EXPECT_EQ(lineStyles(),
              "ByBlock 0 0.0000\nByLayer 0 0.0000\nContinuous 0 0.0000\nDashed 2 0.7500\n");
}

TEST_F(LineStyleReplacement, TheOldNameIsThatOfTheAudit)
{
    m_drawing.lineStyle("STRICHE").dashes({ 1, -1 });
    m_drawing.modelSpace().line().lineStyle("STRICHE");
    m_office.lineStyle("DASHED").dashes({ 0.5, -0.25 });
    report();
    OdDbSymbolTableRecordPtr(lineStyleId("STRICHE").openObject(OdDb::kForWrite))
        ->setName(OdString("STRICH"));

    repair("STRICHE", "DASHED");

    // Its users are found by its id; by its old name nothing is left to purge.
    EXPECT_EQ(entityLineStyles(), "*Model_Space LINE DASHED\n");
    EXPECT_EQ(lineStyles(),
              "ByBlock 0 0.0000\nByLayer 0 0.0000\nContinuous 0 0.0000\nSTRICH 2 2.0000\n"
              "DASHED 2 0.7500\n");
}
