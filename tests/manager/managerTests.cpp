// SPDX-License-Identifier: MIT
#include "CKvManagerTest.h"
#include "CKvRecordingPlugin.h"
#include "CKvStdsFix.h"

#include <QMetaMethod>
#include <QTimer>

namespace
{

struct StandardsManager : CKvManagerTest {
    // The manager goes before the plug-ins.
    ~StandardsManager() override { removeManager(); }
    /// A smart pointer to a plug-in, as the manager takes it.
    static CKvStdsPluginsPtr pointer(CKvRecordingPlugin &plugin)
    {
        return CKvStdsPluginsPtr(&plugin);
    }
    std::vector<const CKvStdsPlugins *> listed() const
    {
        CKvStdsPluginList plugins;
        EXPECT_TRUE(manager->plugins(plugins));
        std::vector<const CKvStdsPlugins *> bare;
        for (const CKvStdsPluginsPtr &plugin : plugins) {
            bare.push_back(plugin.get());
        }
        return bare;
    }

    std::vector<std::string> calls;
    CKvRecordingPlugin a { "a", calls };
    CKvRecordingPlugin b { "b", calls };
    CKvRecordingPlugin likeA { "a", calls };
};

/// A plug-in that introduces itself.
class CKvNamedPlugin : public CKvRecordingPlugin
{
public:
    using CKvRecordingPlugin::CKvRecordingPlugin;
    CKvString authorName() const override { return CKvString("author"); }
    CKvString description() const override { return CKvString("description"); }
    CKvString linkText() const override { return CKvString("link"); }
    CKvString pluginName() const override { return CKvString("name"); }
    CKvString versionText() const override { return CKvString("version"); }
};

} // namespace

TEST_F(StandardsManager, BeginsEmptyAndHidden)
{
    EXPECT_EQ(standardsFiles(), "");
    EXPECT_EQ(listed(), std::vector<const CKvStdsPlugins *>());
    EXPECT_EQ(manager->currentPluginId(), CKvString());
    EXPECT_FALSE(manager->isInterStateCheck());
    EXPECT_TRUE(manager->changedObjects().empty());
    EXPECT_FALSE(manager->hasUsableStandards());
    EXPECT_EQ(manager->parentWidget(), nullptr);
    EXPECT_FALSE(manager->isVisible());
}

TEST_F(StandardsManager, TheTimerRepeatsEvery50MillisecondsAndDoesNotRunYet)
{
    const QList<QTimer *> timers =
        manager->findChildren<QTimer *>(QString(), Qt::FindDirectChildrenOnly);

    ASSERT_EQ(timers.size(), 1);
    EXPECT_EQ(timers[0]->interval(), 50);
    EXPECT_FALSE(timers[0]->isSingleShot());
    EXPECT_FALSE(timers[0]->isActive());
}

TEST_F(StandardsManager, TheMetaObjectHasOneSlotAndCastsToTheInterface)
{
    const QMetaObject &meta = CKvStdsManagerImpl::staticMetaObject;
    CKvStdsManagerImpl &implementation = *manager;

    EXPECT_STREQ(meta.className(), "CKvStdsManagerImpl");
    ASSERT_EQ(meta.methodCount() - meta.methodOffset(), 1);
    EXPECT_EQ(meta.method(meta.methodOffset()).methodSignature(), "timerTimeout()");
    EXPECT_EQ(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Slot);
    EXPECT_EQ(implementation.qt_metacast("CKvStdsManager"),
              static_cast<void *>(static_cast<CKvStdsManager *>(&implementation)));
}

TEST_F(StandardsManager, RegistersTheClassesOfViolationsAndFixesForAsLongAsItLives)
{
    EXPECT_NE(CKvStdsFix::desc(), nullptr);
    EXPECT_NE(CKvStdsError::desc(), nullptr);

    removeManager();

    EXPECT_EQ(CKvStdsFix::desc(), nullptr);
    EXPECT_EQ(CKvStdsError::desc(), nullptr);
}

TEST_F(StandardsManager, SettingThePathsChangesNothing)
{
    const QString office = file("office.dws");
    manager->loadDocumentStandards(&open(QStringList(office)));

    manager->setStandardsPaths({ CKvString("/other.dws") });

    EXPECT_EQ(manager->standardsPaths(), std::vector<CKvString>({ CKvString(office) }));
}

TEST_F(StandardsManager, APluginInfoTellsTheFiveTextsOfThePlugin)
{
    CKvNamedPlugin plugin("a", calls);
    CKvString name;
    CKvString version;
    CKvString description;
    CKvString author;
    CKvString link;

    manager->pluginInfo(CKvStdsPluginsPtr(&plugin), name, version, description, author, link);

    EXPECT_EQ(name, CKvString("name"));
    EXPECT_EQ(version, CKvString("version"));
    EXPECT_EQ(description, CKvString("description"));
    EXPECT_EQ(author, CKvString("author"));
    EXPECT_EQ(link, CKvString("link"));
}

TEST_F(StandardsManager, APluginInfoOfNoPluginLeavesTheTextsAlone)
{
    CKvString text("before");
    CKvString other("before");

    manager->pluginInfo(CKvStdsPluginsPtr(), text, other, other, other, text);

    EXPECT_EQ(text, CKvString("before"));
    EXPECT_EQ(other, CKvString("before"));
}

TEST_F(StandardsManager, PluginsAreListedInTheOrderInWhichTheyCame)
{
    manager->addPlugin(pointer(b));
    manager->addPlugin(pointer(a));
    manager->addPlugin(pointer(b));

    EXPECT_EQ(listed(), (std::vector<const CKvStdsPlugins *> { &b, &a, &b }));
}

TEST_F(StandardsManager, TheListOfPluginsReplacesWhatTheCallerHad)
{
    manager->addPlugin(pointer(a));
    CKvStdsPluginList plugins = { pointer(b), pointer(b) };

    EXPECT_TRUE(manager->plugins(plugins));

    EXPECT_EQ(plugins, CKvStdsPluginList { pointer(a) });
}

TEST_F(StandardsManager, RemovingAPluginTakesEveryEntryOfItOut)
{
    manager->addPlugin(pointer(b));
    manager->addPlugin(pointer(a));
    manager->addPlugin(pointer(b));

    manager->removePlugin(pointer(b));

    EXPECT_EQ(listed(), (std::vector<const CKvStdsPlugins *> { &a }));
}

TEST_F(StandardsManager, RemovingAPluginThatIsNotListedChangesNothing)
{
    manager->addPlugin(pointer(a));

    manager->removePlugin(pointer(b));

    EXPECT_EQ(listed(), (std::vector<const CKvStdsPlugins *> { &a }));
}

TEST_F(StandardsManager, APluginIsFoundByItsIdWhateverTheLetterCase)
{
    manager->addPlugin(pointer(b));
    manager->addPlugin(pointer(a));
    manager->addPlugin(pointer(likeA));

    EXPECT_EQ(manager->findPlugin(CKvString("A-ID")).get(), &a);
    EXPECT_EQ(manager->findPlugin(CKvString("b-id")).get(), &b);
    EXPECT_EQ(manager->findPlugin(CKvString("c-id")).get(), nullptr);
}

TEST_F(StandardsManager, TheIdOfThePresentPluginIsKept)
{
    manager->setCurrentPluginId(CKvString("x"));

    EXPECT_EQ(manager->currentPluginId(), CKvString("x"));
}

TEST_F(StandardsManager, TheFlagOfTheInterStateCheckGoesUpAndDown)
{
    manager->beginInterStateCheck();

    EXPECT_TRUE(manager->isInterStateCheck());

    manager->endInterStateCheck();

    EXPECT_FALSE(manager->isInterStateCheck());
}

TEST_F(StandardsManager, TheReservedOperationsDoNothing)
{
    CKvSessionDocument &opened = openTracked();
    host.forgetCalls();

    manager->reservedOperation1();
    manager->reservedOperation2();
    manager->reservedOperation3();

    EXPECT_EQ(host.calls(), std::vector<std::string>());
    EXPECT_TRUE(hears(opened));
}

TEST_F(StandardsManager, IsFoundOnlyWhenItIsTheOneThatTheHostHas)
{
    EXPECT_EQ(CKvStdsManagerImpl::current(), manager.get());

    SetKvStandardManager(nullptr);

    EXPECT_EQ(CKvStdsManagerImpl::current(), nullptr);
}

TEST_F(StandardsManager, ADrawingThatIsWatchedOutlivesIt)
{
    CKvSessionDocument &opened = openTracked();

    removeManager();
    opened.changeLayer("WALLS", 6);

    EXPECT_EQ(opened.layer("WALLS").isNull(), false);
}
