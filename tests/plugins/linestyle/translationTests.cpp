// SPDX-License-Identifier: MIT
#include "CKvContextTranslator.h"
#include "CKvLineStyleTest.h"

namespace
{

class LineStyleTranslation : public CKvTranslatedTest<CKvLineStyleTest>
{
};

} // namespace

TEST_F(LineStyleTranslation, MessagesAndTheirWordAreOfTheSharedContext)
{
    translate();

    EXPECT_EQ(m_plugin.nameMessage(),
              CKvString("<CKvStandardsPluginImpl><CKvStandardsPluginImpl>LineStyle name is "
                        "non-standard."));
    EXPECT_EQ(m_plugin.propertyMessage(),
              CKvString("<CKvStandardsPluginImpl><CKvStandardsPluginImpl>LineStyle properties are "
                        "non-standard."));
}

TEST_F(LineStyleTranslation, NameAndDescriptionAreOfThePluginsContext)
{
    translate();

    EXPECT_EQ(m_plugin.pluginName(), CKvString("<CKvLineStylePluginImpl>Line Styles"));
    EXPECT_EQ(m_plugin.description(),
              CKvString("<CKvLineStylePluginImpl>Verifies that names and properties of line style "
                        "in a drawing match those in an associated standards file."));
    EXPECT_EQ(m_plugin.pluginId(), CKvString("6AA1E422-764F-4b58-83DE-69F5897B7D78"));
}

TEST_F(LineStyleTranslation, LabelsAndPropertyNamesAreOfThePluginsContext)
{
    translate();
    m_drawing.lineStyle("MINE");
    m_office.lineStyle("DASHED");

    report();

    EXPECT_EQ(violationOf("MINE").error->objectType(),
              CKvString("<CKvLineStylePluginImpl>LineStyle"));
    EXPECT_EQ(propertiesText(violationOf("MINE").error),
              "<CKvLineStylePluginImpl>Dashes=0 <CKvLineStylePluginImpl>Name=MINE "
              "<CKvLineStylePluginImpl>Pattern Length=0.0000");
}

TEST_F(LineStyleTranslation, ACheckAndARepairWorkUnderATranslation)
{
    translate();
    m_drawing.lineStyle("DASHED").dashes({ 1, -1 });
    m_office.lineStyle("DASHED").dashes({ 2, -2 });
    report();

    const std::string rows = preview("DASHED", "DASHED");
    repair("DASHED", "DASHED");

    EXPECT_EQ(rows, "<CKvLineStylePluginImpl>Pattern Length: 2.0000 -> 4.0000\n");
    EXPECT_EQ(lineStyles(), "DASHED 2 4.0000\n");
}
