// SPDX-License-Identifier: MIT
#include "CKvWorker.h"

#include "executableFolder.h"
#include "workerMessages.h"
#include "workerProcess.h"

#include <algorithm>
#include <limits>
#include <utility>

CKvWorker::CKvWorker(const CKvJobSettings &settings, double timeoutSeconds)
    : m_settings(settings)
    , m_timeoutSeconds(timeoutSeconds)
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_timer.setSingleShot(true);
    QObject::connect(&m_process, &QProcess::readyReadStandardOutput, [this] { readAnswer(); });
    QObject::connect(&m_process,
                     QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished),
                     [this] { processEnded(); });
    QObject::connect(&m_process, &QProcess::errorOccurred, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            fail(QStringLiteral("The worker process can't be started: %1.")
                     .arg(m_process.errorString()));
        }
    });
    QObject::connect(&m_timer, &QTimer::timeout, [this] {
        m_isTimedOut = true;
        m_process.kill();
    });
}

CKvWorker::~CKvWorker()
{
    m_process.disconnect();
    m_process.closeWriteChannel();
    m_process.waitForFinished();
}

void CKvWorker::start(const CKvDrawingJob &job, Done done)
{
    m_job = job;
    m_done = std::move(done);
    m_isTimedOut = false;
    if (m_process.state() == QProcess::NotRunning) {
        startProcess();
    }
    if (m_process.state() == QProcess::NotRunning) {
        return;
    }
    m_process.write(jobToLine(job));
    if (m_timeoutSeconds > 0) {
        constexpr double kLongestTimer = std::numeric_limits<int>::max();
        m_timer.start(int(std::min(m_timeoutSeconds * 1000, kLongestTimer)));
    }
}

void CKvWorker::startProcess()
{
    m_answer.clear();
    m_process.start(executablePath(), { QString::fromLatin1(kWorkerArgument) });
    if (m_process.state() != QProcess::NotRunning) {
        m_process.write(settingsToLine(m_settings));
    }
}

void CKvWorker::readAnswer()
{
    m_answer += m_process.readAllStandardOutput();
    const int end = m_answer.indexOf('\n');
    // What a process says that is being killed comes too late.
    if (end < 0 || !m_done || m_isTimedOut) {
        return;
    }
    const QByteArray line = m_answer.left(end);
    m_answer.remove(0, end + 1);
    CKvDrawingReport report;
    // The answer of a process that is about to die may be anything.
    try {
        report = reportFromLine(line);
    } catch (const std::exception &error) {
        fail(QString::fromUtf8(error.what()));
        return;
    }
    finish(report);
}

void CKvWorker::processEnded()
{
    fail(m_isTimedOut ? QStringLiteral("It took longer than %1 seconds.").arg(m_timeoutSeconds)
                      : QStringLiteral("The worker process ended unexpectedly."));
}

void CKvWorker::fail(const QString &reason)
{
    if (!m_done) {
        return;
    }
    CKvDrawingReport report;
    report.path = m_job.path;
    report.status = CKvDrawingStatus::Failed;
    report.error = QStringLiteral("%1: %2").arg(m_job.path, reason);
    finish(report);
}

void CKvWorker::finish(const CKvDrawingReport &report)
{
    m_timer.stop();
    const Done done = std::exchange(m_done, nullptr);
    done(report);
}
