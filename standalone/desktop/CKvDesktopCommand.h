// SPDX-License-Identifier: MIT
#pragma once

#include "CKvCommand.h"
#include "OdStaticRxObject.h"

#include <QString>

#include <functional>

class CKvDesktop;

/// A command of the desktop: a name and what it does.
class CKvDesktopCommand : public OdStaticRxObject<CKvCommand>
{
public:
    /// @return false when the command failed.
    using Action = std::function<bool(CKvDesktop &)>;

    CKvDesktopCommand(CKvDesktop &desktop, const QString &name, Action action);

    OdString globalName() const override;
    OdString localName() const override;
    int executeCommand(CKvCommandContext *context) override;

private:
    CKvDesktop &m_desktop;
    QString m_name;
    Action m_action;
};
