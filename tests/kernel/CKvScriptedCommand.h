// SPDX-License-Identifier: MIT
#pragma once

#include "CKvCommand.h"
#include "CKvCommandContext.h"
#include "OdStaticRxObject.h"

#include <QString>

#include <functional>

/// A command that does what the test says.
class CKvScriptedCommand : public OdStaticRxObject<CKvCommand>
{
public:
    using Action = std::function<int(CKvCommandContext *)>;

    explicit CKvScriptedCommand(
        const QString &name, Action action = [](CKvCommandContext *) { return kNormal; })
        : m_name(name)
        , m_action(std::move(action))
    {
    }

    OdString globalName() const override { return OdString(QString(QLatin1Char('_') + m_name)); }
    OdString localName() const override { return OdString(m_name); }
    int executeCommand(CKvCommandContext *context) override { return m_action(context); }

private:
    QString m_name;
    Action m_action;
};
