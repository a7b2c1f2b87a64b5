// SPDX-License-Identifier: MIT
#include "CKvDrawingBuilder.h"
#include "pictureText.h"

#include <gtest/gtest.h>

namespace
{

CKvEntityBuilder &addLeader(CKvDrawingBuilder &drawing, const char *style, double length)
{
    return drawing.modelSpace()
        .entity("LEADER")
        .group(100, "AcDbLeader")
        .group(3, style)
        .group(71, 1)
        .group(76, 2)
        .group(10, 0)
        .group(20, 0)
        .group(10, length)
        .group(20, 0);
}

std::string shownText(const CKvDrawingBuilder &drawing)
{
    return shown(drawing).join(QLatin1Char('\n')).toStdString();
}

} // namespace

TEST(LeaderShapes, TheArrowIsAsLargeAsItsDimensionStyleTells)
{
    CKvDrawingBuilder drawing;
    drawing.dimStyle("BIG").group(41, 1.5).group(40, 2);
    addLeader(drawing, "BIG", 100);

    EXPECT_EQ(shownText(drawing), "path 0,0 100,0 on 0\narea [0,0 3,0.5 3,-0.5] solid on 0");
}

TEST(LeaderShapes, WhatTheLeaderOverridesIsStronger)
{
    CKvDrawingBuilder drawing;
    drawing.dimStyle("BIG").group(41, 1.5).group(40, 2);
    addLeader(drawing, "BIG", 100)
        .extendedData("ACAD",
                      { { 1000, "DSTYLE" },
                        { 1002, "{" },
                        { 1070, 41 },
                        { 1040, 6.0 },
                        { 1070, 40 },
                        { 1040, 1.0 },
                        { 1002, "}" } });

    EXPECT_EQ(shownText(drawing), "path 0,0 100,0 on 0\narea [0,0 6,1 6,-1] solid on 0");
}

TEST(LeaderShapes, AShortLineHasNoRoomForTheArrow)
{
    CKvDrawingBuilder drawing;
    drawing.dimStyle("BIG").group(41, 6);
    addLeader(drawing, "BIG", 10);

    EXPECT_EQ(shownText(drawing), "path 0,0 10,0 on 0");
}

TEST(LeaderShapes, AMultileaderHasItsLandingAndTurnsItsText)
{
    CKvDrawingBuilder drawing;
    CKvEntityBuilder &leader = drawing.modelSpace().entity("MULTILEADER");
    leader.group(100, "AcDbMLeader").group(300, "CONTEXT_DATA{").group(40, 1).group(41, 4);
    leader.group(140, 0).group(304, "NOTE").group(12, 30).group(22, 7);
    leader.group(13, 0).group(23, 1).group(43, 0).group(171, 1);
    leader.group(302, "LEADER{").group(10, 20).group(20, 5).group(11, 1).group(21, 0);
    leader.group(40, 8).group(304, "LEADER_LINE{").group(10, 0).group(20, 0).group(305, "}");
    leader.group(303, "}").group(301, "}").group(41, 99).group(171, -2).group(10, 1);

    EXPECT_EQ(shownText(drawing),
              "path 0,0 20,5 on 0\npath 20,5 28,5 on 0\ntext \"NOTE\" at 34,7 up -4,0 on 0");
}
