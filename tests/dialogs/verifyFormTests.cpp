// SPDX-License-Identifier: MIT
#include "CKvVerifyBench.h"
#include "formFacts.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QMetaMethod>
#include <QPushButton>
#include <QTableWidget>

#include <gtest/gtest.h>

namespace
{

constexpr char kReplace[] = "ReplaceWithTableWidget";
constexpr char kPreview[] = "PreviewChangesTableWidget";
constexpr char kReplaceColumns[] = "ReplaceWithTableWidget/horizontalHeader";
constexpr char kReplaceRows[] = "ReplaceWithTableWidget/verticalHeader";
constexpr char kPreviewColumns[] = "PreviewChangesTableWidget/horizontalHeader";
constexpr char kPreviewRows[] = "PreviewChangesTableWidget/verticalHeader";

constexpr char kTree[] = R"(QHBoxLayout horizontalLayout_6
  QVBoxLayout verticalLayout_2
    QHBoxLayout horizontalLayout_5
      QVBoxLayout verticalLayout
        QLabel label
        QHBoxLayout horizontalLayout
          QLabel ObjectTypeLabel
          QLabel ObjectNameLabel
          spacer 40x20 Expanding x Minimum
        QLabel ProblemDescLabel
      spacer 40x20 Expanding x Minimum
    QFrame line_2
    QLabel label_2
    QTableWidget ReplaceWithTableWidget
    QLabel label_3
    QTableWidget PreviewChangesTableWidget
    QHBoxLayout horizontalLayout_4
      QCheckBox IgnoreViolationCheckBox
      spacer 40x20 Expanding x Minimum
    QHBoxLayout horizontalLayout_3
      QLabel label_5
      QLabel IgnoredByLoginNameLabel
      spacer 40x20 Expanding x Minimum
    QHBoxLayout horizontalLayout_2
      QPushButton OptionsButton
      QPushButton FixIssueButton
      QPushButton NextIssueButton
      spacer 40x20 Expanding x Minimum
    QFrame line
    CKvQtDialogButtonBox buttonBox
)";

class VerifyForm : public testing::Test
{
protected:
    CKvDialogHost m_host;
    CKvVerifyStandards m_dialog { m_host.mainWindow() };

    QTableWidget &table(const char *name)
    {
        return *m_dialog.findChild<QTableWidget *>(QString::fromLatin1(name));
    }
};

/// A header item with its tooltip, "-" where there is no item.
std::string headerText(const QTableWidgetItem *item)
{
    return item ? item->text().toStdString() + '/' + item->toolTip().toStdString() : "-";
}

std::string columnsText(const QTableWidget &table)
{
    std::string text;
    for (int column = 0; column < table.columnCount(); ++column) {
        text += (column ? " " : "") + headerText(table.horizontalHeaderItem(column));
    }
    return text;
}

std::string rowsText(const QTableWidget &table)
{
    std::string text;
    for (int row = 0; row < table.rowCount(); ++row) {
        text += (row ? " " : "") + headerText(table.verticalHeaderItem(row));
    }
    return text;
}

} // namespace

TEST_F(VerifyForm, ItsLayoutsHoldTheWidgetsInTheirOrder)
{
    EXPECT_EQ(layoutTree(m_dialog), kTree);
}

TEST_F(VerifyForm, TheWindowHasItsNameSizeAndTitle)
{
    EXPECT_EQ(m_dialog.size(), QSize(385, 499));
    expectFacts(
        m_dialog,
        { { "", "objectName", "CKvVerifyStandards" }, { "", "windowTitle", "Verify Standards" } });
}

TEST_F(VerifyForm, TheWindowHasATitleASystemMenuAndACloseButtonOnly)
{
    const Qt::WindowFlags buttons = Qt::WindowTitleHint | Qt::WindowSystemMenuHint
        | Qt::WindowCloseButtonHint | Qt::WindowMinMaxButtonsHint | Qt::WindowContextHelpButtonHint;

    EXPECT_EQ(m_dialog.windowFlags() & buttons,
              Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    EXPECT_EQ(m_dialog.windowType(), Qt::Dialog);
}

TEST_F(VerifyForm, ItsTextsAndLabelsAreThoseOfAnEmptyDisplay)
{
    expectFacts(m_dialog,
                { { "label", "text", "Standard violation:" },
                  { "label", "sizePolicy", "Preferred x Preferred" },
                  { "ObjectTypeLabel", "text", "" },
                  { "ObjectTypeLabel", "sizePolicy", "Preferred x Preferred" },
                  { "ObjectNameLabel", "text", "" },
                  { "ObjectNameLabel", "sizePolicy", "Preferred x Preferred" },
                  { "ProblemDescLabel", "text", "" },
                  { "ProblemDescLabel", "sizePolicy", "Preferred x Preferred" },
                  { "label_2", "text", "Replace with:" },
                  { "label_3", "text", "Preview of changes" },
                  { "IgnoreViolationCheckBox", "text", "Ignore this standards violation" },
                  { "IgnoreViolationCheckBox", "checked", "false" },
                  { "label_5", "text", "Ignored by:" },
                  { "IgnoredByLoginNameLabel", "text", "" },
                  { "OptionsButton", "text", "Options..." },
                  { "FixIssueButton", "text", "Fix" },
                  { "NextIssueButton", "text", "Next" } });
}

TEST_F(VerifyForm, TheLinesAreSunken)
{
    expectFacts(m_dialog,
                { { "line", "frameShape", "HLine" },
                  { "line", "frameShadow", "Sunken" },
                  { "line_2", "frameShape", "HLine" },
                  { "line_2", "frameShadow", "Sunken" } });
}

TEST_F(VerifyForm, TheButtonBoxHasCloseAndHelp)
{
    expectFacts(m_dialog,
                { { "buttonBox", "class", "CKvQtDialogButtonBox" },
                  { "buttonBox", "orientation", "Horizontal" },
                  { "buttonBox", "standardButtons", "Close|Help" },
                  { "buttonBox", "sizePolicy", "Expanding x Preferred" } });
}

TEST_F(VerifyForm, TheTableOfCandidatesIsAListOfRowsToChooseFrom)
{
    expectFacts(m_dialog,
                { { kReplace, "rowCount", "3" },
                  { kReplace, "columnCount", "3" },
                  { kReplace, "sizePolicy", "Preferred x Preferred" },
                  { kReplace, "minimumSize", "363x0" },
                  { kReplace, "maximumSize", "16777215x125" },
                  { kReplace, "editTriggers", "NoEditTriggers" },
                  { kReplace, "showDropIndicator", "false" },
                  { kReplace, "dragDropOverwriteMode", "false" },
                  { kReplace, "selectionMode", "SingleSelection" },
                  { kReplace, "selectionBehavior", "SelectRows" },
                  { kReplace, "showGrid", "false" },
                  { kReplace, "cornerButtonEnabled", "false" },
                  { kReplaceColumns, "defaultSectionSize", "100" },
                  { kReplaceColumns, "minimumSectionSize", "25" },
                  { kReplaceColumns, "highlightSections", "false" },
                  { kReplaceColumns, "textElideMode", "ElideRight" },
                  { kReplaceRows, "visible", "false" },
                  { kReplaceRows, "defaultSectionSize", "16" },
                  { kReplaceRows, "highlightSections", "true" } });
}

TEST_F(VerifyForm, TheTableOfThePreviewCanOnlyBeRead)
{
    expectFacts(m_dialog,
                { { kPreview, "rowCount", "3" },
                  { kPreview, "columnCount", "3" },
                  { kPreview, "sizePolicy", "Preferred x Preferred" },
                  { kPreview, "minimumSize", "365x0" },
                  { kPreview, "maximumSize", "16777215x125" },
                  { kPreview, "editTriggers", "NoEditTriggers" },
                  { kPreview, "showDropIndicator", "false" },
                  { kPreview, "dragDropOverwriteMode", "false" },
                  { kPreview, "selectionMode", "NoSelection" },
                  { kPreview, "selectionBehavior", "SelectColumns" },
                  { kPreview, "showGrid", "false" },
                  { kPreview, "cornerButtonEnabled", "false" },
                  { kPreview, "wordWrap", "true" },
                  { kPreview, "focusPolicy", "ClickFocus" },
                  { kPreview, "autoFillBackground", "false" },
                  { kPreviewColumns, "highlightSections", "false" },
                  { kPreviewColumns, "textElideMode", "ElideRight" },
                  { kPreviewRows, "visible", "false" },
                  { kPreviewRows, "defaultSectionSize", "16" },
                  { kPreviewRows, "minimumSectionSize", "14" } });
}

TEST_F(VerifyForm, TheVerticalHeadersAreHiddenWhenTheDialogIsShown)
{
    CKvVerifyBench bench({ QStringLiteral("A") });

    bench.show();

    EXPECT_TRUE(bench.table(kReplace).horizontalHeader()->isVisible());
    EXPECT_FALSE(bench.table(kReplace).verticalHeader()->isVisible());
    EXPECT_TRUE(bench.table(kPreview).horizontalHeader()->isVisible());
    EXPECT_FALSE(bench.table(kPreview).verticalHeader()->isVisible());
}

TEST_F(VerifyForm, NamedHeadersHaveTheirTextAsTooltip)
{
    EXPECT_EQ(columnsText(table(kReplace)),
              "/ Object Name/Object Name Standards File/Standards File");
    EXPECT_EQ(columnsText(table(kPreview)),
              "Property/Property Current Value/Current Value Standard Value/Standard Value");
}

TEST_F(VerifyForm, TheThreeRowsOfTheDesignHaveEmptyHeaders)
{
    EXPECT_EQ(rowsText(table(kReplace)), "/ / /");
    EXPECT_EQ(rowsText(table(kPreview)), "/ / /");
}

TEST_F(VerifyForm, TheColumnOfTheMarkIsAsNarrowAsItGetsAndTheOthersCanBeDragged)
{
    const QHeaderView &header = *table(kReplace).horizontalHeader();

    EXPECT_EQ(header.sectionResizeMode(0), QHeaderView::Fixed);
    EXPECT_EQ(header.sectionSize(0), 25);
    EXPECT_EQ(header.sectionResizeMode(1), QHeaderView::Interactive);
    EXPECT_EQ(header.sectionResizeMode(2), QHeaderView::Interactive);
}

TEST_F(VerifyForm, ThePreviewHasTheBaseColourOfDisabledWidgets)
{
    const QColor disabled = QPalette().color(QPalette::Disabled, QPalette::Base);

    const QPalette palette = table(kPreview).palette();

    EXPECT_EQ(palette.color(QPalette::Active, QPalette::Base), disabled);
    EXPECT_EQ(palette.color(QPalette::Inactive, QPalette::Base), disabled);
}

TEST_F(VerifyForm, TheSlotsStandInTheirOrder)
{
    QStringList slotNames;
    const QMetaObject *meta = m_dialog.metaObject();
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
        slotNames.append(QString::fromLatin1(meta->method(i).methodSignature()));
    }

    EXPECT_EQ(slotNames.join(QLatin1Char(' ')).toStdString(),
              "clickedNext() clickedFix() clickedClose() clickedOptionsBtn() FixSelectionChanged() "
              "ViolationIgnoredClicked(bool) OnTimer()");
}

TEST_F(VerifyForm, ThePictureOfTheMarkIsThere)
{
    EXPECT_EQ(QPixmap(QStringLiteral(":/images/style/checkmark.png")).size(), QSize(16, 16));
}
