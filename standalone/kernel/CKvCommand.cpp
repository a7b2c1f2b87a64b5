// SPDX-License-Identifier: MIT
#include "CKvCommand.h"

#include "CKvCommandContext.h"
#include "OdRxClass.h"
#include "helpTopics.h"

CKvCommand::CKvCommand() = default;

CKvCommand::~CKvCommand() = default;

OdRxClass *CKvCommand::desc()
{
    static OdRxClass s_class(OdString("CKvCommand"), OdEdCommand::desc(), nullptr, OdString());
    return &s_class;
}

OdRxClass *CKvCommand::isA() const
{
    return desc();
}

OdString CKvCommand::groupName() const
{
    return OdString("KV_COMMANDS");
}

int CKvCommand::execute(OdEdCommandContext *context)
{
    return executeCommand(GetKvCommandContext(context));
}

OdRxModule *CKvCommand::module() const
{
    return nullptr;
}

void CKvCommand::undefine(bool isUndefined)
{
    m_isUndefined = isUndefined;
}

std::int32_t CKvCommand::flags() const
{
    return m_flags;
}

void CKvCommand::Help()
{
    showHelpTopic(helpContextId());
}

int CKvCommand::helpContextId() const
{
    return 0;
}

void CKvCommand::AddFlags(std::int32_t flags)
{
    m_flags |= flags;
}
