// SPDX-License-Identifier: MIT
#include "CKvVerifyBench.h"

#include <gmock/gmock.h>

#include <functional>
#include <memory>

using testing::ElementsAre;

namespace
{

const QStringList kOne { QStringLiteral("A") };

/// A value of a type, and what the preview makes of it.
struct ValueCase {
    const char *name;
    int type;
    std::function<void(OdResBuf &)> set;
    const char *text;
};

OdResBufPtr value(int type, const std::function<void(OdResBuf &)> &set)
{
    OdResBufPtr buffer = OdResBuf::newRb(type);
    set(*buffer);
    return buffer;
}

std::string nameOf(const testing::TestParamInfo<ValueCase> &info)
{
    return info.param.name;
}

class PreviewValue : public testing::TestWithParam<ValueCase>
{
};

} // namespace

INSTANTIATE_TEST_SUITE_P(
    All,
    PreviewValue,
    testing::Values(
        ValueCase { "Int8", 280, [](OdResBuf &b) { b.setInt8(-3); }, "-3" },
        ValueCase { "True", 290, [](OdResBuf &b) { b.setBool(true); }, "1" },
        ValueCase { "False", 290, [](OdResBuf &b) { b.setBool(false); }, "0" },
        ValueCase { "Real", 5001, [](OdResBuf &b) { b.setDouble(2); }, "2.0000" },
        ValueCase { "SmallReal", 5001, [](OdResBuf &b) { b.setDouble(-0.12345); }, "-0.1235" },
        ValueCase { "Int16", 5003, [](OdResBuf &b) { b.setInt16(-300); }, "-300" },
        ValueCase {
            "Text", 5005, [](OdResBuf &b) { b.setString(OdString("0.50 mm")); }, "0.50 mm" },
        ValueCase { "Int32", 5010, [](OdResBuf &b) { b.setInt32(70000); }, "70000" },
        ValueCase { "Colour", 5011, [](OdResBuf &b) { b.setColor(OdCmColor::byIndex(1)); }, "red" },
        ValueCase { "UnknownType", 70, [](OdResBuf &b) { b.setInt16(7); }, "" }),
    nameOf);

TEST_P(PreviewValue, IsShownByItsType)
{
    CKvVerifyBench bench(kOne);
    const OdResBufPtr shown = value(GetParam().type, GetParam().set);
    bench.plugin().previewRow("Property", shown, shown);

    bench.show();

    EXPECT_EQ(bench.preview(),
              std::string("Property | ") + GetParam().text + " | " + GetParam().text + '\n');
}

TEST(Preview, ItHoldsTheDrawingForAsLongAsTheDialogLives)
{
    CKvVerifyBench bench(kOne);
    OdArray<CKvStdsViolation> list;
    list.append(bench.violation(0));
    const CKvDatabase &drawing = *bench.document().GetKvDatabase();
    const long before = drawing.numRefs();
    auto dialog = std::make_unique<CKvVerifyStandards>(bench.host().mainWindow());
    dialog->setViolations(list);

    dialog->show();
    CKvVerifyBench::settle();
    const long previewed = drawing.numRefs();
    dialog.reset();

    EXPECT_EQ(previewed, before + 1);
    EXPECT_EQ(drawing.numRefs(), before);
}

TEST(Preview, ValuesOfTwoTypesLeaveABlankRowInItsPlace)
{
    CKvVerifyBench bench(kOne);
    const OdResBufPtr text = textValue(CKvString("x"));
    const OdResBufPtr number = value(5003, [](OdResBuf &b) { b.setInt16(1); });
    bench.plugin().previewRow("First", text, text);
    bench.plugin().previewRow("Second", text, number);
    bench.plugin().previewRow("Third", number, number);

    bench.show();

    EXPECT_EQ(bench.preview(), "First | x | x\n\nThird | 1 | 1\n");
}

TEST(Preview, AValueThatIsMissingLeavesABlankRow)
{
    CKvVerifyBench bench(kOne);
    const OdResBufPtr text = textValue(CKvString("x"));
    bench.plugin().previewRow("First", OdResBufPtr(), text);
    bench.plugin().previewRow("Second", text, OdResBufPtr());
    bench.plugin().previewRow("Third", text, text);

    bench.show();

    EXPECT_EQ(bench.preview(), "\n\nThird | x | x\n");
}

TEST(Preview, ABlankRowShowsNothingOfTheCandidateBefore)
{
    CKvVerifyBench bench(kOne);
    bench.show();
    bench.plugin().previewRow("Name", textValue(CKvString("x")), OdResBufPtr());

    bench.clickCandidate(1);

    EXPECT_EQ(bench.preview(), "\n");
}

TEST(Preview, AFailureLeavesTheLabelsAsTheTableOfCandidatesSetsThem)
{
    CKvVerifyBench bench(kOne);
    bench.plugin().previewName("Property");

    const std::vector<std::string> failures = bench.failuresOf([&] { bench.show(); });

    EXPECT_EQ(failures.size(), 1U);
    EXPECT_EQ(bench.text("ObjectTypeLabel"), "Layer:");
    EXPECT_EQ(bench.text("ObjectNameLabel"), "A");
    EXPECT_EQ(bench.text("ProblemDescLabel"), "Layer properties are non-standard.");
}

TEST(Preview, TooFewCurrentValuesAreAnError)
{
    CKvVerifyBench bench(kOne);
    bench.plugin().previewName("Property");
    bench.plugin().previewStandard(textValue(CKvString("x")));

    const std::vector<std::string> failures = bench.failuresOf([&] { bench.show(); });

    // Once when the row is selected; the first step ends there.
    EXPECT_THAT(failures, ElementsAre("The index is outside the array."));
}

TEST(Preview, TooFewStandardValuesAreAnError)
{
    CKvVerifyBench bench(kOne);
    bench.plugin().previewName("Property");
    bench.plugin().previewCurrent(textValue(CKvString("x")));

    const std::vector<std::string> failures = bench.failuresOf([&] { bench.show(); });

    EXPECT_THAT(failures, ElementsAre("The index is outside the array."));
}

TEST(Preview, TooFewNamesAreAnError)
{
    CKvVerifyBench bench(kOne);
    bench.plugin().previewCurrent(textValue(CKvString("x")));
    bench.plugin().previewStandard(textValue(CKvString("x")));

    const std::vector<std::string> failures = bench.failuresOf([&] { bench.show(); });

    EXPECT_THAT(failures, ElementsAre("invalid vector<T> subscript"));
}

TEST(Preview, ARecommendationBeyondTheCandidatesLeavesThePreviewAsItIs)
{
    CKvVerifyBench bench(kOne);
    bench.violation(0).recommendedFix = 7;

    bench.show();

    EXPECT_EQ(bench.candidates(), "   A | office.dxf\n   OTHER | second.dxf\n");
    EXPECT_EQ(bench.preview(), "\n\n\n");
    EXPECT_FALSE(bench.isOn("FixIssueButton"));
}
