// SPDX-License-Identifier: MIT
#pragma once

#include "hostApi.h"

class QWidget;

/// The frame that holds the host's windows.
class KV_HOST_API CKvApplicationFrame
{
public:
    virtual ~CKvApplicationFrame() = default;
    /// The parent of modal dialogs; null when there is no window.
    virtual QWidget *mainWindow() = 0;
};
