// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDialog.h"

#include <memory>

namespace Ui
{
class CKvNoDwgCategoriesSelectedDlg;
}

/// Tells that no drawing category is checked, and offers the list of categories.
class CKvNoDwgCategoriesSelectedDlg : public CKvDialog
{
    Q_OBJECT

public:
    explicit CKvNoDwgCategoriesSelectedDlg(QWidget *parent);
    ~CKvNoDwgCategoriesSelectedDlg() override;

    /// True when the user wants the list of categories to open on Ok.
    bool isRunChecked() const;
    void setRunChecked(bool isChecked);

    int helpContextId() const override;

private slots:
    void clickedRunDwgCategories(bool isChecked);

private:
    std::unique_ptr<Ui::CKvNoDwgCategoriesSelectedDlg> m_ui;
};
