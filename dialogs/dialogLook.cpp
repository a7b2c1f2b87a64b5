// SPDX-License-Identifier: MIT
#include "dialogLook.h"

#include "CKvSystemServices.h"
#include "OdDbHostAppServices.h"

#include <QIcon>
#include <QLabel>

void showStandardIcon(QLabel &label, QStyle::StandardPixmap icon)
{
    constexpr QSize kIconSize(50, 50);
    const QIcon picture = label.window()->style()->standardIcon(icon);
    label.setPixmap(picture.pixmap(kIconSize, QIcon::Normal, QIcon::Off));
}

void setUpWarning(QWidget &message, QLabel &iconLabel)
{
    showStandardIcon(iconLabel, QStyle::SP_MessageBoxWarning);
    message.setWindowTitle(
        GetKvSystemServices()->hostAppServices()->applicationTitle().toQString());
}
