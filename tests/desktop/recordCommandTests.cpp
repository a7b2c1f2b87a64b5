// SPDX-License-Identifier: MIT
#include "CKvEditTest.h"
#include "CKvObjectAnnotationContext.h"
#include "OdDbLayerTableRecord.h"
#include "OdDbLinetypeTableRecord.h"
#include "OdDbTextStyleTableRecord.h"
#include "layerState.h"
#include "lineStyleDescription.h"

#include <cmath>

namespace
{

class RecordCommands : public CKvEditTest
{
protected:
    OdDbLayerTableRecordPtr layer(const char *name)
    {
        return record<OdDbLayerTableRecord>(CKvRecordKind::Layer, name);
    }
    OdDbLinetypeTableRecordPtr lineStyle(const char *name)
    {
        return record<OdDbLinetypeTableRecord>(CKvRecordKind::LineStyle, name);
    }
    OdDbTextStyleTableRecordPtr textStyle(const char *name)
    {
        return record<OdDbTextStyleTableRecord>(CKvRecordKind::TextStyle, name);
    }
    /// "4 -1"
    std::string dashesOf(const char *name)
    {
        std::string dashes;
        for (int i = 0; i < lineStyle(name)->numDashes(); ++i) {
            dashes += (i == 0 ? "" : " ")
                + QString::number(lineStyle(name)->dashLengthAt(i)).toStdString();
        }
        return dashes;
    }
    void writeFile(const char *name, const QByteArray &bytes)
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
};

struct CKvBadAnswer {
    const char *line;
    const char *reason;
};

} // namespace

TEST_F(RecordCommands, LayersAreLockedAndLeftOutOfPlots)
{
    enter("LAYER LOCK WALLS");
    enter("LAYER NOPLOT WALLS");
    EXPECT_TRUE(layerState(*layer("WALLS")).isLocked);
    EXPECT_FALSE(layerState(*layer("WALLS")).isPlotted);

    enter("LAYER UNLOCK WALLS");
    enter("LAYER PLOT WALLS");

    EXPECT_FALSE(layerState(*layer("WALLS")).isLocked);
    EXPECT_TRUE(layerState(*layer("WALLS")).isPlotted);
    enter("UNDO 4");
    EXPECT_EQ(saved(), m_before);
}

TEST_F(RecordCommands, ALineStyleIsMadeOfAPatternAndChanged)
{
    enter("LINETYPE NEW HEDGE A,3,-1,0,-1 Hedge . _ .");
    EXPECT_EQ(dashesOf("HEDGE"), "3 -1 0 -1");
    EXPECT_EQ(lineStyle("HEDGE")->patternLength(), 5);
    EXPECT_EQ(lineStyleDescription(*lineStyle("HEDGE")), text("Hedge . _ ."));
    const OdDbObjectId id = lineStyle("FENCE")->objectId();

    enter("LINETYPE PATTERN FENCE 6,-2,6,-2");
    enter("LINETYPE DESCRIPTION FENCE A longer fence");

    EXPECT_EQ(dashesOf("FENCE"), "6 -2 6 -2");
    EXPECT_EQ(lineStyle("FENCE")->objectId(), id);
    EXPECT_EQ(lineStyleDescription(*lineStyle("FENCE")), text("A longer fence"));
    enter("UNDO 3");
    EXPECT_EQ(saved(), m_before);
}

TEST_F(RecordCommands, LineStylesAreLoadedFromAFileOneOrAll)
{
    writeFile("own.lin",
              "*HEDGE,Hedge\nA,3,-1\n*fence,Other\nA,9,-9\n*RAIL,Rail\nA,1,-1,1,-1\n"
              "*GAS,Gas line\nA,5,[\"GAS\",MISSING,S=1],-5\n");

    enter("LINETYPE FILE own.lin rail");
    EXPECT_EQ(dashesOf("RAIL"), "1 -1 1 -1");
    EXPECT_FALSE(has(CKvRecordKind::LineStyle, "HEDGE"));
    enter("LINETYPE FILE own.lin *");

    EXPECT_EQ(dashesOf("HEDGE"), "3 -1");
    EXPECT_EQ(dashesOf("FENCE"), "4 -1");
    EXPECT_EQ(
        said(),
        list({ "GAS: The line style needs the text style MISSING.", "1 line styles loaded." }));
    EXPECT_NE(failureOf("LINETYPE FILE own.lin NOTHING"), "");
    EXPECT_NE(failureOf("LINETYPE FILE missing.lin *"), "");
}

TEST_F(RecordCommands, EverythingOfATextStyleCanBeSet)
{
    enter("STYLE FONT NOTES romans.shx");
    enter("STYLE BIGFONT NOTES bigfont.shx");
    EXPECT_EQ(textStyle("NOTES")->fileName(), OdString("romans.shx"));
    EXPECT_EQ(textStyle("NOTES")->bigFontFileName(), OdString("bigfont.shx"));
    enter("STYLE BIGFONT NOTES .");
    enter("STYLE FONT NOTES arial.ttf");
    enter("STYLE TYPEFACE NOTES \"Open Sans\"");
    for (const char *flag :
         { "BOLD", "ITALIC", "BACKWARDS", "UPSIDEDOWN", "VERTICAL", "ANNOTATIVE", "ORIENTATION" }) {
        enter(QStringLiteral("STYLE %1 NOTES ON").arg(QLatin1String(flag)));
    }
    enter("STYLE OBLIQUE NOTES -10");

    const OdDbTextStyleTableRecordPtr style = textStyle("NOTES");
    OdString typeface;
    bool isBold = false;
    bool isItalic = false;
    int charset = 0;
    int pitchAndFamily = 0;
    style->font(typeface, isBold, isItalic, charset, pitchAndFamily);
    EXPECT_EQ(typeface, OdString("Open Sans"));
    EXPECT_TRUE(isBold && isItalic);
    EXPECT_TRUE(style->isBackwards() && style->isUpsideDown() && style->isVertical());
    EXPECT_TRUE(style->bigFontFileName().isEmpty());
    EXPECT_NEAR(style->obliquingAngle(), -10 * std::acos(-1.0) / 180, 1e-9);
    bool matchesOrientation = false;
    EXPECT_TRUE(CKvObjectAnnotationContext::IsAnnotative(style->objectId(), &matchesOrientation));
    EXPECT_TRUE(matchesOrientation);
    enter("STYLE ANNOTATIVE NOTES OFF");
    enter("STYLE BOLD NOTES no");
    EXPECT_FALSE(CKvObjectAnnotationContext::IsAnnotative(style->objectId(), nullptr));
    textStyle("NOTES")->font(typeface, isBold, isItalic, charset, pitchAndFamily);
    EXPECT_FALSE(isBold);
    enter("UNDO 20");
    EXPECT_EQ(saved(), m_before);
}

TEST_F(RecordCommands, ABadAnswerSaysWhyAndChangesNothing)
{
    constexpr CKvBadAnswer kRows[] = {
        { "LAYER NEW A/B", "The name \"A/B\" has the character \"/\", which names can't have." },
        { "LAYER NEW \"\"", "A name must not be empty." },
        { "LAYER NEW walls", "The drawing has a record of the name \"walls\" already." },
        { "LAYER COLOR WALLS 256", "\"256\" is no colour: 1 to 255, red to white, or R,G,B." },
        { "LAYER COLOR WALLS ByLayer",
          "\"ByLayer\" is no colour: 1 to 255, red to white, or R,G,B." },
        { "LAYER LTYPE WALLS NONE", "The drawing has nothing of the name \"NONE\"." },
        { "LAYER LWEIGHT WALLS ByBlock",
          "A layer's lineweight is Default or a number of millimetres." },
        { "LAYER FREEZE 0", "The current layer can't be frozen." },
        { "LAYER DELETE WALLS", "\"WALLS\" is in use, or can never be deleted." },
        { "LAYER ON NOWHERE", "The drawing has nothing of the name \"NOWHERE\"." },
        { "LINETYPE NEW A:B", "The name \"A:B\" has the character \":\", which names can't have." },
        { "LINETYPE NEW HEDGE 1,x", "\"x\" is no number." },
        { "LINETYPE PATTERN Continuous 1,-1", "This line style can't have a pattern." },
        { "LINETYPE LOAD FENCE2", nullptr },
        { "STYLE FONT NOTES \"\"", "A style needs a font file." },
        { "STYLE HEIGHT NOTES -1", "\"-1\" is no number of at least 0." },
        { "STYLE WIDTH NOTES 0", "\"0\" is no number above 0." },
        { "STYLE OBLIQUE NOTES 90", "\"90\" is no number from -85 to 85." },
        { "STYLE BOLD NOTES ON", "Only a style with a typeface can be bold or italic." },
        { "STYLE VERTICAL NOTES MAYBE", "\"MAYBE\" is neither ON nor OFF." },
        { "STYLE ORIENTATION NOTES ON",
          "Only the texts of an annotative style can be turned with the sheet." },
        { "DIMSTYLE VARIABLE OFFICE DIMTXT 0", "\"0\" is no number above 0." },
        { "DIMSTYLE VARIABLE OFFICE DIMDEC 9", "\"9\" is no whole number from 0 to 8." },
        { "DIMSTYLE VARIABLE OFFICE DIMJOGANG 100", nullptr },
        { "DIMSTYLE VARIABLE OFFICE DIMBLK NONE", "The drawing has nothing of the name \"NONE\"." },
        { "DIMSTYLE VARIABLE OFFICE DIMNOTHING",
          "A dimension style has no setting \"DIMNOTHING\"." },
        { "RENAME LAYER 0 ZERO", "\"0\" can't be renamed." },
        { "RENAME BLOCK *Model_Space", "What the host has named can't be renamed." },
        { "RENAME SIDEWAYS", "\"SIDEWAYS\" is no option." },
        { "RENAME LAYER WALLS 0", "The drawing has a record of the name \"0\" already." },
        { "SETVAR CLAYER NOWHERE", "The drawing has nothing of the name \"NOWHERE\"." },
        { "SETVAR ACADVER AC1009", "ACADVER can't be changed." },
        { "INSERTBLOCK NONE", "The drawing has nothing of the name \"NONE\"." },
        { "INSERTBLOCK DOOR S 0", "A scale of 0 leaves nothing." },
        { "ERASE ABCDEF", "There is no entity \"ABCDEF\"." },
    };
    for (const CKvBadAnswer &row : kRows) {
        const std::string reason = failureOf(row.line);

        EXPECT_FALSE(reason.empty()) << row.line;
        if (row.reason) {
            EXPECT_EQ(reason, row.reason) << row.line;
        }
        EXPECT_FALSE(m_desktop->activeDocument()->isModified()) << row.line;
    }
    EXPECT_EQ(saved(), m_before);
}

TEST_F(RecordCommands, WhoeverBreaksOffAtAnyQuestionLeavesNoTrace)
{
    const char *const lines[] = {
        "LAYER",
        "LAYER NEW",
        "LAYER COLOR",
        "LAYER COLOR WALLS",
        "LAYER LTYPE WALLS",
        "LAYER LWEIGHT WALLS",
        "LINETYPE NEW HEDGE",
        "LINETYPE NEW HEDGE 1,-1",
        "LINETYPE PATTERN FENCE",
        "STYLE FONT NOTES",
        "STYLE BOLD NOTES",
        "DIMSTYLE VARIABLE",
        "DIMSTYLE VARIABLE OFFICE",
        "DIMSTYLE VARIABLE OFFICE DIMTXT",
        "RENAME",
        "RENAME LAYER WALLS",
        "PURGE",
        "LINE",
        "LINE 0,0 1,1 2,2",
        "CIRCLE 0,0",
        "TEXT 0,0 2.5",
        "INSERTBLOCK DOOR",
        "INSERTBLOCK DOOR S 2",
        "ERASE",
        "ERASE WINDOW 0,0",
        "SETVAR",
        "SETVAR LTSCALE",
    };
    for (const char *line : lines) {
        enterAndBreakOff(line);

        EXPECT_EQ(said().last(), text("*Cancel*")) << line;
        EXPECT_FALSE(m_desktop->activeDocument()->isModified()) << line;
        EXPECT_FALSE(m_desktop->commandLine().isRunning()) << line;
    }
    EXPECT_FALSE(m_desktop->activeDocument()->undoStack().canUndo());
    EXPECT_EQ(saved(), m_before);
}

TEST_F(RecordCommands, ScriptsAndExpressionsFeedEachQuestion)
{
    writeFile("edit.scr",
              "; a remark\n"
              "LAYER NEW DOORS\n"
              "LAYER COLOR DOORS\n"
              "cyan\n"
              "LINETYPE NEW HEDGE 3,-1 \"\"\n"
              "DIMSTYLE VARIABLE OFFICE DIMPOST <> mm\n"
              "(command \"LAYER\" \"LTYPE\" \"DOORS\" \"HEDGE\")\n");

    enter(QString(text("LOADSCRIPT ") + path("edit.scr")));
    enter(
        "(progn (command \"LAYER\" \"LWEIGHT\" \"DOORS\" \"0.5\") (setvar \"CLAYER\" \"DOORS\"))");

    EXPECT_EQ(layer("DOORS")->color(), OdCmColor::byIndex(4));
    EXPECT_EQ(layer("DOORS")->linetypeObjectId(), lineStyle("HEDGE")->objectId());
    EXPECT_EQ(int(layer("DOORS")->lineWeight()), 50);
    EXPECT_EQ(m_desktop->activeDocument()->GetKvDatabase()->getCLAYER(),
              layer("DOORS")->objectId());
    enter("UNDO 3");
    EXPECT_EQ(saved(), m_before);
}

TEST_F(RecordCommands, WhatAnOlderDrawingHasNoPlaceForIsRefused)
{
    useVersion("AC1009");

    EXPECT_EQ(failureOf("LAYER LWEIGHT WALLS 0.5"),
              "Drawings before R2000 have no place for lineweights.");
    EXPECT_EQ(failureOf("LAYER NOPLOT WALLS"),
              "Drawings before R2000 have no place for whether a layer is plotted.");
    EXPECT_EQ(failureOf("DIMSTYLE VARIABLE OFFICE DIMTXTDIRECTION ON"),
              "The version of this drawing has no place for DIMTXTDIRECTION.");

    EXPECT_FALSE(m_desktop->activeDocument()->isModified());
}

TEST_F(RecordCommands, RenamingABlockTakesItsArrowsAndInsertionsAlong)
{
    for (const char *version : { "AC1009", "AC1014", "AC1032" }) {
        SCOPED_TRACE(version);
        useVersion(version);
        enter("INSERTBLOCK DOOR 1,1");
        enter("DIMSTYLE VARIABLE OFFICE DIMBLK DOOR");
        const QByteArray before = saved();

        enter("RENAME BLOCK DOOR GATE");

        EXPECT_TRUE(has(CKvRecordKind::Block, "GATE"));
        EXPECT_FALSE(saved().contains("DOOR"));
        enter("UNDO");
        EXPECT_EQ(saved(), before);
    }
}

TEST_F(RecordCommands, EachKindIsPurgedByItself)
{
    enter("LAYER NEW UNUSED");
    const QByteArray before = saved();

    enter("PURGE STYLE");
    EXPECT_FALSE(has(CKvRecordKind::TextStyle, "NOTES"));
    EXPECT_TRUE(has(CKvRecordKind::Layer, "UNUSED"));
    enter("PURGE LTYPE");
    EXPECT_FALSE(has(CKvRecordKind::LineStyle, "FENCE"));
    enter("PURGE DIMSTYLE");
    EXPECT_FALSE(has(CKvRecordKind::DimStyle, "OFFICE"));
    EXPECT_TRUE(has(CKvRecordKind::Layer, "UNUSED"));
    enter("PURGE LAYER");

    EXPECT_FALSE(has(CKvRecordKind::Layer, "UNUSED"));
    enter("UNDO 4");
    EXPECT_EQ(saved(), before);
}
