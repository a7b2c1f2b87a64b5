// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDialog.h"
#include "CKvString.h"

#include <memory>

class QLabel;
namespace Ui
{
class CKvVerfiyCompleteMessage;
}

/// The summary at the end of a walk through the violations: four counts, shown as given.
class CKvVerfiyCompleteMessage : public CKvDialog
{
    Q_OBJECT

public:
    explicit CKvVerfiyCompleteMessage(QWidget *parent);
    ~CKvVerfiyCompleteMessage() override;

    void setAutoFixCount(int count);
    void setIgnoredCount(int count);
    void setViolationCount(int count);
    void setManualFixCount(int count);

    int helpContextId() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    static void showCount(int count, CKvString &text, QLabel &label);

    std::unique_ptr<Ui::CKvVerfiyCompleteMessage> m_ui;
    CKvString m_autoFixCount;
    CKvString m_ignoredCount;
    CKvString m_violationCount;
    CKvString m_manualFixCount;
};
