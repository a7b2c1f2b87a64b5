// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDrawingJob.h"

#include <QEventLoop>

#include <functional>
#include <memory>
#include <vector>

class CKvWorker;
class QTimer;

/// Spreads the drawings of a run over worker processes. Needs an application object.
class CKvWorkerPool
{
public:
    /// @param index of the job.
    using Deliver = std::function<void(std::size_t index, const CKvDrawingReport &report)>;

    /// @param settings must outlive the pool.
    /// @param workers at least 1.
    CKvWorkerPool(const CKvJobSettings &settings, int workers, double timeoutSeconds);
    ~CKvWorkerPool();
    CKvWorkerPool(const CKvWorkerPool &) = delete;
    CKvWorkerPool &operator=(const CKvWorkerPool &) = delete;

    /// Returns when all jobs are done. Reports come in the order in which they are done.
    void run(const std::vector<CKvDrawingJob> &jobs, const Deliver &deliver);

private:
    void startIdle(const std::vector<CKvDrawingJob> &jobs, const Deliver &deliver, QTimer &wake);

    std::vector<std::unique_ptr<CKvWorker>> m_workers;
    std::vector<CKvWorker *> m_idle;
    QEventLoop m_loop;
    std::size_t m_next = 0;
    std::size_t m_done = 0;
};
