// SPDX-License-Identifier: MIT
#include "CKvMissingStandardsFileDlg.h"

#include "dialogLook.h"
#include "ui_CKvMissingStandardsFileDlg.h"

CKvMissingStandardsFileDlg::CKvMissingStandardsFileDlg(QWidget *parent)
    : CKvDialog(parent, true, kDialogWindowFlags)
    , m_ui(std::make_unique<Ui::CKvMissingStandardsFileDlg>())
{
    m_ui->setupUi(this);
    connect(m_ui->RunStdFileAssocChkBox,
            &QCheckBox::clicked,
            this,
            &CKvMissingStandardsFileDlg::clickedRunStds);
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    setUpWarning(*this, *m_ui->label_4);
}

CKvMissingStandardsFileDlg::~CKvMissingStandardsFileDlg() = default;

bool CKvMissingStandardsFileDlg::isRunChecked() const
{
    return m_ui->RunStdFileAssocChkBox->isChecked();
}

void CKvMissingStandardsFileDlg::setRunChecked(bool isChecked)
{
    m_ui->RunStdFileAssocChkBox->setChecked(isChecked);
}

int CKvMissingStandardsFileDlg::helpContextId() const
{
    return 3072;
}

void CKvMissingStandardsFileDlg::clickedRunStds(bool isChecked)
{
    setRunChecked(isChecked);
}
