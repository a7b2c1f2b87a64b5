// SPDX-License-Identifier: MIT
#include "CKvDimStyleTest.h"
#include "CKvDrawingFile.h"
#include "OdDbBlockTable.h"
#include "OdDbBlockTableRecord.h"
#include "OdDbDimension.h"
#include "OdDbLeader.h"
#include "applyDimStyle.h"

namespace
{

/// Block, type and dimension style of the dimensions and leaders: "*Model_Space DIMENSION MINE".
std::string usersText(const OdDbDatabasePtr &drawing)
{
    std::string text;
    const OdDbBlockTablePtr blocks(drawing->getBlockTableId().openObject());
    for (auto walk = blocks->newIterator(); !walk->done(); walk->step()) {
        const OdDbBlockTableRecordPtr block(walk->getRecord());
        for (auto entities = block->newIterator(); !entities->done(); entities->step()) {
            const OdDbEntityPtr entity = entities->entity();
            const OdDbDimensionPtr dimension = OdDbDimension::cast(entity.get());
            const OdDbLeaderPtr leader = OdDbLeader::cast(entity.get());
            const OdDbObjectId style = dimension ? dimension->dimensionStyle()
                : leader                         ? leader->dimensionStyle()
                                                 : OdDbObjectId();
            if (!style.isNull()) {
                text += block->getName().toQString().toStdString() + ' '
                    + entity->isA()->dxfName().toQString().toStdString() + ' ' + nameOf(style)
                    + '\n';
            }
        }
    }
    return text;
}

class DimStyleRepair : public CKvDimStyleTest
{
};

} // namespace

TEST_F(DimStyleRepair, TheFixOfTheSameNameUpdatesTheStyleInPlace)
{
    m_drawing.header("DIMASZ", 40, 0.5);
    m_drawing.dimStyle("office").group(41, 2.5).group(3, "<> mm");
    m_drawing.modelSpace().dimension("OFFICE");
    m_drawing.currentDimStyle("OFFICE");
    m_office.dimStyle("OFFICE").group(41, 3.5).group(3, "<> mm");
    report();
    const OdDbObjectId id = styleId("office");
    // The text before and behind it is new in the header; all other values are defaults.
    m_database->setDIMPOST(OdString());

    repair("office", "OFFICE");

    EXPECT_EQ(styles(), "office\n");
    EXPECT_EQ(styleId("office"), id);
    EXPECT_EQ(usersText(m_database), "*Model_Space DIMENSION office\n");
    EXPECT_EQ(currentStyle(), "office");
    EXPECT_EQ(reportAgain(), "");
    EXPECT_EQ(m_database->getDIMASZ(), 3.5);
    EXPECT_EQ(m_database->getDIMPOST(), OdString("<> mm"));
}

TEST_F(DimStyleRepair, TheFileChangesInTheValueAndTheHeaderAndNowhereElse)
{
    m_drawing.header("DIMASZ", 40, 0.5);
    m_drawing.dimStyle("office").group(41, 2.5).group(140, "0.1800");
    m_drawing.modelSpace().dimension("OFFICE");
    m_office.dimStyle("OFFICE").group(41, 3.5);
    report();

    repair("office", "OFFICE");

    EXPECT_EQ(changedLines(), "- 0.5\n+ 3.5\n- 2.5\n+ 3.5\n");
}

TEST_F(DimStyleRepair, ANewNameRenamesTheStyleInPlace)
{
    m_drawing.dimStyle("MINE").group(41, 2.5);
    m_drawing.modelSpace().dimension("mine");
    m_drawing.modelSpace().leader("MINE");
    m_drawing.currentDimStyle("MINE");
    m_office.dimStyle("OFFICE").group(41, 3.5);
    report();
    const OdDbObjectId id = styleId("MINE");

    repair("MINE", "OFFICE");

    EXPECT_EQ(styles(), "OFFICE\n");
    EXPECT_EQ(styleId("OFFICE"), id);
    EXPECT_EQ(usersText(m_database), "*Model_Space DIMENSION OFFICE\n*Model_Space LEADER OFFICE\n");
    EXPECT_EQ(currentStyle(), "OFFICE");
    EXPECT_EQ(reportAgain(), "");
}

TEST_F(DimStyleRepair, ATakenNameMovesTheUsersAndRemovesTheOldStyle)
{
    m_drawing.dimStyle("OFFICE").group(41, 9.5);
    m_drawing.dimStyle("MINE").group(41, 2.5);
    m_drawing.modelSpace().dimension("mine");
    m_drawing.modelSpace().leader("MINE");
    m_drawing.modelSpace().dimension("OFFICE");
    m_drawing.paperSpace().entity("ARC_DIMENSION").group(70, 5).dimStyle("MINE");
    m_drawing.paperSpace().entity("LARGE_RADIAL_DIMENSION").group(70, 5).dimStyle("MINE");
    m_drawing.block("DETAIL").dimension("MINE");
    m_office.dimStyle("OFFICE").group(41, 3.5);
    report();

    repair("MINE", "OFFICE");

    EXPECT_EQ(styles(), "OFFICE\n");
    EXPECT_EQ(usersText(m_database),
              "*Model_Space DIMENSION OFFICE\n"
              "*Model_Space LEADER OFFICE\n"
              "*Model_Space DIMENSION OFFICE\n"
              "*Paper_Space ARC_DIMENSION OFFICE\n"
              "*Paper_Space LARGE_RADIAL_DIMENSION OFFICE\n"
              "DETAIL DIMENSION OFFICE\n");
}

// The surviving style keeps its own values; the next check finds what is wrong with it.
TEST_F(DimStyleRepair, TheStyleThatHasTheNameKeepsItsValuesAndTheHeaderTakesTheStandards)
{
    m_drawing.dimStyle("OFFICE").group(41, 9.5);
    m_drawing.dimStyle("MINE").group(41, 2.5);
    m_office.dimStyle("OFFICE").group(41, 3.5);
    report();

    repair("MINE", "OFFICE");

    EXPECT_EQ(styleOf(m_database, "OFFICE")->dimasz(), 9.5);
    EXPECT_EQ(m_database->getDIMASZ(), 3.5);
    EXPECT_EQ(reportAgain(),
              "OFFICE: DimensionStyle properties are non-standard. OFFICE@/office.dxf*\n");
}

TEST_F(DimStyleRepair, ACurrentStyleThatGoesGivesWayToTheOther)
{
    m_drawing.dimStyle("OFFICE");
    m_drawing.dimStyle("MINE");
    m_drawing.currentDimStyle("MINE");
    m_office.dimStyle("OFFICE");
    report();

    repair("MINE", "OFFICE");

    EXPECT_EQ(currentStyle(), "OFFICE");
    EXPECT_EQ(styles(), "OFFICE\n");
}

TEST_F(DimStyleRepair, AnotherCurrentStyleStaysCurrent)
{
    m_drawing.dimStyle("OFFICE");
    m_drawing.dimStyle("MINE");
    m_drawing.dimStyle("THIRD");
    m_drawing.currentDimStyle("THIRD");
    m_office.dimStyle("OFFICE");
    report();

    repair("MINE", "OFFICE");

    EXPECT_EQ(currentStyle(), "THIRD");
}

TEST_F(DimStyleRepair, ADimensionOfAnExternalReferenceStays)
{
    m_drawing.dimStyle("OFFICE");
    m_drawing.dimStyle("MINE");
    m_drawing.externalReference("SITE").dimension("MINE");
    m_drawing.block("DETAIL").dimension("MINE");
    m_office.dimStyle("OFFICE");
    report();

    repair("MINE", "OFFICE");

    EXPECT_EQ(usersText(m_database), "SITE DIMENSION MINE\nDETAIL DIMENSION OFFICE\n");
    EXPECT_EQ(styles(), "OFFICE\nMINE\n");
}

TEST_F(DimStyleRepair, AStyleThatATolerancesFrameUsesStaysUnderItsOldName)
{
    m_drawing.dimStyle("OFFICE");
    m_drawing.dimStyle("MINE").group(41, 2.5);
    m_drawing.modelSpace().entity("TOLERANCE").dimStyle("MINE").group(1, "text");
    m_drawing.modelSpace().dimension("MINE");
    m_office.dimStyle("OFFICE").group(41, 3.5);
    report();

    repair("MINE", "OFFICE");

    EXPECT_EQ(styles(), "OFFICE\nMINE\n");
    EXPECT_EQ(usersText(m_database), "*Model_Space DIMENSION OFFICE\n");
    EXPECT_EQ(styleOf(m_database, "MINE")->dimasz(), 3.5);
}

TEST_F(DimStyleRepair, AStyleOfAnotherLetterCaseIsNotPurged)
{
    m_drawing.dimStyle("office").group(41, 2.5);
    m_office.dimStyle("OFFICE").group(41, 3.5);
    report();

    repair("office", "OFFICE");

    EXPECT_EQ(styles(), "office\n");
    EXPECT_EQ(styleOf(m_database, "office")->dimasz(), 3.5);
}

TEST_F(DimStyleRepair, WhatADimensionOverridesForItselfStays)
{
    m_drawing.dimStyle("OFFICE");
    m_drawing.dimStyle("MINE");
    m_drawing.modelSpace().dimension("MINE").extendedData(
        "ACAD", { { 1000, "DSTYLE" }, { 1002, "{" }, { 1070, 140 }, { 1040, 7.5 }, { 1002, "}" } });
    m_office.dimStyle("OFFICE");
    report();

    repair("MINE", "OFFICE");

    EXPECT_EQ(usersText(m_database), "*Model_Space DIMENSION OFFICE\n");
    EXPECT_TRUE(
        CKvDrawingFile::toBytes(*m_database).contains("DSTYLE\n1002\n{\n1070\n140\n1040\n7.5\n"));
}

TEST_F(DimStyleRepair, AnAnnotativeStandardMakesTheStyleAnnotative)
{
    m_drawing.dimStyle("OFFICE");
    m_office.dimStyle("OFFICE").annotative(1);
    report();

    repair("OFFICE", "OFFICE");

    EXPECT_EQ(differences("OFFICE", "OFFICE"), "");
    EXPECT_EQ(reportAgain(), "");
}

TEST_F(DimStyleRepair, AStandardThatIsNotAnnotativeTakesTheMarkBack)
{
    m_drawing.dimStyle("OFFICE").annotative(1);
    m_office.dimStyle("OFFICE");
    report();

    repair("OFFICE", "OFFICE");

    EXPECT_EQ(differences("OFFICE", "OFFICE"), "");
}

TEST_F(DimStyleRepair, AValueThatTheHeaderRefusesIsWrittenToTheStyleAlone)
{
    m_drawing.header("DIMTXT", 40, 0.5).header("DIMTZIN", 70, 1);
    m_drawing.dimStyle("OFFICE");
    m_office.dimStyle("OFFICE").group(140, -1.0).group(284, 8);
    report();

    repair("OFFICE", "OFFICE");

    EXPECT_EQ(differences("OFFICE", "OFFICE"), "");
    EXPECT_EQ(m_database->getDIMTXT(), 0.5);
    EXPECT_EQ(m_database->getDIMTZIN(), 8);
}

TEST_F(DimStyleRepair, AMissingStandardsFileLeavesTheDrawingAsItIs)
{
    m_drawing.dimStyle("OFFICE").group(41, 2.5);
    m_office.dimStyle("OFFICE").group(41, 3.5);
    report();
    const CKvStdsFixPtr fix = CKvStdsFix::createObject();
    fix->setObjectName(CKvString("OFFICE"));
    fix->setStandardsFile(CKvString("/gone.dxf"));
    CKvString message("left over");

    m_plugin.applyFix(violationOf("OFFICE").error, fix, message);

    EXPECT_EQ(message, CKvString());
    EXPECT_EQ(changedLines(), "");
}

TEST_F(DimStyleRepair, AStandardsFileThatIsNotOpenIsReadAnew)
{
    m_drawing.dimStyle("OFFICE").group(41, 2.5);
    m_office.dimStyle("OFFICE").group(41, 3.5);
    CKvDrawingBuilder firm;
    firm.dimStyle("OFFICE").group(41, 4.5);
    m_services.setDrawing("/firm.dxf", firm);
    report();
    const CKvStdsFixPtr fix = CKvStdsFix::createObject();
    fix->setObjectName(CKvString("OFFICE"));
    fix->setStandardsFile(CKvString("/firm.dxf"));
    CKvString message;

    m_plugin.applyFix(violationOf("OFFICE").error, fix, message);

    EXPECT_EQ(styleOf(m_database, "OFFICE")->dimasz(), 4.5);
}

TEST_F(DimStyleRepair, NoViolationAndAnEmptyFixChangeNothing)
{
    m_drawing.dimStyle("OFFICE").group(41, 2.5);
    m_office.dimStyle("OFFICE").group(41, 3.5);
    report();
    CKvString message("left over");

    m_plugin.applyFix(CKvStdsErrorPtr(), violationOf("OFFICE").fixes.at(0), message);
    m_plugin.applyFix(violationOf("OFFICE").error, CKvStdsFixPtr(), message);

    EXPECT_EQ(message, CKvString());
    EXPECT_EQ(changedLines(), "");
}

TEST_F(DimStyleRepair, AnErasedStyleIsPassedOver)
{
    m_drawing.dimStyle("OFFICE").group(41, 2.5);
    m_office.dimStyle("OFFICE").group(41, 3.5);
    report();
    styleId("OFFICE").openObject(OdDb::kForWrite)->erase();

    repair("OFFICE", "OFFICE");

    EXPECT_EQ(styles(), "");
    EXPECT_EQ(m_database->getDIMASZ(), 0.18);
}
