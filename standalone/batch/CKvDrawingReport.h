// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <utility>
#include <vector>

/// One row of a preview.
struct CKvDifferenceReport {
    QString property;
    QString current;
    QString standard;
};

/// One candidate repair.
struct CKvFixReport {
    /// Its place among all candidates of the violation.
    int index = 0;
    QString name;
    QString standardsFile;
    std::vector<CKvDifferenceReport> differences;
};

enum class CKvViolationReportKind { Name, Properties };

struct CKvViolationReport {
    /// Word of the category.
    QString category;
    CKvViolationReportKind kind = CKvViolationReportKind::Name;
    QString name;
    /// Empty when the drawing gives the object none.
    QString handle;
    QString type;
    QString message;
    bool isIgnored = false;
    QString ignoredBy;
    /// Sorted by name.
    std::vector<std::pair<QString, QString>> properties;
    int candidates = 0;
    /// Index into all candidates, -1 for none.
    int recommended = -1;
    /// Those that were asked for.
    std::vector<CKvFixReport> fixes;
};

enum class CKvStandardsFileStatus {
    Read,
    /// Without a record of a checked category.
    Empty,
    NotFound,
    Failed
};

struct CKvStandardsFileReport {
    /// Absolute with forward slashes; the stored text when it was not found.
    QString path;
    QString name;
    CKvStandardsFileStatus status = CKvStandardsFileStatus::Read;
    QString error;
};

struct CKvRepairReport {
    QString category;
    QString name;
    /// The candidate's name.
    QString target;
    QString standardsFile;
    /// Why it was not repaired; empty when it was.
    QString error;
};

enum class CKvDrawingStatus {
    Checked,
    /// No standards file that could be used: nothing was checked.
    NoStandards,
    Failed
};

/// What came out for one drawing.
struct CKvDrawingReport {
    /// As the user named it.
    QString path;
    CKvDrawingStatus status = CKvDrawingStatus::Checked;
    QString error;
    std::vector<CKvStandardsFileReport> standards;
    std::vector<CKvViolationReport> violations;
    /// The file that a repair wrote; empty for none.
    QString output;
    std::vector<CKvRepairReport> repaired;
    std::vector<CKvRepairReport> notRepaired;

    // Beyond what the machine-readable reports tell.

    /// What was tolerated when the drawing was read.
    QStringList warnings;
    /// Unified diff in the encoding of the drawing; empty for none.
    QByteArray difference;
    /// Rows of the repair map that named a violation of this drawing.
    std::vector<int> usedMapRows;
};
