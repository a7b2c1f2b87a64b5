// SPDX-License-Identifier: MIT
#include "CKvFrameTest.h"

namespace
{

class FrameLifecycle : public CKvFrameTest
{
protected:
    void restrictTo(const char *layer)
    {
        OdDbObjectIdArray ids;
        ids.append(layerId(layer));
        m_plugin.setObjectsToCheck(ids, /*scanAll*/ false);
    }
    /// Names of the layers that a scan of the office's standards stands on, one after the other.
    std::string scanned()
    {
        m_plugin.openStandards(m_database, CKvString(), {}, { CKvString("/office.dxf") });
        std::string names;
        for (m_plugin.beginScan(CKvStdsErrorPtr()); !m_plugin.isDone(); m_plugin.nextError()) {
            names += m_plugin.currentError()->objectName().toQString().toStdString() + ' ';
        }
        return names;
    }
};

} // namespace

TEST_F(FrameLifecycle, ANewPluginIsEnabledAndDone)
{
    EXPECT_TRUE(m_plugin.isEnabled());
    EXPECT_TRUE(m_plugin.isDone());
    EXPECT_TRUE(m_plugin.currentError().isNull());

    m_plugin.setEnabled(false);
    EXPECT_FALSE(m_plugin.isEnabled());
}

TEST_F(FrameLifecycle, ThePlainOperationsAnswerTheSameInAllCategories)
{
    m_plugin.setManager(nullptr);

    EXPECT_EQ(m_plugin.authorName(), CKvString());
    EXPECT_EQ(m_plugin.linkText(), CKvString());
    EXPECT_EQ(m_plugin.versionText(), CKvString("1.0"));
    EXPECT_TRUE(m_plugin.acceptValue(CKvString("anything")));
}

TEST_F(FrameLifecycle, TheFilterHasTheOneObjectTypeEachTime)
{
    EXPECT_EQ(m_plugin.objectFilter(), std::vector<CKvString>({ CKvString("LAYER") }));
    EXPECT_EQ(m_plugin.objectFilter(), std::vector<CKvString>({ CKvString("LAYER") }));
}

TEST_F(FrameLifecycle, AReleasedViolationIsNull)
{
    CKvStdsErrorPtr error = CKvStdsError::createObject();
    const CKvStdsErrorPtr other = error;

    m_plugin.releaseError(error);

    EXPECT_TRUE(error.isNull());
    EXPECT_EQ(other->numRefs(), 1);
}

TEST_F(FrameLifecycle, SmartPointersDoNotCountThePlugin)
{
    const long before = m_plugin.numRefs();

    CKvStdsPluginsPtr first(&m_plugin);
    const CKvStdsPluginsPtr second = first;
    first.release();

    EXPECT_EQ(m_plugin.numRefs(), before);
    EXPECT_EQ(second->pluginId(), CKvString("COLOUR"));
}

TEST_F(FrameLifecycle, AClearEmptiesTheCurrentViolationAndKeepsItsPointer)
{
    m_drawing.layer("WALLS").color(1);
    m_office.layer("DOORS");
    openStandards();
    m_plugin.beginScan(CKvStdsErrorPtr());
    const CKvStdsErrorPtr error = m_plugin.currentError();

    m_plugin.clear();

    EXPECT_EQ(m_plugin.currentError(), error);
    EXPECT_FALSE(m_plugin.isDone());
    EXPECT_EQ(error->propertyCount(), 0);
}

TEST_F(FrameLifecycle, AClearLetsTheDrawingAndTheRecordsGo)
{
    m_drawing.layer("WALLS").color(1);
    m_office.layer("DOORS");
    report();

    m_plugin.clear();
    m_plugin.beginScan(CKvStdsErrorPtr());

    EXPECT_TRUE(m_plugin.drawing().isNull());
    EXPECT_TRUE(m_plugin.records().isEmpty());
    EXPECT_TRUE(m_plugin.isDone());
}

TEST_F(FrameLifecycle, AClearForgetsTheObjectsOfARestrictedRun)
{
    m_drawing.layer("WALLS");
    m_drawing.layer("DOORS");
    m_office.layer("ATTIC");
    openStandards();
    restrictTo("DOORS");

    m_plugin.clear();
    restrictTo("WALLS");

    EXPECT_EQ(scanned(), "WALLS ");
}

TEST_F(FrameLifecycle, AClearLeavesARestrictedRunRestricted)
{
    m_drawing.layer("WALLS");
    m_office.layer("ATTIC");
    openStandards();
    restrictTo("WALLS");

    m_plugin.clear();

    // The next choice of objects decides anew; without one there is nothing to visit.
    EXPECT_EQ(scanned(), "");
}

TEST_F(FrameLifecycle, WhatASessionHoldsOutlivesTheClear)
{
    m_drawing.layer("WALLS").color(1);
    m_office.layer("WALLS").color(5);
    report();

    m_plugin.clear();

    EXPECT_EQ(violationsText(m_violations),
              "WALLS: Colour properties are non-standard. WALLS@/office.dxf*\n");
    EXPECT_EQ(propertiesText(m_violations.at(0).error), "Colour=1 Name=WALLS");
    EXPECT_EQ(valueText(m_violations.at(0).fixes.at(0)->property(CKvString("Colour"))), "5");
}

TEST_F(FrameLifecycle, ARepairGetsTheViolationAndTheFixAndEmptiesTheMessage)
{
    m_drawing.layer("ATTIC").color(1);
    m_office.layer("WALLS").color(5);
    report();
    CKvString message("left over");

    m_plugin.applyFix(m_violations.at(0).error, m_violations.at(0).fixes.at(0), message);

    EXPECT_EQ(m_plugin.repairs, std::vector<std::string>({ "ATTIC -> WALLS" }));
    EXPECT_EQ(message, CKvString());
}

TEST_F(FrameLifecycle, WithoutAViolationNothingIsRepaired)
{
    m_drawing.layer("ATTIC").color(1);
    m_office.layer("WALLS").color(5);
    report();
    CKvString message("left over");

    m_plugin.applyFix(CKvStdsErrorPtr(), m_violations.at(0).fixes.at(0), message);

    EXPECT_TRUE(m_plugin.repairs.empty());
    EXPECT_EQ(m_plugin.recommendedCalls, 1);
    EXPECT_EQ(message, CKvString());
}

TEST_F(FrameLifecycle, WithoutAFixTheRecommendationIsAskedFor)
{
    m_drawing.layer("WALLS").color(1);
    m_office.layer("WALLS").color(5);
    report();
    m_plugin.recommendedCalls = 0;
    CKvString message;

    m_plugin.applyFix(m_violations.at(0).error, CKvStdsFixPtr(), message);

    EXPECT_EQ(m_plugin.recommendedCalls, 1);
}

TEST_F(FrameLifecycle, AfterAClearNothingIsRepaired)
{
    m_drawing.layer("ATTIC").color(1);
    m_office.layer("WALLS").color(5);
    report();
    m_plugin.clear();
    CKvString message("left over");

    m_plugin.applyFix(m_violations.at(0).error, m_violations.at(0).fixes.at(0), message);

    EXPECT_TRUE(m_plugin.repairs.empty());
    EXPECT_EQ(message, CKvString());
}

TEST_F(FrameLifecycle, ThePreviewTakesThePlaceOfWhatTheCallerHad)
{
    m_drawing.layer("WALLS").color(1);
    m_office.layer("DOORS").color(5);
    report();
    const CKvStdsErrorPtr error = m_violations.at(0).error;
    const CKvStdsFixPtr fix = m_violations.at(0).fixes.at(0);
    std::vector<CKvString> names { CKvString("left over") };
    std::vector<CKvString> units { CKvString("unit") };
    OdArray<OdResBufPtr> current;
    OdArray<OdResBufPtr> standard;
    current.append(OdResBufPtr());

    m_plugin.propertyDifferences(error, fix, names, current, standard, units);

    EXPECT_EQ(names, std::vector<CKvString>({ CKvString("Colour") }));
    ASSERT_EQ(current.size(), 1U);
    ASSERT_EQ(standard.size(), 1U);
    EXPECT_EQ(current.at(0), error->property(CKvString("Colour")));
    EXPECT_EQ(standard.at(0), fix->property(CKvString("Colour")));
    EXPECT_EQ(units, std::vector<CKvString>({ CKvString("unit") }));
}

TEST_F(FrameLifecycle, WithoutAViolationThePreviewStaysAsItWas)
{
    std::vector<CKvString> names { CKvString("left over") };
    std::vector<CKvString> units;
    OdArray<OdResBufPtr> current;
    OdArray<OdResBufPtr> standard;

    m_plugin.propertyDifferences(
        CKvStdsErrorPtr(), CKvStdsFix::createObject(), names, current, standard, units);

    EXPECT_EQ(names, std::vector<CKvString>({ CKvString("left over") }));
}

TEST_F(FrameLifecycle, WhatTheFixLacksIsNoRow)
{
    m_drawing.layer("WALLS").color(1);
    m_office.layer("DOORS").color(5);
    report();
    const CKvStdsErrorPtr error = m_violations.at(0).error;

    EXPECT_EQ(previewText(m_plugin, error, CKvStdsFix::createObject()), "");
    EXPECT_EQ(previewText(m_plugin, error, CKvStdsFixPtr()), "");
}
