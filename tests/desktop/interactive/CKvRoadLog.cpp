// SPDX-License-Identifier: MIT
#include "CKvRoadLog.h"

#include "CKvSession.h"
#include "OdDbSymbolTableRecord.h"
#include "OdEdCommand.h"
#include "managerTimer.h"

#include <QTimer>

#include <algorithm>

namespace
{

/// The name of a record, the kind of any other object.
std::string nameOf(const OdDbObject &object)
{
    const OdDbSymbolTableRecordPtr record = OdDbSymbolTableRecord::cast(&object);
    const OdString name = record ? record->getName() : object.isA()->dxfName();
    return name.toQString().toStdString();
}

std::string nameOf(const OdEdCommand &command)
{
    return command.globalName().toQString().toStdString();
}

} // namespace

CKvRoadLog::CKvRoadLog(CKvSession &session)
    : m_session(session)
{
    m_session.commands().addReactor(this);
}

CKvRoadLog::~CKvRoadLog()
{
    m_session.commands().removeReactor(this);
}

void CKvRoadLog::note(const std::string &event)
{
    const QTimer *timer = managerTimer();
    m_events.push_back(event + (timer && timer->isActive() ? "; timer runs" : "")
                       + (m_session.commandLine().hasPosted() ? "; check waits" : ""));
}

long CKvRoadLog::count(const std::string &event) const
{
    return std::count_if(m_events.begin(), m_events.end(), [&](const std::string &line) {
        return line.substr(0, line.find(';')) == event;
    });
}

void CKvRoadLog::objectAppended(const OdDbDatabase *, const OdDbObject *object)
{
    note("appended " + nameOf(*object));
}

void CKvRoadLog::objectOpenedForModify(const OdDbDatabase *, const OdDbObject *object)
{
    note("opened " + nameOf(*object));
}

void CKvRoadLog::objectModified(const OdDbDatabase *, const OdDbObject *object)
{
    note("modified " + nameOf(*object));
}

void CKvRoadLog::objectErased(const OdDbDatabase *, const OdDbObject *object, bool isErased)
{
    note((isErased ? "erased " : "back ") + nameOf(*object));
}

void CKvRoadLog::commandWillStart(OdEdCommand *command, OdEdCommandContext *)
{
    note("start " + nameOf(*command));
}

void CKvRoadLog::commandEnded(OdEdCommand *command, OdEdCommandContext *)
{
    note("end " + nameOf(*command));
}

void CKvRoadLog::commandCancelled(OdEdCommand *command, OdEdCommandContext *)
{
    note("cancelled " + nameOf(*command));
}

void CKvRoadLog::commandFailed(OdEdCommand *command, OdEdCommandContext *)
{
    note("failed " + nameOf(*command));
}
