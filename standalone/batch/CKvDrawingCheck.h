// SPDX-License-Identifier: MIT
#pragma once

#include "CKvBatchSession.h"
#include "CKvDrawingReport.h"
#include "CKvGatheringPass.h"

/// The check of one open drawing, which may be run again after a change.
class CKvDrawingCheck
{
public:
    /// @param session, drawing must outlive the check.
    CKvDrawingCheck(CKvBatchSession &session, OdDbDatabasePtr drawing);
    ~CKvDrawingCheck();
    CKvDrawingCheck(const CKvDrawingCheck &) = delete;
    CKvDrawingCheck &operator=(const CKvDrawingCheck &) = delete;

    /// Finds the standards files and gathers the violations.
    /// @throws OdError of the drawing library.
    void run();

    CKvDrawingStatus status() const { return m_status; }
    const std::vector<CKvStandardsFileReport> &standards() const { return m_standards; }
    /// Sentences about standards that the user asked for in vain.
    const QStringList &warnings() const { return m_warnings; }
    /// In the order of the check.
    const std::vector<CKvStdsViolation> &violations() const { return m_pass.violations(); }
    const CKvCategory &categoryOf(const CKvStdsViolation &violation) const;
    /// The violations as the reports tell them.
    std::vector<CKvViolationReport> describe() const;

private:
    CKvBatchSession &m_session;
    OdDbDatabasePtr m_drawing;
    CKvDrawingStatus m_status = CKvDrawingStatus::NoStandards;
    std::vector<CKvStandardsFileReport> m_standards;
    QStringList m_warnings;
    CKvGatheringPass m_pass;
};

/// Opens and checks a drawing. Whatever fails is told in the report.
/// @param path as the user named it.
CKvDrawingReport checkDrawing(CKvBatchSession &session, const QString &path);
