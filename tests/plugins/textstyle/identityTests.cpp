// SPDX-License-Identifier: MIT
#include "CKvContractClasses.h"
#include "CKvTextStylePluginImpl.h"
#include "CKvTextStyleTexts.h"
#include "auditText.h"

#include <gtest/gtest.h>

#include <memory>

namespace
{

class TextStyleIdentity : public testing::Test
{
protected:
    TextStyleIdentity() { CKvTextStylePluginImpl::rxInit(); }
    ~TextStyleIdentity() override { CKvTextStylePluginImpl::rxUninit(); }

    CKvContractClasses m_classes;
};

} // namespace

TEST_F(TextStyleIdentity, ThePluginTellsWhatItChecks)
{
    CKvTextStylePluginImpl plugin;

    EXPECT_EQ(plugin.pluginName(), CKvString("Text Styles"));
    EXPECT_EQ(
        plugin.description(),
        CKvString("Verifies that names and properties of text styles in a drawing match those "
                  "in an associated standards file."));
    EXPECT_EQ(plugin.pluginId(), CKvString("AAC6DB88-85CC-4d38-BA98-511A5845362E"));
    EXPECT_EQ(plugin.versionText(), CKvString("1.0"));
    EXPECT_EQ(plugin.objectFilter(), std::vector<CKvString>({ CKvString("STYLE") }));
    EXPECT_EQ(plugin.nameMessage(), CKvString("TextStyle name is non-standard."));
    EXPECT_EQ(plugin.propertyMessage(), CKvString("TextStyle properties are non-standard."));
}

TEST_F(TextStyleIdentity, ThePropertiesHaveTheseNames)
{
    EXPECT_EQ(CKvTextStyleTexts::nameProperty(), CKvString("Name"));
    EXPECT_EQ(CKvTextStyleTexts::fontProperty(), CKvString("Font"));
    EXPECT_EQ(CKvTextStyleTexts::bigFontProperty(), CKvString("BigFont"));
    EXPECT_EQ(CKvTextStyleTexts::textHeightProperty(), CKvString("Text Height"));
    EXPECT_EQ(CKvTextStyleTexts::upsideDownProperty(), CKvString("Upside Down"));
    EXPECT_EQ(CKvTextStyleTexts::verticalProperty(), CKvString("Vertical"));
    EXPECT_EQ(CKvTextStyleTexts::backwardsProperty(), CKvString("Backwards"));
    EXPECT_EQ(CKvTextStyleTexts::widthProperty(), CKvString("Width"));
    EXPECT_EQ(CKvTextStyleTexts::obliqueAngleProperty(), CKvString("Oblique Angle"));
    EXPECT_EQ(CKvTextStyleTexts::fontStyleProperty(), CKvString("Font Style"));
    EXPECT_EQ(CKvTextStyleTexts::annotativeProperty(), CKvString("Annotative"));
    EXPECT_EQ(CKvTextStyleTexts::matchOrientationProperty(),
              CKvString("Match orientation to sheet"));
    EXPECT_EQ(CKvTextStyleTexts::objectTypeLabel(), CKvString("TextStyle"));
    EXPECT_EQ(CKvTextStyleTexts::messageWord(), CKvString("TextStyle"));
}

TEST_F(TextStyleIdentity, TheClassMakesThePluginAndNobodysPointerDestroysIt)
{
    CKvStdsPlugins *made = nullptr;
    {
        const CKvStdsPluginsPtr pointer(CKvTextStylePluginImpl::desc()->create());
        made = pointer.get();
    }
    const std::unique_ptr<CKvStdsPlugins> owner(made);

    EXPECT_EQ(owner->pluginName(), CKvString("Text Styles"));
    EXPECT_EQ(owner->isA(), CKvTextStylePluginImpl::desc());
}

TEST_F(TextStyleIdentity, TheClassIsOneOfThePlugins)
{
    EXPECT_EQ(CKvTextStylePluginImpl::desc()->nameUtf8(), "CKvTextStylePluginImpl");
    EXPECT_EQ(CKvTextStylePluginImpl::desc()->myParent(), CKvStdsPlugins::desc());
    EXPECT_TRUE(CKvTextStylePluginImpl::desc()->dxfName().isEmpty());
}

TEST_F(TextStyleIdentity, AskedForItsOwnOrItsFamilysClassThePluginAnswersItself)
{
    CKvTextStylePluginImpl plugin;

    EXPECT_EQ(plugin.queryX(CKvTextStylePluginImpl::desc()), &plugin);
    EXPECT_EQ(plugin.queryX(CKvStdsPlugins::desc()), &plugin);
    EXPECT_EQ(plugin.queryX(CKvStdsError::desc()), nullptr);
    EXPECT_EQ(plugin.queryX(nullptr), nullptr);
}

TEST_F(TextStyleIdentity, ASecondRegistrationIsRefused)
{
    try {
        CKvTextStylePluginImpl::rxInit();
        FAIL() << "registered twice";
    } catch (const OdError &error) {
        EXPECT_EQ(error.code(), 313);
    }
}

TEST(TextStyleIdentityOutsideARun, UnregisteringWhatIsNotRegisteredIsRefused)
{
    try {
        CKvTextStylePluginImpl::rxUninit();
        FAIL() << "unregistered out of nothing";
    } catch (const OdError &error) {
        EXPECT_EQ(error.code(), 255);
    }
}
