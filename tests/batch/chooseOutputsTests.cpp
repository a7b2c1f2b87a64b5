// SPDX-License-Identifier: MIT
#include "chooseOutputs.h"

#include "CKvUsageError.h"

#include <gtest/gtest.h>

namespace
{

CKvDrawingInput input(const char *path, const char *relativePath)
{
    return { QString::fromUtf8(path), QString::fromUtf8(relativePath) };
}

/// "path -> output" a line.
std::string chosen(const std::vector<CKvDrawingInput> &drawings, const CKvRunOptions &options)
{
    std::string lines;
    for (const CKvDrawingJob &job : chooseOutputs(drawings, options)) {
        lines += job.path.toStdString() + " -> " + job.output.toStdString() + "\n";
    }
    return lines;
}

} // namespace

TEST(ChooseOutputs, ACheckWritesNoDrawing)
{
    EXPECT_EQ(chosen({ input("/no/a.dxf", "a.dxf"), input("/no/a.dxf", "a.dxf") }, {}),
              "/no/a.dxf -> \n/no/a.dxf -> \n");
}

TEST(ChooseOutputs, AFolderKeepsWhatIsBelowTheNamedFolder)
{
    CKvRunOptions options;
    options.outputFolder = QStringLiteral("/no/out");

    EXPECT_EQ(
        chosen({ input("/no/plans/eg/a.dxf", "eg/a.dxf"), input("/no/b.dxf", "b.dxf") }, options),
        "/no/plans/eg/a.dxf -> /no/out/eg/a.dxf\n/no/b.dxf -> /no/out/b.dxf\n");
}

TEST(ChooseOutputs, TwoDrawingsForOneOutputAreWrongUsage)
{
    CKvRunOptions options;
    options.outputFolder = QStringLiteral("/no/out");
    EXPECT_THROW(chosen({ input("/no/x/a.dxf", "a.dxf"), input("/no/y/a.dxf", "a.dxf") }, options),
                 CKvUsageError);

    options.outputFolder.clear();
    options.isInPlace = true;
    EXPECT_THROW(chosen({ input("/no/a.dxf", "a.dxf"), input("/no/./a.dxf", "a.dxf") }, options),
                 CKvUsageError);
}

TEST(ChooseOutputs, AnOutputThatIsReadIsWrongUsageUnlessInPlace)
{
    CKvRunOptions options;
    options.outputFolder = QStringLiteral("/no/x");
    EXPECT_THROW(chosen({ input("/no/x/a.dxf", "a.dxf") }, options), CKvUsageError);
    options.check.standards = QStringList { QStringLiteral("/no/x/std.dxf") };
    EXPECT_THROW(chosen({ input("/no/y/std.dxf", "std.dxf") }, options), CKvUsageError);

    options.outputFolder.clear();
    options.isInPlace = true;
    EXPECT_EQ(chosen({ input("/no/x/std.dxf", "std.dxf") }, options),
              "/no/x/std.dxf -> /no/x/std.dxf\n");
}

TEST(ChooseOutputs, ADryRunWritesNothingWhereverItWouldGo)
{
    CKvRunOptions options;
    options.outputFolder = QStringLiteral("/no/out");
    options.fix.isDryRun = true;

    EXPECT_EQ(chosen({ input("/no/a.dxf", "a.dxf") }, options), "/no/a.dxf -> \n");
}

TEST(ChooseOutputs, AReportThatWouldReplaceAnInputIsWrongUsage)
{
    CKvRunOptions options;
    options.reportFile = QStringLiteral("/no/a.dxf");

    EXPECT_THROW(chosen({ input("/no/x/../a.dxf", "a.dxf") }, options), CKvUsageError);
}
