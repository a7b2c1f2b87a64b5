// SPDX-License-Identifier: MIT
#include "dialogClicks.h"

#include <QAbstractButton>
#include <QLabel>
#include <QPushButton>

void press(const QDialog &dialog, QDialogButtonBox::StandardButton which)
{
    dialog.findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"))->button(which)->click();
}

void click(const QDialog &dialog, const char *buttonName)
{
    dialog.findChild<QAbstractButton *>(QLatin1String(buttonName))->click();
}

std::string labelText(const QDialog &dialog, const char *labelName)
{
    return dialog.findChild<QLabel *>(QLatin1String(labelName))->text().trimmed().toStdString();
}
