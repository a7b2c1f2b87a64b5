// SPDX-License-Identifier: MIT
#include "CKvContractClasses.h"
#include "CKvLineStylePluginImpl.h"
#include "CKvLineStyleTexts.h"
#include "auditText.h"

#include <gtest/gtest.h>

#include <memory>

namespace
{

class LineStyleIdentity : public testing::Test
{
protected:
    LineStyleIdentity() { CKvLineStylePluginImpl::rxInit(); }
    ~LineStyleIdentity() override { CKvLineStylePluginImpl::rxUninit(); }

    CKvContractClasses m_classes;
};

} // namespace

TEST_F(LineStyleIdentity, ThePluginTellsWhatItChecks)
{
    CKvLineStylePluginImpl plugin;

    EXPECT_EQ(plugin.pluginName(), CKvString("Line Styles"));
    EXPECT_EQ(plugin.description(),
              CKvString("Verifies that names and properties of line style in a drawing match those "
                        "in an associated standards file."));
    EXPECT_EQ(plugin.pluginId(), CKvString("6AA1E422-764F-4b58-83DE-69F5897B7D78"));
    EXPECT_EQ(plugin.versionText(), CKvString("1.0"));
    EXPECT_EQ(plugin.objectFilter(), std::vector<CKvString>({ CKvString("LTYPE") }));
    EXPECT_EQ(plugin.nameMessage(), CKvString("LineStyle name is non-standard."));
    EXPECT_EQ(plugin.propertyMessage(), CKvString("LineStyle properties are non-standard."));
}

TEST_F(LineStyleIdentity, ThePropertiesHaveTheseNames)
{
    EXPECT_EQ(CKvLineStyleTexts::nameProperty(), CKvString("Name"));
    EXPECT_EQ(CKvLineStyleTexts::dashesProperty(), CKvString("Dashes"));
    EXPECT_EQ(CKvLineStyleTexts::patternLengthProperty(), CKvString("Pattern Length"));
    EXPECT_EQ(CKvLineStyleTexts::objectTypeLabel(), CKvString("LineStyle"));
    EXPECT_EQ(CKvLineStyleTexts::messageWord(), CKvString("LineStyle"));
}

TEST_F(LineStyleIdentity, TheClassMakesThePluginAndNobodysPointerDestroysIt)
{
    CKvStdsPlugins *made = nullptr;
    {
        const CKvStdsPluginsPtr pointer(CKvLineStylePluginImpl::desc()->create());
        made = pointer.get();
    }
    const std::unique_ptr<CKvStdsPlugins> owner(made);

    EXPECT_EQ(owner->pluginName(), CKvString("Line Styles"));
    EXPECT_EQ(owner->isA(), CKvLineStylePluginImpl::desc());
}

TEST_F(LineStyleIdentity, TheClassIsOneOfThePlugins)
{
    EXPECT_EQ(CKvLineStylePluginImpl::desc()->nameUtf8(), "CKvLineStylePluginImpl");
    EXPECT_EQ(CKvLineStylePluginImpl::desc()->myParent(), CKvStdsPlugins::desc());
    EXPECT_TRUE(CKvLineStylePluginImpl::desc()->dxfName().isEmpty());
}

TEST_F(LineStyleIdentity, AskedForItsOwnOrItsFamilysClassThePluginAnswersItself)
{
    CKvLineStylePluginImpl plugin;

    EXPECT_EQ(plugin.queryX(CKvLineStylePluginImpl::desc()), &plugin);
    EXPECT_EQ(plugin.queryX(CKvStdsPlugins::desc()), &plugin);
    EXPECT_EQ(plugin.queryX(CKvStdsError::desc()), nullptr);
    EXPECT_EQ(plugin.queryX(nullptr), nullptr);
}

TEST_F(LineStyleIdentity, ASecondRegistrationIsRefused)
{
    try {
        CKvLineStylePluginImpl::rxInit();
        FAIL() << "registered twice";
    } catch (const OdError &error) {
        EXPECT_EQ(error.code(), 313);
    }
}

TEST(LineStyleIdentityOutsideARun, UnregisteringWhatIsNotRegisteredIsRefused)
{
    try {
        CKvLineStylePluginImpl::rxUninit();
        FAIL() << "unregistered out of nothing";
    } catch (const OdError &error) {
        EXPECT_EQ(error.code(), 255);
    }
}
