// SPDX-License-Identifier: MIT
#include "CKvVerfiyCompleteMessage.h"

#include "dialogLook.h"
#include "ui_CKvVerfiyCompleteMessage.h"

CKvVerfiyCompleteMessage::CKvVerfiyCompleteMessage(QWidget *parent)
    : CKvDialog(parent, true, kDialogWindowFlags)
    , m_ui(std::make_unique<Ui::CKvVerfiyCompleteMessage>())
{
    m_ui->setupUi(this);
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    showStandardIcon(*m_ui->label_4, QStyle::SP_MessageBoxInformation);
}

CKvVerfiyCompleteMessage::~CKvVerfiyCompleteMessage() = default;

void CKvVerfiyCompleteMessage::setAutoFixCount(int count)
{
    showCount(count, m_autoFixCount, *m_ui->num_autoFix);
}

void CKvVerfiyCompleteMessage::setIgnoredCount(int count)
{
    showCount(count, m_ignoredCount, *m_ui->num_Ignored);
}

void CKvVerfiyCompleteMessage::setViolationCount(int count)
{
    showCount(count, m_violationCount, *m_ui->num_violations);
}

void CKvVerfiyCompleteMessage::setManualFixCount(int count)
{
    showCount(count, m_manualFixCount, *m_ui->num_manualFix);
}

int CKvVerfiyCompleteMessage::helpContextId() const
{
    return 3072;
}

void CKvVerfiyCompleteMessage::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
}

void CKvVerfiyCompleteMessage::showCount(int count, CKvString &text, QLabel &label)
{
    text = CKvString(QStringLiteral("%1").arg(count));
    label.setText(text.toQString());
}
