// SPDX-License-Identifier: MIT
#include "CKvSampledCandidates.h"
#include "CKvTextStylePluginImpl.h"
#include "textStyleRecords.h"

#include <array>

namespace
{

CKvString nameOfViolation(const CKvStdsErrorPtr &error)
{
    return CKvString(error->property(CKvString("Name"))->getString());
}

bool isOfferedForName(const CKvStdsErrorPtr &error, const CKvStdsTextStyleRecord &record)
{
    return record.name.compare(nameOfViolation(error)) != 0;
}

bool isOfferedForProperties(const CKvStdsErrorPtr &error, const CKvStdsTextStyleRecord &record)
{
    const bool isStandard = nameOfViolation(error).equalNoCase(CKvString("Standard"));
    if (isStandard && !record.name.equalNoCase(CKvString("Standard"))) {
        return false;
    }
    return !sameTextStyleRecord(*readTextStyleRecord(false, CKvStdsFixPtr(), error), record);
}

const char *const kNames[] = { "Standard", "STANDARD", "standard", "NOTES", "notes",
                               "Straße",   "STRASSE",  "TITLES",   "MINE" };

void addTextStyles(CKvDrawingBuilder &drawing, int count, std::mt19937 &random)
{
    const auto pick = [&random](int below) { return int(random() % unsigned(below)); };
    for (int i = 0; i < count; ++i) {
        CKvTextStyleBuilder &style = drawing.textStyle(kNames[pick(9)]);
        style.font(std::array<const char *, 3> { "txt", "TXT", "arial.ttf" }[std::size_t(pick(3))]);
        style.height(2 + std::array<double, 3> { 0, 1e-11, 1 }[std::size_t(pick(3))]);
        style.generation(2 * pick(2)).annotative(pick(2));
    }
}

using TextStyleSampledCandidates =
    CKvSampledCandidates<CKvTextStylePluginImpl, CKvStdsTextStyleRecord>;

} // namespace

TEST_P(TextStyleSampledCandidates, AreThoseOfAPlainWalkOverAllRecords)
{
    expectPlainChoice(&addTextStyles, &isOfferedForName, &isOfferedForProperties);
}

INSTANTIATE_TEST_SUITE_P(Drawings, TextStyleSampledCandidates, testing::Range(1U, 61U));
