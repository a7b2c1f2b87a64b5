// SPDX-License-Identifier: MIT
#include "terminal.h"

#ifdef _WIN32
#include <windows.h>

#include <fcntl.h>
#include <io.h>
#else
#include <unistd.h>

#include <csignal>
#endif

#include <cerrno>

void prepareStandardStreams()
{
#ifdef _WIN32
    for (std::FILE *stream : { stdin, stdout, stderr }) {
        _setmode(_fileno(stream), _O_BINARY);
    }
    SetConsoleOutputCP(CP_UTF8);
#else
    // Otherwise "kvstandards ... | head" would end with the status of a signal.
    std::signal(SIGPIPE, SIG_IGN);
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

bool printOutput(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    const std::size_t size = std::size_t(bytes.size());
    errno = 0;
    if (std::fwrite(bytes.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0) {
        return true;
    }
    printError(outputFailureText(errno));
    return false;
}

QString outputFailureText(int systemError)
{
    return systemError == 0
        ? QStringLiteral("Standard output can't be written.")
        : QStringLiteral("Standard output can't be written: %1.").arg(qt_error_string(systemError));
}
