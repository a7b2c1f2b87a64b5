// SPDX-License-Identifier: MIT
#include "CKvPictureBuilder.h"

#include "CKvDrawingBuilder.h"
#include "CKvDrawingStore.h"
#include "OdDbBlockTable.h"
#include "OdDbBlockTableRecord.h"
#include "OdDbEntity.h"
#include "OdDbLayerTable.h"
#include "OdDbLayerTableRecord.h"
#include "list.h"
#include "pictureText.h"

#include <gtest/gtest.h>

namespace
{

CKvEntityBuilder &addLine(CKvBlockBuilder &block, double x1, double y1, double x2, double y2)
{
    return block.entity("LINE")
        .group(100, "AcDbLine")
        .group(10, x1)
        .group(20, y1)
        .group(11, x2)
        .group(21, y2);
}

OdDbObjectId firstEntity(const OdDbDatabasePtr &drawing)
{
    const OdDbBlockTablePtr blocks(drawing->getBlockTableId().openObject());
    const OdDbBlockTableRecordPtr space(blocks->getAt(OdString("*Model_Space")).openObject());
    return space->newIterator()->objectId();
}

} // namespace

TEST(PictureBuilder, LinesCirclesAndArcs)
{
    CKvDrawingBuilder drawing;
    addLine(drawing.modelSpace(), 0, 0, 10, 5).layer("WALLS");
    drawing.modelSpace().entity("CIRCLE").group(10, 1).group(20, 2).group(40, 3);
    drawing.modelSpace().entity("ARC").group(10, 0).group(20, 0).group(40, 2).group(50, 270).group(
        51, 90);

    EXPECT_EQ(shown(drawing),
              list({ "path 0,0 10,5 on WALLS",
                     "arc 1,2 axes 3,0 0,3 from 0 over 6.28 on 0",
                     "arc 0,0 axes 2,0 0,2 from 4.71 over 3.14 on 0" }));
}

TEST(PictureBuilder, AnEntityInAMirroredPlaneIsMirrored)
{
    CKvDrawingBuilder drawing;
    drawing.modelSpace()
        .entity("ARC")
        .group(10, 5)
        .group(20, 1)
        .group(40, 2)
        .group(50, 0)
        .group(51, 90)
        .group(210, 0)
        .group(220, 0)
        .group(230, -1);

    EXPECT_EQ(shown(drawing), list({ "arc -5,1 axes -2,0 0,2 from 0 over 1.57 on 0" }));
}

TEST(PictureBuilder, AnEllipseKeepsItsAxesAndItsPart)
{
    CKvDrawingBuilder drawing;
    drawing.modelSpace()
        .entity("ELLIPSE")
        .group(10, 1)
        .group(20, 1)
        .group(11, 0)
        .group(21, 4)
        .group(40, 0.5)
        .group(41, 0)
        .group(42, 1.5);

    EXPECT_EQ(shown(drawing), list({ "arc 1,1 axes 0,4 -2,0 from 0 over 1.5 on 0" }));
}

TEST(PictureBuilder, PolylinesOfBothKindsCloseAndHaveWidths)
{
    CKvDrawingBuilder drawing;
    drawing.modelSpace()
        .entity("LWPOLYLINE")
        .group(90, 3)
        .group(70, 1)
        .group(43, 0.5)
        .group(10, 0)
        .group(20, 0)
        .group(10, 4)
        .group(20, 0)
        .group(10, 4)
        .group(20, 3);
    drawing.modelSpace().polyline("OLD").vertex(0, 0).vertex(7, 1);

    EXPECT_EQ(shown(drawing),
              list({ "path 0,0 4,0 4,3 0,0 width 0.5 on 0", "path 0,0 7,1 on OLD" }));
}

TEST(PictureBuilder, APolylineOfChangingWidthIsAStrip)
{
    CKvDrawingBuilder drawing;
    drawing.modelSpace()
        .entity("LWPOLYLINE")
        .group(90, 2)
        .group(70, 0)
        .group(10, 0)
        .group(20, 0)
        .group(40, 2)
        .group(41, 0)
        .group(10, 10)
        .group(20, 0);

    EXPECT_EQ(shown(drawing),
              list({ "area [0,1 10,0 10,0 0,-1] solid on 0", "path 0,0 10,0 on 0" }));
}

TEST(PictureBuilder, RaysHaveNoBounds)
{
    CKvDrawingBuilder drawing;
    drawing.modelSpace().entity("XLINE").group(10, 1).group(20, 2).group(11, 0).group(21, 1);
    drawing.modelSpace().entity("RAY").group(10, 1).group(20, 2).group(11, 1).group(21, 0);

    const CKvPicture picture = pictureOf(drawing.open());

    EXPECT_EQ(pictureText(picture),
              list({ "ray 1,2 along 0,1 both ways on 0", "ray 1,2 along 1,0 on 0" }));
    EXPECT_TRUE(picture.modelSpace().bounds.isEmpty());
}

TEST(PictureBuilder, ASolidHasItsCornersInTheOrderOfABowTie)
{
    CKvDrawingBuilder drawing;
    CKvEntityBuilder &solid = drawing.modelSpace().entity("SOLID");
    const double corners[4][2] = { { 0, 0 }, { 4, 0 }, { 0, 3 }, { 4, 3 } };
    for (int i = 0; i < 4; ++i) {
        solid.group(10 + i, corners[i][0]).group(20 + i, corners[i][1]);
    }

    EXPECT_EQ(shown(drawing), list({ "area [0,0 4,0 4,3 0,3] solid on 0" }));
}

TEST(PictureBuilder, BlocksAreKeptOnceAndNested)
{
    CKvDrawingBuilder drawing;
    addLine(drawing.block("INNER"), 0, 0, 1, 0);
    drawing.block("OUTER").insert("INNER").group(10, 5).group(20, 0);
    drawing.modelSpace()
        .insert("OUTER")
        .group(10, 100)
        .group(20, 0)
        .group(41, 2)
        .group(42, 2)
        .group(50, 90);
    drawing.modelSpace().insert("OUTER").group(10, 0).group(20, 0).group(70, 3).group(71, 2);

    const CKvPicture picture = pictureOf(drawing.open());

    EXPECT_EQ(pictureText(picture),
              list({ "block 1 at 100,0 x 0,2 times 1 by 1 on 0",
                     "block 1 at 0,0 x 1,0 times 3 by 2 on 0" }));
    EXPECT_EQ(pictureText(picture, 1), list({ "block 2 at 5,0 x 1,0 times 1 by 1 on 0" }));
    EXPECT_EQ(pictureText(picture, 2), list({ "path 0,0 1,0 on 0" }));
    EXPECT_DOUBLE_EQ(picture.modelSpace().items.front().box.top, 12);
}

TEST(PictureBuilder, ABlockWithinItselfIsDrawnWithoutThat)
{
    CKvDrawingBuilder drawing;
    CKvBlockBuilder &block = drawing.block("LOOP");
    addLine(block, 0, 0, 1, 0);
    block.insert("LOOP");
    drawing.modelSpace().insert("LOOP");

    const CKvPicture picture = pictureOf(drawing.open());

    EXPECT_EQ(pictureText(picture), list({ "block 1 at 0,0 x 1,0 times 1 by 1 on 0" }));
    EXPECT_EQ(pictureText(picture, 1), list({ "path 0,0 1,0 on 0" }));
}

TEST(PictureBuilder, ADimensionIsDrawnThroughItsBlock)
{
    CKvDrawingBuilder drawing;
    addLine(drawing.block("*D1"), 0, 0, 9, 0);
    drawing.modelSpace().dimension("Standard").group(2, "*D1");
    drawing.modelSpace().dimension("Standard").group(2, "*D2");

    EXPECT_EQ(shown(drawing), list({ "block 1 at 0,0 x 1,0 times 1 by 1 on 0" }));
}

TEST(PictureBuilder, AHatchHasItsRingsAndItsFamilies)
{
    CKvDrawingBuilder drawing;
    CKvEntityBuilder &hatch = drawing.modelSpace().entity("HATCH");
    hatch.group(2, "ANSI31").group(70, 0).group(91, 2);
    hatch.group(92, 3).group(72, 0).group(73, 1).group(93, 3);
    hatch.group(10, 0).group(20, 0).group(10, 4).group(20, 0).group(10, 4).group(20, 4);
    hatch.group(97, 0);
    hatch.group(92, 1).group(93, 3);
    hatch.group(72, 1).group(10, 1).group(20, 1).group(11, 2).group(21, 1);
    hatch.group(72, 1).group(10, 2).group(20, 1).group(11, 2).group(21, 2);
    hatch.group(72, 1).group(10, 2).group(20, 2).group(11, 1).group(21, 1);
    hatch.group(97, 0);
    hatch.group(75, 0).group(76, 1).group(52, 0).group(41, 1).group(77, 0).group(78, 1);
    hatch.group(53, 45).group(43, 0).group(44, 0).group(45, -1).group(46, 1).group(79, 0);

    const CKvPicture picture = pictureOf(drawing.open());

    EXPECT_EQ(pictureText(picture),
              list({ "area [4,0 4,4 0,0] [1,1 2,1 2,1 2,2 2,2 1,1] 1 families on 0" }));
    ASSERT_EQ(picture.areas.front().families.size(), 1U);
    EXPECT_EQ(picture.areas.front().families.front().step, QPointF(-1, 1));
}

TEST(PictureBuilder, LayersTellColourStateAndLineStyle)
{
    CKvDrawingBuilder drawing;
    drawing.lineStyle("DASHED").dashes({ 5, -2 });
    drawing.layer("A").color(-3).lineWeight(35).lineStyle("dashed");
    drawing.layer("B").trueColor(1, 2, 3, 5).flags(1);
    drawing.modelSpace().line("A");
    drawing.modelSpace().line("B");
    drawing.modelSpace().line("MISSING");

    const CKvPicture picture = pictureOf(drawing.open());

    ASSERT_EQ(picture.layers.size(), 3U);
    const CKvPictureLayer &a = picture.layers[0];
    EXPECT_EQ(a.color, (CKvPictureColor { CKvPictureColor::Kind::Index, 3 }));
    EXPECT_EQ(a.lineWeight, 35);
    EXPECT_EQ(picture.lineStyles[std::size_t(a.lineStyle)].dashes, (std::vector<double> { 5, -2 }));
    EXPECT_TRUE(a.isOff);
    EXPECT_FALSE(a.isFrozen);
    const CKvPictureLayer &b = picture.layers[1];
    EXPECT_EQ(b.color, (CKvPictureColor { CKvPictureColor::Kind::Rgb, 0x010203 }));
    EXPECT_TRUE(b.isFrozen);
    EXPECT_FALSE(b.isOff);
    EXPECT_EQ(picture.layers[2].color, (CKvPictureColor { CKvPictureColor::Kind::Index, 7 }));
    EXPECT_TRUE(picture.layers[2].isVisible());
}

TEST(PictureBuilder, AnErasedEntityGoesAndAChangedOneMoves)
{
    CKvDrawingBuilder drawing;
    addLine(drawing.modelSpace(), 0, 0, 1, 1);
    addLine(drawing.modelSpace(), 2, 2, 3, 3);
    const OdDbDatabasePtr database = drawing.open();
    CKvPictureBuilder builder(database->store());
    while (!builder.advance(10)) { }
    const OdDbObjectId first = firstEntity(database);

    first.openObject(OdDb::kForWrite)->erase();
    const bool isDone = builder.refreshEntity(*first.slot());

    EXPECT_TRUE(isDone);
    EXPECT_EQ(pictureText(builder.picture()), list({ "path 2,2 3,3 on 0" }));
    first.openObject(OdDb::kForWrite, /*openErased*/ true)->erase(false);
    EXPECT_TRUE(builder.refreshEntity(*first.slot()));
    EXPECT_EQ(pictureText(builder.picture()), list({ "path 2,2 3,3 on 0", "path 0,0 1,1 on 0" }));
}

TEST(PictureBuilder, AnEntityOfABlockTakesANewPicture)
{
    CKvDrawingBuilder drawing;
    drawing.modelSpace().polyline().vertex(0, 0).vertex(7, 1);
    const OdDbDatabasePtr database = drawing.open();
    CKvPictureBuilder builder(database->store());
    while (!builder.advance(10)) { }
    CKvObjectSlot &vertex = *database->store().slotBehind(*firstEntity(database).slot());

    EXPECT_FALSE(builder.refreshEntity(vertex));
}

TEST(PictureBuilder, LayersCanBeReadAnew)
{
    CKvDrawingBuilder drawing;
    drawing.layer("A").color(3);
    drawing.modelSpace().line("A");
    const OdDbDatabasePtr database = drawing.open();
    CKvPictureBuilder builder(database->store());
    while (!builder.advance(10)) { }
    const OdDbLayerTablePtr layers(database->getLayerTableId().openObject());
    const OdDbLayerTableRecordPtr layer(layers->getAt(OdString("A")).openObject(OdDb::kForWrite));

    layer->setColor(OdCmColor::byIndex(1));
    builder.refreshLayers();

    EXPECT_EQ(builder.picture().layers.front().color,
              (CKvPictureColor { CKvPictureColor::Kind::Index, 1 }));
}

TEST(PictureBuilder, ProgressEndsAtOne)
{
    CKvDrawingBuilder drawing;
    for (int i = 0; i < 500; ++i) {
        addLine(drawing.modelSpace(), i, 0, i, 1);
    }
    const OdDbDatabasePtr database = drawing.open();
    CKvPictureBuilder builder(database->store());
    double before = builder.progress();

    EXPECT_EQ(before, 0);
    while (!builder.advance(0)) {
        EXPECT_GE(builder.progress(), before);
        before = builder.progress();
    }

    EXPECT_EQ(builder.progress(), 1);
    EXPECT_EQ(builder.picture().itemCount(), 500U);
}

TEST(PictureBuilder, AnEmptyDrawingHasAnEmptyPicture)
{
    const CKvPicture picture = pictureOf(CKvDrawingBuilder().open());

    EXPECT_EQ(pictureText(picture), QStringList());
    EXPECT_TRUE(picture.modelSpace().bounds.isEmpty());
}
