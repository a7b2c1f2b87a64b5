// SPDX-License-Identifier: MIT
#include "CKvCommandLog.h"

#include <utility>

CKvCommandLog::CKvCommandLog(CKvCommandStack &stack)
    : m_stack(stack)
{
    m_stack.addReactor(this);
}

CKvCommandLog::~CKvCommandLog()
{
    m_stack.removeReactor(this);
}

void CKvCommandLog::commandWillStart(OdEdCommand *command, OdEdCommandContext *)
{
    note('+', *command);
}

void CKvCommandLog::commandEnded(OdEdCommand *command, OdEdCommandContext *)
{
    note('-', *command);
}

void CKvCommandLog::commandCancelled(OdEdCommand *command, OdEdCommandContext *)
{
    note('x', *command);
}

void CKvCommandLog::commandFailed(OdEdCommand *command, OdEdCommandContext *)
{
    note('!', *command);
}

QStringList CKvCommandLog::take()
{
    return std::exchange(m_heard, {});
}

void CKvCommandLog::note(char mark, const OdEdCommand &command)
{
    m_heard << QString(QLatin1Char(mark) + command.localName().toQString());
}
