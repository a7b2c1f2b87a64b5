// SPDX-License-Identifier: MIT
#include "runDrawings.h"

#include "CKvBatchSession.h"
#include "CKvProgress.h"
#include "CKvReportOutput.h"
#include "CKvReportWriter.h"
#include "CKvWorkerPool.h"
#include "chooseOutputs.h"
#include "collectDrawings.h"
#include "displayWidth.h"
#include "terminal.h"

#include <QCoreApplication>
#include <QThread>

#include <algorithm>
#include <optional>
#include <set>

namespace
{

/// Takes the reports as they come and hands them on in the order of the drawings.
class CKvReportCollector
{
public:
    CKvReportCollector(const CKvRunOptions &options, CKvReportWriter &writer, std::size_t drawings)
        : m_options(options)
        , m_writer(writer)
        , m_summary(options.includesIgnored)
        , m_progress(options.progress, options.isQuiet, int(drawings))
        , m_waiting(drawings)
    {
    }

    CKvRunSummary &summary() { return m_summary; }
    const std::set<int> &usedMapRows() const { return m_usedMapRows; }
    void endProgress() { m_progress.clear(); }

    void take(std::size_t index, const CKvDrawingReport &report)
    {
        m_summary.add(report);
        m_usedMapRows.insert(report.usedMapRows.begin(), report.usedMapRows.end());
        m_progress.clear();
        if (m_writer.takesAnyOrder()) {
            write(report);
        } else {
            m_waiting[index] = report;
            writeWaiting();
        }
        m_progress.drawingDone(report.path);
    }

private:
    void writeWaiting()
    {
        for (; m_next < m_waiting.size() && m_waiting[m_next]; ++m_next) {
            write(*m_waiting[m_next]);
            m_waiting[m_next].reset();
        }
    }

    void write(const CKvDrawingReport &report)
    {
        m_writer.addDrawing(report);
        // The text report carries them itself.
        if (m_options.format == CKvReportFormat::Text || m_options.isQuiet) {
            return;
        }
        for (const QString &warning : report.warnings) {
            printError(QStringLiteral("%1: Warning: %2").arg(report.path, warning));
        }
    }

    const CKvRunOptions &m_options;
    CKvReportWriter &m_writer;
    CKvRunSummary m_summary;
    CKvProgress m_progress;
    std::vector<std::optional<CKvDrawingReport>> m_waiting;
    std::size_t m_next = 0;
    std::set<int> m_usedMapRows;
};

int workerCount(const CKvRunOptions &options, std::size_t drawings)
{
    const int wanted = options.jobs > 0 ? options.jobs : QThread::idealThreadCount();
    return std::max(1, std::min(wanted, int(drawings)));
}

void runHere(const CKvJobSettings &settings,
             const std::vector<CKvDrawingJob> &jobs,
             CKvReportCollector &collector)
{
    CKvBatchSession session(settings.check);
    for (std::size_t i = 0; i < jobs.size(); ++i) {
        collector.take(i, runJob(session, settings, jobs[i]));
    }
}

void runInWorkers(const CKvRunOptions &options,
                  const CKvJobSettings &settings,
                  const std::vector<CKvDrawingJob> &jobs,
                  CKvReportCollector &collector)
{
    int argumentCount = 1;
    char name[] = "kvstandards";
    char *arguments[] = { name, nullptr };
    const QCoreApplication application(argumentCount, arguments);
    CKvWorkerPool pool(settings, workerCount(options, jobs.size()), options.timeoutSeconds);
    pool.run(jobs, [&collector](std::size_t index, const CKvDrawingReport &report) {
        collector.take(index, report);
    });
}

/// Rows of the map that named no violation of any drawing, a line each.
QString unusedRowsText(const CKvRepairMap &map, const std::set<int> &used)
{
    QString text;
    for (std::size_t i = 0; i < map.size(); ++i) {
        if (used.count(int(i)) == 0) {
            text += QStringLiteral("Line %1 of the map was not used: %2 %3\n")
                        .arg(map[i].line)
                        .arg(map[i].category, printable(map[i].name));
        }
    }
    return text;
}

void tellUnusedRows(const CKvRunOptions &options,
                    const CKvReportCollector &collector,
                    CKvReportOutput &output)
{
    const QString text = unusedRowsText(options.fix.map, collector.usedMapRows());
    if (text.isEmpty()) {
        return;
    }
    if (options.format == CKvReportFormat::Text) {
        output.write(text);
    } else {
        printError(text.trimmed());
    }
}

/// What of the drawings that were asked for can't be had or was passed over.
void tellOfInputs(const CKvDrawingList &list, bool isQuiet, CKvRunSummary &summary)
{
    for (const QString &error : list.errors) {
        printError(error);
        summary.addFailure();
    }
    for (const QString &note : list.notes) {
        if (!isQuiet) {
            printError(note);
        }
    }
    if (list.drawings.empty()) {
        printError(QStringLiteral("There is no drawing to work on."));
    }
}

} // namespace

CKvExitStatus runDrawings(const CKvBatchOptions &options)
{
    const CKvRunOptions &run = options.run;
    const CKvDrawingList list = collectDrawings(run.inputs, run.filesFrom, run.outputFolder);
    const std::vector<CKvDrawingJob> jobs = chooseOutputs(list.drawings, run);
    CKvReportOutput output(run.reportFile,
                           run.format == CKvReportFormat::JsonLines
                               ? CKvReportOutput::Replacing::AsItGrows
                               : CKvReportOutput::Replacing::AtTheEnd);
    if (!output.open()) {
        printError(output.errorText());
        return CKvExitStatus::Incomplete;
    }
    const bool isColored =
        run.color == CKvWhen::Always || (run.reportFile.isEmpty() && wantsColor(run.color));
    const auto writer = makeReportWriter(run, output, isColored);
    CKvReportCollector collector(run, *writer, jobs.size());
    tellOfInputs(list, run.isQuiet, collector.summary());
    writer->begin();
    const CKvJobSettings settings = { options.command, run.check, run.fix };
    // A process of its own for each job costs more than a small drawing.
    const bool isSerial = run.timeoutSeconds <= 0 && (run.jobs == 1 || jobs.size() <= 1);
    if (isSerial) {
        runHere(settings, jobs, collector);
    } else {
        runInWorkers(run, settings, jobs, collector);
    }
    collector.endProgress();
    tellUnusedRows(run, collector, output);
    writer->end(collector.summary());
    if (!output.close()) {
        printError(output.errorText());
        return CKvExitStatus::Incomplete;
    }
    return collector.summary().exitStatus();
}
