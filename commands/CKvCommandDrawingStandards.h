// SPDX-License-Identifier: MIT
#pragma once

#include "CKvCommand.h"

/// Opens the host's standards settings at the files of the drawing.
class CKvCommandDrawingStandards : public CKvCommand
{
public:
    OdString globalName() const override;
    OdString localName() const override;
    int executeCommand(CKvCommandContext *context) override;
    int helpContextId() const override;
};
