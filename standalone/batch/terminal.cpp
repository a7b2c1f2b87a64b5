// SPDX-License-Identifier: MIT
#include "terminal.h"

#ifdef _WIN32
#include <windows.h>

#include <fcntl.h>
#include <io.h>
#else
#include <unistd.h>
#endif

void prepareStandardStreams()
{
#ifdef _WIN32
    for (std::FILE *stream : { stdin, stdout, stderr }) {
        _setmode(_fileno(stream), _O_BINARY);
    }
    SetConsoleOutputCP(CP_UTF8);
#endif
}

bool isTerminal(std::FILE *stream)
{
#ifdef _WIN32
    return _isatty(_fileno(stream)) != 0;
#else
    return isatty(fileno(stream)) != 0;
#endif
}

bool wantsColor(CKvWhen when)
{
    if (when != CKvWhen::Auto) {
        return when == CKvWhen::Always;
    }
    return isTerminal(stdout) && qEnvironmentVariableIsEmpty("NO_COLOR")
        && qgetenv("TERM") != "dumb";
}

void printError(const QString &line)
{
    const QByteArray bytes = line.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stderr);
}

void printOutput(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stdout);
}
