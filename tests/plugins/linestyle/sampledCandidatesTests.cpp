// SPDX-License-Identifier: MIT
#include "CKvLineStylePluginImpl.h"
#include "CKvSampledCandidates.h"
#include "CKvStdsLineStyleRecord.h"

#include <array>
#include <cmath>

namespace
{

CKvString nameOfViolation(const CKvStdsErrorPtr &error)
{
    return CKvString(error->property(CKvString("Name"))->getString());
}

bool isOfferedForName(const CKvStdsErrorPtr &error, const CKvStdsLineStyleRecord &record)
{
    return record.name.compare(nameOfViolation(error)) != 0;
}

bool isOfferedForProperties(const CKvStdsErrorPtr &error, const CKvStdsLineStyleRecord &record)
{
    const double length = error->property(CKvString("Pattern Length"))->getDouble();
    return record.name.compareNoCase(nameOfViolation(error)) != 0
        || record.dashCount != error->property(CKvString("Dashes"))->getInt32()
        || std::abs(record.patternLength - length) > 1e-10;
}

const char *const kNames[] = { "DASHED", "dashed", "Dashed", "STRAßE", "STRASSE",
                               "straße", "CENTER", "Center", "MINE" };

void addLineStyles(CKvDrawingBuilder &drawing, int count, std::mt19937 &random)
{
    const auto pick = [&random](int below) { return int(random() % unsigned(below)); };
    for (int i = 0; i < count; ++i) {
        drawing.lineStyle(kNames[pick(9)])
            .dashes(std::vector<double>(std::size_t(pick(3)), 1))
            .patternLength(2 + std::array<double, 4> { 0, 1e-11, 1e-9, 1 }[std::size_t(pick(4))]);
    }
}

using LineStyleSampledCandidates =
    CKvSampledCandidates<CKvLineStylePluginImpl, CKvStdsLineStyleRecord>;

} // namespace

TEST_P(LineStyleSampledCandidates, AreThoseOfAPlainWalkOverAllRecords)
{
    expectPlainChoice(&addLineStyles, &isOfferedForName, &isOfferedForProperties);
}

INSTANTIATE_TEST_SUITE_P(Drawings, LineStyleSampledCandidates, testing::Range(1U, 61U));
