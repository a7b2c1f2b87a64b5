// SPDX-License-Identifier: MIT
#include "CKvModalScript.h"
#include "CKvVerfiyCompleteMessage.h"
#include "formFacts.h"
#include "helpTopics.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QTest>

#include <gtest/gtest.h>

#include <vector>

namespace
{

constexpr char kTree[] = R"(QVBoxLayout verticalLayout_4
  QVBoxLayout verticalLayout_3
    QHBoxLayout horizontalLayout_5
      QLabel label_4
      QLabel label_2
    QFrame line
    QHBoxLayout horizontalLayout_7
      QVBoxLayout verticalLayout_2
        QLabel label_9
        QHBoxLayout horizontalLayout_6
          spacer 10x20 Fixed x Minimum
          QVBoxLayout verticalLayout
            QHBoxLayout horizontalLayout_4
              QLabel label_5
              spacer 40x20 Expanding x Minimum
              QLabel num_violations
            QHBoxLayout horizontalLayout_3
              QLabel label_6
              spacer 40x20 Expanding x Minimum
              QLabel num_autoFix
            QHBoxLayout horizontalLayout_2
              QLabel label_7
              spacer 40x20 Expanding x Minimum
              QLabel num_manualFix
            QHBoxLayout horizontalLayout
              QLabel label_8
              spacer 40x20 Expanding x Minimum
              QLabel num_Ignored
      spacer 10x20 Expanding x Minimum
    spacer 342x13 Minimum x Expanding
    CKvQtDialogButtonBox buttonBox
)";

/// A row of the form's table: a label, its text and what all labels have.
void expectLine(const QWidget &window, const char *name, const char *text)
{
    expectFacts(window,
                { { name, "class", "QLabel" },
                  { name, "text", text },
                  { name, "textFormat", "AutoText" },
                  { name, "wordWrap", "false" } });
}

class Summary : public testing::Test
{
protected:
    CKvVerfiyCompleteMessage m_summary { nullptr };
};

} // namespace

TEST_F(Summary, ItsLayoutsHoldTheWidgetsInTheirOrder)
{
    EXPECT_EQ(layoutTree(m_summary), kTree);
}

TEST_F(Summary, TheWindowHasItsNameSizeTitleAndButtons)
{
    const Qt::WindowFlags buttons = Qt::WindowTitleHint | Qt::WindowSystemMenuHint
        | Qt::WindowCloseButtonHint | Qt::WindowMinMaxButtonsHint | Qt::WindowContextHelpButtonHint;

    EXPECT_EQ(m_summary.size(), QSize(362, 245));
    EXPECT_EQ(m_summary.windowFlags() & buttons,
              Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    EXPECT_EQ(m_summary.helpContextId(), 3072);
    expectFacts(m_summary,
                { { "", "objectName", "CKvVerfiyCompleteMessage" },
                  { "", "windowTitle", "Verification Summary" },
                  { "buttonBox", "standardButtons", "Close" },
                  { "buttonBox", "centerButtons", "true" },
                  { "line", "frameShape", "HLine" },
                  { "line", "frameShadow", "Sunken" } });
}

TEST_F(Summary, ItsLinesHaveTheirCaptions)
{
    expectLine(m_summary, "label_9", "Summary:");
    expectLine(m_summary, "label_5", "Standards violations:");
    expectLine(m_summary, "label_6", "Fixed automatically:");
    expectLine(m_summary, "label_7", "Fixed manually:");
    expectLine(m_summary, "label_8", "Ignored in current verification:");
    expectLine(m_summary, "num_violations", "<<number>>");
    expectLine(m_summary, "num_autoFix", "<<number>>");
    expectLine(m_summary, "num_manualFix", "<<number>>");
    expectLine(m_summary, "num_Ignored", "<<number>>");
}

TEST_F(Summary, TheSentenceStandsBesideAnIconOfInformation)
{
    const QPixmap icon = m_summary.style()
                             ->standardIcon(QStyle::SP_MessageBoxInformation)
                             .pixmap(QSize(50, 50), QIcon::Normal, QIcon::Off);

    expectLine(m_summary, "label_2", "Drawing verification is complete.");
    expectFacts(m_summary,
                { { "label_2", "sizePolicy", "Expanding x Expanding" },
                  { "label_2", "minimumSize", "300x34" },
                  { "label_2", "maximumSize", "16777215x34" },
                  { "label_4", "text", "" },
                  { "label_4", "sizePolicy", "Fixed x Fixed" },
                  { "label_4", "autoFillBackground", "true" },
                  { "label_4", "scaledContents", "false" } });
    const auto *label = m_summary.findChild<QLabel *>(QStringLiteral("label_4"));
    ASSERT_FALSE(icon.isNull());
    EXPECT_EQ(label->pixmap(Qt::ReturnByValue).toImage(), icon.toImage());
}

TEST_F(Summary, EachCountGoesToItsLineAsItIsGiven)
{
    m_summary.setAutoFixCount(1);
    m_summary.setIgnoredCount(20);
    m_summary.setViolationCount(3);
    m_summary.setManualFixCount(1234567);

    expectLine(m_summary, "num_autoFix", "1");
    expectLine(m_summary, "num_Ignored", "20");
    expectLine(m_summary, "num_violations", "3");
    expectLine(m_summary, "num_manualFix", "1234567");
}

TEST_F(Summary, CountsOfNothingAreZeros)
{
    m_summary.setAutoFixCount(0);
    m_summary.setIgnoredCount(0);
    m_summary.setViolationCount(0);
    m_summary.setManualFixCount(0);

    expectLine(m_summary, "num_autoFix", "0");
    expectLine(m_summary, "num_Ignored", "0");
    expectLine(m_summary, "num_violations", "0");
    expectLine(m_summary, "num_manualFix", "0");
}

TEST_F(Summary, F1OpensTheTopicOfTheCommand)
{
    std::vector<int> topics;
    setHelpTopicViewer([&topics](int topic) { topics.push_back(topic); });
    m_summary.show();

    QTest::keyClick(&m_summary, Qt::Key_F1);
    setHelpTopicViewer({});

    EXPECT_EQ(topics, std::vector<int> { 3072 });
}

TEST_F(Summary, CloseIsTheOnlyButtonAndRejects)
{
    CKvModalScript script;
    int rejections = 0;
    QObject::connect(&m_summary, &QDialog::rejected, [&rejections] { ++rejections; });
    script.answer(QStringLiteral("CKvVerfiyCompleteMessage"), [](QDialog &summary) {
        const QList<QPushButton *> buttons = summary.findChildren<QPushButton *>();
        ASSERT_EQ(buttons.size(), 1);
        QTest::mouseClick(buttons.first(), Qt::LeftButton);
    });

    const int result = m_summary.exec();

    EXPECT_EQ(result, int(QDialog::Rejected));
    EXPECT_EQ(rejections, 1);
}

TEST_F(Summary, AButtonThatAcceptsWouldAcceptIt)
{
    m_summary.show();

    emit m_summary.findChild<QDialogButtonBox *>()->accepted();

    EXPECT_EQ(m_summary.result(), int(QDialog::Accepted));
    EXPECT_FALSE(m_summary.isVisible());
}

TEST_F(Summary, ItHasNoSlotsOrSignalsOfItsOwn)
{
    EXPECT_EQ(m_summary.metaObject()->methodCount(), m_summary.metaObject()->methodOffset());
}
