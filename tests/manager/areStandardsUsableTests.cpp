// SPDX-License-Identifier: MIT
#include "areStandardsUsable.h"

#include "CKvRecordingPlugin.h"

#include <gtest/gtest.h>

namespace
{

using Texts = std::vector<CKvString>;

struct Usable : testing::Test {
    bool usable(const Texts &paths, const Texts &names)
    {
        return areStandardsUsable(paths, names, plugins, [this](const CKvString &path) {
            asked.push_back(path.toQString().toStdString());
            return path != CKvString("gone");
        });
    }

    std::vector<std::string> calls;
    CKvRecordingPlugin plugin { "a", calls };
    CKvStdsPluginList plugins;
    std::vector<std::string> asked;
};

} // namespace

TEST_F(Usable, BothListsAreEnoughEvenWithoutAPlugin)
{
    EXPECT_TRUE(usable({ CKvString("a") }, { CKvString("a") }));
    EXPECT_EQ(asked, std::vector<std::string>());
}

TEST_F(Usable, NothingIsNotUsable)
{
    plugins.push_back(CKvStdsPluginsPtr(&plugin));

    EXPECT_FALSE(usable({}, {}));
}

TEST_F(Usable, NamesAloneCountWhenAPluginIsEnabled)
{
    EXPECT_FALSE(usable({}, { CKvString("a") }));

    plugins.push_back(CKvStdsPluginsPtr(&plugin));

    EXPECT_TRUE(usable({}, { CKvString("a") }));

    plugin.disable();

    EXPECT_FALSE(usable({}, { CKvString("a") }));
}

TEST_F(Usable, PathsAloneNeverCountAndAreTriedUpToTheFirstThatIsNotFound)
{
    plugins.push_back(CKvStdsPluginsPtr(&plugin));

    EXPECT_FALSE(usable({ CKvString("a"), CKvString("b") }, {}));
    EXPECT_FALSE(usable({ CKvString("c"), CKvString("gone"), CKvString("d") }, {}));

    EXPECT_EQ(asked, (std::vector<std::string> { "a", "b", "c", "gone" }));
}
