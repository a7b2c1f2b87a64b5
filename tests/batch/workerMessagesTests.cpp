// SPDX-License-Identifier: MIT
#include "workerMessages.h"

#include <gtest/gtest.h>

TEST(WorkerMessages, SettingsComeBackAsTheyWere)
{
    CKvJobSettings settings;
    settings.command = CKvCommandKind::Fix;
    settings.check.standards =
        QStringList { QStringLiteral("a b.dxf"), QStringLiteral("壁\n.dxf") };
    settings.check.searchPaths = QStringList { QStringLiteral("/std") };
    settings.check.preferred = QStringLiteral("/std/\"office\".dxf");
    settings.check.categories = QStringList { QStringLiteral("layers") };
    settings.check.candidates = CKvCandidateChoice::None;
    settings.fix.map = { { QStringLiteral("layers"),
                           QStringLiteral("A"),
                           QStringLiteral("B"),
                           QStringLiteral("f"),
                           7 } };
    settings.fix.isDryRun = true;
    settings.fix.wantsDifference = true;
    settings.fix.keepsBackup = false;

    const QByteArray line = settingsToLine(settings);
    const CKvJobSettings back = settingsFromLine(line);

    EXPECT_EQ(line.count('\n'), 1);
    EXPECT_EQ(back.command, CKvCommandKind::Fix);
    EXPECT_EQ(back.check.standards, settings.check.standards);
    EXPECT_EQ(settingsToLine(back), line);
}

TEST(WorkerMessages, AJobComesBackAsItWas)
{
    const CKvDrawingJob back =
        jobFromLine(jobToLine({ QStringLiteral("plans/ö.dxf"), QStringLiteral("out\\a") }));

    EXPECT_EQ(back.path, QStringLiteral("plans/ö.dxf"));
    EXPECT_EQ(back.output, QStringLiteral("out\\a"));
}

TEST(WorkerMessages, AReportComesBackAsItWas)
{
    CKvViolationReport violation;
    violation.category = QStringLiteral("layers");
    violation.kind = CKvViolationReportKind::Properties;
    violation.name = QStringLiteral("壁");
    violation.isIgnored = true;
    violation.ignoredBy = QStringLiteral("anna");
    violation.properties = { { QStringLiteral("LineColor"), QStringLiteral("red") } };
    violation.candidates = 3;
    violation.recommended = 1;
    violation.fixes = { { 1,
                          QStringLiteral("壁"),
                          QStringLiteral("/std"),
                          { { QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c") } } } };
    CKvDrawingReport report;
    report.path = QStringLiteral("a.dxf");
    report.status = CKvDrawingStatus::NoStandards;
    report.error = QStringLiteral("error");
    report.standards = { { QStringLiteral("/std"),
                           QStringLiteral("std"),
                           CKvStandardsFileStatus::Failed,
                           QStringLiteral("why") } };
    report.violations = { violation };
    report.output = QStringLiteral("out");
    report.repaired = { { QStringLiteral("layers"),
                          QStringLiteral("A"),
                          QStringLiteral("B"),
                          QStringLiteral("f"),
                          QString() } };
    report.notRepaired = { { QStringLiteral("layers"),
                             QStringLiteral("A"),
                             QStringLiteral("B"),
                             QStringLiteral("f"),
                             QStringLiteral("why") } };
    report.warnings = QStringList { QStringLiteral("line 1: odd") };
    report.difference = QByteArray("\xFF\xFE\n-a\n", 6);
    report.usedMapRows = { 0, 4 };

    const QByteArray line = reportToLine(report);
    const CKvDrawingReport back = reportFromLine(line);

    EXPECT_EQ(line.count('\n'), 1);
    EXPECT_EQ(back.status, CKvDrawingStatus::NoStandards);
    EXPECT_EQ(back.standards.at(0).status, CKvStandardsFileStatus::Failed);
    EXPECT_EQ(back.violations.at(0).kind, CKvViolationReportKind::Properties);
    EXPECT_EQ(back.difference, report.difference);
    EXPECT_EQ(back.usedMapRows, report.usedMapRows);
    EXPECT_EQ(back.warnings, report.warnings);
    EXPECT_EQ(reportToLine(back), line);
}
