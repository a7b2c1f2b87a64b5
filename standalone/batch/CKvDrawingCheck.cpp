// SPDX-License-Identifier: MIT
#include "CKvDrawingCheck.h"

#include "CKvDrawingFile.h"
#include "chooseStandards.h"
#include "describeViolation.h"
#include "reportFailure.h"

namespace
{

CKvGatheringRequest request(const OdDbDatabasePtr &drawing,
                            const std::vector<CKvStandardsFileReport> &standards)
{
    CKvGatheringRequest request;
    request.drawing = drawing;
    request.drawingName = CKvString(drawing->getFilename());
    for (const CKvStandardsFileReport &file : standards) {
        if (file.status != CKvStandardsFileStatus::NotFound) {
            request.standardsNames.emplace_back(file.name);
            request.standardsPaths.emplace_back(file.path);
        }
    }
    return request;
}

} // namespace

CKvDrawingCheck::CKvDrawingCheck(CKvBatchSession &session, OdDbDatabasePtr drawing)
    : m_session(session)
    , m_drawing(std::move(drawing))
{
}

CKvDrawingCheck::~CKvDrawingCheck()
{
    m_session.forgetDrawing();
}

void CKvDrawingCheck::run()
{
    CKvStandardsChoice choice = chooseStandards(m_session, *m_drawing);
    m_standards = std::move(choice.files);
    m_warnings = choice.warnings;
    const CKvGatheringRequest whole = request(m_drawing, m_standards);
    if (whole.standardsPaths.empty()) {
        m_status = CKvDrawingStatus::NoStandards;
        return;
    }
    m_pass.run(m_session.plugins(), whole);
    noteReadOutcomes(m_session, m_standards);
    m_status = CKvDrawingStatus::Checked;
}

const CKvCategory &CKvDrawingCheck::categoryOf(const CKvStdsViolation &violation) const
{
    return m_session.categoryOfPlugin(violation.plugin);
}

std::vector<CKvViolationReport> CKvDrawingCheck::describe() const
{
    std::vector<CKvViolationReport> reports;
    for (const CKvStdsViolation &violation : violations()) {
        reports.push_back(
            describeViolation(violation, categoryOf(violation), m_session.options().candidates));
    }
    return reports;
}

CKvDrawingReport checkDrawing(CKvBatchSession &session, const QString &path)
{
    CKvDrawingReport report;
    report.path = path;
    reportFailure(report, [&] {
        const OdDbDatabasePtr drawing = CKvDrawingFile::open(path, CKvFileImage::Holding::Mapped);
        report.warnings = CKvDrawingFile::warnings(*drawing);
        CKvDrawingCheck check(session, drawing);
        check.run();
        report.status = check.status();
        report.warnings << check.warnings();
        report.standards = check.standards();
        report.violations = check.describe();
    });
    return report;
}
