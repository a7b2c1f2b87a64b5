// SPDX-License-Identifier: MIT
#pragma once

#include "OdEdCommand.h"
#include "OdEdCommandStackReactor.h"

#include <string>
#include <vector>

/// Writes down which commands start and end.
class CKvCommandLog : public OdEdCommandStackReactor
{
public:
    std::vector<std::string> events;

    void commandWillStart(OdEdCommand *command, OdEdCommandContext *) override
    {
        events.push_back("start " + command->globalName().toQString().toStdString());
    }
    void commandEnded(OdEdCommand *command, OdEdCommandContext *) override
    {
        events.push_back("end " + command->globalName().toQString().toStdString());
    }
};
