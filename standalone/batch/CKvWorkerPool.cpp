// SPDX-License-Identifier: MIT
#include "CKvWorkerPool.h"

#include "CKvWorker.h"

CKvWorkerPool::CKvWorkerPool(const CKvJobSettings &settings, int workers, double timeoutSeconds)
{
    for (int i = 0; i < workers; ++i) {
        m_workers.push_back(std::make_unique<CKvWorker>(settings, timeoutSeconds));
    }
}

CKvWorkerPool::~CKvWorkerPool() = default;

void CKvWorkerPool::run(const std::vector<CKvDrawingJob> &jobs, const Deliver &deliver)
{
    m_next = 0;
    m_done = 0;
    // From within the loop: a process that can't be started reports before start returns.
    const auto startAll = [&] {
        for (const auto &worker : m_workers) {
            startNext(*worker, jobs, deliver);
        }
    };
    QMetaObject::invokeMethod(&m_loop, startAll, Qt::QueuedConnection);
    if (!jobs.empty()) {
        m_loop.exec();
    }
}

void CKvWorkerPool::startNext(CKvWorker &worker,
                              const std::vector<CKvDrawingJob> &jobs,
                              const Deliver &deliver)
{
    if (m_next == jobs.size()) {
        return;
    }
    const std::size_t index = m_next++;
    worker.start(jobs[index], [&, index](const CKvDrawingReport &report) {
        deliver(index, report);
        ++m_done;
        if (m_done == jobs.size()) {
            m_loop.quit();
            return;
        }
        // The next job waits for the event loop, so that failures one after the other don't nest.
        const auto startAnother = [&] { startNext(worker, jobs, deliver); };
        QMetaObject::invokeMethod(&m_loop, startAnother, Qt::QueuedConnection);
    });
}
