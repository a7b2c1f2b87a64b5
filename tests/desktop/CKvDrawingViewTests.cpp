// SPDX-License-Identifier: MIT
#include "CKvDrawingView.h"

#include "CKvCommandEdit.h"
#include "CKvCommandPanel.h"
#include "CKvDesktopTest.h"
#include "CKvHostDocument.h"
#include "CKvMainWindow.h"

#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QWheelEvent>

#include <cmath>

namespace
{

class DrawingView : public CKvDesktopTest
{
protected:
    DrawingView()
    {
        open(write("a.dxf"));
        finishPicture();
    }
    CKvDrawingView &view() { return *window().activeView(); }
    QPoint pixelOf(double x, double y) { return view().toPixel({ x, y }).toPoint(); }
    bool isShown(double x, double y)
    {
        return view().rect().adjusted(-1, -1, 1, 1).contains(pixelOf(x, y));
    }
};

} // namespace

TEST_F(DrawingView, ADrawingIsShownWholeAtFirst)
{
    EXPECT_TRUE(isShown(0, 0));
    EXPECT_TRUE(isShown(100, 50));
    EXPECT_NEAR(view().toDrawing(view().rect().center()).x(), 50, 1);
    // The line runs through the middle.
    const QImage image = view().toImage();
    const QPoint middle = pixelOf(50, 25);
    bool isPainted = false;
    for (int x = -2; x <= 2; ++x) {
        isPainted = isPainted || image.pixelColor(middle + QPoint(x, 0)).lightness() < 200;
    }
    EXPECT_TRUE(isPainted);
}

TEST_F(DrawingView, TheWheelZoomsAroundThePointer)
{
    const QPoint pixel = pixelOf(100, 50);
    const double before = view().scale();
    QWheelEvent event(pixel,
                      view().mapToGlobal(pixel),
                      QPoint(),
                      QPoint(0, 120),
                      Qt::NoButton,
                      Qt::NoModifier,
                      Qt::NoScrollPhase,
                      false);

    QCoreApplication::sendEvent(&view(), &event);

    EXPECT_DOUBLE_EQ(view().scale(), before * 1.25);
    EXPECT_LE((pixelOf(100, 50) - pixel).manhattanLength(), 1);
}

TEST_F(DrawingView, TheMiddleButtonMovesTheDrawing)
{
    const QPoint before = pixelOf(0, 0);

    QTest::mousePress(&view(), Qt::MiddleButton, Qt::NoModifier, QPoint(100, 100));
    QMouseEvent move(
        QEvent::MouseMove, QPointF(130, 90), Qt::NoButton, Qt::MiddleButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&view(), &move);
    QTest::mouseRelease(&view(), Qt::MiddleButton, Qt::NoModifier, QPoint(130, 90));

    EXPECT_EQ(pixelOf(0, 0), before + QPoint(30, -10));
}

TEST_F(DrawingView, KeysMoveAndZoom)
{
    const QPoint before = pixelOf(0, 0);
    const double scale = view().scale();

    QTest::keyClick(&view(), Qt::Key_Right);
    EXPECT_LT(pixelOf(0, 0).x(), before.x());
    QTest::keyClick(&view(), Qt::Key_Up);
    EXPECT_GT(pixelOf(0, 0).y(), before.y());
    QTest::keyClick(&view(), Qt::Key_Plus);
    EXPECT_GT(view().scale(), scale);
    QTest::keyClick(&view(), Qt::Key_Home);

    EXPECT_EQ(pixelOf(0, 0), before);
    EXPECT_DOUBLE_EQ(view().scale(), scale);
}

TEST_F(DrawingView, ZoomKnowsItsOptions)
{
    const double scale = view().scale();

    enter("ZOOM 2x");
    EXPECT_DOUBLE_EQ(view().scale(), scale * 2);
    enter("ZOOM OUT");
    EXPECT_DOUBLE_EQ(view().scale(), scale * 2 / 1.5);
    enter("ZOOM P");
    EXPECT_DOUBLE_EQ(view().scale(), scale * 2);
    enter("ZOOM W 40,20 60,30");
    EXPECT_TRUE(isShown(40, 20));
    EXPECT_FALSE(isShown(0, 0));
    enter("ZOOM E");

    EXPECT_DOUBLE_EQ(view().scale(), scale);
    enter("ZOOM sideways");
    EXPECT_EQ(said(), list({ "\"sideways\" is neither a factor nor an option." }));
}

TEST_F(DrawingView, AClickSelectsTheNearestEntity)
{
    const CKvHostDocument &document = view().document();

    QTest::mouseClick(&view(), Qt::LeftButton, Qt::NoModifier, pixelOf(50, 25));
    EXPECT_EQ(document.selectionSet()->selectedObjectIds().size(), 1U);
    QTest::mouseClick(&view(), Qt::LeftButton, Qt::NoModifier, pixelOf(50, 45));

    EXPECT_EQ(document.selectionSet()->selectedObjectIds().size(), 0U);
}

TEST_F(DrawingView, WhatIsTypedWhileItHasTheFocusGoesToTheCommandLine)
{
    view().setFocus();
    const double scale = view().scale();

    QTest::keyClicks(&view(), text("Z"));
    QTest::keyClicks(window().focusWidget(), text("OOM\"\""));

    EXPECT_EQ(window().focusWidget(), window().panel().edit());
    EXPECT_EQ(window().panel().edit()->text(), text("ZOOM\"\""));
    EXPECT_EQ(view().scale(), scale);
}

TEST_F(DrawingView, AChangeOfTheDrawingIsPainted)
{
    const QImage before = view().toImage();

    enter("SETVAR LTSCALE 2");
    finishPicture();
    changeLayer("0", 1);
    const QImage after = view().toImage();

    EXPECT_NE(before, after);
}

TEST_F(DrawingView, ALargeDrawingShowsProgressAndCanBeGivenUp)
{
    CKvDrawingBuilder drawing;
    for (int i = 0; i < 20000; ++i) {
        drawing.modelSpace()
            .text("a text that takes a while to be measured")
            .group(10, i)
            .group(40, 1);
    }
    drawing.saveTo(path("large.dxf"));
    auto *progress = child<QProgressBar>(window(), "ReadingProgress");
    auto *cancel = child<QPushButton>(window(), "CancelReadingButton");
    enter(QString(text("OPEN ") + path("large.dxf")));
    EXPECT_EQ(session().documentManager()->documents().size(), 2U);

    for (int i = 0; i < 1000 && !progress->isVisible() && view().picture().isBuilding(); ++i) {
        QCoreApplication::processEvents();
    }
    ASSERT_TRUE(progress->isVisible());
    cancel->click();

    EXPECT_EQ(session().documentManager()->documents().size(), 1U);
    EXPECT_FALSE(progress->isVisible());
    EXPECT_EQ(m_desktop->activeDocument()->title(), text("a.dxf"));
}
