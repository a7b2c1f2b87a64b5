// SPDX-License-Identifier: MIT
#include "CKvDialogHost.h"
#include "CKvModalScript.h"
#include "CKvStandardViolationMessage.h"
#include "clickLabelled.h"
#include "formFacts.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include <gtest/gtest.h>

namespace
{

class ViolationMessage : public testing::Test
{
protected:
    CKvDialogHost m_host;
    CKvModalScript m_script;
    CKvStandardViolationMessage m_message { m_host.mainWindow() };

    QRadioButton &radio(const char *name)
    {
        return *m_message.findChild<QRadioButton *>(QString::fromLatin1(name));
    }
    /// "run", "keep", "both" or "none": the radio buttons that are on.
    std::string radios()
    {
        const bool isRun = radio("runStdVerification").isChecked();
        const bool isKeep = radio("keepObjUnchanged").isChecked();
        return isRun ? (isKeep ? "both" : "run") : (isKeep ? "keep" : "none");
    }
    void click(const char *name) { clickLabelled(radio(name)); }
    void callSlot(const char *slotName, bool isChecked)
    {
        ASSERT_TRUE(QMetaObject::invokeMethod(&m_message, slotName, Q_ARG(bool, isChecked)));
    }
    int run(const char *radioName, QDialogButtonBox::StandardButton button)
    {
        m_script.answer(QStringLiteral("CKvStandardViolationMessage"),
                        [this, radioName, button](QDialog &dialog) {
                            click(radioName);
                            QTest::mouseClick(
                                dialog.findChild<QDialogButtonBox *>()->button(button),
                                Qt::LeftButton);
                        });
        return m_message.exec();
    }
};

} // namespace

TEST_F(ViolationMessage, ItsLayoutsHoldTheWidgetsInTheirOrder)
{
    EXPECT_EQ(layoutTree(m_message), R"(QHBoxLayout horizontalLayout_2
  QVBoxLayout verticalLayout_3
    QHBoxLayout horizontalLayout
      QVBoxLayout verticalLayout_2
        QLabel label_4
        spacer 20x40 Minimum x Expanding
      QVBoxLayout verticalLayout
        QLabel label
        QRadioButton runStdVerification
        QRadioButton keepObjUnchanged
    spacer 342x13 Minimum x Expanding
    QDialogButtonBox buttonBox
)");
}

TEST_F(ViolationMessage, TheSentenceWrapsAndTheObjectIsKeptAtFirst)
{
    expectFacts(m_message,
                { { "label", "wordWrap", "true" },
                  { "label", "sizePolicy", "Preferred x Preferred" },
                  { "label", "minimumSize", "300x48" },
                  { "label", "maximumSize", "16777215x16777215" },
                  { "runStdVerification", "text", "Run standards verification" },
                  { "runStdVerification", "checked", "false" },
                  { "keepObjUnchanged", "text", "Keep object unchanged" },
                  { "keepObjUnchanged", "checked", "true" } });
    EXPECT_FALSE(m_message.runRequested());
}

TEST_F(ViolationMessage, AClickOnOneTurnsTheOtherOff)
{
    click("runStdVerification");
    const std::string afterRun = radios();
    const bool isRunRequested = m_message.runRequested();
    click("keepObjUnchanged");

    EXPECT_EQ(afterRun, "run");
    EXPECT_TRUE(isRunRequested);
    EXPECT_EQ(radios(), "keep");
    EXPECT_FALSE(m_message.runRequested());
}

TEST_F(ViolationMessage, RunAndOkOpenTheVerification)
{
    const int result = run("runStdVerification", QDialogButtonBox::Ok);

    EXPECT_EQ(result, 1);
    EXPECT_TRUE(m_message.runRequested());
}

TEST_F(ViolationMessage, RunAndCancelDoNot)
{
    const int result = run("runStdVerification", QDialogButtonBox::Cancel);

    EXPECT_EQ(result, 0);
    EXPECT_TRUE(m_message.runRequested());
}

TEST_F(ViolationMessage, KeepAndOkDoNotEither)
{
    const int result = run("keepObjUnchanged", QDialogButtonBox::Ok);

    EXPECT_EQ(result, 1);
    EXPECT_FALSE(m_message.runRequested());
}

TEST_F(ViolationMessage, ASlotThatIsToldFalseTurnsTheOtherOn)
{
    callSlot("clickedObjUnchanged", false);
    const std::string notKept = radios();
    const bool isRunRequested = m_message.runRequested();
    callSlot("clickedRunStandard", false);

    EXPECT_EQ(notKept, "run");
    EXPECT_TRUE(isRunRequested);
    EXPECT_EQ(radios(), "keep");
    EXPECT_FALSE(m_message.runRequested());
}

TEST_F(ViolationMessage, SyncingSetsTheRadiosAsTheChoiceIs)
{
    radio("runStdVerification").setChecked(true);
    m_message.syncRadios();
    const std::string kept = radios();
    callSlot("clickedRunStandard", true);
    radio("keepObjUnchanged").setChecked(true);
    m_message.syncRadios();

    EXPECT_EQ(kept, "keep");
    EXPECT_EQ(radios(), "run");
}

TEST_F(ViolationMessage, SyncingFollowsTheSlotThatWasToldLast)
{
    callSlot("clickedObjUnchanged", false);
    callSlot("clickedRunStandard", false);
    radio("runStdVerification").setChecked(true);

    m_message.syncRadios();

    EXPECT_EQ(radios(), "keep");
}
