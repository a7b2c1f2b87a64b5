// SPDX-License-Identifier: MIT
#pragma once

#include "CKvCommand.h"

/// Gives layer WALLS of the active drawing another colour at each run.
class CKvRecolorCommand : public CKvCommand
{
public:
    OdString globalName() const override { return OdString("_RECOLOR"); }
    OdString localName() const override { return OdString("RECOLOR"); }
    int executeCommand(CKvCommandContext *context) override;

private:
    int m_color = 1;
};
