// SPDX-License-Identifier: MIT
#include "CKvMainWindow.h"
#include "CKvStdsManager.h"
#include "CKvWatchedDeskTest.h"

#include <QRegExp>

#include <dlfcn.h>

using ::testing::ElementsAre;

namespace
{

/// The module comes and goes while the desktop stays.
class ModuleInDesk : public CKvWatchedDeskTest
{
protected:
    static bool isResident()
    {
        void *resident = dlopen(KV_MODULE_FILE, RTLD_NOW | RTLD_NOLOAD);
        if (resident) {
            dlclose(resident);
        }
        return resident != nullptr;
    }
    void load() { session().modules().load(text(KV_MODULE_FILE)); }
    void unload() { EXPECT_TRUE(session().modules().unload(text(KV_MODULE_FILE))); }
};

} // namespace

TEST_F(ModuleInDesk, AHundredLoadsAndUnloadsLeaveTheDesktopAsItWas)
{
    keepObject();
    unload();
    const QStringList commands = session().commands().names();
    for (int i = 1; i <= 100; ++i) {
        load();
        enter(QString(text("LAYER COLOR WALLS ") + QString::number(2 + i % 5)));
        runPosted();
        ASSERT_EQ(told(), i);

        unload();

        ASSERT_FALSE(isResident());
        ASSERT_EQ(GetKvStandardManager(), nullptr);
        ASSERT_EQ(managerTimer(), nullptr);
        ASSERT_EQ(session().commands().names(), commands);
    }
    enter("LAYER COLOR WALLS 1");
    EXPECT_FALSE(hasPosted());
    enter("UNDO 101");
    EXPECT_EQ(bytes(), contentOf(path("plan.dxf")));
}

TEST_F(ModuleInDesk, AfterAWholeVerificationNothingOfTheModuleIsNeededAnyMore)
{
    enter("DIMSTYLE VARIABLE OFFICE DIMTXT 3.5");
    keepObject();
    runPosted();
    verifyAndFix();
    enter("VERIFYSTANDARDS");
    EXPECT_THAT(m_seen, ElementsAre("DimensionStyle: OFFICE", "Layer: DOORS"));

    unload();

    EXPECT_FALSE(isResident());
    // Qt's tables drop what they have kept of the module, which must not lie in its file.
    for (int i = 0; i < 1000; ++i) {
        EXPECT_TRUE(QString::number(i).contains(QRegExp(QString::number(i))));
    }
    m_desk->window().grab();
    enter("UNDO 2");
    EXPECT_EQ(bytes(), contentOf(path("plan.dxf")));
    load();
    m_seen.clear();
    enter("VERIFYSTANDARDS");
    EXPECT_THAT(m_seen, ElementsAre("Layer: DOORS"));
}

TEST_F(ModuleInDesk, ACheckThatWaitsWhileTheModuleGoesIsAnUnknownCommand)
{
    QStringList said;
    QObject::connect(&session().commandLine(),
                     &CKvCommandLine::printed,
                     &m_desk->window(),
                     [&](const QString &line) { said << line; });
    enter("LAYER COLOR WALLS 5");
    ASSERT_TRUE(hasPosted());

    unload();
    runPosted();

    EXPECT_EQ(said, QStringList(text("Unknown command \"_INTERSTATEVERIFY\".")));
    EXPECT_FALSE(isResident());
}
