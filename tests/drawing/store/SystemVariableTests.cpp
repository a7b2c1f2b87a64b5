// SPDX-License-Identifier: MIT
#include "CKvDrawingBuilder.h"
#include "OdResBuf.h"

#include <gtest/gtest.h>

TEST(SystemVariables, AHeaderVariableHasTheTypeOfItsGroupCode)
{
    CKvDrawingBuilder builder;
    builder.header("LTSCALE", 40, 2.5).header("DIMZIN", 70, 8).header("CLAYER", 8, "WALLS");
    const OdDbDatabasePtr drawing = builder.open();

    const OdResBufPtr scale = drawing->getSysVar(OdString("LTSCALE"));
    const OdResBufPtr zeros = drawing->getSysVar(OdString("DIMZIN"));
    const OdResBufPtr layer = drawing->getSysVar(OdString("CLAYER"));

    EXPECT_EQ(scale->restype(), OdResBuf::kRtDouble);
    EXPECT_EQ(scale->getDouble(), 2.5);
    EXPECT_EQ(zeros->restype(), OdResBuf::kRtInt16);
    EXPECT_EQ(zeros->getInt16(), 8);
    EXPECT_EQ(layer->restype(), OdResBuf::kRtString);
    EXPECT_EQ(layer->getString(), OdString("WALLS"));
}

TEST(SystemVariables, TheLetterCaseOfTheNameDoesNotMatter)
{
    CKvDrawingBuilder builder;
    builder.header("DIMZIN", 70, 8);

    const OdResBufPtr zeros = builder.open()->getSysVar(OdString("dimzin"));

    EXPECT_EQ(zeros->getInt16(), 8);
}

TEST(SystemVariables, AVariableThatTheHeaderLacksIsRefused)
{
    const OdDbDatabasePtr drawing = CKvDrawingBuilder().open();

    std::string failure;
    try {
        drawing->getSysVar(OdString("NOSUCH"));
    } catch (const OdError &error) {
        failure = error.what();
    }

    EXPECT_EQ(failure, "There is no variable NOSUCH.");
}
