// SPDX-License-Identifier: MIT
#include "CKvDrawingView.h"
#include "CKvEditTest.h"
#include "CKvMainWindow.h"
#include "OdDbBlockTableRecord.h"
#include "OdDbEntity.h"

namespace
{

class DrawCommands : public CKvEditTest
{
protected:
    /// Handles, or the words behind group 0, of what is in model space.
    QStringList entities()
    {
        QStringList types;
        const auto space = record<OdDbBlockTableRecord>(CKvRecordKind::Block, "*Model_Space");
        for (OdDbObjectIteratorPtr walk = space->newIterator(); !walk->done(); walk->step()) {
            types << walk->objectId().openObject()->isA()->dxfName().toQString();
        }
        return types;
    }
    /// The groups of the last entity of the file behind its subclass mark, in one line.
    std::string lastEntity(const char *type)
    {
        const QByteArray out = saved();
        const int begin = out.lastIndexOf(QByteArray("\n") + type + "\n");
        const int end = out.indexOf("\n  0\n", begin + 1);
        const QByteArray tags = out.mid(begin, end - begin);
        return tags.mid(tags.indexOf("AcDbEntity") + 10).simplified().toStdString();
    }
};

} // namespace

TEST_F(DrawCommands, ABlockIsInsertedWithScaleAndRotation)
{
    enter("INSERTBLOCK DOOR S 2.5 R 90 7,8");
    EXPECT_EQ(
        lastEntity("INSERT"),
        "8 0 100 AcDbBlockReference 2 DOOR 10 7.0 20 8.0 30 0.0 41 2.5 42 2.5 43 2.5 50 90.0");

    enter("INSERTBLOCK DOOR 1,2");

    EXPECT_EQ(lastEntity("INSERT"), "8 0 100 AcDbBlockReference 2 DOOR 10 1.0 20 2.0 30 0.0");
}

TEST_F(DrawCommands, WhatIsDrawnTakesTheCurrentLineStyleColourAndLineweight)
{
    enter("LINETYPE SET FENCE");
    enter("LAYER SET WALLS");

    enter("CIRCLE 1,2 3");
    EXPECT_EQ(lastEntity("CIRCLE"), "8 WALLS 6 FENCE 100 AcDbCircle 10 1.0 20 2.0 30 0.0 40 3.0");
    enter("LINETYPE SET ByLayer");
    enter("CIRCLE 1,2 4");

    EXPECT_EQ(lastEntity("CIRCLE"), "8 WALLS 100 AcDbCircle 10 1.0 20 2.0 30 0.0 40 4.0");
}

TEST_F(DrawCommands, ALineThatIsBrokenOffIsGoneFromThePictureToo)
{
    finishPicture();
    const std::size_t before =
        window().activeView()->picture().picture()->modelSpace().items.size();

    enterAndBreakOff("LINE 0,0 10,0 10,10");
    finishPicture();

    EXPECT_EQ(entities(), list({ "LINE" }));
    std::size_t alive = 0;
    for (const auto &item : window().activeView()->picture().picture()->modelSpace().items) {
        alive += item.isDead ? 0 : 1;
    }
    EXPECT_EQ(alive, before);
    enter("LINE 0,0 10,0 \"\"");
    EXPECT_EQ(entities().size(), 2);
}

TEST_F(DrawCommands, ATextOfBlanksIsNotDrawn)
{
    enter("TEXT 0,0 2.5 \"  \"");

    EXPECT_EQ(said(), list({ "No text, nothing to draw." }));
    EXPECT_FALSE(m_desktop->activeDocument()->isModified());
}

TEST_F(DrawCommands, AWindowErasesWhatLiesWhollyInItAndIsVisible)
{
    enter("LAYER NEW HIDDEN");
    enter("CIRCLE 100,100 1");
    enter("CIRCLE 100,110 50");
    enter("LAYER SET HIDDEN");
    enter("CIRCLE 100,100 2");
    enter("LAYER SET 0");
    enter("LAYER OFF HIDDEN");
    finishPicture();

    enter("ERASE WINDOW 105,105 95,95");

    EXPECT_EQ(said().last(), text("1 entities erased."));
    EXPECT_EQ(entities(), list({ "LINE", "CIRCLE", "CIRCLE" }));
    enter("ERASE WINDOW 1000,1000 1001,1001");
    EXPECT_EQ(said().last(), text("0 entities erased."));
}

TEST_F(DrawCommands, WhatIsOnALockedLayerStays)
{
    enter("CIRCLE 1,1 1");
    enter("LAYER LOCK WALLS");

    enter("ERASE ALL");

    EXPECT_EQ(said(), list({ "1 entities erased.", "1 entities are on a locked layer." }));
    EXPECT_EQ(entities(), list({ "LINE" }));
}
