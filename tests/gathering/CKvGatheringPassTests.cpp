// SPDX-License-Identifier: MIT
#include "CKvGatheringPass.h"

#include "CKvContractClasses.h"
#include "CKvDrawingBuilder.h"
#include "CKvRecordingPlugin.h"
#include "OdDbObject.h"
#include "drawingText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

/// Writes down what it is told, among the calls of the plug-ins.
class CKvRecordingPolicy : public CKvGatheringPass::CKvPolicy
{
public:
    explicit CKvRecordingPolicy(std::vector<std::string> &calls)
        : m_calls(calls)
    {
    }
    void pluginStarts(const CKvString &pluginId) override
    {
        m_calls.push_back("starts " + pluginId.toQString().toStdString());
    }
    bool mayCheckGivenObjects() override
    {
        m_calls.emplace_back("mayCheckGivenObjects");
        return m_mayCheck;
    }
    void refuse() { m_mayCheck = false; }

private:
    std::vector<std::string> &m_calls;
    bool m_mayCheck = true;
};

class GatheringPass : public ::testing::Test
{
protected:
    GatheringPass()
    {
        builder.layer("WALLS");
        builder.layer("DOORS").stamped(1, "anna");
        builder.lineStyle("DASHED");
        drawing = builder.open();
        walls = recordId(drawing->getLayerTableId(), "WALLS");
        doors = recordId(drawing->getLayerTableId(), "DOORS");
        dashed = recordId(drawing->getLinetypeTableId(), "DASHED");
    }
    CKvGatheringPass::Outcome run(const OdDbObjectIdArray &ids = {})
    {
        CKvGatheringRequest request;
        request.drawing = drawing;
        request.drawingName = CKvString("plan.dxf");
        request.standardsNames = { CKvString("a.dws"), CKvString("b.dws") };
        request.standardsPaths = { CKvString("/std/a.dws"), CKvString("/std/b.dws") };
        request.ids = ids;
        return pass.run({ CKvStdsPluginsPtr(&layers), CKvStdsPluginsPtr(&styles) }, request);
    }
    static OdDbObjectIdArray only(OdDbObjectId id)
    {
        OdDbObjectIdArray ids;
        ids.append(id);
        return ids;
    }
    /// "layers0 of 2, recommended 1, ignored by anna", in order.
    std::vector<std::string> found() const
    {
        std::vector<std::string> lines;
        for (const CKvStdsViolation &violation : pass.violations()) {
            const bool isOfLayers = violation.plugin.get() == &layers;
            lines.push_back((isOfLayers ? "layers: " : "styles: ")
                            + violation.error->objectName().toQString().toStdString() + " of "
                            + std::to_string(violation.fixes.size()) + ", recommended "
                            + std::to_string(violation.recommendedFix)
                            + (violation.ignored ? ", ignored by " : ", open ")
                            + violation.ignoredBy.toQString().toStdString());
        }
        return lines;
    }

    CKvContractClasses classes;
    CKvDrawingBuilder builder;
    OdDbDatabasePtr drawing;
    OdDbObjectId walls;
    OdDbObjectId doors;
    OdDbObjectId dashed;
    std::vector<std::string> calls;
    CKvRecordingPlugin layers { "layers", calls };
    CKvRecordingPlugin styles { "styles", calls };
    CKvRecordingPolicy policy { calls };
    CKvGatheringPass pass { &policy };
};

} // namespace

TEST_F(GatheringPass, RunsEachPlugInFromClearToTheEndOfItsScan)
{
    layers.finds(walls, 1, 0);

    EXPECT_EQ(run(), CKvGatheringPass::Outcome::Finished);

    EXPECT_THAT(
        calls,
        ElementsAre("layers.clear",
                    "starts layers-id",
                    "layers.setObjectsToCheck 0 all",
                    "layers.openStandards drawing plan.dxf [a.dws,b.dws] [/std/a.dws,/std/b.dws]",
                    "layers.beginScan",
                    "layers.currentError",
                    "layers.collectFixes layers0",
                    "layers.nextError",
                    "styles.clear",
                    "starts styles-id",
                    "styles.setObjectsToCheck 0 all",
                    "styles.openStandards drawing plan.dxf [a.dws,b.dws] [/std/a.dws,/std/b.dws]",
                    "styles.beginScan"));
}

TEST_F(GatheringPass, CollectsViolationsInTheOrderOfPlugInsAndScansWithTheirStamps)
{
    styles.finds(dashed, 0, -1);
    layers.finds(doors, 2, 1);
    layers.finds(walls, 3, -1);

    run();

    EXPECT_THAT(found(),
                ElementsAre("layers: layers0 of 2, recommended 1, ignored by anna",
                            "layers: layers1 of 3, recommended -1, open ",
                            "styles: styles0 of 0, recommended -1, open "));
}

TEST_F(GatheringPass, GoesOnBehindAPlaceWithoutAViolation)
{
    layers.finds(OdDbObjectId(), 0, -1);
    layers.finds(walls, 0, -1);

    run();

    EXPECT_THAT(found(), ElementsAre("layers: layers1 of 0, recommended -1, open "));
}

TEST_F(GatheringPass, NewEntriesAreNotMarkedAsFixed)
{
    layers.finds(walls, 1, 0);

    run();

    ASSERT_EQ(pass.violations().size(), 1U);
    EXPECT_FALSE(pass.violations()[0].fixedAutomatically);
    EXPECT_FALSE(pass.violations()[0].fixedManually);
}

TEST_F(GatheringPass, PassesOverADisabledPlugIn)
{
    layers.disable();
    layers.finds(walls, 1, 0);
    styles.finds(dashed, 1, 0);

    EXPECT_EQ(run(), CKvGatheringPass::Outcome::Finished);

    EXPECT_THAT(found(), ElementsAre("styles: styles0 of 1, recommended 0, open "));
}

TEST_F(GatheringPass, TellsThatNothingRanWhenNoPlugInIsEnabled)
{
    layers.disable();
    styles.disable();

    EXPECT_EQ(run(), CKvGatheringPass::Outcome::NothingRan);
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(GatheringPass, OverGivenObjectsRunsOnlyThePlugInsThatHandleOne)
{
    styles.handles({ QStringLiteral("STYLE"), QStringLiteral("LTYPE") });
    styles.finds(dashed, 1, 0);

    EXPECT_EQ(run(only(dashed)), CKvGatheringPass::Outcome::Finished);

    EXPECT_THAT(
        calls,
        ElementsAre("layers.objectFilter",
                    "styles.objectFilter",
                    "styles.clear",
                    "starts styles-id",
                    "mayCheckGivenObjects",
                    "styles.setObjectsToCheck 1",
                    "styles.openStandards drawing plan.dxf [a.dws,b.dws] [/std/a.dws,/std/b.dws]",
                    "styles.beginScan",
                    "styles.currentError",
                    "styles.collectFixes styles0",
                    "styles.nextError"));
}

TEST_F(GatheringPass, OverObjectsThatNoPlugInHandlesNothingRuns)
{
    styles.handles({ QStringLiteral("STYLE") });

    EXPECT_EQ(run(only(dashed)), CKvGatheringPass::Outcome::NothingRan);
    EXPECT_THAT(calls, ElementsAre("layers.objectFilter", "styles.objectFilter"));
}

TEST_F(GatheringPass, TheTypeIsComparedWithRegardToCase)
{
    layers.handles({ QStringLiteral("layer") });
    styles.disable();

    EXPECT_EQ(run(only(walls)), CKvGatheringPass::Outcome::NothingRan);
}

TEST_F(GatheringPass, AnErasedObjectCountsForNothing)
{
    walls.openObject(OdDb::kForWrite)->erase();

    EXPECT_EQ(run(only(walls)), CKvGatheringPass::Outcome::NothingRan);
}

TEST_F(GatheringPass, AnErasedObjectHidesNoneBehindIt)
{
    OdDbObjectIdArray ids = only(doors);
    ids.append(walls);
    doors.openObject(OdDb::kForWrite)->erase();

    EXPECT_EQ(run(ids), CKvGatheringPass::Outcome::Finished);
}

TEST_F(GatheringPass, APolicyThatRefusesGivenObjectsEndsThePassAndDropsWhatWasGathered)
{
    layers.finds(walls, 1, 0);
    policy.refuse();

    EXPECT_EQ(run(only(walls)), CKvGatheringPass::Outcome::Stopped);

    EXPECT_THAT(
        calls,
        ElementsAre(
            "layers.objectFilter", "layers.clear", "starts layers-id", "mayCheckGivenObjects"));
    EXPECT_THAT(found(), IsEmpty());
}

TEST_F(GatheringPass, APassOverTheWholeDrawingNeverAsksThePolicy)
{
    policy.refuse();
    layers.finds(walls, 0, -1);

    EXPECT_EQ(run(), CKvGatheringPass::Outcome::Finished);
    EXPECT_THAT(found(), ElementsAre("layers: layers0 of 0, recommended -1, open "));
}

TEST_F(GatheringPass, RunsWithoutAPolicy)
{
    pass = CKvGatheringPass();
    layers.handles({ QStringLiteral("LAYER") });
    layers.finds(walls, 0, -1);

    EXPECT_EQ(run(only(walls)), CKvGatheringPass::Outcome::Finished);
    EXPECT_THAT(found(), ElementsAre("layers: layers0 of 0, recommended -1, open "));
}

TEST_F(GatheringPass, WhatAPlugInThrowsPassesThroughAndLeavesNoViolations)
{
    layers.finds(walls, 1, 0);
    run();
    styles.failsIn("openStandards");

    EXPECT_THROW(run(), OdError);
    EXPECT_THAT(found(), IsEmpty());
}

TEST_F(GatheringPass, ADamagedStampPassesThrough)
{
    builder.layer("DAMAGED").extensionDictionary().xrecord("AcStStandard").group(90, 1);
    drawing = builder.open();
    layers.finds(recordId(drawing->getLayerTableId(), "DAMAGED"), 0, -1);

    EXPECT_THROW(run(), OdError_NotThatKindOfClass);
    EXPECT_THAT(found(), IsEmpty());
}

TEST_F(GatheringPass, ASecondRunReplacesTheViolationsOfTheFirst)
{
    layers.finds(walls, 1, 0);
    run();
    layers.disable();
    styles.finds(dashed, 0, -1);
    run();

    EXPECT_THAT(found(), ElementsAre("styles: styles0 of 0, recommended -1, open "));
}
