// SPDX-License-Identifier: MIT
#include "CKvContextTranslator.h"
#include "CKvLayerTest.h"
#include "lineweightNames.h"

namespace
{

class LayerTranslation : public CKvTranslatedTest<CKvLayerTest>
{
};

} // namespace

TEST_F(LayerTranslation, MessagesAndTheirWordAreOfTheSharedContext)
{
    translate();

    EXPECT_EQ(m_plugin.nameMessage(),
              CKvString("<CKvStandardsPluginImpl><CKvStandardsPluginImpl>Layer name is "
                        "non-standard."));
    EXPECT_EQ(m_plugin.propertyMessage(),
              CKvString("<CKvStandardsPluginImpl><CKvStandardsPluginImpl>Layer properties are "
                        "non-standard."));
}

TEST_F(LayerTranslation, NameAndDescriptionAreOfThePluginsContext)
{
    translate();

    EXPECT_EQ(m_plugin.pluginName(), CKvString("<CKvLayerPluginImpl>Layers"));
    EXPECT_EQ(m_plugin.description(),
              CKvString("<CKvLayerPluginImpl>Verifies that names and properties of layers in a "
                        "drawing match those in an associated standards file."));
    EXPECT_EQ(m_plugin.pluginId(), CKvString("E81A7EB1-A22C-4bd4-96F8-725D0798DE29"));
}

TEST_F(LayerTranslation, LabelsAndPropertyNamesAreOfThePluginsContext)
{
    translate();
    m_drawing.layer("ATTIC").color(1);
    m_office.layer("WALLS");

    report();

    EXPECT_EQ(violationOf("ATTIC").error->objectType(), CKvString("<CKvLayerPluginImpl>Layer"));
    EXPECT_EQ(propertiesText(violationOf("ATTIC").error),
              "<CKvLayerPluginImpl>LineColor=red <CKvLayerPluginImpl>LineStyle=Continuous "
              "<CKvLayerPluginImpl>LineWeight=<CKvCommand>Default <CKvLayerPluginImpl>Name=ATTIC");
}

TEST_F(LayerTranslation, ACheckAndARepairWorkUnderATranslation)
{
    translate();
    m_drawing.withReservedLineStyles();
    m_drawing.layer("WALLS").color(1).lineWeight(25);
    m_office.layer("WALLS").color(5).lineWeight(30);
    m_office.layer("DOORS").color(1).lineWeight(25);
    report();

    const std::string rows = preview("WALLS", "WALLS");
    repair("WALLS", "WALLS");

    EXPECT_EQ(rows,
              "<CKvLayerPluginImpl>LineColor: red -> blue\n"
              "<CKvLayerPluginImpl>LineWeight: 0.25 mm -> 0.30 mm\n");
    EXPECT_EQ(layers(), "WALLS blue Continuous 30\n");
}

TEST_F(LayerTranslation, AViolationOfAnotherLanguageIsOfferedNothing)
{
    m_drawing.layer("WALLS").color(1);
    m_office.layer("WALLS").color(5);
    report();
    OdArray<CKvStdsFixPtr> fixes;
    std::int32_t recommended = 99;

    translate();
    m_plugin.collectFixes(violationOf("WALLS").error, fixes, recommended);

    EXPECT_EQ(fixesText(fixes), "");
    EXPECT_EQ(recommended, -1);
}

TEST_F(LayerTranslation, OnlyDefaultIsTranslatedAmongTheLineweights)
{
    translate();

    EXPECT_EQ(ConvertLineweightToName(OdDb::kLineWeightByDefault),
              CKvString("<CKvCommand>Default"));
    EXPECT_EQ(ConvertLineweightToName(OdDb::kLineWeightByBlock), CKvString("ByBlock"));
    EXPECT_EQ(ConvertLineweightToName(OdDb::LineWeight(25)), CKvString("0.25 mm"));
}
