// SPDX-License-Identifier: MIT
#include "CKvDrawingFile.h"
#include "CKvLayerTest.h"

#include "OdDbLinetypeTableRecord.h"
#include "OdDbSymbolTable.h"

#include <QFile>
#include <QTemporaryDir>

namespace
{

/// Repairs whose line style the drawing lacks.
class LayerLineStyleRepair : public CKvLayerTest
{
protected:
    LayerLineStyleRepair()
    {
        m_drawing.withReservedLineStyles();
        m_office.withReservedLineStyles();
        m_office.lineStyle("CENTER").dashes({ 3.0, -1.0 });
        m_office.layer("WALLS").color(5).lineStyle("CENTER");
        m_drawing.layer("WALLS").color(1);
    }
    void supportFile(const char *name, const QByteArray &content)
    {
        const QString path = m_folder.filePath(QLatin1String(name));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        m_services.setSupportFile(name, path);
    }
    double patternLength(const char *lineStyle) const
    {
        const OdDbLinetypeTableRecordPtr record(
            recordId(m_database->getLinetypeTableId(), lineStyle).openObject());
        return record ? record->patternLength() : -1;
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(LayerLineStyleRepair, AStyleThatTheDrawingHasIsNotSearched)
{
    m_drawing.lineStyle("Center").dashes({ 9.0, -1.0 });
    report();

    repair("WALLS", "WALLS");

    EXPECT_TRUE(m_services.calls().empty());
    EXPECT_EQ(layers(), "WALLS blue Center -3\n");
    EXPECT_EQ(patternLength("CENTER"), 10.0);
}

TEST_F(LayerLineStyleRepair, ADrawingInInchesLoadsFromTheFileInInches)
{
    supportFile("inch.lin", "*CENTER,Centre\nA,1.25,-0.25\n");
    supportFile("mm.lin", "*CENTER,Centre\nA,31.75,-6.35\n");
    m_drawing.measurement(0);
    report();

    repair("WALLS", "WALLS");

    EXPECT_EQ(m_services.calls(), std::vector<std::string>({ "findFile inch.lin 0 null 0" }));
    EXPECT_EQ(layers(), "WALLS blue CENTER -3\n");
    EXPECT_EQ(patternLength("CENTER"), 1.5);
}

TEST_F(LayerLineStyleRepair, AMetricDrawingLoadsFromTheFileInMillimetres)
{
    supportFile("inch.lin", "*CENTER,Centre\nA,1.25,-0.25\n");
    supportFile("mm.lin", "*CENTER,Centre\nA,31.75,-6.25\n");
    m_drawing.measurement(1);
    report();

    repair("WALLS", "WALLS");

    EXPECT_EQ(m_services.calls(), std::vector<std::string>({ "findFile mm.lin 0 null 0" }));
    EXPECT_EQ(patternLength("CENTER"), 38.0);
    EXPECT_EQ(reportAgain(), "");
}

TEST_F(LayerLineStyleRepair, EveryMeasurementButZeroIsMetric)
{
    m_drawing.measurement(2);
    report();

    repair("WALLS", "WALLS");

    EXPECT_EQ(m_services.calls(), std::vector<std::string>({ "findFile mm.lin 0 null 0" }));
}

TEST_F(LayerLineStyleRepair, ADrawingThatDoesNotSayIsOneInInches)
{
    report();

    repair("WALLS", "WALLS");

    EXPECT_EQ(m_services.calls(), std::vector<std::string>({ "findFile inch.lin 0 null 0" }));
}

TEST_F(LayerLineStyleRepair, WithoutALineStyleFileTheStyleComesFromTheStandards)
{
    report();

    repair("WALLS", "WALLS");

    EXPECT_EQ(layers(), "WALLS blue CENTER -3\n");
    EXPECT_EQ(lineStyles(), "ByBlock\nByLayer\nContinuous\nCENTER\n");
    EXPECT_EQ(patternLength("CENTER"), 4.0);
}

TEST_F(LayerLineStyleRepair, AStyleThatTheFileLacksComesFromTheStandards)
{
    supportFile("inch.lin", "*DASHED,Dashes\nA,1.25,-0.25\n");
    report();

    repair("WALLS", "WALLS");

    EXPECT_EQ(patternLength("CENTER"), 4.0);
}

TEST_F(LayerLineStyleRepair, TheStandardsThatAreOpenAreNotReadAgain)
{
    report();

    repair("WALLS", "WALLS");

    EXPECT_EQ(m_services.calls(), std::vector<std::string>({ "findFile inch.lin 0 null 0" }));
}

TEST_F(LayerLineStyleRepair, StandardsThatAreNotOpenAreReadAgain)
{
    report();
    const CKvStdsViolation violation = violationOf("WALLS");
    m_plugin.clear();
    m_plugin.openStandards(m_database, CKvString(), {}, {});
    CKvString message;

    m_plugin.applyFix(violation.error, fixOf(violation, "WALLS"), message);

    EXPECT_EQ(m_services.calls(),
              std::vector<std::string>(
                  { "findFile inch.lin 0 null 0", "readFile /office.dxf false true 64 ''" }));
    EXPECT_EQ(layers(), "WALLS blue CENTER -3\n");
    EXPECT_EQ(patternLength("CENTER"), 4.0);
}

TEST_F(LayerLineStyleRepair, WithoutTheStandardsFileNothingIsChanged)
{
    report();
    const CKvStdsViolation violation = violationOf("WALLS");
    m_plugin.clear();
    m_plugin.openStandards(m_database, CKvString(), {}, {});
    m_services.removeDrawing("/office.dxf");
    CKvString message("left over");

    m_plugin.applyFix(violation.error, fixOf(violation, "WALLS"), message);

    EXPECT_FALSE(CKvDrawingFile::isChanged(*m_database));
    EXPECT_EQ(message, CKvString());
}

TEST_F(LayerLineStyleRepair, AnUpdateWithoutAStyleToBeHadKeepsTheLayersStyle)
{
    supportFile("inch.lin", "*CENTER,Centre\nthis is no definition\n");
    m_drawing.lineStyle("DASHED");
    m_drawing.layer("DOORS").color(1).lineStyle("DASHED");
    m_office.layer("DOORS").color(5).lineStyle("CENTER");
    report();

    repair("DOORS", "DOORS");

    // A definition that can't be read is no reason to look into the standards.
    EXPECT_EQ(layers(), "WALLS red Continuous -3\nDOORS blue DASHED -3\n");
    EXPECT_EQ(lineStyles(), "ByBlock\nByLayer\nContinuous\nDASHED\n");
}

TEST_F(LayerLineStyleRepair, AStyleThatTheStandardsLackTooIsPassedOver)
{
    m_drawing.layer("DOORS").color(1);
    m_office.layer("DOORS").color(5).lineStyle("NOWHERE");
    report();

    repair("DOORS", "DOORS");

    EXPECT_EQ(layers(), "WALLS red Continuous -3\nDOORS blue Continuous -3\n");
}

TEST_F(LayerLineStyleRepair, ARenameWithoutAStyleToBeHadRenamesAllTheSame)
{
    m_drawing.lineStyle("DASHED");
    m_drawing.layer("DOOR").color(1).lineStyle("DASHED");
    m_office.layer("DOORS").color(5).lineStyle("NOWHERE");
    report();

    repair("DOOR", "DOORS");

    EXPECT_EQ(layers(), "WALLS red Continuous -3\nDOORS blue DASHED -3\n");
}

TEST_F(LayerLineStyleRepair, ARenameTakesTheStyleAlong)
{
    m_drawing.layer("WALL").color(1);
    m_office.layer("OUTER WALLS").color(5).lineStyle("CENTER");
    report();

    repair("WALL", "OUTER WALLS");

    EXPECT_EQ(layers(), "WALLS red Continuous -3\nOUTER WALLS blue CENTER -3\n");
}

TEST_F(LayerLineStyleRepair, WithoutServicesTheStyleComesFromTheStandards)
{
    report();
    SetKvSystemServices(nullptr);

    repair("WALLS", "WALLS");
    SetKvSystemServices(&m_services);

    EXPECT_EQ(layers(), "WALLS blue CENTER -3\n");
}

TEST_F(LayerLineStyleRepair, WhatReadingTheStandardsThrowsGoesToTheCaller)
{
    report();
    const CKvStdsViolation violation = violationOf("WALLS");
    audit(m_plugin, m_database, {});
    m_services.setFailure("/office.dxf", 9);
    CKvString message;

    try {
        m_plugin.applyFix(violation.error, fixOf(violation, "WALLS"), message);
        ADD_FAILURE() << "the failure was swallowed";
    } catch (const OdError &error) {
        EXPECT_EQ(error.code(), 9);
    }
    EXPECT_EQ(layers(), "WALLS red Continuous -3\n");
}

TEST_F(LayerLineStyleRepair, CandidatesAreCollectedWithoutReadingAFile)
{
    report();
    m_services.setFailure("/office.dxf", 9);
    OdArray<CKvStdsFixPtr> fixes;
    std::int32_t recommended = -1;

    m_plugin.collectFixes(violationOf("WALLS").error, fixes, recommended);

    EXPECT_TRUE(m_services.calls().empty());
    EXPECT_EQ(fixesText(fixes), "WALLS@/office.dxf\n");
    EXPECT_EQ(recommended, 0);
}
