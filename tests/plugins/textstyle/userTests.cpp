// SPDX-License-Identifier: MIT
#include "CKvTextStyleTest.h"

namespace
{

/// What moves from a style to another one of the drawing.
class TextStyleUsers : public CKvTextStyleTest
{
protected:
    TextStyleUsers()
    {
        m_drawing.textStyle("NOTE");
        m_drawing.textStyle("NOTES");
        m_drawing.textStyle("OTHER");
        m_office.textStyle("NOTES");
        m_office.textStyle("OTHER");
    }
    void merge()
    {
        report();
        repair("NOTE", "NOTES");
    }
};

} // namespace

TEST_F(TextStyleUsers, TextsOfEveryKindMoveInEveryBlock)
{
    m_drawing.block("DOOR").entity("ATTDEF").textStyle("NOTE");
    m_drawing.modelSpace().text("a").textStyle("note");
    m_drawing.modelSpace().multilineText("b").textStyle("NOTE");
    m_drawing.modelSpace().entity("ARCALIGNEDTEXT").textStyle("NOTE");
    m_drawing.modelSpace().entity("RTEXT").textStyle("NOTE");
    m_drawing.modelSpace().insert("DOOR").attribute("NO", "1").lastChild().textStyle("NOTE");
    m_drawing.modelSpace().text("c").textStyle("OTHER");
    m_drawing.paperSpace().text("d").textStyle("NOTE");

    merge();

    EXPECT_EQ(styles(), "NOTES\nOTHER\n");
    EXPECT_EQ(users(),
              "*Model_Space TEXT NOTES\n"
              "*Model_Space MTEXT NOTES\n"
              "*Model_Space ARCALIGNEDTEXT NOTES\n"
              "*Model_Space RTEXT NOTES\n"
              "*Model_Space ATTRIB NOTES\n"
              "*Model_Space TEXT OTHER\n"
              "*Paper_Space TEXT NOTES\n"
              "DOOR ATTDEF NOTES\n");
}

TEST_F(TextStyleUsers, ATableMovesWithAllItsRowsWhenItsTitleHasTheStyle)
{
    m_drawing.modelSpace()
        .entity("ACAD_TABLE")
        .group(100, "AcDbTable")
        .group(93, 0xE0000)
        .group(7, "NOTE")
        .group(7, "OTHER")
        .group(7, "OTHER")
        .group(171, 1);

    merge();

    EXPECT_EQ(users(), "*Model_Space ACAD_TABLE NOTES NOTES NOTES\n");
    EXPECT_EQ(styles(), "NOTES\nOTHER\n");
}

TEST_F(TextStyleUsers, ATableStaysWhenOnlyOtherRowsHaveTheStyle)
{
    m_drawing.modelSpace()
        .entity("ACAD_TABLE")
        .group(100, "AcDbTable")
        .group(93, 0xE0000)
        .group(7, "OTHER")
        .group(7, "NOTE")
        .group(7, "NOTE")
        .group(171, 1);

    merge();

    EXPECT_EQ(users(), "*Model_Space ACAD_TABLE OTHER NOTE NOTE\n");
    EXPECT_EQ(styles(), "NOTE\nNOTES\nOTHER\n");
}

TEST_F(TextStyleUsers, ATableThatHasTheStyleFromItsTableStyleGetsStylesOfItsOwn)
{
    m_drawing.namedObjects()
        .object("TABLESTYLE", "ROOMS")
        .handle("ABC")
        .group(7, "OTHER")
        .group(7, "NOTE")
        .group(7, "OTHER");
    m_drawing.modelSpace()
        .entity("ACAD_TABLE")
        .group(100, "AcDbTable")
        .group(342, "ABC")
        .group(93, 0)
        .group(171, 1);

    merge();

    EXPECT_EQ(users(), "*Model_Space ACAD_TABLE NOTES NOTES NOTES\n");
    // The table style keeps the style, so it stays.
    EXPECT_EQ(styles(), "NOTE\nNOTES\nOTHER\n");
}

TEST_F(TextStyleUsers, TextsOfExternalReferencesStay)
{
    m_drawing.externalReference("SITE").text("a").textStyle("NOTE");
    m_drawing.modelSpace().text("b").textStyle("NOTE");

    merge();

    EXPECT_EQ(users(), "*Model_Space TEXT NOTES\nSITE TEXT NOTE\n");
    EXPECT_EQ(styles(), "NOTE\nNOTES\nOTHER\n");
}

TEST_F(TextStyleUsers, AMultileaderKeepsTheStyle)
{
    m_drawing.modelSpace().entity("MULTILEADER").handleOf(343, "STYLE", "NOTE");

    merge();

    EXPECT_EQ(styles(), "NOTE\nNOTES\nOTHER\n");
}

TEST_F(TextStyleUsers, TextsWithoutAStyleAreOfStandard)
{
    m_drawing.textStyle("Standard");
    m_drawing.modelSpace().text("a");
    m_drawing.modelSpace().text("b").textStyle("STANDARD");
    report();

    repair("Standard", "NOTES");

    EXPECT_EQ(users(), "*Model_Space TEXT NOTES\n*Model_Space TEXT NOTES\n");
}

TEST_F(TextStyleUsers, TheLineInTheFileIsAllThatChanges)
{
    m_drawing.dimStyle("ISO").handleOf(340, "STYLE", "NOTE");
    m_drawing.modelSpace().text("a").textStyle("NOTE");

    merge();

    EXPECT_EQ(changedLines(), "- NOTE\n+ NOTES\n");
}
