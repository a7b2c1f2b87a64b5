// SPDX-License-Identifier: MIT
#include "CKvDrawingBuilder.h"
#include "CKvDrawingFile.h"
#include "OdDbBlockTableRecord.h"
#include "OdDbDimension.h"
#include "OdDbLeader.h"
#include "OdDbObjectIterator.h"
#include "drawingText.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>

namespace
{

struct CKvRangeCase {
    const char *variable;
    /// Called with a value of that variable's type.
    std::function<void(OdDbDatabase &, double)> set;
    double least;
    double most;
    double below;
    double above;
};

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

template <auto set> void setNumber(OdDbDatabase &drawing, double value)
{
    const auto call = [&](auto number) { (drawing.*set)(number); };
    if constexpr (
        std::is_invocable_v<
            decltype(set),
            OdDbDatabase &,
            OdDb::LineWeight> && !std::is_invocable_v<decltype(set), OdDbDatabase &, double>) {
        call(OdDb::LineWeight(int(value)));
    } else if constexpr (std::is_invocable_v<decltype(set), OdDbDatabase &, OdCmColor>) {
        call(OdCmColor::byIndex(int(value)));
    } else if constexpr (std::is_same_v<decltype(set), void (OdDbDimensionSettings::*)(double)>) {
        call(value);
    } else {
        call(std::int16_t(value));
    }
}

template <auto set>
CKvRangeCase rangeOf(const char *variable, double least, double most, double below, double above)
{
    return { variable, &setNumber<set>, least, most, below, above };
}

using D = OdDbDatabase;

/// One row a variable that refuses something.
std::vector<CKvRangeCase> ranges()
{
    return {
        rangeOf<&D::setDIMADEC>("DIMADEC", -1, 8, -2, 9),
        rangeOf<&D::setDIMALTD>("DIMALTD", 0, 8, kNone, 9),
        rangeOf<&D::setDIMALTF>("DIMALTF", 0.01, 1e6, 0, kNone),
        rangeOf<&D::setDIMALTRND>("DIMALTRND", 0, 1e6, -0.5, kNone),
        rangeOf<&D::setDIMALTTD>("DIMALTTD", 0, 8, -1, 9),
        rangeOf<&D::setDIMALTTZ>("DIMALTTZ", 0, 15, kNone, 16),
        rangeOf<&D::setDIMALTU>("DIMALTU", 1, 8, 0, 9),
        rangeOf<&D::setDIMALTZ>("DIMALTZ", 0, 15, kNone, 16),
        rangeOf<&D::setDIMASZ>("DIMASZ", 0, 1e6, -1, kNone),
        rangeOf<&D::setDIMATFIT>("DIMATFIT", 0, 3, -1, 4),
        rangeOf<&D::setDIMAUNIT>("DIMAUNIT", 0, 4, -1, 5),
        rangeOf<&D::setDIMAZIN>("DIMAZIN", 0, 3, -1, 4),
        rangeOf<&D::setDIMCLRD>("DIMCLRD", 0, 256, -1, 257),
        rangeOf<&D::setDIMCLRE>("DIMCLRE", 0, 256, -1, 257),
        rangeOf<&D::setDIMCLRT>("DIMCLRT", 0, 256, -1, 257),
        rangeOf<&D::setDIMDEC>("DIMDEC", 0, 8, -1, 9),
        rangeOf<&D::setDIMDLE>("DIMDLE", 0, 1e6, -1, kNone),
        rangeOf<&D::setDIMDLI>("DIMDLI", 0, 1e6, -1, kNone),
        rangeOf<&D::setDIMDSEP>("DIMDSEP", 0, 32767, -1, kNone),
        rangeOf<&D::setDIMEXE>("DIMEXE", 0, 1e6, -1, kNone),
        rangeOf<&D::setDIMEXO>("DIMEXO", 0, 1e6, -1, kNone),
        rangeOf<&D::setDIMFRAC>("DIMFRAC", 0, 2, -1, 3),
        rangeOf<&D::setDIMJUST>("DIMJUST", 0, 4, kNone, 5),
        rangeOf<&D::setDIMLUNIT>("DIMLUNIT", 1, 6, 0, 7),
        rangeOf<&D::setDIMLWD>("DIMLWD", -3, 211, -4, 212),
        rangeOf<&D::setDIMLWE>("DIMLWE", -3, 211, -4, 212),
        rangeOf<&D::setDIMRND>("DIMRND", 0, 1e6, -1, kNone),
        rangeOf<&D::setDIMSCALE>("DIMSCALE", 0, 1e6, -1, kNone),
        rangeOf<&D::setDIMTAD>("DIMTAD", 0, 4, -1, 5),
        rangeOf<&D::setDIMTDEC>("DIMTDEC", 0, 8, -1, 9),
        rangeOf<&D::setDIMTFAC>("DIMTFAC", 0.1, 10, 0, kNone),
        rangeOf<&D::setDIMTMOVE>("DIMTMOVE", 0, 2, -1, 3),
        rangeOf<&D::setDIMTOLJ>("DIMTOLJ", 0, 2, kNone, 3),
        rangeOf<&D::setDIMTSZ>("DIMTSZ", 0, 1e6, -1, kNone),
        rangeOf<&D::setDIMTXT>("DIMTXT", 0.01, 1e6, 0, kNone),
        rangeOf<&D::setDIMTZIN>("DIMTZIN", 0, 15, kNone, 16),
        rangeOf<&D::setDIMZIN>("DIMZIN", 0, 15, kNone, 16),
        rangeOf<&D::setDIMFXL>("DIMFXL", 0, 1e6, -1, kNone),
        rangeOf<&D::setDIMJOGANG>("DIMJOGANG", 0.0873, 1.5707, 0.05, 1.6),
        rangeOf<&D::setDIMTFILL>("DIMTFILL", 0, 2, -1, 3),
        rangeOf<&D::setDIMTFILLCLR>("DIMTFILLCLR", 0, 256, -1, 257),
        rangeOf<&D::setDIMARCSYM>("DIMARCSYM", 0, 2, -1, 3),
    };
}

QByteArray headerOf(const OdDbDatabase &drawing)
{
    const QByteArray file = CKvDrawingFile::toBytes(drawing);
    return file.left(file.indexOf("ENDSEC")).replace("\n", " ").simplified();
}

} // namespace

TEST(DimensionSettings, ValuesInTheRangeOfAVariableAreTaken)
{
    for (const CKvRangeCase &row : ranges()) {
        SCOPED_TRACE(row.variable);
        const OdDbDatabasePtr drawing = CKvDrawingBuilder("AC1032").open();

        EXPECT_NO_THROW(row.set(*drawing, row.least));
        EXPECT_NO_THROW(row.set(*drawing, row.most));

        EXPECT_TRUE(headerOf(*drawing).contains(QByteArray("$") + row.variable));
    }
}

TEST(DimensionSettings, ValuesOutOfTheRangeOfAVariableAreRefused)
{
    for (const CKvRangeCase &row : ranges()) {
        SCOPED_TRACE(row.variable);
        const OdDbDatabasePtr drawing = CKvDrawingBuilder("AC1032").open();
        for (const double value : { row.below, row.above }) {
            if (value == value) {
                EXPECT_THROW(row.set(*drawing, value), OdError_InvalidSysvarValue) << value;
            }
        }

        EXPECT_FALSE(CKvDrawingFile::isChanged(*drawing));
    }
}

TEST(DimensionSettings, WhatIsNoNumberIsRefused)
{
    const OdDbDatabasePtr drawing = CKvDrawingBuilder().open();

    EXPECT_THROW(drawing->setDIMCEN(kNone), OdError_InvalidSysvarValue);
    EXPECT_THROW(drawing->setDIMSCALE(std::numeric_limits<double>::infinity()),
                 OdError_InvalidSysvarValue);
}

TEST(DimensionSettings, AreReadFromTheHeaderOrAreTheDefaults)
{
    CKvDrawingBuilder builder("AC1032");
    builder.textStyle("NOTES");
    builder.block("_Dot");
    builder.header("DIMASZ", 40, 2.5)
        .header("DIMBLK", 1, "DOT")
        .header("DIMTXSTY", 7, "notes")
        .header("DIMPOST", 1, "<> mm")
        .header("DIMCLRD", 70, 1)
        .header("DIMJOGANG", 40, 1.25)
        .header("DIMLWD", 70, 50)
        .header("DIMTIH", 70, 0);

    const OdDbDatabasePtr drawing = builder.open();

    EXPECT_EQ(drawing->getDIMASZ(), 2.5);
    EXPECT_EQ(nameOf(drawing->getDIMBLK()), "_Dot");
    EXPECT_EQ(nameOf(drawing->getDIMTXSTY()), "NOTES");
    EXPECT_EQ(drawing->getDIMPOST(), OdString("<> mm"));
    EXPECT_EQ(drawing->getDIMCLRD(), OdCmColor::byIndex(1));
    EXPECT_EQ(drawing->getDIMJOGANG(), 1.25);
    EXPECT_EQ(drawing->getDIMLWD(), 50);
    EXPECT_FALSE(drawing->getDIMTIH());
    EXPECT_TRUE(drawing->getDIMTOH());
    EXPECT_EQ(drawing->getDIMALTF(), 25.4);
    EXPECT_DOUBLE_EQ(CKvDrawingBuilder().open()->getDIMJOGANG(), 3.14159265358979323846 / 4);
    EXPECT_TRUE(drawing->getDIMLTYPE().isNull());
    EXPECT_EQ(drawing->getDIMMZF(), 100.0);
}

TEST(DimensionSettings, AVariableThatTheVersionsHeaderDoesNotHaveIsNotAdded)
{
    const OdDbDatabasePtr drawing = CKvDrawingBuilder("AC1015").open();

    drawing->setDIMFXL(7.5);
    drawing->setDIMTFILL(2);
    drawing->setDIMMZF(50.0);
    drawing->setDIMMZS(OdString("cm"));
    EXPECT_FALSE(CKvDrawingFile::isChanged(*drawing));
    drawing->setDIMLUNIT(4);

    EXPECT_TRUE(headerOf(*drawing).endsWith("$DIMLUNIT 70 4 0"));
}

TEST(DimensionSettings, AnObjectThatIsNoneOfTheDrawingIsRefused)
{
    CKvDrawingBuilder builder;
    builder.textStyle("NOTES");
    builder.block("_DOT");
    builder.dimStyle("S");
    const OdDbDatabasePtr drawing = builder.open();
    const OdDbDatabasePtr elsewhere = builder.open();
    const OdDbObjectId foreignBlock = recordId(elsewhere->getBlockTableId(), "_DOT");
    const OdDbObjectId textStyle = recordId(drawing->getTextStyleTableId(), "NOTES");

    EXPECT_THROW(drawing->setDIMBLK(foreignBlock), OdError_InvalidSysvarValue);
    EXPECT_THROW(drawing->setDIMBLK(textStyle), OdError_InvalidSysvarValue);
    EXPECT_THROW(drawing->setDIMTXSTY(OdDbObjectId()), OdError_InvalidSysvarValue);
    EXPECT_THROW(drawing->setDIMSTYLE(OdDbObjectId()), OdError_InvalidSysvarValue);
    EXPECT_THROW(drawing->setDIMSTYLE(textStyle), OdError_InvalidSysvarValue);
    EXPECT_THROW(drawing->setDIMSTYLE(recordId(elsewhere->getDimStyleTableId(), "S")),
                 OdError_InvalidSysvarValue);
    EXPECT_FALSE(CKvDrawingFile::isChanged(*drawing));
}

TEST(DimensionSettings, TheCurrentStyleIsFoundByNameWhateverTheLetterCase)
{
    CKvDrawingBuilder builder;
    builder.dimStyle("MINE");
    builder.dimStyle("OTHER");
    builder.currentDimStyle("mine");
    const OdDbDatabasePtr drawing = builder.open();

    EXPECT_EQ(nameOf(drawing->getDIMSTYLE()), "MINE");
    drawing->setDIMSTYLE(recordId(drawing->getDimStyleTableId(), "MINE"));
    EXPECT_FALSE(CKvDrawingFile::isChanged(*drawing));
    drawing->setDIMSTYLE(recordId(drawing->getDimStyleTableId(), "OTHER"));
    EXPECT_EQ(nameOf(drawing->getDIMSTYLE()), "OTHER");
    EXPECT_EQ(nameOf(CKvDrawingBuilder().open()->getDIMSTYLE()), "Standard");
}

TEST(DimensionEntities, NameTheirStyleOrHaveStandard)
{
    CKvDrawingBuilder builder;
    builder.dimStyle("MINE");
    builder.modelSpace().dimension("mine");
    builder.modelSpace().leader("MINE");
    builder.modelSpace().entity("DIMENSION").group(70, 0);
    builder.modelSpace().entity("LEADER").group(76, 2);
    builder.modelSpace().dimension("GONE");
    const OdDbDatabasePtr drawing = builder.open();
    const OdDbBlockTableRecordPtr space(
        recordId(drawing->getBlockTableId(), "*Model_Space").openObject());

    std::string found;
    for (auto walk = space->newIterator(); !walk->done(); walk->step()) {
        const OdDbEntityPtr entity = walk->entity(OdDb::kForWrite);
        const OdDbObjectId mine = recordId(drawing->getDimStyleTableId(), "MINE");
        if (const OdDbDimensionPtr dimension = OdDbDimension::cast(entity.get())) {
            found += nameOf(dimension->dimensionStyle()) + ' ';
            dimension->setDimensionStyle(mine);
        } else if (const OdDbLeaderPtr leader = OdDbLeader::cast(entity.get())) {
            found += nameOf(leader->dimensionStyle()) + ' ';
            leader->setDimensionStyle(mine);
        }
    }
    const OdDbDatabasePtr again = CKvDrawingFile::fromBytes(CKvDrawingFile::toBytes(*drawing));

    EXPECT_EQ(found, "MINE MINE Standard Standard GONE ");
    EXPECT_EQ(CKvDrawingFile::toBytes(*again).count("\n  3\nMINE\n"), 5);
}

TEST(DimensionEntities, AStyleOfAnotherDrawingIsRefused)
{
    CKvDrawingBuilder builder;
    builder.dimStyle("MINE");
    builder.modelSpace().dimension("MINE");
    const OdDbDatabasePtr drawing = builder.open();
    const OdDbDatabasePtr elsewhere = builder.open();
    const OdDbBlockTableRecordPtr space(
        recordId(drawing->getBlockTableId(), "*Model_Space").openObject());
    const OdDbDimensionPtr dimension(space->newIterator()->entity(OdDb::kForWrite));

    EXPECT_THROW(dimension->setDimensionStyle(recordId(elsewhere->getDimStyleTableId(), "MINE")),
                 OdError);
    EXPECT_THROW(dimension->setDimensionStyle(OdDbObjectId()), OdError);
}

TEST(DimensionEntities, WhatNamesNoStyleFollowsARenameOfStandard)
{
    CKvDrawingBuilder builder;
    builder.dimStyle("Standard");
    builder.modelSpace().entity("DIMENSION").group(70, 0).group(1, "text");
    builder.modelSpace().entity("LEADER").group(76, 2);
    builder.modelSpace().entity("TOLERANCE").group(1, "text");
    builder.modelSpace().dimension("STANDARD");
    const OdDbDatabasePtr drawing = builder.open();

    OdDbSymbolTableRecordPtr(
        recordId(drawing->getDimStyleTableId(), "Standard").openObject(OdDb::kForWrite))
        ->setName(OdString("OFFICE"));

    const QByteArray file = CKvDrawingFile::toBytes(*drawing);
    EXPECT_EQ(file.count("\n  3\nOFFICE\n"), 4);
    EXPECT_EQ(nameOf(CKvDrawingFile::fromBytes(file)->getDIMSTYLE()), "OFFICE");
}

TEST(RenamedTextStyle, WhatNamesNoStyleFollowsARenameOfStandard)
{
    CKvDrawingBuilder builder;
    builder.textStyle("STANDARD");
    builder.modelSpace().text("a");
    builder.modelSpace().multilineText("b");
    const OdDbDatabasePtr drawing = builder.open();

    OdDbSymbolTableRecordPtr(
        recordId(drawing->getTextStyleTableId(), "Standard").openObject(OdDb::kForWrite))
        ->setName(OdString("NOTES"));

    const QByteArray file = CKvDrawingFile::toBytes(*drawing);
    EXPECT_EQ(file.count("\n  7\nNOTES\n"), 3);
    EXPECT_EQ(nameOf(CKvDrawingFile::fromBytes(file)->getTEXTSTYLE()), "NOTES");
}
