// SPDX-License-Identifier: MIT
#include "CKvProgress.h"

#include "displayWidth.h"
#include "terminal.h"

CKvProgress::CKvProgress(CKvWhen when, bool isQuiet, int drawings)
    : m_isTerminal(isTerminal(stderr))
    , m_drawings(drawings)
{
    // A single drawing is done before anybody could read of it.
    const bool isWorthwhile = m_isTerminal && !isQuiet && drawings > 1;
    m_isShown = when == CKvWhen::Always || (when == CKvWhen::Auto && isWorthwhile);
}

CKvProgress::~CKvProgress()
{
    clear();
}

void CKvProgress::clear()
{
    if (m_hasLine) {
        std::fputs("\r\x1b[K", stderr);
        m_hasLine = false;
    }
}

void CKvProgress::drawingDone(const QString &path)
{
    ++m_done;
    if (!m_isShown) {
        return;
    }
    const QString line =
        QStringLiteral("[%1/%2] %3").arg(m_done).arg(m_drawings).arg(printable(path));
    if (!m_isTerminal) {
        printError(line);
        return;
    }
    // A line that breaks could not be taken away again.
    constexpr int kLongestLine = 78;
    clear();
    std::fputs(line.left(kLongestLine).toUtf8().constData(), stderr);
    std::fflush(stderr);
    m_hasLine = true;
}
