// SPDX-License-Identifier: MIT
#include "CKvWorkerPool.h"

#include "CKvWorker.h"

#include <QTimer>

CKvWorkerPool::CKvWorkerPool(const CKvJobSettings &settings, int workers, double timeoutSeconds)
{
    for (int i = 0; i < workers; ++i) {
        m_workers.push_back(std::make_unique<CKvWorker>(settings, timeoutSeconds));
    }
}

CKvWorkerPool::~CKvWorkerPool() = default;

void CKvWorkerPool::run(const std::vector<CKvDrawingJob> &jobs, const Deliver &deliver)
{
    if (jobs.empty()) {
        return;
    }
    m_next = 0;
    m_done = 0;
    m_idle.clear();
    for (const auto &worker : m_workers) {
        m_idle.push_back(worker.get());
    }
    // Workers start from within the loop: a process that can't be started reports before start
    // returns, and failures one after the other must not nest.
    QTimer wake;
    wake.setSingleShot(true);
    QObject::connect(&wake, &QTimer::timeout, [&] { startIdle(jobs, deliver, wake); });
    wake.start(0);
    m_loop.exec();
}

void CKvWorkerPool::startIdle(const std::vector<CKvDrawingJob> &jobs,
                              const Deliver &deliver,
                              QTimer &wake)
{
    std::vector<CKvWorker *> idle;
    idle.swap(m_idle);
    for (CKvWorker *worker : idle) {
        if (m_next == jobs.size()) {
            return;
        }
        const std::size_t index = m_next++;
        worker->start(jobs[index], [&, worker, index](const CKvDrawingReport &report) {
            deliver(index, report);
            ++m_done;
            if (m_done == jobs.size()) {
                m_loop.quit();
                return;
            }
            m_idle.push_back(worker);
            wake.start(0);
        });
    }
}
