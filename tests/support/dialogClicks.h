// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QDialogButtonBox>

#include <string>

/// Presses a button of the row at the bottom of a dialog.
void press(const QDialog &dialog, QDialogButtonBox::StandardButton which);
/// Clicks the button, check box or radio button of that name.
void click(const QDialog &dialog, const char *buttonName);
/// What a label shows, without the blanks around it.
std::string labelText(const QDialog &dialog, const char *labelName);
