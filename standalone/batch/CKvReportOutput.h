// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

class QFileDevice;
class QSaveFile;

/// Where a report goes: standard output or a file. A file is replaced when the report is complete,
/// unless it is written as it grows.
class CKvReportOutput
{
public:
    enum class Replacing { AtTheEnd, AsItGrows };

    /// @param file empty for standard output.
    explicit CKvReportOutput(const QString &file, Replacing replacing = Replacing::AtTheEnd);
    ~CKvReportOutput();
    CKvReportOutput(const CKvReportOutput &) = delete;
    CKvReportOutput &operator=(const CKvReportOutput &) = delete;

    /// @return false when the file can't be written; errorText tells why.
    bool open();
    void write(const QByteArray &bytes);
    void write(const QString &text) { write(text.toUtf8()); }
    /// Hands on what was written so far.
    void flush();
    /// @return false when something could not be written.
    bool close();
    /// Why opening, writing or closing failed, as a sentence.
    QString errorText() const { return m_failure; }

private:
    /// Keeps the first failure: what comes later follows from it.
    void noteFailure(const QString &text);
    /// @param systemError errno right after the failure, 0 when nothing set it.
    void noteWriteFailure(int systemError);

    QString m_path;
    std::unique_ptr<QFileDevice> m_file;
    /// The same, when it is replaced at the end.
    QSaveFile *m_saveFile = nullptr;
    /// Empty while everything could be written.
    QString m_failure;
};
