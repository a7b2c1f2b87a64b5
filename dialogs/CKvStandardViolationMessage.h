// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDialog.h"

#include <memory>

namespace Ui
{
class CKvStandardViolationMessage;
}

/// Tells that an edit has broken a standard, and asks whether to verify it now.
///
///     CKvStandardViolationMessage message(parent);
///     const bool isWanted = message.exec() != QDialog::Rejected && message.runRequested();
class CKvStandardViolationMessage : public CKvDialog
{
    Q_OBJECT

public:
    explicit CKvStandardViolationMessage(QWidget *parent);
    ~CKvStandardViolationMessage() override;

    /// True when the verification is chosen; it counts only together with Ok.
    bool runRequested() const { return m_runRequested; }
    /// Sets the two radio buttons as the choice is.
    void syncRadios();

    int helpContextId() const override;

private slots:
    void clickedRunStandard(bool isChecked);
    void clickedObjUnchanged(bool isChecked);

private:
    void checkRadios(bool isRun);

    std::unique_ptr<Ui::CKvStandardViolationMessage> m_ui;
    bool m_runRequested = false;
    bool m_keepRequested = true;
};
