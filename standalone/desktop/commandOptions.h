// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDesktop.h"
#include "CKvHostDocument.h"
#include "OdDbSymbolTableRecord.h"
#include "recordNames.h"
#include "recordTables.h"

#include <functional>
#include <utility>
#include <vector>

/// What a command can do, by the word that the user gives for it.
using CKvCommandOptions = std::vector<std::pair<const char *, std::function<void(CKvDesktop &)>>>;

/// Asks for an option and runs it. The beginning of its word will do; the first that fits counts.
/// @return false for a word that is no option, which is told.
/// @throws OdError when no drawing is open.
bool runOption(CKvDesktop &desktop, const QString &prompt, const CKvCommandOptions &options);

/// The question for a record's name.
QString namePrompt();
/// Asks for the name of a record and deletes it when nothing uses it.
std::function<void(CKvDesktop &)> deletes(CKvRecordKind kind);
/// Asks for the name of a record and makes it the current one.
/// @param variable of the header, with the dollar sign. @param code its group.
std::function<void(CKvDesktop &)> makesCurrent(CKvRecordKind kind, const char *variable, int code);
/// Asks for a name and makes a new record of it.
template <class Record> std::function<void(CKvDesktop &)> adds(CKvRecordKind kind)
{
    return [kind](CKvDesktop &desktop) {
        const QString name = desktop.commandLine().ask(namePrompt());
        requireValidName(name);
        const OdSmartPtr<Record> record = Record::createObject();
        record->setName(OdString(name));
        openTable(desktop.requireDocument(), kind, OdDb::kForWrite)->add(record);
    };
}
/// Asks for a record, then for a value, and only then opens the record to change it: whoever breaks
/// off at the second question has changed nothing.
/// @param change gets the record, open for writing, and the answer.
template <class Record>
std::function<void(CKvDesktop &)> changes(CKvRecordKind kind,
                                          const QString &prompt,
                                          std::function<void(Record &, const QString &)> change,
                                          CKvInput::Kind answers = CKvInput::Kind::Word)
{
    return [kind, prompt, answers, change = std::move(change)](CKvDesktop &desktop) {
        const OdSmartPtr<Record> record(askRecord(desktop, kind, namePrompt(), OdDb::kForRead));
        const QString answer = desktop.commandLine().ask(prompt, answers);
        record->upgradeOpen();
        change(*record, answer);
    };
}
