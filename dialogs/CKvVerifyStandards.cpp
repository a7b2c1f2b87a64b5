// SPDX-License-Identifier: MIT
#include "CKvVerifyStandards.h"

#include "CKvApplicationFrame.h"
#include "CKvMessageBox.h"
#include "CKvStandardsSettings.h"
#include "CKvStandardsSnapshot.h"
#include "CKvSystemServices.h"
#include "CKvVerfiyCompleteMessage.h"
#include "OdDbHostAppServices.h"
#include "dialogLook.h"
#include "requestStandardsSettings.h"
#include "ui_CKvVerifyStandards.h"
#include "violationStamp.h"

#include <QCloseEvent>
#include <QTimer>

#include <algorithm>

namespace
{

const CKvStandardsSettings &settings()
{
    return *GetKvSystemServices()->standardsSettings();
}

QWidget *mainWindow()
{
    CKvApplicationFrame *frame = GetKvSystemServices()->applicationFrame();
    return frame ? frame->mainWindow() : nullptr;
}

int countEntries(const OdArray<CKvStdsViolation> &violations, bool CKvStdsViolation::*flag)
{
    return int(std::count_if(violations.begin(),
                             violations.end(),
                             [flag](const CKvStdsViolation &entry) { return entry.*flag; }));
}

} // namespace

CKvVerifyStandards::CKvVerifyStandards(QWidget *parent)
    : CKvDialog(parent, true, kDialogWindowFlags)
    , m_ui(std::make_unique<Ui::CKvVerifyStandards>())
{
    m_ui->setupUi(this);
    setUpTables();
    connectWidgets();
    clearViolationDisplay();
    updateControls();
}

CKvVerifyStandards::~CKvVerifyStandards() = default;

void CKvVerifyStandards::setViolations(const OdArray<CKvStdsViolation> &violations)
{
    m_violations = violations;
    m_current = -1;
}

void CKvVerifyStandards::setSkipSummary(bool isSkipped)
{
    m_skipSummary = isSkipped;
}

void CKvVerifyStandards::setNoStandardsFiles(bool hasNone)
{
    m_noStandardsFiles = hasNone;
}

int CKvVerifyStandards::helpContextId() const
{
    return 3072;
}

void CKvVerifyStandards::closeEvent(QCloseEvent *event)
{
    done(1);
    event->accept();
}

void CKvVerifyStandards::showEvent(QShowEvent *event)
{
    CKvDialog::showEvent(event);
    if (!event->spontaneous()) {
        QTimer::singleShot(0, this, SLOT(OnTimer()));
    }
}

void CKvVerifyStandards::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
}

void CKvVerifyStandards::clickedNext()
{
    do {
        ++m_current;
    } while (shouldSkip(m_current));
    enableControls(true);
    if (hasCurrent()) {
        showCurrentViolation();
        return;
    }
    endPass();
}

void CKvVerifyStandards::clickedFix()
{
    if (!hasCurrent()) {
        return;
    }
    const CKvStdsViolation entry = m_violations.at(unsigned(m_current));
    if (!entry.error) {
        return;
    }
    repair(entry);
    // Also when the repair did nothing: what it did is not told.
    m_violations[unsigned(m_current)].fixedManually = true;
    clickedNext();
}

void CKvVerifyStandards::clickedClose()
{
    done(1);
}

void CKvVerifyStandards::clickedOptionsBtn()
{
    const CKvStandardsSnapshot before = CKvStandardsSnapshot::take();
    requestStandardsSettings(StandardsSettingsPage::RunningSession);
    if (CKvStandardsSnapshot::take().isSame(before)) {
        return;
    }
    CKvMessageBox::warning(
        mainWindow(),
        GetKvSystemServices()->hostAppServices()->applicationTitle().toQString(),
        tr("VerifyStandards command cannot continue due to changes done under standards files list "
           "or drawing categories to be verified. Restart command to verify drawing using new "
           "standards settings."),
        QMessageBox::Close,
        QMessageBox::NoButton);
    done(1);
}

void CKvVerifyStandards::ViolationIgnoredClicked(bool checked)
{
    if (!hasCurrent()) {
        return;
    }
    CKvStdsViolation entry = m_violations.at(unsigned(m_current));
    if (!entry.error) {
        return;
    }
    // Stays so when the drawing has no place for the stamp.
    m_ui->IgnoreViolationCheckBox->setChecked(entry.ignored);
    entry.ignored = checked;
    writeViolationStamp(entry.error->objectId(), checked);
    m_violations[unsigned(m_current)] = entry;
    m_ui->IgnoreViolationCheckBox->setChecked(checked);
    updateControls();
}

void CKvVerifyStandards::OnTimer()
{
    clickedNext();
    if (!m_violations.isEmpty() && settings().fixAutomatically()) {
        fixAllAutomatically();
    }
}

bool CKvVerifyStandards::hasCurrent() const
{
    return m_current >= 0 && unsigned(m_current) < m_violations.size();
}

bool CKvVerifyStandards::shouldSkip(std::int32_t index) const
{
    if (unsigned(index) >= m_violations.size()) {
        return false;
    }
    const CKvStdsViolation &entry = m_violations.at(unsigned(index));
    return entry.fixedAutomatically || entry.fixedManually
        || (entry.ignored && !settings().showIgnored());
}

void CKvVerifyStandards::endPass()
{
    m_current = -1;
    clearViolationDisplay();
    updateControls();
    enableControls(false);
    if (!m_skipSummary) {
        showSummary();
    }
    if (m_noStandardsFiles) {
        m_ui->ProblemDescLabel->setText(
            tr("There are no standards files associated with the current drawing."));
    }
    m_ui->NextIssueButton->setEnabled(true);
    // What had the focus is off or was; Enter begins the next walk.
    m_ui->NextIssueButton->setFocus();
}

/// The repaired entries leave the list before the summary is seen, but after they were counted.
void CKvVerifyStandards::showSummary()
{
    CKvVerfiyCompleteMessage summary(this);
    summary.setAutoFixCount(countEntries(m_violations, &CKvStdsViolation::fixedAutomatically));
    summary.setIgnoredCount(countEntries(m_violations, &CKvStdsViolation::ignored));
    summary.setViolationCount(int(m_violations.size()));
    summary.setManualFixCount(countEntries(m_violations, &CKvStdsViolation::fixedManually));
    for (unsigned i = m_violations.size(); i-- > 0;) {
        const CKvStdsViolation &entry = m_violations.at(i);
        if (entry.fixedAutomatically || entry.fixedManually) {
            m_violations.removeAt(i);
        }
    }
    summary.exec();
}

std::int32_t CKvVerifyStandards::chosenRow(const CKvStdsViolation &entry) const
{
    const std::int32_t current = m_ui->ReplaceWithTableWidget->currentRow();
    if (current != -1) {
        return current;
    }
    return entry.recommendedFix != -1 ? entry.recommendedFix : 0;
}

void CKvVerifyStandards::repair(const CKvStdsViolation &entry) const
{
    CKvString message;
    entry.plugin->applyFix(entry.error, entry.fixes.at(unsigned(chosenRow(entry))), message);
}

void CKvVerifyStandards::fixAllAutomatically()
{
    const unsigned limit = m_violations.size();
    for (unsigned i = 0; i < limit; ++i) {
        const CKvStdsViolation entry = m_violations.at(i);
        if (!entry.error) {
            continue;
        }
        repair(entry);
        // The entry that is shown, which is this one as long as no entry was skipped. Where one
        // was, the two run out of step and the pass ends in an OdError_InvalidIndex; intended.
        m_violations[unsigned(m_current)].fixedAutomatically = true;
        clickedNext();
    }
}
