// SPDX-License-Identifier: MIT
#include "CKvQtDialogButtonBox.h"

CKvQtDialogButtonBox::CKvQtDialogButtonBox(QWidget *parent)
    : QDialogButtonBox(parent)
{
}

CKvQtDialogButtonBox::~CKvQtDialogButtonBox() = default;
