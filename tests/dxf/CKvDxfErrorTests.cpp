// SPDX-License-Identifier: MIT
#include "CKvDxfError.h"

#include <gtest/gtest.h>

namespace
{

struct ErrorCase {
    const char *name;
    const char *file;
    qint64 line;
    const char *text;
};

class DxfErrorText : public testing::TestWithParam<ErrorCase>
{
};

const ErrorCase kErrorCases[] = {
    { "FileAndLineBeforeTheReason", "a.dxf", 12, "a.dxf:12: It is broken." },
    { "AFileWithoutALine", "a.dxf", 0, "a.dxf: It is broken." },
    { "ALineInNoFile", "", 7, "line 7: It is broken." },
    { "NeitherFileNorLine", "", 0, "It is broken." },
    { "AFileWhoseNameLooksLikeAPlaceToFill", "%1%2.dxf", 3, "%1%2.dxf:3: It is broken." },
};

} // namespace

TEST_P(DxfErrorText, IsTheSameForPeopleAndForCatchersOfTheBase)
{
    const CKvDxfError error(
        QString::fromUtf8(GetParam().file), GetParam().line, QStringLiteral("It is broken."));

    const OdError &base = error;

    EXPECT_EQ(error.text().toStdString(), GetParam().text);
    EXPECT_STREQ(base.what(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Shows, DxfErrorText, testing::ValuesIn(kErrorCases), [](const auto &row) {
    return std::string(row.param.name);
});

TEST(DxfError, KeepsItsPartsAndCountsAsAFileThatCannotBeRead)
{
    const CKvDxfError error(QStringLiteral("plan.dxf"), 5, QStringLiteral("The \u00e4 is odd."));

    EXPECT_EQ(error.file().toStdString(), "plan.dxf");
    EXPECT_EQ(error.line(), 5);
    EXPECT_EQ(error.reason().toStdString(), "The \u00e4 is odd.");
    EXPECT_EQ(error.code(), int(OdResult::kUnreadableFile));
}
