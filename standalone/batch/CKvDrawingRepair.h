// SPDX-License-Identifier: MIT
#pragma once

#include "CKvBatchSession.h"
#include "CKvDrawingCheck.h"
#include "CKvDrawingReport.h"

#include <map>

/// The repair of one drawing. A repair that throws leaves nothing behind: the drawing is read again
/// and repaired without it.
class CKvDrawingRepair
{
public:
    /// @param session, options must outlive the repair.
    /// @param path of the drawing, as the user named it.
    CKvDrawingRepair(CKvBatchSession &session, const CKvFixOptions &options, const QString &path);

    /// Repairs the drawing in memory and tells what was done. The report is that of a check after
    /// the repair; in a dry run that of the check before it.
    /// @throws OdError of the drawing library.
    void run(CKvDrawingReport &report);

    /// Never null once run has ended.
    const OdDbDatabasePtr &drawing() const { return m_drawing; }
    /// The drawing as it was read.
    std::string_view before() const;
    /// The file as it was read, packed where it is packed.
    std::string_view fileBefore() const;

private:
    /// What is to be done about one violation.
    struct Plan {
        /// Null for none.
        CKvStdsFixPtr fix;
        CKvRepairReport report;
    };

    void attempt(CKvDrawingReport &report);
    Plan plan(const CKvDrawingCheck &check, const CKvStdsViolation &violation);
    void planByMap(const CKvStdsViolation &violation, Plan &plan);
    std::vector<int> mapRowsFor(const QString &category, const QString &name) const;
    void
    apply(const CKvStdsViolation &violation, int index, const Plan &plan, CKvDrawingReport &report);

    CKvBatchSession &m_session;
    const CKvFixOptions &m_options;
    QString m_path;
    OdDbDatabasePtr m_drawing;

    /// Places of violations whose repair threw, with the reason.
    std::map<int, QString> m_failures;
    bool m_hasNewFailure = false;
    std::vector<int> m_usedMapRows;
};

/// Opens, repairs, writes and checks a drawing. Whatever fails is told in the report.
/// @param path as the user named it.
/// @param output the file to write, which may be the drawing itself; empty for none.
CKvDrawingReport repairDrawing(CKvBatchSession &session,
                               const CKvFixOptions &options,
                               const QString &path,
                               const QString &output);
