// SPDX-License-Identifier: MIT
#pragma once

#include "CKvRepairMap.h"

#include <QString>
#include <QStringList>

enum class CKvCommandKind { Check, Fix, Files, Ignore, Show };
enum class CKvReportFormat { Text, Json, JsonLines, Sarif, Junit, Html, Csv };
/// Which candidates of a violation the report carries.
enum class CKvCandidateChoice { Recommended, All, None };
enum class CKvWhen { Auto, Always, Never };

/// What shapes the check of one drawing.
struct CKvCheckOptions {
    /// In place of the list that the drawing stores; empty when that counts.
    QStringList standards;
    QStringList searchPaths;
    /// Empty for none.
    QString preferred;
    /// Words of the categories to check; empty for all.
    QStringList categories;
    CKvCandidateChoice candidates = CKvCandidateChoice::Recommended;
};

/// What shapes the repair of one drawing.
struct CKvFixOptions {
    CKvRepairMap map;
    bool isDryRun = false;
    bool wantsDifference = false;
    /// Copy the drawing before it is replaced.
    bool keepsBackup = true;
};

/// The options of a run over drawings, check or fix.
struct CKvRunOptions {
    CKvCheckOptions check;
    CKvFixOptions fix;
    QStringList inputs;
    /// File with one drawing a line, "-" for standard input; empty for none.
    QString filesFrom;
    CKvReportFormat format = CKvReportFormat::Text;
    /// File that the map was read from; empty for none.
    QString mapFile;
    /// File of the report; empty for standard output.
    QString reportFile;
    /// Folder for repaired drawings; empty for none.
    QString outputFolder;
    bool isInPlace = false;
    bool includesIgnored = false;
    /// 0 for one a processor.
    int jobs = 0;
    /// 0 for no limit.
    double timeoutSeconds = 0;
    bool isQuiet = false;
    CKvWhen color = CKvWhen::Auto;
    CKvWhen progress = CKvWhen::Auto;
};

/// The options of the commands that work on one drawing.
struct CKvDrawingOptions {
    QString drawing;
    QStringList searchPaths;
    QStringList categories;
    CKvReportFormat format = CKvReportFormat::Text;
    CKvWhen color = CKvWhen::Auto;
    /// files: paths to add and to remove.
    QStringList added;
    QStringList removed;
    /// ignore: the object, and false to take the stamp back.
    QString category;
    QString name;
    bool isIgnored = true;
};

/// A command line, understood.
struct CKvBatchOptions {
    CKvCommandKind command = CKvCommandKind::Check;
    CKvRunOptions run;
    CKvDrawingOptions drawing;
};
