// SPDX-License-Identifier: MIT
#include "CKvNoDwgCategoriesSelectedDlg.h"

#include "dialogLook.h"
#include "ui_CKvNoDwgCategoriesSelectedDlg.h"

CKvNoDwgCategoriesSelectedDlg::CKvNoDwgCategoriesSelectedDlg(QWidget *parent)
    : CKvDialog(parent, true, kDialogWindowFlags)
    , m_ui(std::make_unique<Ui::CKvNoDwgCategoriesSelectedDlg>())
{
    m_ui->setupUi(this);
    connect(m_ui->RunDwgCategoryChkBox,
            &QCheckBox::clicked,
            this,
            &CKvNoDwgCategoriesSelectedDlg::clickedRunDwgCategories);
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    setUpWarning(*this, *m_ui->label_4);
}

CKvNoDwgCategoriesSelectedDlg::~CKvNoDwgCategoriesSelectedDlg() = default;

bool CKvNoDwgCategoriesSelectedDlg::isRunChecked() const
{
    return m_ui->RunDwgCategoryChkBox->isChecked();
}

void CKvNoDwgCategoriesSelectedDlg::setRunChecked(bool isChecked)
{
    m_ui->RunDwgCategoryChkBox->setChecked(isChecked);
}

int CKvNoDwgCategoriesSelectedDlg::helpContextId() const
{
    return 3071;
}

void CKvNoDwgCategoriesSelectedDlg::clickedRunDwgCategories(bool isChecked)
{
    setRunChecked(isChecked);
}
