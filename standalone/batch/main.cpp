// SPDX-License-Identifier: MIT
#include "CKvUsageError.h"
#include "commandFiles.h"
#include "commandIgnore.h"
#include "commandShow.h"
#include "parseOptions.h"
#include "runDrawings.h"
#include "terminal.h"
#include "workerProcess.h"

#include <QTextCodec>

#ifdef _WIN32
#include <windows.h>

#include <shellapi.h>
#endif

namespace
{

/// Without the program's name, in UTF-8 whatever the locale is.
QStringList commandLineArguments(int count, const char *const *values)
{
    QStringList arguments;
#ifdef _WIN32
    int wideCount = 0;
    wchar_t **wide = CommandLineToArgvW(GetCommandLineW(), &wideCount);
    for (int i = 1; i < wideCount; ++i) {
        arguments << QString::fromWCharArray(wide[i]);
    }
    LocalFree(wide);
    (void)count;
    (void)values;
#else
    for (int i = 1; i < count; ++i) {
        arguments << QString::fromUtf8(values[i]);
    }
#endif
    return arguments;
}

CKvExitStatus runCommand(const CKvBatchOptions &options)
{
    switch (options.command) {
    case CKvCommandKind::Files:
        return commandFiles(options.drawing);
    case CKvCommandKind::Ignore:
        return commandIgnore(options.drawing);
    case CKvCommandKind::Show:
        return commandShow(options.drawing);
    case CKvCommandKind::Check:
    case CKvCommandKind::Fix:
        break;
    }
    return runDrawings(options);
}

CKvExitStatus run(const QStringList &arguments)
{
    const CKvParsedCommandLine parsed = parseOptions(arguments);
    if (!parsed.options) {
        if (parsed.status == CKvExitStatus::WrongUsage) {
            printError(parsed.text.trimmed());
            return parsed.status;
        }
        return printOutput(parsed.text) ? parsed.status : CKvExitStatus::Incomplete;
    }
    // What only the files show to be wrong usage is found before anything was done.
    try {
        return runCommand(*parsed.options);
    } catch (const CKvUsageError &error) {
        printError(error.text());
        return CKvExitStatus::WrongUsage;
    }
}

} // namespace

int main(int argc, char *argv[])
{
    prepareStandardStreams();
#ifndef _WIN32
    // File names are bytes; in a "C" locale those beyond ASCII could not be named otherwise.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
#endif
    const QStringList arguments = commandLineArguments(argc, argv);
    try {
        if (arguments == QStringList(QString::fromLatin1(kWorkerArgument))) {
            return runWorkerProcess();
        }
        return int(run(arguments));
    } catch (const std::exception &error) {
        // Nothing that a drawing contains leads here; memory may have run out.
        printError(QString::fromUtf8(error.what()));
        return int(CKvExitStatus::Incomplete);
    }
}
