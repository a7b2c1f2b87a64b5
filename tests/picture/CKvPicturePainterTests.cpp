// SPDX-License-Identifier: MIT
#include "CKvPicturePainter.h"

#include "CKvDrawingBuilder.h"
#include "pictureText.h"

#include <gtest/gtest.h>

namespace
{

/// One pixel a unit, y upwards.
CKvPictureView plainView()
{
    CKvPictureView view;
    view.size = QSize(100, 100);
    view.toPixels = QTransform(1, 0, 0, -1, 0, 100);
    view.isSmooth = false;
    return view;
}

QImage painted(const CKvDrawingBuilder &drawing, const CKvPictureView &view = plainView())
{
    QImage image(view.size, QImage::Format_RGB32);
    const CKvPicture picture = pictureOf(drawing.open());
    CKvPicturePainter painter(picture, view, image);
    while (!painter.advance(10)) { }
    return image;
}

CKvEntityBuilder &addLine(CKvBlockBuilder &block, double x1, double y1, double x2, double y2)
{
    return block.entity("LINE").group(10, x1).group(20, y1).group(11, x2).group(21, y2);
}

/// How many pixels of a row at that height of the drawing have the colour.
int countInRow(const QImage &image, int y, QRgb color)
{
    int count = 0;
    for (int x = 0; x < image.width(); ++x) {
        count += image.pixel(x, 99 - y) == color ? 1 : 0;
    }
    return count;
}

const QRgb kRed = qRgb(255, 0, 0);
const QRgb kBlue = qRgb(0, 0, 255);
const QRgb kBlack = qRgb(0, 0, 0);

} // namespace

TEST(PicturePainter, ALineHasTheColourOfItsLayerOrItsOwn)
{
    CKvDrawingBuilder drawing("AC1009");
    drawing.layer("RED").color(1);
    addLine(drawing.modelSpace(), 10, 20.5, 90, 20.5).layer("RED");
    addLine(drawing.modelSpace(), 10, 40.5, 90, 40.5).layer("RED").group(62, 5);

    const QImage image = painted(drawing);

    EXPECT_EQ(countInRow(image, 20, kRed), 80);
    EXPECT_EQ(countInRow(image, 40, kBlue), 80);
}

TEST(PicturePainter, WhiteIsBlackOnALightGround)
{
    CKvDrawingBuilder drawing;
    addLine(drawing.modelSpace(), 10, 20.5, 90, 20.5);
    CKvPictureView dark = plainView();
    dark.background = Qt::black;
    dark.foreground = Qt::white;

    EXPECT_EQ(countInRow(painted(drawing), 20, kBlack), 80);
    EXPECT_EQ(countInRow(painted(drawing, dark), 20, qRgb(255, 255, 255)), 80);
}

TEST(PicturePainter, AColourThatWouldNotBeSeenMovesTowardsTheForeground)
{
    CKvDrawingBuilder drawing;
    drawing.layer("YELLOW").color(2);
    drawing.layer("PAPER").trueColor(250, 250, 250, 255);
    addLine(drawing.modelSpace(), 10, 20.5, 90, 20.5).layer("YELLOW");
    addLine(drawing.modelSpace(), 10, 40.5, 90, 40.5).layer("PAPER");

    const QImage image = painted(drawing);

    EXPECT_EQ(countInRow(image, 20, qRgb(204, 204, 0)), 80);
    EXPECT_EQ(countInRow(image, 40, qRgb(175, 175, 175)), 80);
}

TEST(PicturePainter, LayersThatAreOffOrFrozenAreNotPainted)
{
    CKvDrawingBuilder drawing;
    drawing.layer("OFF").color(-1);
    drawing.layer("FROZEN").color(1).flags(1);
    addLine(drawing.modelSpace(), 10, 20.5, 90, 20.5).layer("OFF");
    addLine(drawing.modelSpace(), 10, 40.5, 90, 40.5).layer("FROZEN");

    const QImage image = painted(drawing);

    EXPECT_EQ(countInRow(image, 20, kRed), 0);
    EXPECT_EQ(countInRow(image, 40, kRed), 0);
}

TEST(PicturePainter, LayerZeroWithinABlockTakesTheLayerOfTheInsertion)
{
    CKvDrawingBuilder drawing;
    drawing.layer("RED").color(1);
    drawing.layer("BLUE").color(5);
    CKvBlockBuilder &block = drawing.block("SIGN");
    addLine(block, 0, 0.5, 80, 0.5);
    addLine(block, 0, 20.5, 80, 20.5).layer("BLUE");
    drawing.modelSpace().insert("SIGN", "RED").group(10, 10).group(20, 20);

    const QImage image = painted(drawing);

    EXPECT_EQ(countInRow(image, 20, kRed), 80);
    EXPECT_EQ(countInRow(image, 40, kBlue), 80);
}

TEST(PicturePainter, AnInsertionOnALayerThatIsOffShowsWhatLiesOnOthers)
{
    CKvDrawingBuilder drawing;
    drawing.layer("OFF").color(-1);
    drawing.layer("BLUE").color(5);
    CKvBlockBuilder &block = drawing.block("SIGN");
    addLine(block, 0, 0.5, 80, 0.5);
    addLine(block, 0, 20.5, 80, 20.5).layer("BLUE");
    drawing.modelSpace().insert("SIGN", "OFF").group(10, 10).group(20, 20);

    const QImage image = painted(drawing);

    EXPECT_EQ(countInRow(image, 20, kRed), 0);
    EXPECT_EQ(countInRow(image, 40, kBlue), 80);
}

TEST(PicturePainter, AFrozenInsertionShowsNothing)
{
    CKvDrawingBuilder drawing;
    drawing.layer("FROZEN").flags(1);
    drawing.layer("BLUE").color(5);
    addLine(drawing.block("SIGN"), 0, 20.5, 80, 20.5).layer("BLUE");
    drawing.modelSpace().insert("SIGN", "FROZEN").group(10, 10).group(20, 20);

    EXPECT_EQ(countInRow(painted(drawing), 40, kBlue), 0);
}

TEST(PicturePainter, ADashedLineHasGaps)
{
    CKvDrawingBuilder drawing;
    drawing.lineStyle("DASHED").dashes({ 10, -10 });
    drawing.layer("RED").color(1).lineStyle("DASHED");
    addLine(drawing.modelSpace(), 0, 20.5, 100, 20.5).layer("RED");

    const QImage image = painted(drawing);

    EXPECT_EQ(countInRow(image, 20, kRed), 50);
    EXPECT_EQ(image.pixel(5, 79), kRed);
    EXPECT_NE(image.pixel(15, 79), kRed);
}

TEST(PicturePainter, DashesKeepTheirPlaceWhenTheLineReachesFarOutOfSight)
{
    CKvDrawingBuilder drawing;
    drawing.lineStyle("DASHED").dashes({ 10, -10 });
    drawing.layer("RED").color(1).lineStyle("DASHED");
    addLine(drawing.modelSpace(), -2e6, 20.5, 2e6, 20.5).layer("RED");

    const QImage image = painted(drawing);

    EXPECT_EQ(countInRow(image, 20, kRed), 50);
    EXPECT_EQ(image.pixel(5, 79), kRed);
}

TEST(PicturePainter, LineweightsShowWhenTheyAreAskedFor)
{
    CKvDrawingBuilder drawing;
    drawing.layer("RED").color(1).lineWeight(211);
    addLine(drawing.modelSpace(), 10, 50, 90, 50).layer("RED");
    CKvPictureView view = plainView();
    view.pixelsPerMillimetre = 4;

    view.showsLineWeights = true;
    const QImage wide = painted(drawing, view);
    view.showsLineWeights = false;
    const QImage thin = painted(drawing, view);

    EXPECT_EQ(countInRow(wide, 52, kRed) >= 80, true);
    EXPECT_EQ(countInRow(thin, 52, kRed), 0);
}

TEST(PicturePainter, ASolidHatchLeavesItsIslandsOut)
{
    CKvDrawingBuilder drawing;
    CKvEntityBuilder &hatch = drawing.modelSpace().entity("HATCH");
    drawing.layer("RED").color(1);
    hatch.layer("RED").group(70, 1).group(91, 2);
    for (const double edge : { 10.0, 30.0 }) {
        hatch.group(92, 3).group(72, 0).group(73, 1).group(93, 4);
        hatch.group(10, edge).group(20, edge).group(10, 100 - edge).group(20, edge);
        hatch.group(10, 100 - edge).group(20, 100 - edge).group(10, edge).group(20, 100 - edge);
    }

    const QImage image = painted(drawing);

    EXPECT_EQ(countInRow(image, 20, kRed), 80);
    EXPECT_EQ(countInRow(image, 50, kRed), 40);
}

TEST(PicturePainter, WhatIsSmallerThanAPixelIsASpeck)
{
    CKvDrawingBuilder drawing;
    for (int i = 0; i < 100; ++i) {
        addLine(drawing.modelSpace(), 50.2, 50.2, 50.4, 50.4);
    }

    const QImage image = painted(drawing);

    int marked = 0;
    for (int y = 0; y < 100; ++y) {
        marked += countInRow(image, y, kBlack);
    }
    EXPECT_EQ(marked, 1);
}

TEST(PicturePainter, TheSelectionHasItsOwnColour)
{
    CKvDrawingBuilder drawing;
    addLine(drawing.modelSpace(), 10, 20.5, 90, 20.5);
    addLine(drawing.modelSpace(), 10, 60.5, 90, 60.5);
    const CKvPicture picture = pictureOf(drawing.open());
    CKvPictureView view = plainView();
    view.selected.insert(picture.modelSpace().items.front().entity);
    QImage image(view.size, QImage::Format_RGB32);

    CKvPicturePainter painter(picture, view, image);
    while (!painter.advance(10)) { }

    EXPECT_GE(countInRow(image, 20, view.highlight.rgb()), 80);
    EXPECT_EQ(countInRow(image, 60, kBlack), 80);
}

TEST(PicturePainter, TextIsPaintedWhereItStands)
{
    CKvDrawingBuilder drawing;
    drawing.modelSpace().entity("TEXT").group(10, 10).group(20, 40).group(40, 20).group(1, "HH");

    const QImage image = painted(drawing);

    int within = 0;
    int below = 0;
    for (int y = 0; y < 40; ++y) {
        below += countInRow(image, y, kBlack);
    }
    for (int y = 41; y < 59; ++y) {
        within += countInRow(image, y, kBlack);
    }
    EXPECT_EQ(below, 0);
    EXPECT_GT(within, 60);
}
