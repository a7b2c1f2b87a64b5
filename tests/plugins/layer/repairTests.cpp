// SPDX-License-Identifier: MIT
#include "CKvLayerTest.h"

#include "OdDbLayerTableRecord.h"
#include "OdDbSymbolTable.h"

namespace
{

class LayerRepair : public CKvLayerTest
{
protected:
    LayerRepair()
    {
        m_drawing.withReservedLineStyles();
        m_office.withReservedLineStyles();
    }
};

} // namespace

TEST_F(LayerRepair, TheFixOfTheSameNameUpdatesTheLayerInPlace)
{
    m_drawing.lineStyle("CENTER");
    m_drawing.layer("walls").color(1).lineWeight(25).lineStyle("Continuous");
    m_drawing.modelSpace().line("WALLS");
    m_drawing.currentLayer("WALLS");
    m_office.layer("WALLS").color(5).lineWeight(30).lineStyle("CENTER");
    report();
    const OdDbObjectId id = layerId("walls");

    repair("walls", "WALLS");

    EXPECT_EQ(layers(), "walls blue CENTER 30\n");
    EXPECT_EQ(layerId("walls"), id);
    EXPECT_EQ(changedLines(),
              "- 1\n+ 5\n"
              "- Continuous\n+ CENTER\n"
              "- 25\n+ 30\n");
    EXPECT_EQ(reportAgain(), "");
}

TEST_F(LayerRepair, AnUpdatePurgesNothing)
{
    m_drawing.lineStyle("DASHED");
    m_drawing.layer("WALLS").color(1).lineStyle("DASHED");
    m_office.layer("WALLS").color(1).lineStyle("Continuous");
    report();

    repair("WALLS", "WALLS");

    EXPECT_EQ(layers(), "WALLS red Continuous -3\n");
    EXPECT_EQ(lineStyles(), "ByBlock\nByLayer\nContinuous\nDASHED\n");
}

TEST_F(LayerRepair, ALayerThatNothingUsesIsNotPurgedWhenOnlyItsLettersDiffer)
{
    m_drawing.layer("walls").color(1);
    m_office.layer("WALLS").color(5);
    report();

    repair("walls", "WALLS");

    EXPECT_EQ(layers(), "walls blue Continuous -3\n");
}

TEST_F(LayerRepair, ANewNameRenamesTheLayerInPlace)
{
    m_drawing.layer("WALL").color(1);
    m_drawing.modelSpace().line("WALL");
    m_drawing.currentLayer("WALL");
    m_office.layer("WALLS").color(5).lineWeight(30);
    report();
    const OdDbObjectId id = layerId("WALL");

    repair("WALL", "WALLS");

    EXPECT_EQ(layers(), "WALLS blue Continuous 30\n");
    EXPECT_EQ(layerId("WALLS"), id);
    EXPECT_EQ(entityLayers(), "*Model_Space LINE WALLS\n");
    EXPECT_EQ(currentLayer(), "WALLS");
    EXPECT_EQ(reportAgain(), "");
}

TEST_F(LayerRepair, ARenamePurgesNoLineStyle)
{
    m_drawing.lineStyle("DASHED");
    m_drawing.layer("WALL").lineStyle("DASHED");
    m_office.layer("WALLS");
    report();

    repair("WALL", "WALLS");

    EXPECT_EQ(layers(), "WALLS white Continuous -3\n");
    EXPECT_EQ(lineStyles(), "ByBlock\nByLayer\nContinuous\nDASHED\n");
}

TEST_F(LayerRepair, ANameThatExistsTakesTheEntitiesAndTheOldLayerGoes)
{
    m_drawing.layer("WALL").color(1);
    m_drawing.layer("WALLS").color(2);
    m_drawing.block("DOOR").line("WALL");
    m_drawing.modelSpace().line("wall");
    m_drawing.modelSpace().line("OTHER");
    m_drawing.modelSpace().insert("DOOR", "WALL").attribute("NO", "17").lastChild().layer("WALL");
    m_drawing.modelSpace().polyline("WALL").vertex(0, 0).lastChild().layer("WALL");
    m_drawing.paperSpace().text("Plan", "WALL");
    m_office.layer("WALLS").color(5).lineWeight(30);
    report();

    repair("WALL", "WALLS");

    EXPECT_EQ(layers(), "WALLS blue Continuous 30\n");
    EXPECT_EQ(entityLayers(),
              "*Model_Space LINE WALLS\n"
              "*Model_Space LINE OTHER\n"
              "*Model_Space INSERT WALLS\n"
              "*Model_Space ATTRIB WALLS\n"
              "*Model_Space POLYLINE WALLS\n"
              "*Paper_Space TEXT WALLS\n"
              "DOOR LINE WALLS\n");
    EXPECT_EQ(CKvDrawingFile::toBytes(*m_database).count("\nWALL\n"), 0);
    EXPECT_EQ(reportAgain(), "");
}

TEST_F(LayerRepair, TheTargetTakesTheStandardsValuesAlsoWhenItWasFine)
{
    m_drawing.layer("WALL").color(1);
    m_drawing.layer("WALLS").trueColor(1, 2, 3, 5).lineWeight(30);
    m_office.layer("WALLS").color(5).lineWeight(30);
    report();

    repair("WALL", "WALLS");

    EXPECT_EQ(layers(), "WALLS blue Continuous 30\n");
}

TEST_F(LayerRepair, TheCurrentLayerMovesFromTheOldLayerToTheTarget)
{
    m_drawing.layer("WALL");
    m_drawing.layer("WALLS");
    m_drawing.currentLayer("wall");
    m_office.layer("WALLS");
    report();

    repair("WALL", "WALLS");

    EXPECT_EQ(currentLayer(), "WALLS");
    EXPECT_EQ(layers(), "WALLS white Continuous -3\n");
}

TEST_F(LayerRepair, ACurrentLayerThatIsNotTheOldOneStays)
{
    m_drawing.layer("WALL");
    m_drawing.layer("WALLS");
    m_drawing.layer("DOORS");
    m_drawing.currentLayer("DOORS");
    m_office.layer("WALLS");
    m_office.layer("DOORS");
    report();

    repair("WALL", "WALLS");

    EXPECT_EQ(currentLayer(), "DOORS");
}

TEST_F(LayerRepair, TheOldLineStyleGoesWhenNothingUsesIt)
{
    m_drawing.lineStyle("DASHED");
    m_drawing.layer("WALL").lineStyle("dashed");
    m_drawing.layer("WALLS");
    m_office.layer("WALLS");
    report();

    repair("WALL", "WALLS");

    EXPECT_EQ(layers(), "WALLS white Continuous -3\n");
    EXPECT_EQ(lineStyles(), "ByBlock\nByLayer\nContinuous\n");
}

TEST_F(LayerRepair, TheOldLineStyleStaysWhenSomethingUsesIt)
{
    m_drawing.lineStyle("DASHED");
    m_drawing.layer("WALL").lineStyle("DASHED");
    m_drawing.layer("WALLS");
    m_drawing.modelSpace().line("WALLS").lineStyle("DASHED");
    m_office.layer("WALLS");
    report();

    repair("WALL", "WALLS");

    EXPECT_EQ(layers(), "WALLS white Continuous -3\n");
    EXPECT_EQ(lineStyles(), "ByBlock\nByLayer\nContinuous\nDASHED\n");
}

TEST_F(LayerRepair, ALayerThatAnExternalReferenceUsesStaysAfterItsEntitiesMoved)
{
    m_drawing.lineStyle("DASHED");
    m_drawing.layer("WALL").lineStyle("DASHED");
    m_drawing.layer("WALLS");
    m_drawing.externalReference("SITE").line("WALL");
    m_drawing.modelSpace().line("WALL");
    m_office.layer("WALLS");
    report();

    repair("WALL", "WALLS");

    // What stays keeps its line style.
    EXPECT_EQ(layers(), "WALL white DASHED -3\nWALLS white Continuous -3\n");
    EXPECT_EQ(lineStyles(), "ByBlock\nByLayer\nContinuous\nDASHED\n");
    EXPECT_EQ(entityLayers(), "*Model_Space LINE WALLS\nSITE LINE WALL\n");
}

TEST_F(LayerRepair, ALayerThatAPointerNamesStays)
{
    m_drawing.layer("WALL");
    m_drawing.layer("WALLS");
    m_drawing.modelSpace().entity("VIEWPORT").handleOf(341, "LAYER", "WALL");
    m_office.layer("WALLS");
    report();

    repair("WALL", "WALLS");

    EXPECT_EQ(layers(), "WALL white Continuous -3\nWALLS white Continuous -3\n");
}

TEST_F(LayerRepair, LayerZeroMergedIntoAnotherLosesItsEntitiesAndStays)
{
    m_drawing.layer("0").color(1);
    m_drawing.layer("WALLS").color(5);
    m_drawing.modelSpace().line("0");
    m_office.layer("WALLS").color(5);
    report();

    repair("0", "WALLS");

    EXPECT_EQ(layers(), "0 red Continuous -3\nWALLS blue Continuous -3\n");
    EXPECT_EQ(entityLayers(), "*Model_Space LINE WALLS\n");
}

TEST_F(LayerRepair, ARenameThatTheDrawingRefusesGoesToTheCaller)
{
    m_drawing.layer("0").color(1);
    m_office.layer("WALLS").color(5);
    report();

    EXPECT_THROW(repair("0", "WALLS"), OdError);
    EXPECT_EQ(namesText(m_database->getLayerTableId()), "0\n");
}

TEST_F(LayerRepair, TheEmptyNameOfAStandardIsRefusedAsAName)
{
    m_drawing.layer("WALL").color(1);
    m_office.layer("").color(5);
    EXPECT_EQ(report(), "WALL: Layer name is non-standard. @/office.dxf\n");

    try {
        repair("WALL", "");
        ADD_FAILURE() << "renamed to nothing";
    } catch (const OdError &error) {
        EXPECT_EQ(error.code(), int(OdResult::kInvalidInput));
    }
    EXPECT_EQ(namesText(m_database->getLayerTableId()), "WALL\n");
}

TEST_F(LayerRepair, ATrueColorAndItsBookComeOver)
{
    m_drawing = CKvDrawingBuilder("AC1018");
    m_drawing.withReservedLineStyles();
    m_drawing.layer("WALLS").color(1);
    m_office.layer("WALLS").trueColor(10, 20, 30, 5).colorBook("RAL$1000");
    report();

    repair("WALLS", "WALLS");

    EXPECT_EQ(layers(), "WALLS RAL$1000 Continuous -3\n");
    EXPECT_EQ(reportAgain(), "");
}

TEST_F(LayerRepair, ALayerThatIsOffStaysOff)
{
    m_drawing.layer("WALLS").color(-1);
    m_office.layer("WALLS").color(5);
    report();

    repair("WALLS", "WALLS");

    EXPECT_EQ(changedLines(), "- -1\n+ -5\n");
}

TEST_F(LayerRepair, TheOldNameIsThatOfTheAudit)
{
    m_drawing.layer("WALL").color(1);
    m_drawing.layer("WALLS").color(5);
    m_drawing.modelSpace().line("WALL");
    m_office.layer("WALLS").color(5);
    report();
    OdDbLayerTableRecordPtr(layerId("WALL").openObject(OdDb::kForWrite))
        ->setName(OdString("WALLX"));

    repair("WALL", "WALLS");

    // No layer of the old name is left, so there is nothing to move and nothing to purge.
    EXPECT_EQ(layers(), "WALLX red Continuous -3\nWALLS blue Continuous -3\n");
    EXPECT_EQ(entityLayers(), "*Model_Space LINE WALLX\n");
}

TEST_F(LayerRepair, TwoLayersCanBeMergedIntoOneTarget)
{
    m_drawing.layer("WALL 1").color(1);
    m_drawing.layer("WALL 2").color(2);
    m_drawing.modelSpace().line("WALL 1");
    m_drawing.modelSpace().line("WALL 2");
    m_office.layer("WALLS").color(5);
    report();

    repair("WALL 1", "WALLS");
    repair("WALL 2", "WALLS");

    EXPECT_EQ(layers(), "WALLS blue Continuous -3\n");
    EXPECT_EQ(entityLayers(), "*Model_Space LINE WALLS\n*Model_Space LINE WALLS\n");
}

TEST_F(LayerRepair, ALineweightWithoutANameIsWrittenAsDefault)
{
    m_drawing.layer("WALLS").lineWeight(25);
    m_office.layer("WALLS").lineWeight(33);
    report();

    repair("WALLS", "WALLS");

    EXPECT_EQ(layers(), "WALLS white Continuous -3\n");
}

TEST_F(LayerRepair, ALayerThatIsGoneIsNotMissed)
{
    m_drawing.layer("WALL").color(1);
    m_drawing.layer("WALLS").color(2);
    m_office.layer("WALLS").color(5);
    report();
    layerId("WALL").safeOpenObject(OdDb::kForWrite)->erase();

    repair("WALL", "WALLS");

    EXPECT_EQ(layers(), "WALLS blue Continuous -3\n");
}

TEST_F(LayerRepair, AnEmptyFixChangesNothing)
{
    m_drawing.layer("WALL").color(1);
    m_office.layer("WALLS").color(5);
    report();
    CKvString message;

    m_plugin.applyFix(violationOf("WALL").error, CKvStdsFixPtr(), message);

    EXPECT_FALSE(CKvDrawingFile::isChanged(*m_database));
}

TEST_F(LayerRepair, AnOldDrawingIsRepairedLikeAnyOther)
{
    m_drawing = CKvDrawingBuilder("AC1009");
    m_drawing.withReservedLineStyles();
    m_drawing.layer("WALL").color(1);
    m_drawing.layer("WALLS").color(2);
    m_drawing.block("DOOR").line("WALL");
    m_drawing.modelSpace().line("WALL");
    m_office.layer("WALLS").color(5);
    report();

    repair("WALL", "WALLS");

    EXPECT_EQ(layers(), "WALLS blue Continuous -3\n");
    EXPECT_EQ(entityLayers(), "DOOR LINE WALLS\n*Model_Space LINE WALLS\n");
    EXPECT_EQ(reportAgain(), "");
}
