// SPDX-License-Identifier: MIT
#include "CKvStandardViolationMessage.h"

#include "dialogLook.h"
#include "ui_CKvStandardViolationMessage.h"

CKvStandardViolationMessage::CKvStandardViolationMessage(QWidget *parent)
    : CKvDialog(parent, true, kDialogWindowFlags)
    , m_ui(std::make_unique<Ui::CKvStandardViolationMessage>())
{
    m_ui->setupUi(this);
    connect(m_ui->runStdVerification,
            &QRadioButton::clicked,
            this,
            &CKvStandardViolationMessage::clickedRunStandard);
    connect(m_ui->keepObjUnchanged,
            &QRadioButton::clicked,
            this,
            &CKvStandardViolationMessage::clickedObjUnchanged);
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    setUpWarning(*this, *m_ui->label_4);
}

CKvStandardViolationMessage::~CKvStandardViolationMessage() = default;

void CKvStandardViolationMessage::syncRadios()
{
    checkRadios(m_runRequested || !m_keepRequested);
}

int CKvStandardViolationMessage::helpContextId() const
{
    return 3072;
}

void CKvStandardViolationMessage::clickedRunStandard(bool isChecked)
{
    m_runRequested = isChecked;
    m_keepRequested = !isChecked;
    checkRadios(isChecked);
}

void CKvStandardViolationMessage::clickedObjUnchanged(bool isChecked)
{
    m_keepRequested = isChecked;
    m_runRequested = !isChecked;
    checkRadios(!isChecked);
}

void CKvStandardViolationMessage::checkRadios(bool isRun)
{
    // The one to be on first: the last checked one of a group can't be unchecked.
    QRadioButton *on = isRun ? m_ui->runStdVerification : m_ui->keepObjUnchanged;
    QRadioButton *off = isRun ? m_ui->keepObjUnchanged : m_ui->runStdVerification;
    on->setChecked(true);
    off->setChecked(false);
}
