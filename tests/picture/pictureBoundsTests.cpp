// SPDX-License-Identifier: MIT
#include "CKvDrawingBuilder.h"
#include "OdDbBlockTable.h"
#include "OdDbBlockTableRecord.h"
#include "OdDbEntity.h"
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

const CKvObjectSlot &firstEntity(const OdDbDatabasePtr &drawing)
{
    const OdDbBlockTablePtr blocks(drawing->getBlockTableId().openObject());
    const OdDbBlockTableRecordPtr space(blocks->getAt(OdString("*Model_Space")).openObject());
    return *space->newIterator()->objectId().slot();
}

} // namespace

TEST(PictureBounds, AFlatArcReachesNoFartherThanWhatIsSeenOfIt)
{
    CKvDrawingBuilder drawing;
    drawing.modelSpace().entity("ARC").group(10, 0).group(20, 0).group(40, 100).group(50, 80).group(
        51, 100);

    const CKvBox box = pictureOf(drawing.open()).modelSpace().bounds;

    EXPECT_NEAR(box.left, -17.36, 0.01);
    EXPECT_NEAR(box.right, 17.36, 0.01);
    EXPECT_NEAR(box.bottom, 98.48, 0.01);
    EXPECT_NEAR(box.top, 100, 1e-9);
}

TEST(PictureBounds, AMirroredArcReachesToTheOtherSide)
{
    CKvDrawingBuilder drawing;
    drawing.modelSpace()
        .entity("ARC")
        .group(10, 0)
        .group(20, 0)
        .group(40, 10)
        .group(50, 0)
        .group(51, 90)
        .group(210, 0)
        .group(220, 0)
        .group(230, -1);

    const CKvBox box = pictureOf(drawing.open()).modelSpace().bounds;

    EXPECT_NEAR(box.left, -10, 1e-9);
    EXPECT_NEAR(box.right, 0, 1e-9);
    EXPECT_NEAR(box.bottom, 0, 1e-9);
    EXPECT_NEAR(box.top, 10, 1e-9);
}

TEST(PictureBounds, WhatIsOffFrozenErasedOrEndlessIsNotAmongTheVisibleBounds)
{
    CKvDrawingBuilder drawing;
    drawing.layer("OFF").color(-3);
    drawing.layer("FROZEN").flags(1);
    addLine(drawing.modelSpace(), 900, 0, 999, 9);
    addLine(drawing.modelSpace(), 1, 2, 3, 4);
    addLine(drawing.modelSpace(), 0, 0, 500, 5).layer("OFF");
    addLine(drawing.modelSpace(), 0, 0, 5, 700).layer("FROZEN");
    drawing.modelSpace().entity("XLINE").group(10, 1).group(20, 2).group(11, 0).group(21, 1);
    const OdDbDatabasePtr database = drawing.open();
    CKvPicture picture = pictureOf(database);
    picture.removeEntity(firstEntity(database));

    const CKvBox box = picture.visibleBounds();

    EXPECT_EQ(box.left, 1);
    EXPECT_EQ(box.bottom, 2);
    EXPECT_EQ(box.right, 3);
    EXPECT_EQ(box.top, 4);
}
