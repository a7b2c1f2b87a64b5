// SPDX-License-Identifier: MIT
#pragma once

#include <QStyle>

class QLabel;
class QWidget;

/// All dialogs have a title, a system menu and a close button, and nothing else up there.
constexpr Qt::WindowFlags kDialogWindowFlags =
    Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;

/// Puts a picture of the label's style into the label, 50 by 50 at most.
void showStandardIcon(QLabel &label, QStyle::StandardPixmap icon);

/// Gives a message its warning icon and the program's name as title.
void setUpWarning(QWidget &message, QLabel &iconLabel);
