// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDialog.h"

#include <memory>

namespace Ui
{
class CKvMissingStandardsFileDlg;
}

/// Tells that a standards file of the drawing is gone, and offers the list of standards files.
class CKvMissingStandardsFileDlg : public CKvDialog
{
    Q_OBJECT

public:
    explicit CKvMissingStandardsFileDlg(QWidget *parent);
    ~CKvMissingStandardsFileDlg() override;

    /// True when the user wants the list of standards files to open on Ok.
    bool isRunChecked() const;
    void setRunChecked(bool isChecked);

    int helpContextId() const override;

private slots:
    void clickedRunStds(bool isChecked);

private:
    std::unique_ptr<Ui::CKvMissingStandardsFileDlg> m_ui;
};
