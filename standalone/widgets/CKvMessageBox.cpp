// SPDX-License-Identifier: MIT
#include "CKvMessageBox.h"

QMessageBox::StandardButton CKvMessageBox::warning(QWidget *parent,
                                                   const QString &caption,
                                                   const QString &text,
                                                   QMessageBox::StandardButtons buttons,
                                                   QMessageBox::StandardButton defaultButton)
{
    return QMessageBox::warning(parent, caption, text, buttons, defaultButton);
}
