// SPDX-License-Identifier: MIT
#include "CKvFrameTest.h"

namespace
{

class FrameCandidates : public CKvFrameTest
{
protected:
    CKvStdsErrorPtr violation(const CKvString &message, const char *name, int color) const
    {
        CKvStdsErrorPtr error = CKvStdsError::createObject();
        error->setMessage(message);
        error->setObjectId(layerId(name));
        error->addProperty(CKvString("Name"),
                           CKvStdsProperty::text(CKvString(), CKvString(name)).value);
        error->addProperty(CKvString("Colour"), CKvStdsProperty::integer(CKvString(), color).value);
        return error;
    }
    /// Candidates one a line, then the index.
    std::string collected(const CKvStdsErrorPtr &error)
    {
        OdArray<CKvStdsFixPtr> fixes;
        std::int32_t recommended = 99;
        m_plugin.collectFixes(error, fixes, recommended);
        return fixesText(fixes) + std::to_string(recommended);
    }
};

} // namespace

TEST_F(FrameCandidates, ANameViolationIsOfferedEverythingAndRecommendedNothing)
{
    m_drawing.layer("ATTIC").color(1);
    m_office.layer("WALLS").color(1);
    m_office.layer("DOORS").color(2);

    EXPECT_EQ(report(),
              "ATTIC: Colour name is non-standard. WALLS@/office.dxf DOORS@/office.dxf\n");
}

TEST_F(FrameCandidates, ANameViolationIsNotOfferedItsOwnNameInTheSameLetters)
{
    m_drawing.layer("walls");
    m_office.layer("WALLS");
    m_office.layer("walls");
    openStandards();

    EXPECT_EQ(collected(violation(m_plugin.nameMessage(), "walls", 1)), "WALLS@/office.dxf\n0");
}

TEST_F(FrameCandidates, WhatACategoryKeepsBackIsNotOffered)
{
    m_drawing.layer("ATTIC").color(1);
    m_drawing.layer("WALLS").color(1);
    m_office.layer("HOUSE").color(1);
    m_office.layer("GRID").color(1);
    m_office.layer("WALLS").color(5);

    EXPECT_EQ(report(),
              "ATTIC: Colour name is non-standard. GRID@/office.dxf WALLS@/office.dxf\n"
              "WALLS: Colour properties are non-standard. HOUSE@/office.dxf WALLS@/office.dxf*\n");
}

TEST_F(FrameCandidates, APropertyViolationIsOfferedAllButItsTwins)
{
    m_drawing.layer("WALLS").color(1);
    m_office.layer("WALLS").color(5);
    m_office.layer("DOORS").color(1);
    m_office.layer("walls").color(2);
    m_office.layer("Walls").color(3);

    EXPECT_EQ(report(),
              "WALLS: Colour properties are non-standard. WALLS@/office.dxf* DOORS@/office.dxf "
              "Walls@/office.dxf\n");
}

TEST_F(FrameCandidates, ANameThatIsTiedIsOfferedNamesakesOnly)
{
    m_drawing.layer("Tied").color(1);
    m_office.layer("WALLS").color(5);
    m_office.layer("TIED").color(5);
    m_office.layer("tied").color(1);
    m_office.layer("tieD").color(9);

    EXPECT_EQ(report(),
              "Tied: Colour properties are non-standard. TIED@/office.dxf* tieD@/office.dxf\n");
}

TEST_F(FrameCandidates, TheFirstFileJudgesAndEachDifferingRecordIsOffered)
{
    CKvDrawingBuilder firm;
    firm.layer("WALLS").color(1);
    firm.layer("DOORS").color(7);
    m_services.setDrawing("/firm.dxf", firm);
    m_drawing.layer("WALLS").color(1);
    m_drawing.layer("DOORS").color(5);
    m_office.layer("WALLS").color(5);
    m_office.layer("DOORS").color(5);

    // The second file agrees with WALLS; it does not count, and its record is a twin.
    EXPECT_EQ(report({ QStringLiteral("/office.dxf"), QStringLiteral("/firm.dxf") }),
              "WALLS: Colour properties are non-standard. WALLS@/office.dxf* DOORS@/office.dxf "
              "DOORS@/firm.dxf\n");
}

TEST_F(FrameCandidates, TheFirstNamesakeThatIsOfferedIsRecommended)
{
    CKvDrawingBuilder firm;
    firm.layer("Walls").color(9);
    m_services.setDrawing("/firm.dxf", firm);
    m_drawing.layer("WALLS").color(1);
    m_office.layer("DOORS").color(1);
    m_office.layer("walls").color(5);

    EXPECT_EQ(report({ QStringLiteral("/office.dxf"), QStringLiteral("/firm.dxf") }),
              "WALLS: Colour properties are non-standard. DOORS@/office.dxf walls@/office.dxf* "
              "Walls@/firm.dxf\n");
}

TEST_F(FrameCandidates, ANamesakeThatIsLeftOutIsNotRecommended)
{
    m_drawing.layer("WALLS").color(1);
    m_office.layer("walls").color(2);
    m_office.layer("DOORS").color(5);
    m_office.layer("WALLS").color(9);
    openStandards();

    EXPECT_EQ(collected(violation(m_plugin.propertyMessage(), "WALLS", 1)),
              "DOORS@/office.dxf\nWALLS@/office.dxf\n1");
}

TEST_F(FrameCandidates, TheNameOfTheObjectAndNotOfTheViolationIsRecommended)
{
    m_drawing.layer("WALLS").color(1);
    m_office.layer("DOORS").color(5);
    m_office.layer("WALLS").color(5);
    openStandards();
    const CKvStdsErrorPtr error = violation(m_plugin.propertyMessage(), "WALLS", 1);

    error->addProperty(CKvString("Name"),
                       CKvStdsProperty::text(CKvString(), CKvString("DOORS")).value);

    EXPECT_EQ(collected(error), "DOORS@/office.dxf\nWALLS@/office.dxf\n1");
}

TEST_F(FrameCandidates, NothingIsOfferedForAnotherMessage)
{
    m_drawing.layer("WALLS").color(1);
    m_office.layer("DOORS").color(5);
    openStandards();

    EXPECT_EQ(collected(violation(CKvString("Farbe: Name nicht standardgerecht."), "WALLS", 1)),
              "-1");
    EXPECT_EQ(collected(violation(CKvString("COLOUR NAME IS NON-STANDARD."), "WALLS", 1)), "-1");
    EXPECT_EQ(m_plugin.recommendedCalls, 0);
}

TEST_F(FrameCandidates, WithoutRecordsNothingIsOfferedAndNoRecommendationAskedFor)
{
    m_drawing.layer("WALLS").color(1);
    openStandards();

    EXPECT_EQ(collected(violation(m_plugin.nameMessage(), "WALLS", 1)), "-1");
    EXPECT_EQ(m_plugin.recommendedCalls, 0);
}

TEST_F(FrameCandidates, EachViolationWithRecordsAsksForOneRecommendation)
{
    m_drawing.layer("WALLS").color(1);
    m_office.layer("DOORS").color(5);
    openStandards();

    collected(violation(m_plugin.nameMessage(), "WALLS", 1));

    EXPECT_EQ(m_plugin.recommendedCalls, 1);
}

TEST_F(FrameCandidates, WithoutCandidatesTheIndexIsNotThatOfTheViolationBefore)
{
    m_drawing.layer("TIED").color(1);
    m_drawing.layer("ATTIC").color(1);
    m_office.layer("HOUSE").color(5);
    m_office.layer("TIED").color(5);
    openStandards();
    EXPECT_EQ(collected(violation(m_plugin.propertyMessage(), "TIED", 1)), "TIED@/office.dxf\n0");

    EXPECT_EQ(collected(violation(m_plugin.propertyMessage(), "TIED", 5)), "-1");
}

TEST_F(FrameCandidates, NoViolationChangesNothing)
{
    m_office.layer("DOORS").color(5);
    openStandards();
    OdArray<CKvStdsFixPtr> fixes;
    fixes.append(CKvStdsFix::createObject());
    std::int32_t recommended = 99;

    m_plugin.collectFixes(CKvStdsErrorPtr(), fixes, recommended);

    EXPECT_EQ(fixes.size(), 1U);
    EXPECT_EQ(recommended, 99);
}

TEST_F(FrameCandidates, CandidatesAreAppendedToWhatTheCallerHas)
{
    m_drawing.layer("WALLS").color(1);
    m_office.layer("DOORS").color(5);
    m_office.layer("WALLS").color(5);
    openStandards();
    const CKvStdsFixPtr own = CKvStdsFix::createObject();
    own->setName(CKvString("OWN"));
    OdArray<CKvStdsFixPtr> fixes;
    fixes.append(own);
    std::int32_t recommended = 99;

    m_plugin.collectFixes(violation(m_plugin.propertyMessage(), "WALLS", 1), fixes, recommended);

    EXPECT_EQ(fixesText(fixes), "OWN@\nDOORS@/office.dxf\nWALLS@/office.dxf\n");
    EXPECT_EQ(recommended, 1);
}

TEST_F(FrameCandidates, ViolationsShareTheFixesAndTheArraysThatAreTheSame)
{
    for (const char *name : { "ATTIC", "CELLAR" }) {
        m_drawing.layer(name).color(1);
    }
    for (const char *name : { "WALLS", "DOORS" }) {
        m_drawing.layer(name).color(1);
        m_office.layer(name).color(5);
    }

    report();

    ASSERT_EQ(m_violations.size(), 4U);
    EXPECT_TRUE(m_violations[0].fixes.sharesWith(m_violations[1].fixes));
    EXPECT_TRUE(m_violations[2].fixes.sharesWith(m_violations[3].fixes));
    EXPECT_EQ(m_violations[0].fixes.first(), m_violations[2].fixes.first());
    EXPECT_EQ(m_violations[0].fixes.first(), m_plugin.records().first()->fix);
}

TEST_F(FrameCandidates, ACallerThatChangesItsArrayChangesNoOther)
{
    for (const char *name : { "ATTIC", "CELLAR" }) {
        m_drawing.layer(name).color(1);
    }
    m_office.layer("WALLS").color(5);
    report();

    m_violations[0].fixes.append(CKvStdsFix::createObject());

    EXPECT_EQ(fixesText(m_violations[1].fixes), "WALLS@/office.dxf\n");
    EXPECT_EQ(report(),
              "ATTIC: Colour name is non-standard. WALLS@/office.dxf\n"
              "CELLAR: Colour name is non-standard. WALLS@/office.dxf\n");
}

TEST_F(FrameCandidates, RecordsThatCameSinceAreOfferedToo)
{
    m_drawing.layer("ATTIC").color(1);
    m_office.layer("WALLS").color(5);
    openStandards();
    const CKvStdsErrorPtr error = violation(m_plugin.nameMessage(), "ATTIC", 1);
    EXPECT_EQ(collected(error), "WALLS@/office.dxf\n-1");

    m_plugin.openStandards(m_database, CKvString(), {}, { CKvString("/office.dxf") });

    EXPECT_EQ(collected(error), "WALLS@/office.dxf\nWALLS@/office.dxf\n-1");
}

TEST_F(FrameCandidates, OutsideTheCollectingThereIsOnlyAnEmptyRecommendation)
{
    m_drawing.layer("WALLS").color(1);
    m_office.layer("WALLS").color(5);
    report();

    const CKvStdsFixPtr fix = m_plugin.recommendedFix(m_violations.at(0).error);

    EXPECT_EQ(fix->propertyCount(), 0);
    EXPECT_EQ(fix->name(), CKvString());
}

TEST_F(FrameCandidates, AnObjectThatIsGoneHasNoRecommendation)
{
    m_drawing.layer("WALLS").color(1);
    m_office.layer("WALLS").color(5);
    report();

    layerId("WALLS").safeOpenObject(OdDb::kForWrite)->erase();

    EXPECT_EQ(collected(m_violations.at(0).error), "WALLS@/office.dxf\n-1");
}
