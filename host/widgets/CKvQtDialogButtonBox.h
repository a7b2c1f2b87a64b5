// SPDX-License-Identifier: MIT
#pragma once

#include "hostApi.h"

#include <QDialogButtonBox>

/// A row of buttons as all dialogs of the host have it.
class KV_HOST_API CKvQtDialogButtonBox : public QDialogButtonBox
{
    Q_OBJECT

public:
    explicit CKvQtDialogButtonBox(QWidget *parent = nullptr);
    ~CKvQtDialogButtonBox() override;
};
