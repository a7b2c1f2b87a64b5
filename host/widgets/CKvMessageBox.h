// SPDX-License-Identifier: MIT
#pragma once

#include "hostApi.h"

#include <QMessageBox>
#include <QString>

/// The host's message boxes.
class KV_HOST_API CKvMessageBox
{
public:
    /// Shows a warning and waits for the answer.
    /// @param defaultButton QMessageBox::NoButton lets the box choose.
    /// @return the button that was pressed.
    static QMessageBox::StandardButton
    warning(QWidget *parent,
            const QString &caption,
            const QString &text,
            QMessageBox::StandardButtons buttons = QMessageBox::Ok,
            QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);
};
