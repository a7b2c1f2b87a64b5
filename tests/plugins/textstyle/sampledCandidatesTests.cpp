// SPDX-License-Identifier: MIT
#include "CKvPlainChoice.h"
#include "CKvTextStyleTest.h"
#include "textStyleRecords.h"

#include <array>
#include <random>

namespace
{

using CKvTextStyleChoice = CKvPlainChoice<CKvTextStylePluginImpl, CKvStdsTextStyleRecord>;

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

class TextStyleSampledCandidates : public CKvTextStyleTest,
                                   public testing::WithParamInterface<unsigned>
{
};

} // namespace

TEST_P(TextStyleSampledCandidates, AreThoseOfAPlainWalkOverAllRecords)
{
    std::mt19937 random(GetParam());
    CKvDrawingBuilder firm;
    addTextStyles(m_drawing, 25, random);
    addTextStyles(m_office, 12, random);
    addTextStyles(firm, 12, random);
    m_services.setDrawing("/office.dxf", m_office);
    m_services.setDrawing("/firm.dxf", firm);
    CKvOpenPlugin<CKvTextStylePluginImpl> plugin;

    const auto violations = audit(
        plugin, m_drawing.open(), { QStringLiteral("/office.dxf"), QStringLiteral("/firm.dxf") });

    ASSERT_FALSE(violations.empty());
    const CKvTextStyleChoice plain(plugin, &isOfferedForName, &isOfferedForProperties);
    for (const CKvStdsViolation &violation : violations) {
        EXPECT_EQ(violationsText({ violation }), plain.line(violation.error));
    }
}

INSTANTIATE_TEST_SUITE_P(Drawings, TextStyleSampledCandidates, testing::Range(1U, 61U));
