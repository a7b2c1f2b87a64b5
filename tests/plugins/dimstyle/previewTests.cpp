// SPDX-License-Identifier: MIT
#include "CKvDimStyleTest.h"

namespace
{

class DimStylePreview : public CKvDimStyleTest
{
};

} // namespace

TEST_F(DimStylePreview, WhatDiffersIsShownInTheOrderOfTheProperties)
{
    m_drawing.dimStyle("OFFICE").group(41, 2.5).group(179, 1).group(140, 3.5);
    m_office.dimStyle("OFFICE").group(41, 3.5).group(179, 2).group(140, 3.5);
    report();

    EXPECT_EQ(preview("OFFICE", "OFFICE"), "Angle precision: 1 -> 2\nArrow size: 2.5 -> 3.5\n");
}

TEST_F(DimStylePreview, AStyleWithoutADifferenceShowsNothing)
{
    m_drawing.dimStyle("MINE").group(41, 2.5);
    m_office.dimStyle("OFFICE").group(41, 2.5);
    report();

    EXPECT_EQ(preview("MINE", "OFFICE"), "");
}

TEST_F(DimStylePreview, ARowWithoutALabelHasAnEmptyName)
{
    m_drawing.dimStyle("OFFICE");
    m_office.dimStyle("OFFICE").extendedData(
        "KVSTANDARDS", { { 1000, "DIMMZF" }, { 1040, 50.0 }, { 1000, "DIMMZS" }, { 1000, "cm" } });
    report();

    EXPECT_EQ(preview("OFFICE", "OFFICE"), ": 100.0 -> 50.0\n: \"\" -> cm\n");
}

// Rows follow the styles as they are, values are those from when the violation was found.
TEST_F(DimStylePreview, TheRowsAreOfNowAndTheValuesOfTheScan)
{
    m_drawing.dimStyle("OFFICE").group(41, 2.5).group(42, 1.5);
    m_office.dimStyle("OFFICE").group(41, 3.5).group(42, 0.5);
    report();
    const OdDbDimStyleTableRecordPtr style(styleId("OFFICE").openObject(OdDb::kForWrite));

    style->setDimasz(3.5);
    style->setDimexo(0.75);
    style->setDimtxt(9.5);

    EXPECT_EQ(preview("OFFICE", "OFFICE"),
              "Ext line offset: 1.5 -> 0.5\nText height: 0.18 -> 0.18\n");
}

TEST_F(DimStylePreview, RowsAreAddedToWhatIsThere)
{
    m_drawing.dimStyle("OFFICE").group(41, 2.5);
    m_office.dimStyle("OFFICE").group(41, 3.5);
    report();
    std::vector<CKvString> names { CKvString("before") };
    OdArray<OdResBufPtr> current;
    OdArray<OdResBufPtr> standard;
    std::vector<CKvString> units;

    m_plugin.propertyDifferences(violationOf("OFFICE").error,
                                 violationOf("OFFICE").fixes.at(0),
                                 names,
                                 current,
                                 standard,
                                 units);

    EXPECT_EQ(names, std::vector<CKvString>({ CKvString("before"), CKvString("Arrow size") }));
    EXPECT_EQ(current.size(), 1U);
    EXPECT_EQ(standard.size(), 1U);
}

TEST_F(DimStylePreview, WithoutTheStandardsFileNothingIsShown)
{
    m_drawing.dimStyle("OFFICE").group(41, 2.5);
    m_office.dimStyle("OFFICE").group(41, 3.5);
    report();
    const CKvStdsFixPtr fix = CKvStdsFix::createObject();
    fix->setObjectName(CKvString("OFFICE"));
    fix->setStandardsFile(CKvString("/gone.dxf"));

    EXPECT_EQ(previewText(m_plugin, violationOf("OFFICE").error, fix), "");
    EXPECT_EQ(m_services.calls(),
              std::vector<std::string>({ "readFile /gone.dxf false true 64 ''" }));
}

TEST_F(DimStylePreview, AStandardsFileThatIsNotOpenIsReadForThePreview)
{
    m_drawing.dimStyle("OFFICE").group(41, 2.5);
    m_office.dimStyle("OFFICE").group(41, 3.5);
    CKvDrawingBuilder firm;
    firm.dimStyle("FIRM").group(41, 4.5);
    m_services.setDrawing("/firm.dxf", firm);
    report();
    const CKvStdsFixPtr fix = CKvStdsFix::createObject();
    fix->setObjectName(CKvString("FIRM"));
    fix->setStandardsFile(CKvString("/firm.dxf"));

    EXPECT_EQ(previewText(m_plugin, violationOf("OFFICE").error, fix), "Arrow size: 2.5 -> -\n");
    EXPECT_EQ(m_services.calls(),
              std::vector<std::string>({ "readFile /firm.dxf false true 64 ''" }));
}
