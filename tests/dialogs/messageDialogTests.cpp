// SPDX-License-Identifier: MIT
#include "CKvDialogHost.h"
#include "CKvMissingStandardsFileDlg.h"
#include "CKvModalScript.h"
#include "CKvNoDwgCategoriesSelectedDlg.h"
#include "CKvNoStandardsFileDlg.h"
#include "CKvStandardViolationMessage.h"
#include "clickLabelled.h"
#include "formFacts.h"
#include "helpTopics.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QMetaMethod>
#include <QPushButton>
#include <QStyle>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace
{

using MakeDialog = std::unique_ptr<CKvDialog> (*)(QWidget *parent);

template <class Dialog> std::unique_ptr<CKvDialog> make(QWidget *parent)
{
    return std::make_unique<Dialog>(parent);
}

struct MessageCase {
    const char *className;
    MakeDialog make;
    QSize size;
    const char *sentence;
    const char *boxClass;
    int helpTopic;
    const char *slotNames;
};

constexpr MessageCase kMissingFile {
    "CKvMissingStandardsFileDlg",
    make<CKvMissingStandardsFileDlg>,
    { 473, 97 },
    "One or more standards files associated with the current drawing could not be located.",
    "CKvQtDialogButtonBox",
    3072,
    "clickedRunStds(bool)",
};
constexpr MessageCase kNoFile {
    "CKvNoStandardsFileDlg",
    make<CKvNoStandardsFileDlg>,
    { 362, 97 },
    "The current drawing has no associated standards file.",
    "CKvQtDialogButtonBox",
    3072,
    "clickedRunStds(bool)",
};
constexpr MessageCase kNoCategories {
    "CKvNoDwgCategoriesSelectedDlg",
    make<CKvNoDwgCategoriesSelectedDlg>,
    { 362, 97 },
    "Currently no drawing category is checked.",
    "CKvQtDialogButtonBox",
    3071,
    "clickedRunDwgCategories(bool)",
};
constexpr MessageCase kViolation {
    "CKvStandardViolationMessage",
    make<CKvStandardViolationMessage>,
    { 403, 181 },
    "Standard violation: the previous operation created an object that is not in accordance with "
    "standards.",
    "QDialogButtonBox",
    3072,
    "clickedRunStandard(bool) clickedObjUnchanged(bool)",
};

std::string nameOf(const testing::TestParamInfo<MessageCase> &info)
{
    return info.param.className;
}

class MessageDialog : public testing::TestWithParam<MessageCase>
{
protected:
    CKvDialogHost m_host;
    std::unique_ptr<CKvDialog> m_dialog = GetParam().make(m_host.mainWindow());
};

/// The three with a check box: the class beside the name and the text of its box.
struct CheckBoxCase {
    MessageCase message;
    const char *box;
    const char *text;
};

class CheckBoxDialog : public testing::TestWithParam<CheckBoxCase>
{
protected:
    CKvDialogHost m_host;
    CKvModalScript m_script;
    std::unique_ptr<CKvDialog> m_dialog = GetParam().message.make(m_host.mainWindow());

    QCheckBox &box() const
    {
        return *m_dialog->findChild<QCheckBox *>(QString::fromLatin1(GetParam().box));
    }
    /// Runs the dialog: clicks the box so many times, then the button.
    int run(int clicks, QDialogButtonBox::StandardButton button)
    {
        m_script.answer(QString::fromLatin1(GetParam().message.className),
                        [this, clicks, button](QDialog &dialog) {
                            for (int i = 0; i < clicks; ++i) {
                                clickLabelled(box());
                            }
                            QTest::mouseClick(
                                dialog.findChild<QDialogButtonBox *>()->button(button),
                                Qt::LeftButton);
                        });
        return m_dialog->exec();
    }
};

std::string checkBoxNameOf(const testing::TestParamInfo<CheckBoxCase> &info)
{
    return info.param.message.className;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(All,
                         MessageDialog,
                         testing::Values(kMissingFile, kNoFile, kNoCategories, kViolation),
                         nameOf);

TEST_P(MessageDialog, TheWindowHasItsNameSizeAndButtons)
{
    const Qt::WindowFlags buttons = Qt::WindowTitleHint | Qt::WindowSystemMenuHint
        | Qt::WindowCloseButtonHint | Qt::WindowMinMaxButtonsHint | Qt::WindowContextHelpButtonHint;

    EXPECT_EQ(m_dialog->size(), GetParam().size);
    EXPECT_EQ(m_dialog->windowFlags() & buttons,
              Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    EXPECT_EQ(m_dialog->helpContextId(), GetParam().helpTopic);
    EXPECT_EQ(m_dialog->parentWidget(), m_host.mainWindow());
    expectFacts(*m_dialog,
                { { "", "objectName", GetParam().className },
                  { "buttonBox", "class", GetParam().boxClass },
                  { "buttonBox", "standardButtons", "Ok|Cancel" },
                  { "buttonBox", "centerButtons", "true" } });
}

TEST_P(MessageDialog, TheTitleIsTheProgramsName)
{
    EXPECT_EQ(m_dialog->windowTitle(), QStringLiteral("Drafting"));
}

TEST_P(MessageDialog, TheSentenceStandsBesideAWarningIcon)
{
    const QPixmap icon = m_dialog->style()
                             ->standardIcon(QStyle::SP_MessageBoxWarning)
                             .pixmap(QSize(50, 50), QIcon::Normal, QIcon::Off);

    expectFacts(*m_dialog,
                { { "label", "text", GetParam().sentence },
                  { "label", "textFormat", "AutoText" },
                  { "label_4", "text", "" },
                  { "label_4", "sizePolicy", "Fixed x Fixed" },
                  { "label_4", "autoFillBackground", "true" },
                  { "label_4", "scaledContents", "false" } });
    const auto *label = m_dialog->findChild<QLabel *>(QStringLiteral("label_4"));
    ASSERT_FALSE(icon.isNull());
    EXPECT_EQ(label->pixmap(Qt::ReturnByValue).toImage(), icon.toImage());
}

TEST_P(MessageDialog, F1OpensItsHelpTopic)
{
    std::vector<int> topics;
    setHelpTopicViewer([&topics](int topic) { topics.push_back(topic); });
    m_dialog->show();

    QTest::keyClick(m_dialog.get(), Qt::Key_F1);
    setHelpTopicViewer({});

    EXPECT_EQ(topics, std::vector<int> { GetParam().helpTopic });
}

TEST_P(MessageDialog, ItHasItsSlotsAndNoOthers)
{
    QStringList slotNames;
    const QMetaObject *meta = m_dialog->metaObject();
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
        slotNames.append(QString::fromLatin1(meta->method(i).methodSignature()));
    }

    EXPECT_EQ(slotNames.join(QLatin1Char(' ')).toStdString(), GetParam().slotNames);
}

INSTANTIATE_TEST_SUITE_P(
    All,
    CheckBoxDialog,
    testing::Values(
        CheckBoxCase { kMissingFile, "RunStdFileAssocChkBox", "Run standards files association" },
        CheckBoxCase { kNoFile, "RunStdFileAssocChkBox", "Run standards files association" },
        CheckBoxCase { kNoCategories, "RunDwgCategoryChkBox", "Run drawing categories" }),
    checkBoxNameOf);

TEST_P(CheckBoxDialog, ItsLayoutsHoldTheWidgetsInTheirOrder)
{
    const std::string tree = std::string(R"(QGridLayout gridLayout
  QVBoxLayout verticalLayout_2
    QHBoxLayout horizontalLayout
      QLabel label_4
      QVBoxLayout verticalLayout
        QLabel label
        QHBoxLayout horizontalLayout_2
          QCheckBox )")
        + GetParam().box + R"(
    spacer 342x13 Minimum x Expanding
    CKvQtDialogButtonBox buttonBox
)";

    EXPECT_EQ(layoutTree(*m_dialog), tree);
}

TEST_P(CheckBoxDialog, TheBoxIsCheckedAtFirst)
{
    expectFacts(*m_dialog,
                { { GetParam().box, "text", GetParam().text },
                  { GetParam().box, "checked", "true" },
                  { "label", "wordWrap", "false" } });
}

TEST_P(CheckBoxDialog, OkWithTheBoxAsItIsAsksForTheSettings)
{
    const int result = run(0, QDialogButtonBox::Ok);

    EXPECT_EQ(result, 1);
    EXPECT_TRUE(box().isChecked());
}

TEST_P(CheckBoxDialog, OkWithAClearedBoxAsksForNothing)
{
    const int result = run(1, QDialogButtonBox::Ok);

    EXPECT_EQ(result, 1);
    EXPECT_FALSE(box().isChecked());
}

TEST_P(CheckBoxDialog, ASecondClickChecksTheBoxAgain)
{
    const int result = run(2, QDialogButtonBox::Ok);

    EXPECT_EQ(result, 1);
    EXPECT_TRUE(box().isChecked());
}

TEST_P(CheckBoxDialog, CancelRejects)
{
    const int result = run(0, QDialogButtonBox::Cancel);

    EXPECT_EQ(result, 0);
}

namespace
{

template <class Dialog> class CheckBoxState : public testing::Test
{
protected:
    CKvDialogHost m_host;
    Dialog m_dialog { m_host.mainWindow() };
};

using CheckBoxDialogs = testing::
    Types<CKvMissingStandardsFileDlg, CKvNoStandardsFileDlg, CKvNoDwgCategoriesSelectedDlg>;

} // namespace

TYPED_TEST_SUITE(CheckBoxState, CheckBoxDialogs, );

TYPED_TEST(CheckBoxState, ItIsReadAndSet)
{
    const bool atFirst = this->m_dialog.isRunChecked();
    this->m_dialog.setRunChecked(false);
    const bool cleared = this->m_dialog.isRunChecked();
    this->m_dialog.setRunChecked(true);
    const bool setAgain = this->m_dialog.isRunChecked();

    EXPECT_TRUE(atFirst);
    EXPECT_FALSE(cleared);
    EXPECT_TRUE(setAgain);
}
