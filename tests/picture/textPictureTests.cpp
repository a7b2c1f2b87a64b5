// SPDX-License-Identifier: MIT
#include "list.h"
#include "pictureText.h"

#include <gtest/gtest.h>

TEST(TextPicture, TextsStandOnTheirPointOrAroundTheirSecondOne)
{
    CKvDrawingBuilder drawing;
    drawing.modelSpace().entity("TEXT").group(10, 1).group(20, 2).group(40, 5).group(1, "M%%d");
    drawing.modelSpace()
        .entity("TEXT")
        .group(10, 0)
        .group(20, 0)
        .group(40, 2)
        .group(1, "top")
        .group(50, 90)
        .group(72, 0)
        .group(11, 8)
        .group(21, 8)
        .group(73, 3);

    EXPECT_EQ(shown(drawing),
              list({ "text \"M°\" at 1,2 up 0,5 on 0", "text \"top\" at 10,8 up -2,0 on 0" }));
}

TEST(TextPicture, LinesOfAMultilineTextStandBelowEachOther)
{
    CKvDrawingBuilder drawing;
    drawing.modelSpace()
        .entity("MTEXT")
        .group(10, 0)
        .group(20, 100)
        .group(40, 3)
        .group(41, 0)
        .group(71, 1)
        .group(1, "first\\Psecond");

    EXPECT_EQ(
        shown(drawing),
        list({ "text \"first\" at 0,97 up 0,3 on 0", "text \"second\" at 0,92 up 0,3 on 0" }));
}

TEST(TextPicture, ALongLineOfAMultilineTextIsBrokenAtABlank)
{
    CKvDrawingBuilder drawing;
    drawing.modelSpace()
        .entity("MTEXT")
        .group(10, 0)
        .group(20, 0)
        .group(40, 1)
        .group(41, 6)
        .group(71, 7)
        .group(1, "words words words");

    const QStringList texts = shown(drawing);

    ASSERT_EQ(texts.size(), 3);
    EXPECT_EQ(texts.last(), QStringLiteral("text \"words\" at 0,0 up 0,1 on 0"));
}

TEST(TextPicture, AnInvisibleAttributeIsNotDrawn)
{
    CKvDrawingBuilder drawing;
    drawing.block("DOOR").entity("ATTDEF").group(10, 0).group(20, 0).group(40, 1).group(2, "TAG");
    CKvEntityBuilder &insert = drawing.modelSpace().insert("DOOR");
    insert.attribute("TAG", "D01");
    insert.lastChild().without(40).group(40, 2);
    insert.attribute("PRICE", "99");
    insert.lastChild().without(70).group(70, 1);

    const CKvPicture picture = pictureOf(drawing.open());

    const QString all = pictureText(picture).join(QLatin1Char('\n'));
    EXPECT_TRUE(all.contains(QLatin1String("text \"D01\""))) << all.toStdString();
    EXPECT_FALSE(all.contains(QLatin1String("99"))) << all.toStdString();
    EXPECT_EQ(pictureText(picture, 1), QStringList());
}
