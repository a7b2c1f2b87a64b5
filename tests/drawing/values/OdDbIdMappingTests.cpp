// SPDX-License-Identifier: MIT
#include "OdDbIdMapping.h"

#include "CKvDrawingFile.h"

#include <gtest/gtest.h>

namespace
{

OdDbDatabasePtr emptyDrawing()
{
    return CKvDrawingFile::fromBytes("0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF\n");
}

} // namespace

TEST(IdMapping, IsMadeEmptyWithOneReference)
{
    const OdDbIdMappingPtr mapping = OdDbIdMapping::createObject();

    EXPECT_EQ(mapping->numRefs(), 1);
    EXPECT_EQ(mapping->destDb(), nullptr);
    EXPECT_EQ(mapping->isA(), OdDbIdMapping::desc());
}

TEST(IdMapping, ItsClassMakesOneToo)
{
    OdDbIdMappingPtr mapping;

    mapping = OdDbIdMappingPtr(OdDbIdMapping::desc()->create());

    EXPECT_EQ(mapping->numRefs(), 1);
}

TEST(IdMapping, GivesTheCounterpartOfAnId)
{
    const OdDbDatabasePtr drawing = emptyDrawing();
    const OdDbIdMappingPtr mapping = OdDbIdMapping::createObject();
    mapping->setDestDb(drawing.get());
    mapping->assign(drawing->getLayerTableId(), drawing->getLinetypeTableId());
    mapping->assign(drawing->getLayerTableId(), drawing->getTextStyleTableId());
    OdDbObjectId counterpart;

    const bool isMapped = mapping->compute(drawing->getLayerTableId(), counterpart);

    EXPECT_TRUE(isMapped);
    EXPECT_EQ(counterpart, drawing->getTextStyleTableId());
    EXPECT_EQ(mapping->destDb(), drawing.get());
}

TEST(IdMapping, LeavesTheResultAloneForAnIdWithoutCounterpart)
{
    const OdDbDatabasePtr drawing = emptyDrawing();
    const OdDbIdMappingPtr mapping = OdDbIdMapping::createObject();
    OdDbObjectId counterpart = drawing->getDimStyleTableId();

    const bool isMapped = mapping->compute(drawing->getLayerTableId(), counterpart);

    EXPECT_FALSE(isMapped);
    EXPECT_EQ(counterpart, drawing->getDimStyleTableId());
}
