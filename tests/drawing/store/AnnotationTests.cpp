// SPDX-License-Identifier: MIT
#include "CKvDrawingBuilder.h"
#include "CKvDrawingFile.h"
#include "CKvObjectAnnotationContext.h"
#include "drawingText.h"

#include <gtest/gtest.h>

namespace
{

using Context = CKvObjectAnnotationContext;

class Annotation : public testing::Test
{
protected:
    void open() { m_database = m_drawing.open(); }
    OdDbObjectId dimStyle(const char *name) const
    {
        return recordId(m_database->getDimStyleTableId(), name);
    }
    OdDbObjectId textStyle(const char *name) const
    {
        return recordId(m_database->getTextStyleTableId(), name);
    }

    CKvDrawingBuilder m_drawing;
    OdDbDatabasePtr m_database;
};

} // namespace

TEST_F(Annotation, IsReadFromTheSecondFlagWhateverTheLettersOfTheApplication)
{
    m_drawing.dimStyle("YES").annotative(1);
    m_drawing.dimStyle("NO").annotative(0);
    m_drawing.dimStyle("NONE");
    m_drawing.dimStyle("UPPER").extendedData(
        "ACADANNOTATIVE",
        { { 1000, "AnnotativeData" }, { 1002, "{" }, { 1070, 1 }, { 1070, 1 }, { 1002, "}" } });
    m_drawing.dimStyle("SHORT").extendedData("AcadAnnotative", { { 1070, 1 } });
    open();

    EXPECT_TRUE(Context::IsAnnotative(dimStyle("YES"), nullptr));
    EXPECT_FALSE(Context::IsAnnotative(dimStyle("NO"), nullptr));
    EXPECT_FALSE(Context::IsAnnotative(dimStyle("NONE"), nullptr));
    EXPECT_TRUE(Context::IsAnnotative(dimStyle("UPPER"), nullptr));
    EXPECT_FALSE(Context::IsAnnotative(dimStyle("SHORT"), nullptr));
    EXPECT_FALSE(Context::IsAnnotative(OdDbObjectId(), nullptr));
}

TEST_F(Annotation, IsGivenAndTakenBack)
{
    m_drawing.dimStyle("A");
    m_drawing.textStyle("B").typeface("Arial", 0).annotative(0);
    open();

    EXPECT_TRUE(Context::SetAnnotative(dimStyle("A"), true, false));
    EXPECT_TRUE(Context::SetAnnotative(textStyle("B"), true, true));

    m_database = CKvDrawingFile::fromBytes(CKvDrawingFile::toBytes(*m_database));
    bool matches = false;
    EXPECT_TRUE(Context::IsAnnotative(dimStyle("A"), &matches));
    EXPECT_FALSE(matches);
    EXPECT_TRUE(Context::IsAnnotative(textStyle("B"), &matches));
    EXPECT_TRUE(matches);
    EXPECT_TRUE(Context::SetAnnotative(textStyle("B"), true, false));
    EXPECT_TRUE(Context::IsAnnotative(textStyle("B"), &matches));
    EXPECT_FALSE(matches);
    EXPECT_TRUE(Context::SetAnnotative(dimStyle("A"), false, false));
    EXPECT_FALSE(Context::IsAnnotative(dimStyle("A"), nullptr));
}

TEST_F(Annotation, WhatIsSoAlreadyChangesNothing)
{
    m_drawing.dimStyle("YES").annotative(1);
    m_drawing.dimStyle("NONE");
    open();

    Context::SetAnnotative(dimStyle("YES"), true, false);
    Context::SetAnnotative(dimStyle("NONE"), false, false);
    // A dimension style has no texts to turn.
    Context::SetAnnotative(dimStyle("YES"), true, true);

    EXPECT_FALSE(CKvDrawingFile::isChanged(*m_database));
}

TEST_F(Annotation, StylesAloneCanBeAnnotative)
{
    m_drawing.layer("L");
    open();
    const OdDbObjectId layer = recordId(m_database->getLayerTableId(), "L");

    EXPECT_FALSE(Context::SetAnnotative(layer, true, false));
    EXPECT_FALSE(Context::SetAnnotative(OdDbObjectId(), true, false));
    EXPECT_FALSE(CKvDrawingFile::isChanged(*m_database));
}
