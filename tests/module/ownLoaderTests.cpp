// SPDX-License-Identifier: MIT
#include "CKvDrawingBuilder.h"
#include "CKvModuleTest.h"
#include "registeredClasses.h"

using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace
{

/// The way in which the programs of the project load a module.
using OwnLoader = CKvModuleTest;

} // namespace

TEST_F(OwnLoader, TakesTheModuleOnceAndLetsItGo)
{
    const QString path = QStringLiteral(KV_MODULE_FILE);

    session->modules().load(path);
    session->modules().load(path);

    EXPECT_EQ(session->modules().paths(), QStringList(path));
    EXPECT_THAT(pluginIds(), SizeIs(4));
    EXPECT_TRUE(session->modules().unload(path));
    EXPECT_FALSE(isResident());
    EXPECT_EQ(GetKvStandardManager(), nullptr);
    EXPECT_THAT(registeredClasses(), IsEmpty());
}

TEST_F(OwnLoader, AStartThatFailsIsToldAsItFailedAndLeavesNothingBehind)
{
    CKvDrawingBuilder damaged;
    damaged.namedObjects().xrecord("AcStStandard").group(1, "a.dws");
    const QString path = folder.filePath(QStringLiteral("damaged.dxf"));
    damaged.saveTo(path);
    CKvHostDocument &document = session->documentManager()->open(path);

    int code = 0;
    try {
        session->modules().load(QStringLiteral(KV_MODULE_FILE));
    } catch (const OdError_NotThatKindOfClass &error) {
        code = error.code();
    }

    EXPECT_EQ(code, int(OdResult::kNotThatKindOfClass));
    EXPECT_FALSE(isResident());
    EXPECT_EQ(GetKvStandardManager(), nullptr);
    EXPECT_THAT(registeredClasses(), IsEmpty());
    EXPECT_EQ(session->commands().names(), QStringList(QStringLiteral("RECOLOR")));
    session->documentManager()->close(document);
    session->modules().load(QStringLiteral(KV_MODULE_FILE));
    EXPECT_THAT(pluginIds(), SizeIs(4));
    session->modules().unloadAll();
}
