// SPDX-License-Identifier: MIT
#pragma once

#include "CKvCommand.h"
#include "OdStaticRxObject.h"

#include <functional>
#include <utility>

/// A command that does what the test says.
class CKvNamedCommand : public OdStaticRxObject<CKvCommand>
{
public:
    CKvNamedCommand(const char *name, std::function<void()> work)
        : m_name(name)
        , m_work(std::move(work))
    {
    }
    OdString globalName() const override { return m_name; }
    OdString localName() const override { return OdString(m_name.toQString().mid(1)); }
    int executeCommand(CKvCommandContext * /*context*/) override
    {
        m_work();
        return kNormal;
    }

private:
    OdString m_name;
    std::function<void()> m_work;
};
