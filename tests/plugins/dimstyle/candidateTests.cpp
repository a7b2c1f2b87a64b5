// SPDX-License-Identifier: MIT
#include "CKvDimStyleTest.h"

namespace
{

class DimStyleCandidates : public CKvDimStyleTest
{
};

/// Keeps the fix that is made and thrown away while candidates are collected.
class CKvListeningPlugin : public CKvDimStylePluginImpl
{
public:
    CKvStdsFixPtr recommendedFix(CKvStdsErrorPtr error) override
    {
        lastRecommended = CKvDimStylePluginImpl::recommendedFix(error);
        return lastRecommended;
    }

    CKvStdsFixPtr lastRecommended;
};

} // namespace

TEST_F(DimStyleCandidates, ANameViolationIsOfferedEveryStyle)
{
    m_drawing.dimStyle("MINE");
    m_office.dimStyle("A").group(41, 2.5);
    m_office.dimStyle("ISO-25");
    m_office.dimStyle("Standard");

    EXPECT_EQ(report(),
              "MINE: DimensionStyle name is non-standard. A@/office.dxf ISO-25@/office.dxf "
              "Standard@/office.dxf\n");
}

TEST_F(DimStyleCandidates, APropertyViolationIsOfferedEveryStyleAlsoThoseWithoutADifference)
{
    m_drawing.dimStyle("OFFICE").group(41, 2.5);
    m_office.dimStyle("EQUAL").group(41, 2.5);
    m_office.dimStyle("OFFICE").group(41, 3.5);
    m_office.dimStyle("OTHER").group(41, 4.5);

    EXPECT_EQ(report(),
              "OFFICE: DimensionStyle properties are non-standard. EQUAL@/office.dxf "
              "OFFICE@/office.dxf* OTHER@/office.dxf\n");
}

TEST_F(DimStyleCandidates, WrongPropertiesOfIso25AreOfferedIso25Only)
{
    CKvDrawingBuilder firm;
    firm.dimStyle("iso-25").group(41, 9.5);
    m_services.setDrawing("/firm.dxf", firm);
    m_drawing.dimStyle("iso-25").group(41, 1.5);
    m_office.dimStyle("OFFICE");
    m_office.dimStyle("Iso-25").group(41, 2.5);

    EXPECT_EQ(report({ QStringLiteral("/office.dxf"), QStringLiteral("/firm.dxf") }),
              "iso-25: DimensionStyle properties are non-standard. Iso-25@/office.dxf* "
              "iso-25@/firm.dxf\n");
}

TEST_F(DimStyleCandidates, AnIso25ThatTheStandardsLackIsOfferedEveryStyle)
{
    m_drawing.dimStyle("ISO-25");
    m_office.dimStyle("A");
    m_office.dimStyle("B");

    EXPECT_EQ(report(),
              "ISO-25: DimensionStyle name is non-standard. A@/office.dxf B@/office.dxf\n");
}

TEST_F(DimStyleCandidates, OtherStylesAreOfferedIso25Too)
{
    m_drawing.dimStyle("OFFICE").group(41, 1.5);
    m_office.dimStyle("OFFICE");
    m_office.dimStyle("ISO-25");

    EXPECT_EQ(report(),
              "OFFICE: DimensionStyle properties are non-standard. OFFICE@/office.dxf* "
              "ISO-25@/office.dxf\n");
}

// Wrong properties are compared with the styles of the first file alone; that is intended.
TEST_F(DimStyleCandidates, AStyleThatTheFirstFileLacksIsNotOfferedForProperties)
{
    CKvDrawingBuilder firm;
    firm.dimStyle("FIRM");
    firm.dimStyle("office").group(41, 4.5);
    m_services.setDrawing("/firm.dxf", firm);
    m_drawing.dimStyle("OFFICE").group(41, 1.5);
    m_drawing.dimStyle("MINE");
    m_office.dimStyle("OFFICE");

    EXPECT_EQ(report({ QStringLiteral("/office.dxf"), QStringLiteral("/firm.dxf") }),
              "OFFICE: DimensionStyle properties are non-standard. OFFICE@/office.dxf* "
              "office@/firm.dxf\n"
              "MINE: DimensionStyle name is non-standard. OFFICE@/office.dxf FIRM@/firm.dxf "
              "office@/firm.dxf\n");
}

TEST_F(DimStyleCandidates, AFixHoldsTheValuesOfItsStyleAndItsId)
{
    m_drawing.dimStyle("MINE");
    m_office.dimStyle("Office").group(41, 2.5).annotative(1);
    report();

    const CKvStdsFixPtr fix = fixOf(violationOf("MINE"), "Office");

    EXPECT_EQ(fix->name(), CKvString("Office"));
    EXPECT_EQ(fix->objectName(), CKvString("Office"));
    EXPECT_EQ(fix->standardsFile(), CKvString("/office.dxf"));
    EXPECT_EQ(nameOf(fix->objectId()), "Office");
    EXPECT_EQ(fix->objectId().database(), m_services.lastRead("/office.dxf").get());
    EXPECT_EQ(fix->propertyCount(), 79);
    EXPECT_EQ(valueText(fix->property(CKvString("DIMASZ"))), "2.5");
    EXPECT_EQ(valueText(fix->property(CKvString("ANNOTATIVE"))), "true");
}

TEST_F(DimStyleCandidates, TheRecommendedFixIsNewHoldsAllValuesAndNoId)
{
    m_drawing.dimStyle("OFFICE").group(41, 1.5);
    m_office.dimStyle("Office").group(41, 2.5);
    report();
    CKvListeningPlugin plugin;

    const auto violations = audit(plugin, m_database, { QStringLiteral("/office.dxf") });
    const CKvStdsFixPtr fix = plugin.lastRecommended;

    EXPECT_NE(fix, violations.at(0).fixes.at(0));
    EXPECT_EQ(fix->name(), CKvString("Office"));
    EXPECT_EQ(fix->standardsFile(), CKvString("/office.dxf"));
    EXPECT_EQ(fix->propertyCount(), 79);
    EXPECT_EQ(valueText(fix->property(CKvString("DIMASZ"))), "2.5");
    EXPECT_TRUE(fix->objectId().isNull());
}

TEST_F(DimStyleCandidates, ViolationsShareTheirArray)
{
    for (const char *name : { "A", "B" }) {
        m_drawing.dimStyle(name).group(41, 1.5);
        m_office.dimStyle(name).group(41, 2.5);
    }
    report();

    EXPECT_TRUE(violationOf("A").fixes.sharesWith(violationOf("B").fixes));
    EXPECT_EQ(violationOf("A").recommendedFix, 0);
    EXPECT_EQ(violationOf("B").recommendedFix, 1);
}

TEST_F(DimStyleCandidates, TheNameIsThatOfTheStyleAsItIsNow)
{
    m_drawing.dimStyle("MINE");
    m_office.dimStyle("OFFICE");
    m_office.dimStyle("OTHER");
    report();
    OdDbDimStyleTableRecordPtr(styleId("MINE").openObject(OdDb::kForWrite))
        ->setName(OdString("OTHER"));
    OdArray<CKvStdsFixPtr> fixes;
    std::int32_t recommended = 99;

    m_plugin.collectFixes(violationOf("MINE").error, fixes, recommended);

    EXPECT_EQ(fixesText(fixes), "OFFICE@/office.dxf\n");
    EXPECT_EQ(recommended, -1);
}
