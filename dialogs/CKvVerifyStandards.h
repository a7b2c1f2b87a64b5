// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDatabase.h"
#include "CKvDialog.h"
#include "CKvStdsViolation.h"

#include <cstdint>
#include <memory>

namespace Ui
{
class CKvVerifyStandards;
}

/// Walks the user through the violations of the active drawing, one at a time: what is wrong, what
/// could replace it, what that would change. Each is repaired, ignored or passed over. A walk ends
/// with a summary, and the next one goes over what is left.
///
///     CKvVerifyStandards dialog(mainWindow);
///     dialog.setViolations(violations);
///     dialog.exec();
class CKvVerifyStandards : public CKvDialog
{
    Q_OBJECT

public:
    explicit CKvVerifyStandards(QWidget *parent);
    ~CKvVerifyStandards() override;

    /// The list to walk, from its first entry on. The walk begins when the dialog is shown.
    void setViolations(const OdArray<CKvStdsViolation> &violations);
    /// @param isSkipped true: a walk ends without the summary, and repaired entries stay listed.
    void setSkipSummary(bool isSkipped);
    /// @param hasNone true: the dialog says at the end of a walk that there are no standards files.
    void setNoStandardsFiles(bool hasNone);

    int helpContextId() const override;

protected:
    void closeEvent(QCloseEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private slots:
    void clickedNext();
    /// @throws OdError_InvalidIndex when the chosen row is no candidate, and what the repair
    /// throws.
    void clickedFix();
    void clickedClose();
    /// Ends the session when the settings that the list rests on have changed.
    /// @throws OdError_NotThatKindOfClass for a damaged list of standards files.
    void clickedOptionsBtn();
    void FixSelectionChanged();
    void ViolationIgnoredClicked(bool checked);
    /// The first step, once the dialog is there.
    /// @throws as clickedFix, when violations are to be fixed automatically.
    void OnTimer();

private:
    // The session.
    bool hasCurrent() const;
    bool shouldSkip(std::int32_t index) const;
    void endPass();
    void showSummary();
    std::int32_t chosenRow(const CKvStdsViolation &entry) const;
    void repair(const CKvStdsViolation &entry) const;
    void fixAllAutomatically();

    // What is seen of it.
    void setUpTables();
    void connectWidgets();
    void showCurrentViolation();
    void clearViolationDisplay();
    void fillFixTable();
    void fillPreview(std::int32_t row);
    void updateControls();
    void enableControls(bool isEnabled);
    void enableViolation(bool isEnabled);
    void updateHeaders(bool isShown);
    bool isCandidateSelected() const;
    void clearIgnoredBy();

    std::unique_ptr<Ui::CKvVerifyStandards> m_ui;
    OdArray<CKvStdsViolation> m_violations;
    /// Index of the entry that is shown; -1 before the first.
    std::int32_t m_current = 0;
    CKvDatabasePtr m_database;
    bool m_closed = false;
    bool m_skipSummary = false;
    bool m_noStandardsFiles = false;
};
