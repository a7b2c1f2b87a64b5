// SPDX-License-Identifier: MIT
#pragma once

#include "CKvCommandContext.h"
#include "CKvEditorReactor.h"
#include "OdEdCommand.h"
#include "OdStaticRxObject.h"

#include <QStringList>

/// Writes down what it hears: "start _LINE 1", "end _LINE 1" with the number of running commands.
class CKvEventLog : public OdStaticRxObject<CKvEditorReactor>
{
public:
    QStringList events;

    void commandAdded(OdEdCommand *command) override { note("added", command); }
    void commandWillBeRemoved(OdEdCommand *command) override { note("removed", command); }
    void commandWillStart(OdEdCommand *command, OdEdCommandContext *context) override
    {
        note("start", command, context);
    }
    void commandEnded(OdEdCommand *command, OdEdCommandContext *context) override
    {
        note("end", command, context);
    }
    void commandCancelled(OdEdCommand *command, OdEdCommandContext *context) override
    {
        note("cancelled", command, context);
    }
    void commandFailed(OdEdCommand *command, OdEdCommandContext *context) override
    {
        note("failed", command, context);
    }
    void unknownCommand(const OdString &name, OdEdCommandContext *) override
    {
        events << QString(QLatin1String("unknown ") + name.toQString());
    }
    void lispWillStart(const OdString &firstLine) override
    {
        events << QString(QLatin1String("lisp ") + firstLine.toQString());
    }
    void lispEnded() override { events << QStringLiteral("lisp ended"); }
    void lispCancelled() override { events << QStringLiteral("lisp cancelled"); }

private:
    void note(const char *event, OdEdCommand *command, OdEdCommandContext *context = nullptr)
    {
        QString line = QLatin1String(event) + QLatin1Char(' ') + command->globalName().toQString();
        if (context) {
            line += QLatin1Char(' ')
                + QString::number(GetKvCommandContext(context)->activeCommandDepth());
        }
        events << line;
    }
};
