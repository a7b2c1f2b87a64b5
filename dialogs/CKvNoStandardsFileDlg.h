// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDialog.h"

#include <memory>

namespace Ui
{
class CKvNoStandardsFileDlg;
}

/// Tells that the drawing has no standards file, and offers the list of standards files.
class CKvNoStandardsFileDlg : public CKvDialog
{
    Q_OBJECT

public:
    explicit CKvNoStandardsFileDlg(QWidget *parent);
    ~CKvNoStandardsFileDlg() override;

    /// True when the user wants the list of standards files to open on Ok.
    bool isRunChecked() const;
    void setRunChecked(bool isChecked);

    int helpContextId() const override;

private slots:
    void clickedRunStds(bool isChecked);

private:
    std::unique_ptr<Ui::CKvNoStandardsFileDlg> m_ui;
};
