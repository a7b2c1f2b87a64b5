// SPDX-License-Identifier: MIT
#include "CKvVerifyStandards.h"

#include "CKvDocument.h"
#include "CKvUtilsBase.h"
#include "formatValue.h"
#include "ui_CKvVerifyStandards.h"

#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QSignalBlocker>

#include <algorithm>
#include <stdexcept>

// In a static library nothing else makes the linker keep the pictures. The macro must stand outside
// of every namespace.
static void keepPictures()
{
    Q_INIT_RESOURCE(dialogs);
}

namespace
{

/// Columns of the candidates.
enum FixColumn { kFixMark, kFixName, kFixFile };
/// Columns of the preview.
enum PreviewColumn { kPreviewProperty, kPreviewCurrent, kPreviewStandard };

void setHeader(QTableWidget &table, int column, const QString &text)
{
    QTableWidgetItem *header = table.horizontalHeaderItem(column);
    header->setText(text);
    header->setToolTip(text);
}

/// @param tooltip what doesn't fit into the cell.
QTableWidgetItem *newItem(const QString &text, const QString &tooltip)
{
    auto *item = new QTableWidgetItem(text);
    item->setToolTip(tooltip);
    return item;
}

const CKvString &nameAt(const std::vector<CKvString> &names, unsigned index)
{
    if (index >= names.size()) {
        throw std::out_of_range("invalid vector<T> subscript");
    }
    return names[index];
}

/// Leaves the row empty where there is nothing to compare.
void fillPreviewRow(QTableWidget &table,
                    int row,
                    const CKvString &name,
                    const OdResBufPtr &current,
                    const OdResBufPtr &standard)
{
    if (!current || !standard || current->restype() != standard->restype()) {
        return;
    }
    const auto set = [&table, row](PreviewColumn column, const CKvString &text) {
        table.setItem(row, column, newItem(text.toQString(), text.toQString()));
    };
    set(kPreviewProperty, name);
    set(kPreviewCurrent, formatValue(current));
    set(kPreviewStandard, formatValue(standard));
}

} // namespace

void CKvVerifyStandards::setUpTables()
{
    keepPictures();
    QHeaderView *fixHeader = m_ui->ReplaceWithTableWidget->horizontalHeader();
    fixHeader->setTextElideMode(Qt::ElideRight);
    fixHeader->setSectionResizeMode(kFixMark, QHeaderView::Fixed);
    fixHeader->resizeSection(kFixMark, fixHeader->minimumSectionSize());
    fixHeader->setSectionResizeMode(kFixName, QHeaderView::Interactive);
    fixHeader->setSectionResizeMode(kFixFile, QHeaderView::Interactive);

    QTableWidget *preview = m_ui->PreviewChangesTableWidget;
    preview->horizontalHeader()->setTextElideMode(Qt::ElideRight);
    // Looks as if it were disabled, since nothing in it can be chosen.
    QPalette palette;
    const QColor readOnly = palette.color(QPalette::Disabled, QPalette::Base);
    palette.setColor(QPalette::Active, QPalette::Base, readOnly);
    palette.setColor(QPalette::Inactive, QPalette::Base, readOnly);
    preview->setPalette(palette);
}

void CKvVerifyStandards::connectWidgets()
{
    connect(m_ui->NextIssueButton, &QPushButton::clicked, this, &CKvVerifyStandards::clickedNext);
    connect(m_ui->FixIssueButton, &QPushButton::clicked, this, &CKvVerifyStandards::clickedFix);
    connect(
        m_ui->OptionsButton, &QPushButton::clicked, this, &CKvVerifyStandards::clickedOptionsBtn);
    connect(m_ui->buttonBox->button(QDialogButtonBox::Close),
            &QPushButton::clicked,
            this,
            &CKvVerifyStandards::clickedClose);
    connect(m_ui->buttonBox->button(QDialogButtonBox::Help),
            &QPushButton::clicked,
            this,
            &CKvVerifyStandards::Help);
    connect(m_ui->ReplaceWithTableWidget,
            &QTableWidget::itemSelectionChanged,
            this,
            &CKvVerifyStandards::FixSelectionChanged);
    connect(m_ui->IgnoreViolationCheckBox,
            &QCheckBox::clicked,
            this,
            &CKvVerifyStandards::ViolationIgnoredClicked);
    // However it is closed, Escape included.
    connect(this, &QDialog::finished, this, [this] { m_closed = true; });
}

void CKvVerifyStandards::FixSelectionChanged()
{
    QTableWidget *fixes = m_ui->ReplaceWithTableWidget;
    // Cursor keys select the new row before they make it the current one.
    const QModelIndexList selected = fixes->selectionModel()->selectedRows();
    if (!selected.isEmpty() && selected.first().row() != fixes->currentRow()) {
        fixes->selectionModel()->setCurrentIndex(selected.first(), QItemSelectionModel::NoUpdate);
    }
    m_ui->PreviewChangesTableWidget->clearContents();
    fillPreview(fixes->currentRow());
    updateControls();
}

void CKvVerifyStandards::showCurrentViolation()
{
    clearViolationDisplay();
    fillFixTable();
    fillPreview(m_violations.at(unsigned(m_current)).recommendedFix);
    updateControls();
}

void CKvVerifyStandards::clearViolationDisplay()
{
    m_ui->ObjectTypeLabel->clear();
    m_ui->ObjectNameLabel->clear();
    m_ui->ObjectNameLabel->setToolTip(QString());
    m_ui->ProblemDescLabel->clear();
    {
        // Emptying the table takes the selection away, which is no choice of another candidate.
        const QSignalBlocker quiet(m_ui->ReplaceWithTableWidget);
        m_ui->ReplaceWithTableWidget->clearContents();
    }
    m_ui->PreviewChangesTableWidget->clearContents();
    m_ui->IgnoreViolationCheckBox->setChecked(false);
    m_ui->IgnoredByLoginNameLabel->clear();
}

void CKvVerifyStandards::fillFixTable()
{
    if (!hasCurrent()) {
        return;
    }
    QTableWidget *table = m_ui->ReplaceWithTableWidget;
    table->clearContents();
    const CKvStdsViolation entry = m_violations.at(unsigned(m_current));
    if (!entry.error) {
        return;
    }
    const QString objectType = entry.error->objectType().toQString();
    m_ui->ObjectTypeLabel->setText(tr("%1:").arg(objectType));
    m_ui->ObjectNameLabel->setText(entry.error->objectName().toQString());
    m_ui->ProblemDescLabel->setText(entry.error->message().toQString());
    table->setRowCount(int(entry.fixes.size()));
    setHeader(*table, kFixName, objectType);
    for (int row = 0; row < table->rowCount(); ++row) {
        const CKvStdsFixPtr &fix = entry.fixes.at(unsigned(row));
        auto *mark = new QTableWidgetItem;
        if (row == entry.recommendedFix) {
            mark->setIcon(QIcon(QStringLiteral(":/images/style/checkmark.png")));
        }
        table->setItem(row, kFixMark, mark);
        const QString name = fix->name().toQString();
        table->setItem(row, kFixName, newItem(name, name));
        const QString path = fix->standardsFile().toQString();
        table->setItem(
            row, kFixFile, newItem(QFileInfo(path).fileName(), QDir::toNativeSeparators(path)));
    }
    // Laid out now, the table can show the selected row wherever it is.
    table->doItemsLayout();
    table->scrollToTop();
    if (entry.recommendedFix >= 0) {
        table->selectRow(entry.recommendedFix);
    }
    m_ui->IgnoreViolationCheckBox->setEnabled(true);
    m_ui->IgnoreViolationCheckBox->setChecked(entry.ignored);
}

void CKvVerifyStandards::fillPreview(std::int32_t row)
{
    if (!hasCurrent()) {
        return;
    }
    QTableWidget *table = m_ui->PreviewChangesTableWidget;
    if (row == -1) {
        table->clearContents();
        return;
    }
    const CKvStdsViolation entry = m_violations.at(unsigned(m_current));
    if (unsigned(row) >= entry.fixes.size() || !entry.error) {
        return;
    }
    std::vector<CKvString> names;
    OdArray<OdResBufPtr> current;
    OdArray<OdResBufPtr> standard;
    std::vector<CKvString> units;
    entry.plugin->propertyDifferences(
        entry.error, entry.fixes.at(unsigned(row)), names, current, standard, units);
    table->setRowCount(int(names.size()));
    const CKvDocument *document = ACTIVE_DOCUMENT();
    m_database = CKvDatabasePtr(document ? document->GetKvDatabase() : nullptr);

    // Lists of unequal length are the plug-in's fault, whichever is the short one.
    const unsigned count = std::max({ unsigned(names.size()), current.size(), standard.size() });
    for (unsigned i = 0; i < count; ++i) {
        const OdResBufPtr &currentValue = current.at(i);
        const OdResBufPtr &standardValue = standard.at(i);
        fillPreviewRow(*table, int(i), nameAt(names, i), currentValue, standardValue);
    }
}

void CKvVerifyStandards::updateControls()
{
    if (m_violations.isEmpty()) {
        return;
    }
    if (!hasCurrent()) {
        clearViolationDisplay();
        m_ui->FixIssueButton->setEnabled(false);
        m_ui->ObjectNameLabel->setEnabled(false);
        m_ui->ProblemDescLabel->setEnabled(false);
        m_ui->ReplaceWithTableWidget->setEnabled(false);
        m_ui->PreviewChangesTableWidget->setEnabled(false);
        m_ui->IgnoreViolationCheckBox->setEnabled(false);
        clearIgnoredBy();
        return;
    }
    const CKvStdsViolation entry = m_violations.at(unsigned(m_current));
    if (!entry.error) {
        return;
    }
    m_ui->ObjectTypeLabel->setText(tr("  %1:").arg(entry.error->objectType().toQString()));
    m_ui->ObjectNameLabel->setText(entry.error->objectName().toQString());
    m_ui->ObjectNameLabel->setToolTip(entry.error->objectName().toQString());
    m_ui->ProblemDescLabel->setText(QStringLiteral("  ") + entry.error->message().toQString());
    if (m_ui->IgnoreViolationCheckBox->isChecked()) {
        // Ticked in this run when the drawing doesn't name anybody.
        const CKvString user =
            entry.ignoredBy.isEmpty() ? CKvUtilsBase::getUserName() : entry.ignoredBy;
        m_ui->IgnoredByLoginNameLabel->setText(user.toQString());
        m_ui->label_5->setText(tr("Ignored by:"));
    } else {
        clearIgnoredBy();
    }
    m_ui->FixIssueButton->setEnabled(isCandidateSelected());
    m_ui->ObjectTypeLabel->setEnabled(true);
    m_ui->ProblemDescLabel->setEnabled(true);
    enableViolation(true);
}

void CKvVerifyStandards::enableControls(bool isEnabled)
{
    if (isEnabled) {
        m_ui->ProblemDescLabel->setEnabled(true);
        if (!m_ui->IgnoreViolationCheckBox->isChecked()) {
            clearIgnoredBy();
        }
    } else {
        // The labels of type and description stay enabled; they are only empty.
        clearViolationDisplay();
        clearIgnoredBy();
    }
    m_ui->FixIssueButton->setEnabled(isEnabled);
    m_ui->NextIssueButton->setEnabled(isEnabled);
    enableViolation(isEnabled);
    updateHeaders(isEnabled);
}

/// What both updateControls and enableControls switch.
void CKvVerifyStandards::enableViolation(bool isEnabled)
{
    m_ui->ObjectNameLabel->setEnabled(isEnabled);
    m_ui->ReplaceWithTableWidget->setEnabled(isEnabled);
    m_ui->PreviewChangesTableWidget->setEnabled(isEnabled);
    m_ui->IgnoreViolationCheckBox->setEnabled(isEnabled);
    m_ui->label_3->setEnabled(isEnabled);
    m_ui->label_2->setEnabled(isEnabled);
    m_ui->label->setEnabled(isEnabled);
}

void CKvVerifyStandards::updateHeaders(bool isShown)
{
    const auto text = [isShown](const QString &shown) { return isShown ? shown : QString(); };
    QTableWidget &fixes = *m_ui->ReplaceWithTableWidget;
    setHeader(fixes, kFixName, text(tr("Object Name")));
    setHeader(fixes, kFixFile, text(tr("Standards File")));
    QTableWidget &preview = *m_ui->PreviewChangesTableWidget;
    setHeader(preview, kPreviewProperty, text(tr("Property")));
    setHeader(preview, kPreviewCurrent, text(tr("Current Value")));
    setHeader(preview, kPreviewStandard, text(tr("Standard Value")));
}

bool CKvVerifyStandards::isCandidateSelected() const
{
    const QTableWidget &table = *m_ui->ReplaceWithTableWidget;
    const QTableWidgetItem *item = table.item(table.currentRow(), table.currentColumn());
    return item && item->isSelected();
}

void CKvVerifyStandards::clearIgnoredBy()
{
    m_ui->label_5->clear();
    m_ui->IgnoredByLoginNameLabel->clear();
}
