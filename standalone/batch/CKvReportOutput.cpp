// SPDX-License-Identifier: MIT
#include "CKvReportOutput.h"

#include <QFile>
#include <QSaveFile>

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
    return !m_file || m_file->open(QIODevice::WriteOnly);
}

void CKvReportOutput::write(const QByteArray &bytes)
{
    const bool isWritten = m_file
        ? m_file->write(bytes) == bytes.size()
        : std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stdout)
            == std::size_t(bytes.size());
    m_hasFailed = m_hasFailed || !isWritten;
}

void CKvReportOutput::flush()
{
    const bool isFlushed = m_file ? m_file->flush() : std::fflush(stdout) == 0;
    m_hasFailed = m_hasFailed || !isFlushed;
}

bool CKvReportOutput::close()
{
    // A disk that is full may show here for the first time; the old file then stays.
    flush();
    if (m_saveFile && !m_hasFailed && !m_saveFile->commit()) {
        m_hasFailed = true;
    }
    return !m_hasFailed;
}

QString CKvReportOutput::errorText() const
{
    return m_file ? QStringLiteral("%1: %2.").arg(m_path, m_file->errorString())
                  : QStringLiteral("Standard output can't be written.");
}
