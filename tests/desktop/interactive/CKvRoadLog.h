// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDatabaseReactor.h"
#include "OdEdCommandStackReactor.h"
#include "OdStaticRxObject.h"

#include <string>
#include <vector>

class CKvSession;

/// Writes down what happens to one drawing and to the command line, and behind each entry what the
/// module has made of it so far: whether its timer runs, and whether a check waits. Heard behind
/// the module, which was there first.
class CKvRoadLog : public OdStaticRxObject<CKvDatabaseReactor>, public OdEdCommandStackReactor
{
public:
    /// @param session outlives the log.
    explicit CKvRoadLog(CKvSession &session);
    ~CKvRoadLog() override;
    CKvRoadLog(const CKvRoadLog &) = delete;
    CKvRoadLog &operator=(const CKvRoadLog &) = delete;

    void note(const std::string &event);
    /// How often the event was noted, whatever stands behind it.
    long count(const std::string &event) const;
    void clear() { m_events.clear(); }
    /// "modified WALLS; timer runs", a line each.
    const std::vector<std::string> &events() const { return m_events; }

    void objectAppended(const OdDbDatabase *database, const OdDbObject *object) override;
    void objectOpenedForModify(const OdDbDatabase *database, const OdDbObject *object) override;
    void objectModified(const OdDbDatabase *database, const OdDbObject *object) override;
    void
    objectErased(const OdDbDatabase *database, const OdDbObject *object, bool isErased) override;
    void commandWillStart(OdEdCommand *command, OdEdCommandContext *context) override;
    void commandEnded(OdEdCommand *command, OdEdCommandContext *context) override;
    void commandCancelled(OdEdCommand *command, OdEdCommandContext *context) override;
    void commandFailed(OdEdCommand *command, OdEdCommandContext *context) override;

private:
    CKvSession &m_session;
    std::vector<std::string> m_events;
};
