// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDrawingJob.h"

#include <QProcess>
#include <QTimer>

#include <functional>

/// One worker process, started when it gets a job and again when one cost its life. A job always
/// ends in a report, whatever becomes of the process.
class CKvWorker
{
public:
    using Done = std::function<void(const CKvDrawingReport &)>;

    /// @param settings must outlive the worker.
    /// @param timeoutSeconds 0 for none.
    CKvWorker(const CKvJobSettings &settings, double timeoutSeconds);
    ~CKvWorker();
    CKvWorker(const CKvWorker &) = delete;
    CKvWorker &operator=(const CKvWorker &) = delete;

    /// Begins a job; one at a time.
    /// @param done called from the event loop, and may begin the next.
    void start(const CKvDrawingJob &job, Done done);

private:
    void startProcess();
    void readAnswer();
    void processEnded();
    void fail(const QString &reason);
    void finish(const CKvDrawingReport &report);

    const CKvJobSettings &m_settings;
    double m_timeoutSeconds;
    QTimer m_timer;
    QProcess m_process;
    QByteArray m_answer;
    CKvDrawingJob m_job;
    /// Null while there is no job.
    Done m_done;
    bool m_isTimedOut = false;
};
