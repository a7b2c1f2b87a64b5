// SPDX-License-Identifier: MIT
#include "CKvDesktopTest.h"
#include "CKvDrawingFile.h"
#include "CKvDrawingView.h"
#include "CKvHostDocument.h"
#include "CKvMainWindow.h"
#include "OdDbBlockTableRecord.h"
#include "OdDbDimStyleTableRecord.h"
#include "OdDbLayerTableRecord.h"
#include "OdDbLinetypeTableRecord.h"
#include "OdDbTextStyleTableRecord.h"
#include "OdError.h"
#include "recordTables.h"

#include <cmath>

namespace
{

class EditCommands : public CKvDesktopTest
{
protected:
    EditCommands()
    {
        CKvDrawingBuilder drawing;
        drawing.withDefaults().currentLayer("0");
        drawing.layer("WALLS").color(1);
        drawing.layer("UNUSED");
        drawing.block("DOOR").line();
        drawing.modelSpace().line("WALLS");
        drawing.saveTo(path("plan.dxf"));
        m_before = contentOf(path("plan.dxf"));
        open(path("plan.dxf"));
    }
    template <class Record> OdSmartPtr<Record> record(CKvRecordKind kind, const char *name)
    {
        return OdSmartPtr<Record>(
            requireRecord(*m_desktop->activeDocument(), kind, text(name), OdDb::kForRead));
    }
    OdDbLayerTableRecordPtr layer(const char *name)
    {
        return record<OdDbLayerTableRecord>(CKvRecordKind::Layer, name);
    }
    bool has(CKvRecordKind kind, const char *name)
    {
        return openTable(*m_desktop->activeDocument(), kind)->has(OdString(name));
    }
    /// What saving writes now.
    QByteArray saved()
    {
        m_desktop->activeDocument()->saveAs(path("out.dxf"));
        return contentOf(path("out.dxf"));
    }

    QByteArray m_before;
};

} // namespace

TEST_F(EditCommands, LayersAreMadeChangedAndDeleted)
{
    enter("LAYER NEW \"A new one\"");
    enter("LAYER COLOR \"A new one\" cyan");
    enter("LAYER LWEIGHT \"A new one\" 0.35");
    enter("LINETYPE LOAD DASHED");
    enter("LAYER LTYPE \"A new one\" DASHED");

    EXPECT_EQ(layer("A new one")->color(), OdCmColor::byIndex(4));
    EXPECT_EQ(int(layer("A new one")->lineWeight()), 35);
    EXPECT_EQ(layer("A new one")->linetypeObjectId(),
              record<OdDbLinetypeTableRecord>(CKvRecordKind::LineStyle, "DASHED")->objectId());
    enter("LAYER DELETE \"A new one\"");
    EXPECT_FALSE(has(CKvRecordKind::Layer, "A new one"));
    EXPECT_THROW(enter("LAYER DELETE WALLS"), OdError);
    EXPECT_THROW(enter("LAYER COLOR WALLS pink"), OdError);
    EXPECT_THROW(enter("LAYER COLOR NOWHERE 1"), OdError);
    EXPECT_THROW(enter("LAYER NEW walls"), OdError);
}

TEST_F(EditCommands, LayersAreSwitchedAndFrozen)
{
    enter("LAYER OFF WALLS");
    enter("LAYER FREEZE WALLS");
    const QByteArray off = saved();
    enter("LAYER ON WALLS");
    enter("LAYER THAW WALLS");

    EXPECT_TRUE(off.contains("WALLS\n 70\n1\n 62\n-1\n")) << off.toStdString();
    EXPECT_EQ(saved(), m_before);
    EXPECT_THROW(enter("LAYER FREEZE 0"), OdError);
}

TEST_F(EditCommands, StylesAreMadeAndChanged)
{
    enter("STYLE NEW NOTES");
    enter("STYLE FONT NOTES arial.ttf");
    enter("STYLE HEIGHT NOTES 2.5");
    enter("STYLE WIDTH NOTES 0.8");
    enter("STYLE OBLIQUE NOTES 15");
    enter("DIMSTYLE NEW OFFICE");
    enter("DIMSTYLE VARIABLE OFFICE DIMTXT 3.5");
    enter("DIMSTYLE VARIABLE OFFICE dimdec 1");

    const auto style = record<OdDbTextStyleTableRecord>(CKvRecordKind::TextStyle, "NOTES");
    EXPECT_EQ(style->fileName(), OdString("arial.ttf"));
    EXPECT_DOUBLE_EQ(style->textSize(), 2.5);
    EXPECT_DOUBLE_EQ(style->xScale(), 0.8);
    EXPECT_NEAR(style->obliquingAngle(), 15 * std::acos(-1.0) / 180, 1e-9);
    const auto dimStyle = record<OdDbDimStyleTableRecord>(CKvRecordKind::DimStyle, "OFFICE");
    EXPECT_DOUBLE_EQ(dimStyle->dimtxt(), 3.5);
    EXPECT_EQ(dimStyle->dimdec(), 1);
    EXPECT_THROW(enter("DIMSTYLE VARIABLE OFFICE DIMNOTHING 1"), OdError);
    EXPECT_THROW(enter("STYLE HEIGHT NOTES tall"), OdError);
}

TEST_F(EditCommands, AnOptionThatIsNoneIsToldAndChangesNothing)
{
    enter("LAYER SIDEWAYS");
    enter("PURGE BLOCK");

    EXPECT_EQ(said(), list({ "\"SIDEWAYS\" is no option.", "\"BLOCK\" is no option." }));
    EXPECT_FALSE(m_desktop->activeDocument()->isModified());
}

TEST_F(EditCommands, RenameRewritesUses)
{
    enter("RENAME LAYER WALLS A-WALL");

    EXPECT_FALSE(has(CKvRecordKind::Layer, "WALLS"));
    EXPECT_FALSE(saved().contains("WALLS"));
}

TEST_F(EditCommands, PurgeTakesWhatNothingUses)
{
    enter("PURGE LAYER");

    EXPECT_FALSE(has(CKvRecordKind::Layer, "UNUSED"));
    EXPECT_TRUE(has(CKvRecordKind::Layer, "WALLS"));
    EXPECT_TRUE(has(CKvRecordKind::Layer, "0"));
}

TEST_F(EditCommands, WhatIsDrawnIsSavedAmongTheEntitiesAndReadAgain)
{
    enter("LAYER SET WALLS");
    enter("LINE 0,0 10,0 10,5.5 \"\"");
    enter("CIRCLE 1,2 3");
    enter("TEXT 5,5 2.5 two words");
    enter("INSERTBLOCK DOOR 7,8");
    const QByteArray out = saved();
    enter("CLOSE");
    open(path("out.dxf"));
    finishPicture();

    EXPECT_EQ(window().activeView()->picture().picture()->modelSpace().items.size(), 6U);
    const int entities = out.indexOf("ENTITIES");
    for (const char *type : { "\nCIRCLE\n", "\nTEXT\n", "\nINSERT\n", "two words" }) {
        EXPECT_GT(out.indexOf(type), entities) << type;
    }
    EXPECT_TRUE(CKvDrawingFile::warnings(*m_desktop->activeDocument()->GetKvDatabase()).isEmpty());
}

TEST_F(EditCommands, ErasingWorksOnTheLastOneAHandleOrTheSelection)
{
    enter("LINE 0,0 1,1 2,2 \"\"");
    enter("ERASE LAST");
    enter("ERASE LAST");
    EXPECT_EQ(saved(), QByteArray(m_before));

    EXPECT_THROW(enter("ERASE NOTHING"), OdError);
    OdDbObjectIdArray ids;
    const auto space = record<OdDbBlockTableRecord>(CKvRecordKind::Block, "*Model_Space");
    ids.append(space->newIterator()->objectId());
    m_desktop->activeDocument()->selectionSet()->select(ids);
    enter("ERASE");

    EXPECT_TRUE(ids.first().isErased());
    EXPECT_TRUE(m_desktop->activeDocument()->selectionSet()->selectedObjectIds().isEmpty());
}

TEST_F(EditCommands, UndoingEverythingGivesTheBytesOnDisk)
{
    enter("LAYER COLOR WALLS 5");
    enter("LINE 0,0 1,1 \"\"");
    enter("RENAME LAYER WALLS A-WALL");
    enter("SETVAR CLAYER UNUSED");
    enter("PURGE ALL");
    EXPECT_TRUE(m_desktop->activeDocument()->isModified());

    enter("UNDO 5");

    EXPECT_FALSE(m_desktop->activeDocument()->isModified());
    EXPECT_EQ(saved(), m_before);
    enter("REDO");
    EXPECT_EQ(layer("WALLS")->color(), OdCmColor::byIndex(5));
    enter("REDON 3");
    EXPECT_TRUE(has(CKvRecordKind::Layer, "A-WALL"));
    enter("UNDO");
    enter("REDO");
    enter("REDO");
    EXPECT_EQ(said().last(), text("Nothing is left to redo."));
}

TEST_F(EditCommands, AScriptIsOneStep)
{
    QFile script(path("three.scr"));
    ASSERT_TRUE(script.open(QIODevice::WriteOnly));
    script.write("LAYER NEW A\nLAYER NEW B\nLAYER COLOR A 3\n");
    script.close();

    enter(QString(text("LOADSCRIPT ") + script.fileName()));
    enter("UNDO");

    EXPECT_FALSE(has(CKvRecordKind::Layer, "A"));
    EXPECT_FALSE(m_desktop->activeDocument()->isModified());
}

TEST_F(EditCommands, ADrawingOfR12GetsEntitiesWithoutOwnersAndMarks)
{
    CKvDrawingBuilder("AC1009").saveTo(path("old.dxf"));
    open(path("old.dxf"));

    enter("CIRCLE 1,2 3");
    const QByteArray out = saved();

    EXPECT_TRUE(out.contains("CIRCLE\n  8\n0\n 10\n1.0\n"));
    EXPECT_FALSE(out.contains("AcDb"));
}
