// SPDX-License-Identifier: MIT
#include "CKvStandardsRunTest.h"

namespace
{

class BatchPreferred : public CKvStandardsRunTest
{
protected:
    CKvBatchRun preferring(const char *file, const QStringList &arguments = QStringList()) const
    {
        return check(QStringList { QStringLiteral("--preferred"), QString::fromUtf8(file) }
                     + arguments);
    }
};

} // namespace

TEST_F(BatchPreferred, ThePreferredFileComesFirst)
{
    saveStandards(QStringLiteral("blue.dxf"), 5);
    saveStandards(QStringLiteral("green.dxf"), 3);
    saveDrawing({ path(QStringLiteral("blue.dxf")), path(QStringLiteral("green.dxf")) });
    const QStringList given = { QStringLiteral("-s"),
                                QStringLiteral("blue.dxf"),
                                QStringLiteral("-s"),
                                QStringLiteral("green.dxf") };

    for (const QString &preferred :
         { QStringLiteral("green.dxf"), path(QStringLiteral("green.dxf")) }) {
        const QStringList options = { QStringLiteral("--preferred"), preferred };
        EXPECT_EQ(standards(check(options)), "read /green.dxf\nread /blue.dxf\n");
        EXPECT_EQ(check(options).errors, "");
        EXPECT_EQ(standards(check(options + given)), "read /green.dxf\nread /blue.dxf\n");
    }
}

TEST_F(BatchPreferred, OneThatIsNotListedIsNotAddedAndWarnedOf)
{
    saveStandards(QStringLiteral("blue.dxf"), 5);
    saveStandards(QStringLiteral("green.dxf"), 3);
    saveDrawing({ path(QStringLiteral("blue.dxf")) });
    const QStringList given = { QStringLiteral("-s"), QStringLiteral("blue.dxf") };

    for (const QStringList &list : { QStringList(), given }) {
        const CKvBatchRun result = preferring("green.dxf", list);
        EXPECT_EQ(standards(result), "read /blue.dxf\n");
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.errors,
                  "plans/a.dxf: Warning: The preferred file green.dxf is none of the standards "
                  "files.\n");
    }
}

TEST_F(BatchPreferred, OneThatDoesNotExistIsWarnedOf)
{
    saveStandards(QStringLiteral("blue.dxf"), 5);
    saveDrawing({ path(QStringLiteral("blue.dxf")) });

    const CKvBatchRun result = preferring("bleu.dxf");

    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "plans/a.dxf: Warning: The preferred file bleu.dxf can't be found.\n");
}

TEST_F(BatchPreferred, TheTextReportCarriesTheWarningAndQuietDoesNot)
{
    saveStandards(QStringLiteral("blue.dxf"), 1);
    saveDrawing({ path(QStringLiteral("blue.dxf")) });
    const QStringList arguments = { QStringLiteral("check"),
                                    QStringLiteral("plans/a.dxf"),
                                    QStringLiteral("--preferred"),
                                    QStringLiteral("bleu.dxf") };

    const CKvBatchRun shown = run(arguments);
    const CKvBatchRun quiet = run(arguments + QStringList { QStringLiteral("-q") });

    EXPECT_EQ(shown.output,
              "plans/a.dxf: no violations\n"
              "  Warning: The preferred file bleu.dxf can't be found.\n"
              "1 drawing checked: no violations\n");
    EXPECT_EQ(shown.errors, "");
    EXPECT_EQ(quiet.output + quiet.errors, "");
}

TEST_F(BatchPreferred, OneThatIsListedAndGoneIsMissing)
{
    saveStandards(QStringLiteral("blue.dxf"), 5);
    saveDrawing({ path(QStringLiteral("blue.dxf")), QStringLiteral("C:\\std\\green.dws") });

    const CKvBatchRun result = preferring("C:/std/green.dws");

    EXPECT_EQ(standards(result), "read /blue.dxf\nnot-found C:\\std\\green.dws\n");
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.errors, "");
}

TEST_F(BatchPreferred, ABareNameInTheListIsTheFileInTheWorkingDirectoryHoweverThatIsNamed)
{
    saveStandards(QStringLiteral("blue.dxf"), 5);
    saveStandards(QStringLiteral("green.dxf"), 3);
    saveDrawing({ path(QStringLiteral("blue.dxf")), QStringLiteral("green.dxf") });

    for (const QString &preferred : { QStringLiteral("green.dxf"),
                                      QStringLiteral("plans/../green.dxf"),
                                      path(QStringLiteral("green.dxf")) }) {
        const CKvBatchRun result = preferring(preferred.toUtf8().constData());
        EXPECT_EQ(standards(result), "read /green.dxf\nread /blue.dxf\n");
        EXPECT_EQ(result.errors, "");
    }
}

TEST_F(BatchPreferred, AFileThatOnlyTheSearchFindsKeepsItsPlaceAndIsWarnedOf)
{
    saveStandards(QStringLiteral("blue.dxf"), 5);
    saveStandards(QStringLiteral("plans/green.dxf"), 3);
    saveDrawing({ path(QStringLiteral("blue.dxf")), QStringLiteral("green.dxf") });

    const CKvBatchRun result = preferring("plans/green.dxf");

    EXPECT_EQ(standards(result), "read /blue.dxf\nread /plans/green.dxf\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors,
              "plans/a.dxf: Warning: The preferred file plans/green.dxf does not come first: the "
              "drawing lists it under another path.\n");
}
