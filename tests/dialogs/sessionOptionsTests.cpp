// SPDX-License-Identifier: MIT
#include "CKvFakeManager.h"
#include "CKvForeignMemory.h"
#include "CKvVerifyBench.h"
#include "OdDbDictionary.h"
#include "OdDbXrecord.h"
#include "standardsList.h"

#include <QDialogButtonBox>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include <gmock/gmock.h>

#include <functional>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

const QStringList kTwo { QStringLiteral("A"), QStringLiteral("B") };

/// A session over a drawing that lists two standards files, with a manager of two plug-ins.
class SessionOptions : public testing::Test
{
protected:
    CKvVerifyBench m_bench { kTwo, withFiles({ "/std/one.dxf", "/std/two.dxf" }) };
    std::vector<std::string> m_calls;
    CKvRecordingPlugin m_styles { "styles", m_calls };
    CKvFakeManager m_manager;
    std::vector<std::string> m_warnings;

    void SetUp() override
    {
        m_manager.addPlugin(CKvStdsPluginsPtr(&m_bench.plugin()));
        m_manager.addPlugin(CKvStdsPluginsPtr(&m_styles));
        m_bench.script().answer(QStringLiteral("QMessageBox"), [this](QDialog &dialog) {
            auto &box = dynamic_cast<QMessageBox &>(dialog);
            m_warnings.push_back(box.windowTitle().toStdString() + ": " + box.text().toStdString());
            EXPECT_EQ(box.parentWidget(), m_bench.host().mainWindow());
            EXPECT_EQ(box.standardButtons(), QMessageBox::Close);
            EXPECT_EQ(box.defaultButton(), nullptr);
            EXPECT_EQ(box.icon(), QMessageBox::Warning);
            QTest::mouseClick(box.button(QMessageBox::Close), Qt::LeftButton);
        });
        m_bench.show();
        m_bench.click("NextIssueButton");
    }

    static CKvDrawingBuilder withFiles(const std::vector<const char *> &paths)
    {
        QStringList list;
        for (const char *path : paths) {
            list.append(QString::fromLatin1(path));
        }
        return CKvDrawingBuilder().standardsFiles(list);
    }
    OdDbDatabase &drawing() { return *m_bench.document().GetKvDatabase(); }
    void append(const char *path) { m_bench.addStandardsFile(path); }
    void remove(const char *path) { removeFromStandardsList(drawing(), CKvString(path)); }
    /// Clicks Options; meanwhile the user does that.
    void options(const std::function<void()> &action)
    {
        m_bench.host().whenAsked(action);
        m_bench.click("OptionsButton");
    }
    void expectGoingOn()
    {
        EXPECT_THAT(m_warnings, IsEmpty());
        EXPECT_TRUE(m_bench.dialog().isVisible());
        EXPECT_EQ(m_bench.shown(), "B");
    }
    void expectEnded()
    {
        EXPECT_THAT(m_warnings,
                    ElementsAre("Drafting: VerifyStandards command cannot continue due to changes "
                                "done under standards files list or drawing categories to be "
                                "verified. Restart command to verify drawing using new standards "
                                "settings."));
        EXPECT_FALSE(m_bench.dialog().isVisible());
        EXPECT_EQ(m_bench.dialog().result(), 1);
    }
};

/// Qt loses track of a button whose click throws.
class SessionOptionsFailure : private CKvForeignMemory, public SessionOptions
{
};

} // namespace

TEST_F(SessionOptions, TheSettingsAreAskedForFromARunningSession)
{
    options([] {});

    EXPECT_THAT(m_bench.host().requests(), ElementsAre("5005=_DWGSTANDARDS 5003=3 5000"));
}

TEST_F(SessionOptions, EachRequestIsAFreshOne)
{
    options([] {});
    options([] {});

    EXPECT_THAT(m_bench.host().requests(),
                ElementsAre("5005=_DWGSTANDARDS 5003=3 5000", "5005=_DWGSTANDARDS 5003=3 5000"));
}

TEST_F(SessionOptions, WithoutAChangeTheSessionGoesOnWhereItIs)
{
    options([] {});

    expectGoingOn();
}

TEST_F(SessionOptions, TheSessionsOwnSettingsAreNoReasonToEndIt)
{
    options([this] {
        m_bench.host().setShowIgnored(true);
        m_bench.host().setFixAutomatically(true);
    });

    expectGoingOn();
    EXPECT_THAT(m_bench.takeRepairs(), IsEmpty());
}

TEST_F(SessionOptions, OneMoreStandardsFileEndsIt)
{
    options([this] { append("/std/three.dxf"); });

    expectEnded();
}

TEST_F(SessionOptions, OneStandardsFileLessEndsIt)
{
    options([this] { remove("/std/two.dxf"); });

    expectEnded();
}

TEST_F(SessionOptions, AnotherOrderOfTheFilesEndsIt)
{
    options([this] {
        remove("/std/one.dxf");
        append("/std/one.dxf");
    });

    expectEnded();
}

TEST_F(SessionOptions, AnotherFileInTheSamePlaceEndsIt)
{
    options([this] {
        remove("/std/two.dxf");
        append("/std/three.dxf");
    });

    expectEnded();
}

TEST_F(SessionOptions, OtherLettersOfAPathAreNoChange)
{
    options([this] {
        remove("/std/two.dxf");
        append("/STD/Two.DXF");
    });

    expectGoingOn();
}

TEST_F(SessionOptions, ACategoryThatIsNoLongerCheckedEndsIt)
{
    options([this] { m_styles.setEnabled(false); });

    expectEnded();
}

TEST_F(SessionOptions, ACategoryThatIsGoneEndsIt)
{
    options([this] { m_manager.removePlugin(CKvStdsPluginsPtr(&m_styles)); });

    expectEnded();
}

TEST_F(SessionOptions, AnotherPluginInItsPlaceIsNoChangeWhenItIsCheckedToo)
{
    CKvRecordingPlugin other("other", m_calls);

    options([&] {
        m_manager.removePlugin(CKvStdsPluginsPtr(&m_styles));
        m_manager.addPlugin(CKvStdsPluginsPtr(&other));
    });

    expectGoingOn();
    m_manager.removePlugin(CKvStdsPluginsPtr(&other));
}

TEST_F(SessionOptions, WithoutAManagerTheCategoriesAreNotCompared)
{
    SetKvStandardManager(nullptr);

    options([this] { m_styles.setEnabled(false); });

    expectGoingOn();
    SetKvStandardManager(&m_manager);
}

TEST_F(SessionOptionsFailure, AListThatIsNoDictionaryIsToldToTheHost)
{
    const auto damage = [this] {
        const OdDbDictionaryPtr named(
            drawing().getNamedObjectsDictionaryId().safeOpenObject(OdDb::kForWrite));
        named->setAt(OdString("AcStStandard"), OdDbXrecord::createObject());
    };

    const std::vector<std::string> failures = m_bench.failuresOf([&] { options(damage); });

    EXPECT_EQ(failures.size(), 1U);
    expectGoingOn();
}

TEST_F(SessionOptionsFailure, AnEntryThatIsNoXrecordIsToldToTheHost)
{
    const auto damage = [this] {
        const OdDbDictionaryPtr named(
            drawing().getNamedObjectsDictionaryId().safeOpenObject(OdDb::kForWrite));
        const OdDbDictionaryPtr list(named->getAt(OdString("AcStStandard"), OdDb::kForWrite));
        list->setAt(OdString("9"), OdDbDictionary::createObject());
    };

    const std::vector<std::string> failures = m_bench.failuresOf([&] { options(damage); });

    EXPECT_EQ(failures.size(), 1U);
    expectGoingOn();
}

TEST(SessionOptionsWithoutAList, AFileThatIsListedMeanwhileEndsIt)
{
    CKvVerifyBench bench(kTwo);
    bench.script().answer(QStringLiteral("QMessageBox"), [](QDialog &box) { box.reject(); });
    bench.show();

    bench.host().whenAsked([&bench] { bench.addStandardsFile("/std/one.dxf"); });
    bench.click("OptionsButton");

    EXPECT_EQ(bench.script().shown(), QStringList { QStringLiteral("QMessageBox") });
    EXPECT_FALSE(bench.dialog().isVisible());
}
