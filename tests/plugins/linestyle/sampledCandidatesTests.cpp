// SPDX-License-Identifier: MIT
#include "CKvLineStyleTest.h"
#include "CKvPlainChoice.h"
#include "CKvStdsLineStyleRecord.h"

#include <array>
#include <cmath>
#include <random>

namespace
{

using CKvLineStyleChoice = CKvPlainChoice<CKvLineStylePluginImpl, CKvStdsLineStyleRecord>;

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

class LineStyleSampledCandidates : public CKvLineStyleTest,
                                   public testing::WithParamInterface<unsigned>
{
};

} // namespace

TEST_P(LineStyleSampledCandidates, AreThoseOfAPlainWalkOverAllRecords)
{
    std::mt19937 random(GetParam());
    CKvDrawingBuilder firm;
    addLineStyles(m_drawing, 25, random);
    addLineStyles(m_office, 12, random);
    addLineStyles(firm, 12, random);
    m_services.setDrawing("/office.dxf", m_office);
    m_services.setDrawing("/firm.dxf", firm);
    CKvOpenPlugin<CKvLineStylePluginImpl> plugin;

    const auto violations = audit(
        plugin, m_drawing.open(), { QStringLiteral("/office.dxf"), QStringLiteral("/firm.dxf") });

    ASSERT_FALSE(violations.empty());
    const CKvLineStyleChoice plain(plugin, &isOfferedForName, &isOfferedForProperties);
    for (const CKvStdsViolation &violation : violations) {
        EXPECT_EQ(violationsText({ violation }), plain.line(violation.error));
    }
}

INSTANTIATE_TEST_SUITE_P(Drawings, LineStyleSampledCandidates, testing::Range(1U, 61U));
