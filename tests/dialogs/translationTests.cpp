// SPDX-License-Identifier: MIT
#include "CKvContextTranslator.h"
#include "CKvMissingStandardsFileDlg.h"
#include "CKvNoDwgCategoriesSelectedDlg.h"
#include "CKvNoStandardsFileDlg.h"
#include "CKvStandardViolationMessage.h"
#include "CKvVerfiyCompleteMessage.h"
#include "CKvVerifyBench.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QLabel>
#include <QMessageBox>
#include <QTableWidget>

#include <gtest/gtest.h>

namespace
{

/// Each text of the window is the form's own, "label <Context>Text", one a line. Standard buttons
/// are left out: their texts are Qt's.
std::string textsOf(const QWidget &window)
{
    std::string text;
    for (const QWidget *child : window.findChildren<QWidget *>()) {
        QString shown;
        if (const auto *label = qobject_cast<const QLabel *>(child)) {
            shown = label->text();
        } else if (const auto *button = qobject_cast<const QAbstractButton *>(child)) {
            shown = button->text();
        }
        const bool isOwn = !qobject_cast<const QDialogButtonBox *>(child->parent());
        if (isOwn && !shown.isEmpty()) {
            text += child->objectName().toStdString() + ' ' + shown.toStdString() + '\n';
        }
    }
    return text;
}

class DialogTranslation : public testing::Test
{
protected:
    void SetUp() override { QCoreApplication::installTranslator(&m_translator); }

    CKvContextTranslator m_translator;
};

} // namespace

TEST_F(DialogTranslation, TheTextsOfTheVerifyDialogAreOfItsContext)
{
    CKvVerifyBench bench({ QStringLiteral("A") });
    bench.host().setShowIgnored(true);
    bench.setIgnored(0, "anna");
    bench.show();

    EXPECT_EQ(bench.dialog().windowTitle(), QStringLiteral("<CKvVerifyStandards>Verify Standards"));
    EXPECT_EQ(textsOf(bench.dialog()),
              "label <CKvVerifyStandards>Standard violation:\n"
              "ObjectTypeLabel <CKvVerifyStandards>  Layer:\n"
              "ObjectNameLabel A\n"
              "ProblemDescLabel   Layer properties are non-standard.\n"
              "label_2 <CKvVerifyStandards>Replace with:\n"
              "label_3 <CKvVerifyStandards>Preview of changes\n"
              "IgnoreViolationCheckBox <CKvVerifyStandards>Ignore this standards violation\n"
              "label_5 <CKvVerifyStandards>Ignored by:\n"
              "IgnoredByLoginNameLabel anna\n"
              "OptionsButton <CKvVerifyStandards>Options...\n"
              "FixIssueButton <CKvVerifyStandards>Fix\n"
              "NextIssueButton <CKvVerifyStandards>Next\n");
    EXPECT_EQ(bench.headers(),
              " | Layer | <CKvVerifyStandards>Standards File\n"
              "<CKvVerifyStandards>Property | <CKvVerifyStandards>Current Value | "
              "<CKvVerifyStandards>Standard Value\n");
}

TEST_F(DialogTranslation, ItsMessagesAreOfTheSameContext)
{
    CKvVerifyBench bench({});
    bench.dialog().setNoStandardsFiles(true);
    std::string warning;
    bench.script().answer(QStringLiteral("QMessageBox"), [&warning](QDialog &box) {
        warning = dynamic_cast<QMessageBox &>(box).text().toStdString();
        box.reject();
    });

    bench.show();
    bench.host().whenAsked([&bench] { bench.addStandardsFile("/std/one.dxf"); });
    bench.click("OptionsButton");

    EXPECT_EQ(bench.text("ProblemDescLabel"),
              "<CKvVerifyStandards>There are no standards files associated with the current "
              "drawing.");
    EXPECT_EQ(warning.substr(0, 48), "<CKvVerifyStandards>VerifyStandards command cann");
}

TEST_F(DialogTranslation, TheTextsOfTheSummaryAreOfItsContext)
{
    const CKvVerfiyCompleteMessage summary(nullptr);

    EXPECT_EQ(summary.windowTitle(),
              QStringLiteral("<CKvVerfiyCompleteMessage>Verification Summary"));
    EXPECT_EQ(textsOf(summary),
              "label_2 <CKvVerfiyCompleteMessage>Drawing verification is complete.\n"
              "label_9 <CKvVerfiyCompleteMessage>Summary:\n"
              "label_5 <CKvVerfiyCompleteMessage>Standards violations:\n"
              "num_violations <<number>>\n"
              "label_6 <CKvVerfiyCompleteMessage>Fixed automatically:\n"
              "num_autoFix <<number>>\n"
              "label_7 <CKvVerfiyCompleteMessage>Fixed manually:\n"
              "num_manualFix <<number>>\n"
              "label_8 <CKvVerfiyCompleteMessage>Ignored in current verification:\n"
              "num_Ignored <<number>>\n");
}

TEST_F(DialogTranslation, TheTextsOfTheMessagesAreOfTheirContexts)
{
    CKvDialogHost host;

    EXPECT_EQ(
        textsOf(CKvMissingStandardsFileDlg(nullptr)),
        "label <CKvMissingStandardsFileDlg>One or more standards files associated with the "
        "current drawing could not be located.\n"
        "RunStdFileAssocChkBox <CKvMissingStandardsFileDlg>Run standards files association\n");
    EXPECT_EQ(textsOf(CKvNoStandardsFileDlg(nullptr)),
              "label <CKvNoStandardsFileDlg>The current drawing has no associated standards file.\n"
              "RunStdFileAssocChkBox <CKvNoStandardsFileDlg>Run standards files association\n");
    EXPECT_EQ(textsOf(CKvNoDwgCategoriesSelectedDlg(nullptr)),
              "label <CKvNoDwgCategoriesSelectedDlg>Currently no drawing category is checked.\n"
              "RunDwgCategoryChkBox <CKvNoDwgCategoriesSelectedDlg>Run drawing categories\n");
    EXPECT_EQ(textsOf(CKvStandardViolationMessage(nullptr)),
              "label <CKvStandardViolationMessage>Standard violation: the previous operation "
              "created an object that is not in accordance with standards.\n"
              "runStdVerification <CKvStandardViolationMessage>Run standards verification\n"
              "keepObjUnchanged <CKvStandardViolationMessage>Keep object unchanged\n");
}
