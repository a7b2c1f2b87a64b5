// SPDX-License-Identifier: MIT
#include "CKvManagerTest.h"
#include "CKvModalScript.h"
#include "CKvRecordingPlugin.h"
#include "OdDbLinetypeTable.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>

#include <gmock/gmock.h>

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

struct RunAudit : CKvManagerTest {
    RunAudit()
    {
        manager->addPlugin(CKvStdsPluginsPtr(&layers));
        manager->addPlugin(CKvStdsPluginsPtr(&styles));
        styles.handles({ QStringLiteral("LTYPE") });
        CKvDrawingBuilder drawing;
        drawing.layer("WALLS");
        drawing.layer("DOORS").stamped(1, "anna");
        drawing.lineStyle("DASHED");
        drawing.standardsFiles({ file("office.dws") });
        open(drawing);
        manager->loadDocumentStandards(&*document);
        host.forgetCalls();
    }
    // The manager goes before the plug-ins.
    ~RunAudit() override { removeManager(); }
    bool audit(const OdDbObjectIdArray &ids, bool isInteractive)
    {
        return manager->runAudit(document->GetKvDatabase(), ids, isInteractive);
    }
    OdDbObjectIdArray walls() const { return only(document->layer("WALLS")); }
    static OdDbObjectIdArray only(OdDbObjectId id)
    {
        OdDbObjectIdArray ids;
        ids.append(id);
        return ids;
    }
    /// The calls without those of the scan.
    std::vector<std::string> starts() const
    {
        std::vector<std::string> found;
        for (const std::string &call : calls) {
            for (const char *word : { ".clear", ".setObjectsToCheck", ".openStandards" }) {
                if (call.find(word) != std::string::npos) {
                    found.push_back(call);
                }
            }
        }
        return found;
    }

    std::vector<std::string> calls;
    CKvRecordingPlugin layers { "layers", calls };
    CKvRecordingPlugin styles { "styles", calls };
};

/// As RunAudit, with the manager that shows its dialogs.
struct RunAuditWithDialogs : RunAudit {
    RunAuditWithDialogs()
    {
        removeManager();
        real.emplace();
        SetKvStandardManager(&*real);
        real->addPlugin(CKvStdsPluginsPtr(&layers));
        real->loadDocumentStandards(&*document);
    }
    ~RunAuditWithDialogs() override { SetKvStandardManager(nullptr); }
    bool auditWalls() { return real->runAudit(document->GetKvDatabase(), walls(), false); }

    std::optional<CKvStdsManagerImpl> real;
    CKvModalScript script;
};

QPushButton *button(const QDialog &dialog, QDialogButtonBox::StandardButton which)
{
    return dialog.findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"))->button(which);
}

} // namespace

TEST_F(RunAudit, WithoutADrawingNothingIsChecked)
{
    EXPECT_FALSE(manager->runAudit(nullptr, {}, true));
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(RunAudit, WithoutUsableStandardsNothingIsChecked)
{
    CKvSessionDocument plain(CKvDrawingBuilder {});
    manager->loadDocumentStandards(&plain);

    EXPECT_FALSE(manager->runAudit(plain.GetKvDatabase(), {}, true));
    EXPECT_THAT(calls, IsEmpty());
    EXPECT_THAT(manager->shown, IsEmpty());
}

TEST_F(RunAudit, ADrawingOfNoDocumentIsNotChecked)
{
    host.forgetDocuments();

    EXPECT_FALSE(audit({}, true));
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(RunAudit, AHostWithoutDocumentsChecksNothing)
{
    host.withoutWindows();

    EXPECT_FALSE(audit({}, true));
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(RunAudit, AFullPassWalksThePluginsInTheirOrder)
{
    layers.finds(document->layer("WALLS"), 0, -1);

    EXPECT_TRUE(audit({}, true));

    const std::string office = "[office.dws] [" + path("office.dws").toStdString() + "]";
    EXPECT_THAT(calls,
                ElementsAre("layers.clear",
                            "layers.setObjectsToCheck 0 all",
                            "layers.openStandards drawing drawing.dxf " + office,
                            "layers.beginScan",
                            "layers.currentError",
                            "layers.collectFixes layers0",
                            "layers.nextError",
                            "styles.clear",
                            "styles.setObjectsToCheck 0 all",
                            "styles.openStandards drawing drawing.dxf " + office,
                            "styles.beginScan"));
    EXPECT_EQ(manager->currentPluginId(), CKvString("styles-id"));
}

TEST_F(RunAudit, APassOverGivenObjectsRunsThePluginsThatHandleOneOfThem)
{
    const OdDbLinetypeTablePtr table(document->GetKvDatabase()->getLinetypeTableId().openObject());

    EXPECT_TRUE(audit(only(table->getAt(OdString("DASHED"))), false));

    const std::string office = "[office.dws] [" + path("office.dws").toStdString() + "]";
    EXPECT_THAT(calls,
                ElementsAre("layers.objectFilter",
                            "styles.objectFilter",
                            "styles.clear",
                            "styles.setObjectsToCheck 1",
                            "styles.openStandards drawing drawing.dxf " + office,
                            "styles.beginScan"));
}

TEST_F(RunAudit, WhenNoEnabledPluginHandlesTheObjectsNothingRunsAndNothingIsShown)
{
    layers.disable();

    EXPECT_FALSE(audit(walls(), true));

    EXPECT_THAT(starts(), IsEmpty());
    EXPECT_THAT(manager->shown, IsEmpty());
    EXPECT_EQ(manager->currentPluginId(), CKvString());
}

TEST_F(RunAudit, WithEveryPluginDisabledNothingIsShownEvenToAUserWhoAsked)
{
    layers.disable();
    styles.disable();

    EXPECT_FALSE(audit({}, true));

    EXPECT_THAT(calls, IsEmpty());
    EXPECT_THAT(manager->shown, IsEmpty());
}

TEST_F(RunAudit, WithNotificationOffAPassOverGivenObjectsEndsBehindTheClearingOfTheFirstPlugin)
{
    layers.finds(document->layer("WALLS"), 1, 0);
    document->notification = 0;

    EXPECT_FALSE(audit(walls(), false));

    EXPECT_THAT(starts(), ElementsAre("layers.clear"));
    EXPECT_THAT(manager->shown, IsEmpty());
    EXPECT_EQ(manager->currentPluginId(), CKvString("layers-id"));
}

TEST_F(RunAudit, AnyOtherNotificationCountsAsOn)
{
    layers.finds(document->layer("WALLS"), 1, 0);
    for (const int value : { 1, 2, -1, 77 }) {
        document->notification = value;
        manager->shown.clear();

        EXPECT_TRUE(audit(walls(), false)) << value;

        EXPECT_THAT(manager->shown, ElementsAre("notify")) << value;
    }
}

TEST_F(RunAudit, AFullPassDoesNotAskForNotification)
{
    layers.finds(document->layer("WALLS"), 1, 0);
    document->notification = 0;

    EXPECT_TRUE(audit({}, true));

    EXPECT_THAT(manager->shown, ElementsAre("show layers0"));
}

TEST_F(RunAudit, AUserWhoAskedSeesTheDialogEvenWithoutViolations)
{
    EXPECT_TRUE(audit({}, true));

    EXPECT_THAT(manager->shown, ElementsAre("show"));
}

TEST_F(RunAudit, WithoutViolationsAnEditIsNotAnswered)
{
    EXPECT_TRUE(audit(walls(), false));

    EXPECT_THAT(manager->shown, IsEmpty());
}

TEST_F(RunAudit, AUserWhoKeepsTheObjectDropsTheList)
{
    layers.finds(document->layer("WALLS"), 1, 0);

    EXPECT_TRUE(audit(walls(), false));

    EXPECT_THAT(manager->shown, ElementsAre("notify"));
}

TEST_F(RunAudit, AUserWhoWantsVerificationSeesTheViolationsOfTheEdit)
{
    layers.finds(document->layer("WALLS"), 1, 0);
    layers.finds(document->layer("DOORS"), 1, 0);
    manager->wantsVerification = true;

    EXPECT_TRUE(audit(walls(), false));

    EXPECT_THAT(manager->shown, ElementsAre("notify", "show layers0 layers1"));
}

TEST_F(RunAudit, AViolationThatIsIgnoredIsToldAllTheSame)
{
    layers.finds(document->layer("DOORS"), 1, 0);

    EXPECT_TRUE(audit(only(document->layer("DOORS")), false));

    EXPECT_THAT(manager->shown, ElementsAre("notify"));
}

TEST_F(RunAudit, WhatAPluginThrowsEndsThePass)
{
    layers.failsIn("openStandards");

    EXPECT_THROW(audit({}, true), OdError);

    EXPECT_THAT(manager->shown, IsEmpty());
}

TEST_F(RunAudit, ThePassLeavesFilesQueueAndWatchedDocumentsAlone)
{
    document->changeLayer("WALLS", 3);
    const std::string files = standardsFiles();

    audit({}, true);

    EXPECT_EQ(standardsFiles(), files);
    EXPECT_EQ(manager->changedObjects(), std::set<OdDbObjectId> { document->layer("WALLS") });
    EXPECT_TRUE(manager->isTracked(&*document));
}

TEST_F(RunAuditWithDialogs, TheMessageAsksAndOkWithVerificationOpensTheDialogWithTheList)
{
    layers.finds(document->layer("WALLS"), 2, 1);
    document->selected = walls();
    QWidget *messageParent = nullptr;
    QWidget *dialogParent = nullptr;
    int candidates = -1;
    script.answer(QStringLiteral("CKvStandardViolationMessage"), [&](QDialog &dialog) {
        messageParent = dialog.parentWidget();
        dialog.findChild<QRadioButton *>(QStringLiteral("runStdVerification"))->click();
        button(dialog, QDialogButtonBox::Ok)->click();
    });
    script.answer(QStringLiteral("CKvVerifyStandards"), [&](QDialog &dialog) {
        dialogParent = dialog.parentWidget();
        candidates =
            dialog.findChild<QTableWidget *>(QStringLiteral("ReplaceWithTableWidget"))->rowCount();
        button(dialog, QDialogButtonBox::Close)->click();
    });

    EXPECT_TRUE(auditWalls());

    EXPECT_EQ(script.shown(),
              QStringList({ QStringLiteral("CKvStandardViolationMessage"),
                            QStringLiteral("CKvVerifyStandards") }));
    EXPECT_EQ(messageParent, &*real);
    EXPECT_EQ(dialogParent, host.mainWindow());
    EXPECT_EQ(candidates, 2);
    EXPECT_EQ(document->clearedSelections, 1);
}

TEST_F(RunAuditWithDialogs, CancellingTheMessageIsARefusalWhateverIsChosen)
{
    layers.finds(document->layer("WALLS"), 1, 0);
    document->selected = walls();
    script.answer(QStringLiteral("CKvStandardViolationMessage"), [&](QDialog &dialog) {
        dialog.findChild<QRadioButton *>(QStringLiteral("runStdVerification"))->click();
        button(dialog, QDialogButtonBox::Cancel)->click();
    });

    EXPECT_TRUE(auditWalls());

    EXPECT_EQ(script.shown(), QStringList(QStringLiteral("CKvStandardViolationMessage")));
    EXPECT_EQ(document->clearedSelections, 0);
}

TEST_F(RunAuditWithDialogs, OkWithTheObjectKeptOpensNothing)
{
    layers.finds(document->layer("WALLS"), 1, 0);
    script.answer(QStringLiteral("CKvStandardViolationMessage"),
                  [&](QDialog &dialog) { button(dialog, QDialogButtonBox::Ok)->click(); });

    EXPECT_TRUE(auditWalls());

    EXPECT_EQ(script.shown(), QStringList(QStringLiteral("CKvStandardViolationMessage")));
}

TEST_F(RunAuditWithDialogs, AnEmptySelectionIsNotCleared)
{
    script.answer(QStringLiteral("CKvVerifyStandards"),
                  [&](QDialog &dialog) { button(dialog, QDialogButtonBox::Close)->click(); });
    script.answer(QStringLiteral("CKvVerfiyCompleteMessage"),
                  [&](QDialog &dialog) { dialog.reject(); });

    EXPECT_TRUE(real->runAudit(document->GetKvDatabase(), {}, true));

    EXPECT_EQ(script.shown().count(QStringLiteral("CKvVerifyStandards")), 1);
    EXPECT_EQ(document->clearedSelections, 0);
}

TEST_F(RunAuditWithDialogs, ADocumentWithoutASelectionIsShownToo)
{
    document->hasSelection = false;
    script.answer(QStringLiteral("CKvVerifyStandards"),
                  [&](QDialog &dialog) { button(dialog, QDialogButtonBox::Close)->click(); });
    script.answer(QStringLiteral("CKvVerfiyCompleteMessage"),
                  [&](QDialog &dialog) { dialog.reject(); });

    EXPECT_TRUE(real->runAudit(document->GetKvDatabase(), {}, true));

    EXPECT_EQ(script.shown().count(QStringLiteral("CKvVerifyStandards")), 1);
}
