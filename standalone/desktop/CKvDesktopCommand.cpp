// SPDX-License-Identifier: MIT
#include "CKvDesktopCommand.h"

#include <utility>

CKvDesktopCommand::CKvDesktopCommand(CKvDesktop &desktop, const QString &name, Action action)
    : m_desktop(desktop)
    , m_name(name)
    , m_action(std::move(action))
{
}

OdString CKvDesktopCommand::globalName() const
{
    return OdString(QString(QLatin1Char('_') + m_name));
}

OdString CKvDesktopCommand::localName() const
{
    return OdString(m_name);
}

int CKvDesktopCommand::executeCommand(CKvCommandContext *)
{
    return m_action(m_desktop) ? kNormal : kFailed;
}
