// SPDX-License-Identifier: MIT
#include "CKvLineStyleTest.h"

#include "CKvStdsProperty.h"

namespace
{

class LineStylePreview : public CKvLineStyleTest
{
};

} // namespace

TEST_F(LineStylePreview, WhatDiffersIsShownInTheOrderOfTheNames)
{
    m_drawing.lineStyle("MINE").dashes({ 0.5, -0.25 });
    m_office.lineStyle("DASHED").dashes({ 1, -1, 0, -1 });
    report();

    EXPECT_EQ(preview("MINE", "DASHED"),
              "Dashes: 2 -> 4\n"
              "Name: MINE -> DASHED\n"
              "Pattern Length: 0.7500 -> 3.0000\n");
}

TEST_F(LineStylePreview, WhatIsEqualIsNotShown)
{
    m_drawing.lineStyle("dashed").dashes({ 0.5, -0.25 });
    m_office.lineStyle("DASHED").dashes({ 0.5, -0.5 });
    report();

    // A change of letter case alone is none.
    EXPECT_EQ(preview("dashed", "DASHED"), "Pattern Length: 0.7500 -> 1.0000\n");
}

TEST_F(LineStylePreview, ACandidateOfAnotherNameShowsTheName)
{
    m_drawing.lineStyle("MINE").dashes({ 0.5, -0.25 });
    m_office.lineStyle("DASHED").dashes({ 0.5, -0.25 });
    report();

    EXPECT_EQ(preview("MINE", "DASHED"), "Name: MINE -> DASHED\n");
}

TEST_F(LineStylePreview, ALengthWithinTheToleranceIsNotShown)
{
    m_drawing.lineStyle("MINE").dashes({ 0.5, -0.25 });
    m_office.lineStyle("DASHED").dashes({ 0.5, -0.25 }).patternLength(0.75 + 1e-11);
    m_office.lineStyle("CENTER").dashes({ 0.5, -0.25 }).patternLength(0.75 + 1e-9);
    report();

    EXPECT_EQ(preview("MINE", "DASHED"), "Name: MINE -> DASHED\n");
    EXPECT_EQ(preview("MINE", "CENTER"),
              "Name: MINE -> CENTER\nPattern Length: 0.7500 -> 0.7500\n");
}

TEST_F(LineStylePreview, ValuesOfTwoTypesAlwaysDifferAndThoseOfAnUnknownTypeNever)
{
    CKvStdsErrorPtr error = CKvStdsError::createObject();
    CKvStdsFixPtr fix = CKvStdsFix::createObject();
    const CKvString name;
    error->addProperty(CKvString("A"), CKvStdsProperty::real(name, 2).value);
    fix->addProperty(CKvString("A"), CKvStdsProperty::integer(name, 2).value);
    error->addProperty(CKvString("B"), CKvStdsProperty::flag(name, true).value);
    fix->addProperty(CKvString("B"), CKvStdsProperty::flag(name, false).value);
    error->addProperty(CKvString("C"), CKvStdsProperty::text(name, CKvString("x")).value);

    EXPECT_EQ(previewText(m_plugin, error, fix), "A: 2.0000 -> 2\n");
}
