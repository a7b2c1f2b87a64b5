// SPDX-License-Identifier: MIT
#include "CKvReportOutput.h"

#include "CKvFileReplacement.h"
#include "terminal.h"

#include <QFile>

#include <cerrno>
#include <cstdio>

CKvReportOutput::CKvReportOutput(const QString &file, Replacing replacing)
    : m_path(file)
{
    if (file.isEmpty()) {
        return;
    }
    if (replacing == Replacing::AsItGrows) {
        m_file = std::make_unique<QFile>(file);
    } else {
        auto saveFile = std::make_unique<QSaveFile>(file);
        m_saveFile = saveFile.get();
        m_file = std::move(saveFile);
    }
}

CKvReportOutput::~CKvReportOutput() = default;

bool CKvReportOutput::open()
{
    if (m_file && !m_file->open(QIODevice::WriteOnly)) {
        noteFailure(QStringLiteral("%1: %2.").arg(m_path, m_file->errorString()));
        return false;
    }
    return true;
}

void CKvReportOutput::write(const QByteArray &bytes)
{
    errno = 0;
    const bool isWritten = m_file
        ? m_file->write(bytes) == bytes.size()
        : std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stdout)
            == std::size_t(bytes.size());
    if (!isWritten) {
        noteWriteFailure(errno);
    }
}

void CKvReportOutput::flush()
{
    errno = 0;
    const bool isFlushed = m_file ? m_file->flush() : std::fflush(stdout) == 0;
    if (!isFlushed) {
        noteWriteFailure(errno);
    }
}

bool CKvReportOutput::close()
{
    // A disk that is full may show here for the first time; the old file then stays.
    flush();
    if (m_saveFile && m_failure.isEmpty() && !m_saveFile->commit()) {
        noteFailure(QStringLiteral("%1: %2.").arg(m_path, m_file->errorString()));
    }
    return m_failure.isEmpty();
}

void CKvReportOutput::noteWriteFailure(int systemError)
{
    noteFailure(
        m_file ? QStringLiteral("%1: %2.").arg(m_path, writeFailureReason(*m_file, systemError))
               : outputFailureText(systemError));
}

void CKvReportOutput::noteFailure(const QString &text)
{
    if (m_failure.isEmpty()) {
        m_failure = text;
    }
}
