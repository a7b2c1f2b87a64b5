// SPDX-License-Identifier: MIT
#include "CKvHostDocument.h"
#include "CKvStandardsSettingsDlg.h"
#include "CKvWatchedDeskTest.h"

#include <QFile>

#include <utility>

using ::testing::IsEmpty;

namespace
{

/// What commands change is taken back to the last byte, and brought again.
class UndoInDesk : public CKvWatchedDeskTest
{
protected:
    UndoInDesk() { session().settings().setStandardsViolation(0); }
    /// Opens a copy of one of the project's samples, with its standards beside it.
    void openSample(const QString &name)
    {
        for (const QString &file : { name,
                                     text("office-standard.dxf"),
                                     text("mechanical-standard.dxf"),
                                     text("site-standard.dxf") }) {
            QFile::copy(text(KV_SAMPLES_FOLDER) + QLatin1Char('/') + file, m_folder.filePath(file));
        }
        enter(QString(text("OPEN ") + m_folder.filePath(name)));
        m_before = contentOf(m_folder.filePath(name));
    }
    /// The command was one step, and that step can be taken back and brought again.
    void expectOneStep(const std::string &what)
    {
        const QByteArray changed = bytes();
        EXPECT_NE(changed, m_before) << what << " changes nothing";

        enter("UNDO");
        EXPECT_TRUE(bytes() == m_before) << "UNDO of " << what;
        EXPECT_FALSE(document().isModified()) << what;
        enter("REDO");
        EXPECT_TRUE(bytes() == changed) << "REDO of " << what;
        enter("UNDO");
        EXPECT_TRUE(bytes() == m_before) << "second UNDO of " << what;
        EXPECT_FALSE(document().undoStack().canUndo()) << what;
    }
    /// The drawing but for the next free handle, which never goes back while a handle that was
    /// given may be wanted again.
    QByteArray withoutSeed()
    {
        QByteArray all = bytes();
        const int seed = all.indexOf("$HANDSEED");
        return all.remove(seed, all.indexOf("  9\n", seed) - seed);
    }
    /// The user stamps each violation as ignored, or takes that back.
    void verifyAndIgnore()
    {
        m_user.answer(text("CKvVerifyStandards"), [this](QDialog &dialog) {
            m_isSummaryUp = false;
            while (!m_isSummaryUp) {
                click(dialog, "IgnoreViolationCheckBox");
                click(dialog, "NextIssueButton");
            }
            press(dialog, QDialogButtonBox::Close);
        });
        m_user.answer(text("CKvVerfiyCompleteMessage"), [this](QDialog &dialog) {
            m_isSummaryUp = true;
            dialog.reject();
        });
    }

    QByteArray m_before = contentOf(path("plan.dxf"));
    bool m_isSummaryUp = false;
};

/// Each of them changes a drawing that has layer 0, the styles Standard, and what is made first.
constexpr std::pair<const char *, const char *> kEdits[] = {
    { "a new layer", "LAYER NEW A-NEW" },
    { "a layer's colour", "LAYER COLOR WALLS 5" },
    { "a layer's line style", "LAYER LTYPE WALLS ByLayer" },
    { "a layer's lineweight", "LAYER LWEIGHT WALLS 0.35" },
    { "a layer that is off", "LAYER OFF WALLS" },
    { "a frozen layer", "LAYER FREEZE WALLS" },
    { "another current layer", "LAYER SET WALLS" },
    { "a deleted layer", "LAYER DELETE DOORS" },
    { "a loaded line style", "LINETYPE LOAD DASHED" },
    { "a new text style", "STYLE NEW NOTES" },
    { "a text style's font", "STYLE FONT Standard arial.ttf" },
    { "a text style's height", "STYLE HEIGHT Standard 2.5" },
    { "a text style's width", "STYLE WIDTH Standard 0.8" },
    { "a text style's angle", "STYLE OBLIQUE Standard 15" },
    { "a new dimension style", "DIMSTYLE NEW FINE" },
    { "a dimension style's setting", "DIMSTYLE VARIABLE OFFICE DIMTXT 3.5" },
    { "another current dimension style", "DIMSTYLE SET OFFICE" },
    { "a deleted dimension style", "DIMSTYLE DELETE OFFICE" },
    { "a renamed layer", "RENAME LAYER WALLS A-WALL" },
    { "a renamed text style", "RENAME STYLE Standard NOTES" },
    { "a renamed dimension style", "RENAME DIMSTYLE OFFICE BUREAU" },
    { "a renamed block", "RENAME BLOCK DOOR GATE" },
    { "purged layers", "PURGE LAYER" },
    { "all that can be purged", "PURGE ALL" },
    { "lines", "LINE 0,0 1,1 2,0 \"\"" },
    { "a circle", "CIRCLE 1,2 3" },
    { "a text", "TEXT 1,2 2.5 two words" },
    { "an inserted block", "INSERTBLOCK DOOR 7,8" },
    { "an erased entity", "ERASE LAST" },
    { "everything erased", "ERASE ALL" },
    { "a variable of the drawing", "SETVAR CLAYER WALLS" },
};

} // namespace

TEST_F(UndoInDesk, EachEditingCommandIsOneStep)
{
    for (const auto &[what, command] : kEdits) {
        enter(command);

        expectOneStep(what);
    }
}

TEST_F(UndoInDesk, AListOfStandardsFilesIsOneStep)
{
    CKvDrawingBuilder().saveTo(path("more.dws"));
    m_user.answer(text("CKvStandardsSettingsDlg"), [this](QDialog &dialog) {
        static_cast<CKvStandardsSettingsDlg &>(dialog).addFile(path("more.dws"));
        dialog.accept();
    });

    enter("DWGSTANDARDS");
    expectOneStep("DWGSTANDARDS");
    enter("DRAWINGSTANDARDS");
    expectOneStep("DRAWINGSTANDARDS");
}

TEST_F(UndoInDesk, ADrawingGetsItsFirstListOfStandardsFilesInOneStep)
{
    CKvDrawingBuilder drawing;
    drawing.withDefaults().saveTo(path("bare.dxf"));
    enter(QString(text("OPEN ") + path("bare.dxf")));
    m_before = contentOf(path("bare.dxf"));
    m_user.answer(text("CKvStandardsSettingsDlg"), [this](QDialog &dialog) {
        static_cast<CKvStandardsSettingsDlg &>(dialog).addFile(path("office.dws"));
        dialog.accept();
    });

    enter("DRAWINGSTANDARDS");

    expectOneStep("DRAWINGSTANDARDS");
}

TEST_F(UndoInDesk, AVerificationThatRepairsAllIsOneStep)
{
    verifyAndFix();
    for (const char *sample : { "floor-plan.dxf",
                                "flange.dxf",
                                "site-plan.dxf",
                                "layers-bad.dxf",
                                "linestyles-bad.dxf",
                                "textstyles-bad.dxf",
                                "dimstyles-bad.dxf" }) {
        openSample(text(sample));

        enter("VERIFYSTANDARDS");

        expectOneStep(sample);
        enter("CLOSE");
    }
}

TEST_F(UndoInDesk, AVerificationThatRepairsByItselfIsOneStep)
{
    verifyAndPassOver();
    session().settings().setFixAutomatically(true);
    for (const char *sample : { "floor-plan.dxf", "flange.dxf", "site-plan.dxf" }) {
        openSample(text(sample));

        enter("VERIFYSTANDARDS");

        expectOneStep(sample);
        enter("CLOSE");
    }
}

TEST_F(UndoInDesk, StampsAreOneStepAndTheirTakingBackIsAnother)
{
    session().settings().setShowIgnored(true);
    verifyAndIgnore();
    openSample(text("floor-plan.dxf"));
    enter("VERIFYSTANDARDS");
    const QByteArray stamped = withoutSeed();
    enter("VERIFYSTANDARDS");
    const QByteArray takenBack = withoutSeed();
    EXPECT_TRUE(stamped != m_before && takenBack != stamped);

    enter("UNDO");
    EXPECT_TRUE(withoutSeed() == stamped);
    enter("UNDO");
    EXPECT_TRUE(bytes() == m_before);
    enter("REDON 2");

    EXPECT_TRUE(withoutSeed() == takenBack);
}

TEST_F(UndoInDesk, AnEditAndTheRepairThatItsCheckOffersAreTwoSteps)
{
    session().settings().setStandardsViolation(1);
    verifyAndFix();
    enter("LAYER COLOR WALLS 5");
    const QByteArray edited = bytes();
    runPosted();
    const int repaired = colorOfWalls();

    session().settings().setStandardsViolation(0);
    enter("UNDO");
    EXPECT_EQ(bytes(), edited);
    enter("UNDO");

    EXPECT_EQ(repaired, 1);
    EXPECT_EQ(bytes(), m_before);
    EXPECT_FALSE(document().undoStack().canUndo());
}

TEST_F(UndoInDesk, ARepairThatIsTakenBackIsCheckedAsAnyEdit)
{
    enter("LAYER COLOR WALLS 5");
    runPosted();
    verifyAndFix();
    enter("VERIFYSTANDARDS");
    session().settings().setStandardsViolation(1);
    verifyAndPassOver();
    m_seen.clear();

    enter("UNDO");
    runPosted();

    EXPECT_EQ(colorOfWalls(), 5);
    EXPECT_THAT(m_seen, testing::ElementsAre("Layer: WALLS"));
}

TEST_F(UndoInDesk, UndoingEverythingGivesTheBytesOnDiskHoweverMuchWasDone)
{
    CKvDrawingBuilder().saveTo(path("more.dws"));
    m_user.answer(text("CKvStandardsSettingsDlg"), [this](QDialog &dialog) {
        static_cast<CKvStandardsSettingsDlg &>(dialog).addFile(path("more.dws"));
        dialog.accept();
    });
    int commands = 0;
    for (const auto &[what, command] : kEdits) {
        SCOPED_TRACE(what);
        const QByteArray line(command);
        // What an edit before has taken away can't be edited again.
        if (line.contains("DELETE") || line.startsWith("PURGE") || line.startsWith("RENAME")
            || line == "ERASE ALL") {
            continue;
        }
        enter(command);
        ++commands;
    }
    verifyAndFix();
    enter("VERIFYSTANDARDS");
    verifyAndIgnore();
    enter("VERIFYSTANDARDS");
    enter("DWGSTANDARDS");
    enter("RENAME LAYER WALLS A-WALL");
    enter("PURGE ALL");
    enter("ERASE ALL");
    const QByteArray changed = bytes();

    enter("UNDO 1000");

    EXPECT_TRUE(bytes() == m_before);
    EXPECT_FALSE(document().isModified());
    enter("REDON 1000");
    EXPECT_TRUE(bytes() == changed);
    EXPECT_GT(commands, 20);
}

TEST_F(UndoInDesk, AfterSavingEverythingCanStillBeTakenBack)
{
    enter("LAYER NEW A-NEW");
    enter("LINE 0,0 1,1 \"\"");
    enter("QSAVE");
    const QByteArray saved = contentOf(path("plan.dxf"));
    EXPECT_FALSE(document().isModified());

    enter("UNDO 2");

    EXPECT_TRUE(document().isModified());
    EXPECT_EQ(bytes(), m_before);
    enter("REDON 2");
    EXPECT_EQ(bytes(), saved);
    EXPECT_FALSE(document().isModified());
}
