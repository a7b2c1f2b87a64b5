// SPDX-License-Identifier: MIT
#include "CKvDrawingBuilder.h"
#include "drawingText.h"
#include "purgeRecords.h"

#include <gtest/gtest.h>

namespace
{

OdDbObjectIdArray layerIds(const OdDbDatabase &drawing, std::initializer_list<const char *> names)
{
    OdDbObjectIdArray ids;
    for (const char *name : names) {
        ids.append(recordId(drawing.getLayerTableId(), name));
    }
    return ids;
}

} // namespace

TEST(PurgeRecords, WhatNothingRefersToIsErased)
{
    CKvDrawingBuilder builder;
    builder.layer("WALLS");
    builder.layer("DOORS");
    builder.layer("ATTIC");
    const OdDbDatabasePtr drawing = builder.open();

    purgeRecords(*drawing, layerIds(*drawing, { "WALLS", "ATTIC" }));

    EXPECT_EQ(namesText(drawing->getLayerTableId()), "DOORS\n");
}

TEST(PurgeRecords, WhatAnEntityUsesStays)
{
    CKvDrawingBuilder builder;
    builder.layer("WALLS");
    builder.layer("DOORS");
    builder.modelSpace().line("walls");
    const OdDbDatabasePtr drawing = builder.open();

    purgeRecords(*drawing, layerIds(*drawing, { "WALLS", "DOORS" }));

    EXPECT_EQ(namesText(drawing->getLayerTableId()), "WALLS\n");
}

TEST(PurgeRecords, RecordsOfExternalReferencesStay)
{
    CKvDrawingBuilder builder;
    builder.layer("SITE|WALLS").flags(16);
    const OdDbDatabasePtr drawing = builder.open();

    purgeRecords(*drawing, layerIds(*drawing, { "SITE|WALLS" }));

    EXPECT_EQ(namesText(drawing->getLayerTableId()), "SITE|WALLS\n");
}

TEST(PurgeRecords, NullIdsArePassedOver)
{
    CKvDrawingBuilder builder;
    builder.layer("WALLS");
    const OdDbDatabasePtr drawing = builder.open();

    purgeRecords(*drawing, layerIds(*drawing, { "MISSING", "WALLS" }));

    EXPECT_EQ(namesText(drawing->getLayerTableId()), "");
}
