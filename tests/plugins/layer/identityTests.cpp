// SPDX-License-Identifier: MIT
#include "CKvContractClasses.h"
#include "CKvLayerPluginImpl.h"
#include "CKvLayerTexts.h"
#include "auditText.h"

#include <gtest/gtest.h>

#include <memory>

namespace
{

class LayerIdentity : public testing::Test
{
protected:
    LayerIdentity() { CKvLayerPluginImpl::rxInit(); }
    ~LayerIdentity() override { CKvLayerPluginImpl::rxUninit(); }

    CKvContractClasses m_classes;
};

} // namespace

TEST_F(LayerIdentity, ThePluginTellsWhatItChecks)
{
    CKvLayerPluginImpl plugin;

    EXPECT_EQ(plugin.pluginName(), CKvString("Layers"));
    EXPECT_EQ(plugin.description(),
              CKvString("Verifies that names and properties of layers in a drawing match those in "
                        "an associated standards file."));
    EXPECT_EQ(plugin.pluginId(), CKvString("E81A7EB1-A22C-4bd4-96F8-725D0798DE29"));
    EXPECT_EQ(plugin.versionText(), CKvString("1.0"));
    EXPECT_EQ(plugin.objectFilter(), std::vector<CKvString>({ CKvString("LAYER") }));
    EXPECT_EQ(plugin.nameMessage(), CKvString("Layer name is non-standard."));
    EXPECT_EQ(plugin.propertyMessage(), CKvString("Layer properties are non-standard."));
}

TEST_F(LayerIdentity, ThePropertiesHaveTheseNames)
{
    EXPECT_EQ(CKvLayerTexts::nameProperty(), CKvString("Name"));
    EXPECT_EQ(CKvLayerTexts::lineColorProperty(), CKvString("LineColor"));
    EXPECT_EQ(CKvLayerTexts::lineWeightProperty(), CKvString("LineWeight"));
    EXPECT_EQ(CKvLayerTexts::lineStyleProperty(), CKvString("LineStyle"));
    EXPECT_EQ(CKvLayerTexts::objectTypeLabel(), CKvString("Layer"));
    EXPECT_EQ(CKvLayerTexts::messageWord(), CKvString("Layer"));
}

TEST_F(LayerIdentity, TheClassMakesThePluginAndNobodysPointerDestroysIt)
{
    CKvStdsPlugins *made = nullptr;
    {
        const CKvStdsPluginsPtr pointer(CKvLayerPluginImpl::desc()->create());
        made = pointer.get();
    }
    const std::unique_ptr<CKvStdsPlugins> owner(made);

    EXPECT_EQ(owner->pluginName(), CKvString("Layers"));
    EXPECT_EQ(owner->isA(), CKvLayerPluginImpl::desc());
}

TEST_F(LayerIdentity, TheClassIsOneOfThePlugins)
{
    EXPECT_EQ(CKvLayerPluginImpl::desc()->nameUtf8(), "CKvLayerPluginImpl");
    EXPECT_EQ(CKvLayerPluginImpl::desc()->myParent(), CKvStdsPlugins::desc());
    EXPECT_TRUE(CKvLayerPluginImpl::desc()->dxfName().isEmpty());
}

TEST_F(LayerIdentity, AskedForItsOwnOrItsFamilysClassThePluginAnswersItself)
{
    CKvLayerPluginImpl plugin;

    EXPECT_EQ(plugin.queryX(CKvLayerPluginImpl::desc()), &plugin);
    EXPECT_EQ(plugin.queryX(CKvStdsPlugins::desc()), &plugin);
    EXPECT_EQ(plugin.queryX(OdRxObject::desc()), &plugin);
    EXPECT_EQ(plugin.queryX(CKvStdsError::desc()), nullptr);
    EXPECT_EQ(plugin.queryX(nullptr), nullptr);
}

TEST_F(LayerIdentity, ASecondRegistrationIsRefused)
{
    try {
        CKvLayerPluginImpl::rxInit();
        FAIL() << "registered twice";
    } catch (const OdError &error) {
        EXPECT_EQ(error.code(), 313);
    }
}

TEST(LayerIdentityOutsideARun, UnregisteringWhatIsNotRegisteredIsRefused)
{
    try {
        CKvLayerPluginImpl::rxUninit();
        FAIL() << "unregistered out of nothing";
    } catch (const OdError &error) {
        EXPECT_EQ(error.code(), 255);
    }
}
