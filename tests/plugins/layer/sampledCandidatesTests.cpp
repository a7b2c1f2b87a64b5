// SPDX-License-Identifier: MIT
#include "CKvLayerPluginImpl.h"
#include "CKvSampledCandidates.h"
#include "CKvStdsLayerRecord.h"
#include "lineweightNames.h"

namespace
{

CKvString text(const CKvStdsErrorPtr &error, const char *property)
{
    return CKvString(error->property(CKvString(property))->getString());
}

bool isOfferedForName(const CKvStdsErrorPtr &error, const CKvStdsLayerRecord &record)
{
    return record.name.compare(text(error, "Name")) != 0
        && record.name.compareNoCase(CKvString("Defpoints")) != 0;
}

bool isOfferedForProperties(const CKvStdsErrorPtr &error, const CKvStdsLayerRecord &record)
{
    for (const char *tied : { "0", "Defpoints" }) {
        if (text(error, "Name") == CKvString(tied) && record.name != CKvString(tied)) {
            return false;
        }
    }
    OdDb::LineWeight lineWeight = OdDb::kLineWeightByDefault;
    ConvertNameToLineweight(text(error, "LineWeight"), lineWeight);
    return record.color != error->property(CKvString("LineColor"))->getColor()
        || record.lineStyleName.compareNoCase(text(error, "LineStyle")) != 0
        || record.lineWeight != lineWeight;
}

const char *const kNames[] = { "0",     "Defpoints", "DEFPOINTS", "WALLS", "walls",  "Walls",
                               "DOORS", "doors",     "Wände",     "WÄNDE", "Straße", "STRASSE",
                               "ATTIC", "CELLAR",    "*HIDDEN",   "A|B" };

void addLayers(CKvDrawingBuilder &drawing, int count, std::mt19937 &random)
{
    const auto pick = [&random](int below) { return int(random() % unsigned(below)); };
    for (int i = 0; i < count; ++i) {
        CKvLayerBuilder &layer = drawing.layer(kNames[pick(16)]);
        switch (pick(4)) {
        case 0:
            layer.trueColor(pick(2), 0, 0, 1 + pick(2));
            break;
        case 1:
            layer.trueColor(1, 0, 0, 1).colorBook(pick(2) == 0 ? "RAL$1000" : "RAL$2000");
            break;
        default:
            layer.color(1 + pick(2));
        }
        layer.lineWeight(std::array<int, 4> { -3, 25, 30, 33 }[std::size_t(pick(4))]);
        layer.lineStyle(
            std::array<const char *, 3> { "DASHED", "Dashed", "CENTER" }[std::size_t(pick(3))]);
    }
}

using LayerSampledCandidates = CKvSampledCandidates<CKvLayerPluginImpl, CKvStdsLayerRecord>;

} // namespace

TEST_P(LayerSampledCandidates, AreThoseOfAPlainWalkOverAllRecords)
{
    expectPlainChoice(&addLayers, &isOfferedForName, &isOfferedForProperties);
}

INSTANTIATE_TEST_SUITE_P(Drawings, LayerSampledCandidates, testing::Range(1U, 61U));
