// SPDX-License-Identifier: MIT
#include "CKvDrawingRepair.h"

#include "CKvDrawingFile.h"
#include "CKvDrawingStore.h"
#include "reportFailure.h"
#include "unifiedDiff.h"
#include "writeRepairedDrawing.h"

#include <algorithm>

CKvDrawingRepair::CKvDrawingRepair(CKvBatchSession &session,
                                   const CKvFixOptions &options,
                                   const QString &path)
    : m_session(session)
    , m_options(options)
    , m_path(path)
{
}

void CKvDrawingRepair::run(CKvDrawingReport &report)
{
    // Each round that finds a repair that throws is followed by one without it; a drawing has only
    // so many violations.
    do {
        m_hasNewFailure = false;
        attempt(report);
    } while (m_hasNewFailure && CKvDrawingFile::isChanged(*m_drawing));
    std::sort(m_usedMapRows.begin(), m_usedMapRows.end());
    m_usedMapRows.erase(std::unique(m_usedMapRows.begin(), m_usedMapRows.end()),
                        m_usedMapRows.end());
    report.usedMapRows = m_usedMapRows;
}

void CKvDrawingRepair::attempt(CKvDrawingReport &report)
{
    report.repaired.clear();
    report.notRepaired.clear();
    m_drawing = CKvDrawingFile::open(m_path, CKvFileImage::Holding::Copied);

    report.warnings = CKvDrawingFile::warnings(*m_drawing);
    CKvDrawingCheck check(m_session, m_drawing);
    check.run();
    report.warnings << check.warnings();
    report.status = check.status();
    report.standards = check.standards();
    if (m_options.isDryRun) {
        report.violations = check.describe();
    }
    // A copy: the check after the repair replaces the list.
    const std::vector<CKvStdsViolation> violations = check.violations();
    for (std::size_t i = 0; i < violations.size(); ++i) {
        // An object that an earlier repair removed needs none any more.
        if (!violations[i].ignored && !violations[i].error->objectId().isErased()) {
            apply(violations[i], int(i), plan(check, violations[i]), report);
        }
    }
    if (!m_options.isDryRun) {
        check.run();
        report.violations = check.describe();
    }
}

std::string_view CKvDrawingRepair::before() const
{
    return m_drawing->store().image()->bytes();
}

std::string_view CKvDrawingRepair::fileBefore() const
{
    return m_drawing->store().image()->fileBytes();
}

CKvDrawingRepair::Plan CKvDrawingRepair::plan(const CKvDrawingCheck &check,
                                              const CKvStdsViolation &violation)
{
    Plan plan;
    plan.report.category = QString::fromLatin1(check.categoryOf(violation).word);
    plan.report.name = violation.error->objectName().toQString();
    if (violation.recommendedFix >= 0) {
        plan.fix = violation.fixes.at(unsigned(violation.recommendedFix));
    } else {
        planByMap(violation, plan);
    }
    if (plan.fix) {
        plan.report.target = plan.fix->name().toQString();
        plan.report.standardsFile = plan.fix->standardsFile().toQString();
    }
    return plan;
}

/// Chooses what the map asks for. The plan has an error when there is no such candidate.
void CKvDrawingRepair::planByMap(const CKvStdsViolation &violation, Plan &plan)
{
    for (const int index : mapRowsFor(plan.report.category, plan.report.name)) {
        const CKvRepairMapRow &row = m_options.map[std::size_t(index)];
        m_usedMapRows.push_back(index);
        for (const CKvStdsFixPtr &fix : violation.fixes) {
            const bool isMeant = fix->name().toQString() == row.target
                && row.namesFile(fix->standardsFile().toQString());
            if (isMeant) {
                plan.fix = fix;
                plan.report.error.clear();
                return;
            }
        }
        plan.report.target = row.target;
        plan.report.standardsFile = row.standardsFile;
        plan.report.error = QStringLiteral("The standards offer no candidate of this name (line %1 "
                                           "of the map).")
                                .arg(row.line);
    }
}

/// Rows that name the object in its own spelling; where there are none, those that differ in letter
/// case.
std::vector<int> CKvDrawingRepair::mapRowsFor(const QString &category, const QString &name) const
{
    std::vector<int> exact;
    std::vector<int> similar;
    for (std::size_t i = 0; i < m_options.map.size(); ++i) {
        const CKvRepairMapRow &row = m_options.map[i];
        if (row.category == category && row.name.compare(name, Qt::CaseInsensitive) == 0) {
            (row.name == name ? exact : similar).push_back(int(i));
        }
    }
    return exact.empty() ? similar : exact;
}

void CKvDrawingRepair::apply(const CKvStdsViolation &violation,
                             int index,
                             const Plan &plan,
                             CKvDrawingReport &report)
{
    CKvRepairReport entry = plan.report;
    const auto failure = m_failures.find(index);
    if (failure != m_failures.end()) {
        entry.error = failure->second;
    }
    if (!entry.error.isEmpty()) {
        report.notRepaired.push_back(entry);
        return;
    }
    if (!plan.fix) {
        return;
    }
    // Whatever a repair throws is its own failure: the others are still done.
    try {
        CKvString message;
        violation.plugin->applyFix(violation.error, plan.fix, message);
        report.repaired.push_back(entry);
    } catch (const std::exception &error) {
        entry.error = QString::fromUtf8(error.what());
        m_failures[index] = entry.error;
        m_hasNewFailure = true;
        report.notRepaired.push_back(entry);
    }
}

CKvDrawingReport repairDrawing(CKvBatchSession &session,
                               const CKvFixOptions &options,
                               const QString &path,
                               const QString &output)
{
    CKvDrawingReport report;
    report.path = path;
    reportFailure(report, [&] {
        CKvDrawingRepair repair(session, options, path);
        repair.run(report);
        if (options.wantsDifference) {
            const QByteArray after = CKvDrawingFile::toBytes(*repair.drawing());
            report.difference = unifiedDiff(
                repair.before(), { after.constData(), std::size_t(after.size()) }, path);
        }
        if (!options.isDryRun && !output.isEmpty()) {
            report.output = writeRepairedDrawing(repair, path, output, options.keepsBackup);
        }
    });
    return report;
}
