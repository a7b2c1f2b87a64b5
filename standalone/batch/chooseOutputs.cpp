// SPDX-License-Identifier: MIT
#include "chooseOutputs.h"

#include "CKvUsageError.h"
#include "absolutePath.h"
#include "isDrawing.h"
#include "storedStandardsFiles.h"
#include "writeRepairedDrawing.h"

#include <QFileInfo>

#include <map>
#include <set>

namespace
{

/// One text for all paths that lead to a file; for a file to come, as far as its folder exists.
QString identity(const QString &path)
{
    const QFileInfo file(absolutePath(path));
    QString target = file.canonicalFilePath();
    if (!target.isEmpty()) {
        return target;
    }
    const QString folder = QFileInfo(file.absolutePath()).canonicalFilePath();
    return (folder.isEmpty() ? file.absolutePath() : folder) + QLatin1Char('/') + file.fileName();
}

QString outputFor(const CKvDrawingInput &drawing, const CKvRunOptions &options)
{
    if (options.fix.isDryRun) {
        return {};
    }
    if (options.isInPlace) {
        return drawing.path;
    }
    if (options.outputFolder.isEmpty()) {
        return {};
    }
    QString output = options.outputFolder + QLatin1Char('/') + drawing.relativePath;
    if (drawing.path.endsWith(QLatin1String(".dwg"), Qt::CaseInsensitive)) {
        output.replace(output.size() - 3, 3, QStringLiteral("dxf"));
    }
    return output;
}

/// What the run reads beside the drawings.
std::set<QString> identitiesOfOtherInputs(const CKvRunOptions &options)
{
    std::set<QString> inputs;
    const QStringList paths = QStringList(options.check.standards)
        << options.check.preferred << options.mapFile << options.filesFrom;
    for (const QString &path : paths) {
        if (!path.isEmpty()) {
            inputs.insert(identity(path));
        }
    }
    return inputs;
}

std::set<QString> identitiesOfDrawings(const std::vector<CKvDrawingInput> &drawings)
{
    std::set<QString> inputs;
    for (const CKvDrawingInput &drawing : drawings) {
        inputs.insert(identity(drawing.path));
    }
    return inputs;
}

void requireHarmlessReport(const QString &report, const std::set<QString> &inputs)
{
    if (report.isEmpty()) {
        return;
    }
    if (inputs.count(identity(report)) > 0) {
        throw CKvUsageError(QStringLiteral("The report would replace %1, which is one of the files "
                                           "that are read.")
                                .arg(report));
    }
    // It may hold the standards of any other drawing.
    if (isDrawing(report)) {
        throw CKvUsageError(
            QStringLiteral("The report would replace %1, which is a drawing.").arg(report));
    }
}

void requireDifferentOutputs(const std::vector<CKvDrawingJob> &jobs)
{
    std::map<QString, QString> drawingOfOutput;
    for (const CKvDrawingJob &job : jobs) {
        if (job.output.isEmpty()) {
            continue;
        }
        const auto [known, isNew] = drawingOfOutput.emplace(identity(job.output), job.path);
        if (!isNew) {
            throw CKvUsageError(QStringLiteral("%1 and %2 would both be written to %3.")
                                    .arg(known->second, job.path, job.output));
        }
    }
}

void requireHarmlessOutputs(const std::vector<CKvDrawingJob> &jobs, const std::set<QString> &inputs)
{
    for (const CKvDrawingJob &job : jobs) {
        if (!job.output.isEmpty() && inputs.count(identity(job.output)) > 0) {
            throw CKvUsageError(
                QStringLiteral(
                    "The output %1 is one of the files that are read. To replace a drawing, "
                    "give --in-place.")
                    .arg(job.output));
        }
    }
}

void requireHarmlessCopies(const std::vector<CKvDrawingJob> &jobs, const std::set<QString> &inputs)
{
    for (const CKvDrawingJob &job : jobs) {
        const QString copy = backupPath(job.path);
        if (inputs.count(identity(copy)) > 0) {
            throw CKvUsageError(QStringLiteral("The copy of %1 would replace %2, which is one of "
                                               "the files that are read.")
                                    .arg(job.path, copy));
        }
    }
}

/// Only a file that is there can be lost, so the lists of the drawings are read when one is.
void requireNoStoredStandards(const std::vector<CKvDrawingJob> &jobs,
                              const QStringList &searchPaths)
{
    std::map<QString, QString> existingOutputs;
    for (const CKvDrawingJob &job : jobs) {
        if (!job.output.isEmpty() && QFileInfo::exists(job.output)) {
            existingOutputs.emplace(identity(job.output), job.output);
        }
    }
    for (auto job = jobs.begin(); job != jobs.end() && !existingOutputs.empty(); ++job) {
        for (const QString &file : storedStandardsFiles(job->path, searchPaths)) {
            const auto output = existingOutputs.find(identity(file));
            if (output != existingOutputs.end()) {
                throw CKvUsageError(
                    QStringLiteral("The output %1 would replace a standards file of %2.")
                        .arg(output->second, job->path));
            }
        }
    }
}

} // namespace

std::vector<CKvDrawingJob> chooseOutputs(const std::vector<CKvDrawingInput> &drawings,
                                         const CKvRunOptions &options)
{
    std::vector<CKvDrawingJob> jobs;
    jobs.reserve(drawings.size());
    for (const CKvDrawingInput &drawing : drawings) {
        jobs.push_back({ drawing.path, outputFor(drawing, options) });
    }
    std::set<QString> inputs = identitiesOfDrawings(drawings);
    inputs.merge(identitiesOfOtherInputs(options));
    requireHarmlessReport(options.reportFile, inputs);
    requireDifferentOutputs(jobs);
    if (!options.isInPlace) {
        requireHarmlessOutputs(jobs, inputs);
        requireNoStoredStandards(jobs, options.check.searchPaths);
    } else if (options.fix.keepsBackup && !options.fix.isDryRun) {
        requireHarmlessCopies(jobs, inputs);
    }
    return jobs;
}
