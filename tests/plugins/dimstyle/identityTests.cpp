// SPDX-License-Identifier: MIT
#include "CKvContractClasses.h"
#include "CKvDimStylePluginImpl.h"
#include "CKvDimStyleTexts.h"
#include "auditText.h"

#include <gtest/gtest.h>

#include <memory>

namespace
{

class DimStyleIdentity : public testing::Test
{
protected:
    DimStyleIdentity() { CKvDimStylePluginImpl::rxInit(); }
    ~DimStyleIdentity() override { CKvDimStylePluginImpl::rxUninit(); }

    CKvContractClasses m_classes;
};

} // namespace

TEST_F(DimStyleIdentity, ThePluginTellsWhatItChecks)
{
    CKvDimStylePluginImpl plugin;

    EXPECT_EQ(plugin.pluginName(), CKvString("Dimension Styles"));
    EXPECT_EQ(plugin.description(),
              CKvString("Verifies that names and properties of dimension styles in a drawing match "
                        "those in an associated standards file."));
    EXPECT_EQ(plugin.pluginId(), CKvString("4396F213-94B2-44ed-98BC-777707D15528"));
    EXPECT_EQ(plugin.versionText(), CKvString("1.0"));
    EXPECT_EQ(plugin.objectFilter(), std::vector<CKvString>({ CKvString("DIMSTYLE") }));
    EXPECT_EQ(plugin.nameMessage(), CKvString("DimensionStyle name is non-standard."));
    EXPECT_EQ(plugin.propertyMessage(), CKvString("DimensionStyle properties are non-standard."));
}

TEST_F(DimStyleIdentity, AStyleIsCalledADimensionStyle)
{
    EXPECT_EQ(CKvDimStyleTexts::objectTypeLabel(), CKvString("DimensionStyle"));
    EXPECT_EQ(CKvDimStyleTexts::messageWord(), CKvString("DimensionStyle"));
}

TEST_F(DimStyleIdentity, TheClassMakesThePluginAndNobodysPointerDestroysIt)
{
    CKvStdsPlugins *made = nullptr;
    {
        const CKvStdsPluginsPtr pointer(CKvDimStylePluginImpl::desc()->create());
        made = pointer.get();
    }
    const std::unique_ptr<CKvStdsPlugins> owner(made);

    EXPECT_EQ(owner->pluginName(), CKvString("Dimension Styles"));
    EXPECT_EQ(owner->isA(), CKvDimStylePluginImpl::desc());
}

TEST_F(DimStyleIdentity, TheClassIsOneOfThePlugins)
{
    EXPECT_EQ(CKvDimStylePluginImpl::desc()->nameUtf8(), "CKvDimStylePluginImpl");
    EXPECT_EQ(CKvDimStylePluginImpl::desc()->myParent(), CKvStdsPlugins::desc());
    EXPECT_TRUE(CKvDimStylePluginImpl::desc()->dxfName().isEmpty());
}

TEST_F(DimStyleIdentity, AskedForItsOwnOrItsFamilysClassThePluginAnswersItself)
{
    CKvDimStylePluginImpl plugin;

    EXPECT_EQ(plugin.queryX(CKvDimStylePluginImpl::desc()), &plugin);
    EXPECT_EQ(plugin.queryX(CKvStdsPlugins::desc()), &plugin);
    EXPECT_EQ(plugin.queryX(OdRxObject::desc()), &plugin);
    EXPECT_EQ(plugin.queryX(CKvStdsError::desc()), nullptr);
    EXPECT_EQ(plugin.queryX(nullptr), nullptr);
}

TEST_F(DimStyleIdentity, ASecondRegistrationIsRefused)
{
    try {
        CKvDimStylePluginImpl::rxInit();
        FAIL() << "registered twice";
    } catch (const OdError &error) {
        EXPECT_EQ(error.code(), 313);
    }
}

TEST(DimStyleIdentityOutsideARun, UnregisteringWhatIsNotRegisteredIsRefused)
{
    try {
        CKvDimStylePluginImpl::rxUninit();
        FAIL() << "unregistered out of nothing";
    } catch (const OdError &error) {
        EXPECT_EQ(error.code(), 255);
    }
}
