// SPDX-License-Identifier: MIT
#include "CKvNoStandardsFileDlg.h"

#include "dialogLook.h"
#include "ui_CKvNoStandardsFileDlg.h"

CKvNoStandardsFileDlg::CKvNoStandardsFileDlg(QWidget *parent)
    : CKvDialog(parent, true, kDialogWindowFlags)
    , m_ui(std::make_unique<Ui::CKvNoStandardsFileDlg>())
{
    m_ui->setupUi(this);
    connect(m_ui->RunStdFileAssocChkBox,
            &QCheckBox::clicked,
            this,
            &CKvNoStandardsFileDlg::clickedRunStds);
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    setUpWarning(*this, *m_ui->label_4);
}

CKvNoStandardsFileDlg::~CKvNoStandardsFileDlg() = default;

bool CKvNoStandardsFileDlg::isRunChecked() const
{
    return m_ui->RunStdFileAssocChkBox->isChecked();
}

void CKvNoStandardsFileDlg::setRunChecked(bool isChecked)
{
    m_ui->RunStdFileAssocChkBox->setChecked(isChecked);
}

int CKvNoStandardsFileDlg::helpContextId() const
{
    return 3072;
}

void CKvNoStandardsFileDlg::clickedRunStds(bool isChecked)
{
    setRunChecked(isChecked);
}
