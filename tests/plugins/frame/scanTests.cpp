// SPDX-License-Identifier: MIT
#include "CKvFrameTest.h"

#include "OdDbLayerTableRecord.h"

namespace
{

class FrameScan : public CKvFrameTest
{
protected:
    /// Names of the violations from the current one on.
    std::string rest()
    {
        std::string names;
        for (; !m_plugin.isDone(); m_plugin.nextError()) {
            names += m_plugin.currentError()->objectName().toQString().toStdString() + '\n';
        }
        return names;
    }
    std::string scanned()
    {
        m_plugin.beginScan(CKvStdsErrorPtr());
        return rest();
    }
    CKvStdsErrorPtr violationOf(const char *name) const
    {
        CKvStdsErrorPtr error = CKvStdsError::createObject();
        error->setObjectId(layerId(name));
        return error;
    }
};

} // namespace

TEST_F(FrameScan, WhatAgreesWithTheStandardsIsNoViolation)
{
    m_drawing.layer("WALLS").color(1);
    m_office.layer("WALLS").color(1);

    EXPECT_EQ(report(), "");
    EXPECT_TRUE(m_plugin.isDone());
    EXPECT_TRUE(m_plugin.currentError().isNull());
}

TEST_F(FrameScan, ViolationsComeInTheOrderOfTheTable)
{
    m_drawing.layer("WALLS").color(1);
    m_drawing.layer("DOORS").color(1);
    m_drawing.layer("ATTIC").color(1);
    m_office.layer("WALLS").color(5);
    m_office.layer("ATTIC").color(1);

    EXPECT_EQ(report(),
              "WALLS: Colour properties are non-standard. WALLS@/office.dxf* ATTIC@/office.dxf\n"
              "DOORS: Colour name is non-standard. WALLS@/office.dxf ATTIC@/office.dxf\n");
}

TEST_F(FrameScan, AViolationHoldsMessageObjectTypeNamePluginAndProperties)
{
    m_drawing.layer("WALLS").color(1);
    m_office.layer("WALLS").color(5);
    openStandards();

    m_plugin.beginScan(CKvStdsErrorPtr());
    const CKvStdsErrorPtr error = m_plugin.currentError();

    EXPECT_EQ(error->message(), CKvString("Colour properties are non-standard."));
    EXPECT_EQ(error->objectId(), layerId("WALLS"));
    EXPECT_EQ(error->objectType(), CKvString("A layer"));
    EXPECT_EQ(error->objectName(), CKvString("WALLS"));
    EXPECT_EQ(error->plugin().get(), &m_plugin);
    EXPECT_EQ(propertiesText(error), "Colour=1 Name=WALLS");
}

TEST_F(FrameScan, ANameViolationHoldsThePropertiesToo)
{
    m_drawing.layer("DOORS").color(3);
    m_office.layer("WALLS");
    openStandards();

    m_plugin.beginScan(CKvStdsErrorPtr());

    EXPECT_EQ(m_plugin.violationKind(m_plugin.currentError()), CKvStdsViolationKind::Name);
    EXPECT_EQ(propertiesText(m_plugin.currentError()), "Colour=3 Name=DOORS");
}

TEST_F(FrameScan, ANameThatDiffersOnlyInLetterCaseIsNoViolation)
{
    m_drawing.layer("Wände").color(1);
    m_office.layer("WÄNDE").color(1);

    EXPECT_EQ(report(), "");
}

TEST_F(FrameScan, ASharpSIsNotTwoOfThem)
{
    m_drawing.layer("Straße").color(1);
    m_office.layer("STRASSE").color(1);

    EXPECT_EQ(report(), "Straße: Colour name is non-standard. STRASSE@/office.dxf\n");
}

TEST_F(FrameScan, AnExemptNameIsNoViolationOnlyWhereTheStandardsLackIt)
{
    m_drawing.layer("exempt").color(1);
    m_office.layer("WALLS").color(5);

    EXPECT_EQ(report(), "");

    m_office.layer("EXEMPT").color(5);

    EXPECT_EQ(
        report(),
        "exempt: Colour properties are non-standard. WALLS@/office.dxf EXEMPT@/office.dxf*\n");
}

TEST_F(FrameScan, WhatIsNotJudgedIsPassedOver)
{
    m_drawing.layer("UNJUDGED").color(1);
    m_drawing.layer("WALLS").color(1);
    m_office.layer("UNJUDGED").color(5);

    EXPECT_EQ(report(), "WALLS: Colour name is non-standard. UNJUDGED@/office.dxf\n");
}

TEST_F(FrameScan, WithoutRecordsTheScanEndsAtOnce)
{
    m_drawing.layer("WALLS");

    EXPECT_EQ(report(), "");
    EXPECT_TRUE(m_plugin.isDone());
}

TEST_F(FrameScan, ADrawingWithoutObjectsHasNoViolations)
{
    m_office.layer("WALLS");

    EXPECT_EQ(report(), "");
    EXPECT_TRUE(m_plugin.isDone());
}

TEST_F(FrameScan, BehindTheLastViolationTheScanStaysDone)
{
    m_drawing.layer("WALLS");
    m_office.layer("DOORS");
    openStandards();
    EXPECT_EQ(scanned(), "WALLS\n");

    m_plugin.nextError();

    EXPECT_TRUE(m_plugin.isDone());
    EXPECT_TRUE(m_plugin.currentError().isNull());
}

TEST_F(FrameScan, ANewScanBeginsAtTheFirstObject)
{
    m_drawing.layer("WALLS");
    m_drawing.layer("DOORS");
    m_office.layer("ATTIC");
    openStandards();

    EXPECT_EQ(scanned(), "WALLS\nDOORS\n");
    EXPECT_EQ(scanned(), "WALLS\nDOORS\n");
}

TEST_F(FrameScan, AnObjectErasedSinceItWasListedIsPassedOver)
{
    m_drawing.layer("WALLS");
    m_drawing.layer("DOORS");
    m_office.layer("ATTIC");
    openStandards();

    layerId("WALLS").safeOpenObject(OdDb::kForWrite)->erase();

    EXPECT_EQ(scanned(), "DOORS\n");
}

TEST_F(FrameScan, AScanFromAViolationStandsOnItAndThenEnds)
{
    m_drawing.layer("WALLS");
    m_drawing.layer("DOORS");
    m_drawing.layer("ATTIC");
    m_office.layer("CELLAR");
    openStandards();

    m_plugin.beginScan(violationOf("DOORS"));

    EXPECT_EQ(rest(), "DOORS\n");
}

TEST_F(FrameScan, AScanFromTheFirstObjectStandsOnIt)
{
    m_drawing.layer("WALLS");
    m_drawing.layer("DOORS");
    m_office.layer("CELLAR");
    openStandards();

    m_plugin.beginScan(violationOf("WALLS"));

    EXPECT_EQ(rest(), "WALLS\n");
}

TEST_F(FrameScan, AScanFromTheLastObjectStandsOnIt)
{
    m_drawing.layer("WALLS");
    m_drawing.layer("DOORS");
    m_office.layer("CELLAR");
    openStandards();

    m_plugin.beginScan(violationOf("DOORS"));

    EXPECT_EQ(rest(), "DOORS\n");
}

TEST_F(FrameScan, AScanFromAnObjectThatIsInOrderStandsOnTheNextViolation)
{
    m_drawing.layer("WALLS").color(1);
    m_drawing.layer("DOORS").color(1);
    m_drawing.layer("ATTIC").color(1);
    m_office.layer("WALLS").color(1);
    openStandards();

    m_plugin.beginScan(violationOf("WALLS"));

    EXPECT_EQ(rest(), "DOORS\n");
}

TEST_F(FrameScan, AScanFromAnObjectThatIsNotListedEnds)
{
    m_drawing.layer("WALLS");
    m_drawing.layer("PLOT");
    m_office.layer("CELLAR");
    openStandards();

    m_plugin.beginScan(violationOf("PLOT"));

    EXPECT_EQ(rest(), "");
}

TEST_F(FrameScan, AScanFromAViolationWithoutRecordsEnds)
{
    m_drawing.layer("WALLS");
    m_drawing.layer("DOORS");
    openStandards();

    m_plugin.beginScan(violationOf("WALLS"));

    EXPECT_EQ(rest(), "");
}

TEST_F(FrameScan, ARestrictedRunVisitsTheGivenObjectsInTheirOrder)
{
    m_drawing.layer("WALLS");
    m_drawing.layer("DOORS");
    m_drawing.layer("ATTIC");
    m_office.layer("CELLAR");
    m_services.setDrawing("/office.dxf", m_office);
    openDrawing();
    OdDbObjectIdArray ids;
    ids.append(layerId("ATTIC"));
    ids.append(layerId("WALLS"));

    const auto violations = audit(m_plugin, m_database, { QStringLiteral("/office.dxf") }, ids);

    EXPECT_EQ(violationsText(violations),
              "ATTIC: Colour name is non-standard. CELLAR@/office.dxf\n"
              "WALLS: Colour name is non-standard. CELLAR@/office.dxf\n");
}

TEST_F(FrameScan, ARestrictedRunVisitsWhatARunOverTheTableLeavesOut)
{
    m_drawing.layer("PLOT");
    m_drawing.layer("WALLS");
    m_office.layer("CELLAR");
    EXPECT_EQ(report(), "WALLS: Colour name is non-standard. CELLAR@/office.dxf\n");
    OdDbObjectIdArray ids;
    ids.append(layerId("PLOT"));

    const auto violations = audit(m_plugin, m_database, { QStringLiteral("/office.dxf") }, ids);

    EXPECT_EQ(violationsText(violations),
              "PLOT: Colour name is non-standard. CELLAR@/office.dxf\n");
}

TEST_F(FrameScan, IdsThatOpenNothingOrAnotherKindOfObjectAreLeftOut)
{
    m_drawing.layer("WALLS");
    m_drawing.layer("DOORS");
    m_drawing.layer("ATTIC");
    m_drawing.textStyle("NOTES");
    m_office.layer("CELLAR");
    m_services.setDrawing("/office.dxf", m_office);
    openDrawing();
    OdDbObjectIdArray ids;
    ids.append(OdDbObjectId());
    ids.append(recordId(m_database->getTextStyleTableId(), "NOTES"));
    ids.append(layerId("ATTIC"));
    ids.append(layerId("DOORS"));
    layerId("DOORS").safeOpenObject(OdDb::kForWrite)->erase();

    const auto violations = audit(m_plugin, m_database, { QStringLiteral("/office.dxf") }, ids);

    EXPECT_EQ(violationsText(violations),
              "ATTIC: Colour name is non-standard. CELLAR@/office.dxf\n");
}

TEST_F(FrameScan, IdsOfWhichNoneTakesPartLeadToTheWholeTable)
{
    m_drawing.layer("WALLS");
    m_drawing.layer("REF|WALLS").flags(16);
    m_drawing.textStyle("NOTES");
    m_office.layer("CELLAR");
    m_services.setDrawing("/office.dxf", m_office);
    openDrawing();
    OdDbObjectIdArray ids;
    ids.append(recordId(m_database->getTextStyleTableId(), "NOTES"));
    ids.append(layerId("REF|WALLS"));

    const auto violations = audit(m_plugin, m_database, { QStringLiteral("/office.dxf") }, ids);

    // The category of these tests does visit dependent layers in a run over the table.
    EXPECT_EQ(violationsText(violations),
              "WALLS: Colour name is non-standard. CELLAR@/office.dxf\n"
              "REF|WALLS: Colour name is non-standard. CELLAR@/office.dxf\n");
}

TEST_F(FrameScan, NoIdsLeadToTheWholeTableWithOrWithoutTheFlag)
{
    m_drawing.layer("WALLS");
    m_office.layer("CELLAR");
    openStandards();
    m_plugin.clear();

    m_plugin.setObjectsToCheck({}, /*scanAll*/ false);
    m_plugin.openStandards(m_database, CKvString(), {}, { CKvString("/office.dxf") });

    EXPECT_EQ(scanned(), "WALLS\n");
}

TEST_F(FrameScan, TheFlagWinsOverTheIds)
{
    m_drawing.layer("WALLS");
    m_drawing.layer("DOORS");
    m_office.layer("CELLAR");
    openStandards();
    OdDbObjectIdArray ids;
    ids.append(layerId("DOORS"));
    m_plugin.clear();

    m_plugin.setObjectsToCheck(ids, /*scanAll*/ true);
    m_plugin.openStandards(m_database, CKvString(), {}, { CKvString("/office.dxf") });

    EXPECT_EQ(scanned(), "WALLS\nDOORS\n");
}

TEST_F(FrameScan, ObjectsOfARestrictedRunStandInFrontOfTheTableToo)
{
    m_drawing.layer("WALLS");
    m_drawing.layer("DOORS");
    m_office.layer("CELLAR");
    m_services.setDrawing("/office.dxf", m_office);
    openDrawing();
    OdDbObjectIdArray ids;
    ids.append(layerId("DOORS"));
    m_plugin.clear();
    m_plugin.setObjectsToCheck(ids, /*scanAll*/ false);
    m_plugin.openStandards(m_database, CKvString(), {}, { CKvString("/office.dxf") });
    EXPECT_EQ(scanned(), "DOORS\n");

    m_plugin.setObjectsToCheck({}, /*scanAll*/ true);

    EXPECT_EQ(scanned(), "DOORS\nWALLS\nDOORS\n");
}

TEST_F(FrameScan, ARunOverTheTableForgetsTheObjectsOfARestrictedOne)
{
    m_drawing.layer("WALLS");
    m_drawing.layer("DOORS");
    m_office.layer("CELLAR");
    openStandards();
    OdDbObjectIdArray doors;
    doors.append(layerId("DOORS"));
    OdDbObjectIdArray walls;
    walls.append(layerId("WALLS"));

    m_plugin.setObjectsToCheck(doors, /*scanAll*/ false);
    m_plugin.setObjectsToCheck({}, /*scanAll*/ true);
    m_plugin.setObjectsToCheck(walls, /*scanAll*/ false);

    EXPECT_EQ(scanned(), "WALLS\n");
}
