// SPDX-License-Identifier: MIT
#include "CKvContextTranslator.h"
#include "CKvTextStyleTest.h"

namespace
{

class TextStyleTranslation : public CKvTranslatedTest<CKvTextStyleTest>
{
};

} // namespace

TEST_F(TextStyleTranslation, MessagesAndTheirWordAreOfTheSharedContext)
{
    translate();

    EXPECT_EQ(m_plugin.nameMessage(),
              CKvString("<CKvStandardsPluginImpl><CKvStandardsPluginImpl>TextStyle name is "
                        "non-standard."));
    EXPECT_EQ(m_plugin.propertyMessage(),
              CKvString("<CKvStandardsPluginImpl><CKvStandardsPluginImpl>TextStyle properties are "
                        "non-standard."));
}

TEST_F(TextStyleTranslation, NameAndDescriptionAreOfThePluginsContext)
{
    translate();

    EXPECT_EQ(m_plugin.pluginName(), CKvString("<CKvTextStylePluginImpl>Text Styles"));
    EXPECT_EQ(m_plugin.description(),
              CKvString("<CKvTextStylePluginImpl>Verifies that names and properties of text styles "
                        "in a drawing match those in an associated standards file."));
    EXPECT_EQ(m_plugin.pluginId(), CKvString("AAC6DB88-85CC-4d38-BA98-511A5845362E"));
}

TEST_F(TextStyleTranslation, LabelsAndPropertyNamesAreOfThePluginsContext)
{
    translate();
    m_drawing.textStyle("MINE");
    m_office.textStyle("NOTES");

    report();
    const CKvStdsErrorPtr error = violationOf("MINE").error;

    EXPECT_EQ(error->objectType(), CKvString("<CKvTextStylePluginImpl>TextStyle"));
    EXPECT_EQ(error->propertyCount(), 12);
    for (const auto &[name, value] : error->properties()) {
        EXPECT_TRUE(name.toQString().startsWith(QLatin1String("<CKvTextStylePluginImpl>")))
            << name.toQString().toStdString();
    }
}

TEST_F(TextStyleTranslation, ACheckAndARepairWorkUnderATranslationAndFontStylesHaveNone)
{
    translate();
    m_drawing.textStyle("NOTES").font("arial.ttf").typeface("Arial", 0).height(2.5);
    m_office.textStyle("NOTES").font("arial.ttf").typeface("Arial", kBoldFont).height(3.5);
    report();

    const std::string rows = preview("NOTES", "NOTES");
    repair("NOTES", "NOTES");

    EXPECT_EQ(rows,
              "<CKvTextStylePluginImpl>Font Style: Normal -> Bold\n"
              "<CKvTextStylePluginImpl>Text Height: 2.5000 -> 3.5000\n");
    EXPECT_EQ(reportAgain(), "");
}
