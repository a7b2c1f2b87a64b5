// SPDX-License-Identifier: MIT
#include "chooseOutputs.h"

#include "CKvUsageError.h"
#include "absolutePath.h"

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
    return options.outputFolder.isEmpty()
        ? QString()
        : options.outputFolder + QLatin1Char('/') + drawing.relativePath;
}

std::set<QString> identitiesOfInputs(const std::vector<CKvDrawingInput> &drawings,
                                     const CKvRunOptions &options)
{
    std::set<QString> inputs;
    for (const CKvDrawingInput &drawing : drawings) {
        inputs.insert(identity(drawing.path));
    }
    for (const QString &standards : options.check.standards) {
        inputs.insert(identity(standards));
    }
    return inputs;
}

void requireOwnOutputs(const std::vector<CKvDrawingJob> &jobs,
                       const std::set<QString> &inputs,
                       bool isInPlace)
{
    std::map<QString, QString> drawingOfOutput;
    for (const CKvDrawingJob &job : jobs) {
        if (job.output.isEmpty()) {
            continue;
        }
        const QString output = identity(job.output);
        const auto [known, isNew] = drawingOfOutput.emplace(output, job.path);
        if (!isNew) {
            throw CKvUsageError(QStringLiteral("%1 and %2 would both be written to %3.")
                                    .arg(known->second, job.path, job.output));
        }
        if (!isInPlace && inputs.count(output) > 0) {
            throw CKvUsageError(
                QStringLiteral(
                    "The output %1 is one of the files that are read. To replace a drawing, "
                    "give --in-place.")
                    .arg(job.output));
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
    const std::set<QString> inputs = identitiesOfInputs(drawings, options);
    if (!options.reportFile.isEmpty() && inputs.count(identity(options.reportFile)) > 0) {
        throw CKvUsageError(QStringLiteral("The report would replace %1, which is one of the files "
                                           "that are read.")
                                .arg(options.reportFile));
    }
    requireOwnOutputs(jobs, inputs, options.isInPlace);
    return jobs;
}
