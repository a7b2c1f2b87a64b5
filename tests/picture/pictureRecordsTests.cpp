// SPDX-License-Identifier: MIT
#include "CKvDrawingBuilder.h"
#include "pictureText.h"

#include <gtest/gtest.h>

namespace
{

std::vector<double> dashesOf(const CKvPicture &picture, const char *name)
{
    for (const CKvPictureLineStyle &style : picture.lineStyles) {
        if (style.name == QLatin1String(name)) {
            return style.dashes;
        }
    }
    ADD_FAILURE() << "no line style " << name;
    return {};
}

} // namespace

TEST(PictureRecords, WhereALineStyleHasLettersOrAShapeItsLineIsDrawn)
{
    CKvDrawingBuilder drawing;
    drawing.lineStyle("GAS")
        .group(49, 12)
        .group(74, 0)
        .group(49, -5)
        .group(74, 2)
        .group(9, "GAS")
        .group(49, -6)
        .group(74, 0);
    drawing.lineStyle("ZIGZAG").group(49, 0.001).group(74, 0).group(49, -2).group(74, 4).group(75,
                                                                                               134);
    drawing.layer("0").lineStyle("GAS");
    drawing.layer("Z").lineStyle("ZIGZAG");
    drawing.modelSpace().entity("POINT").group(10, 0).group(20, 0);
    drawing.modelSpace().entity("POINT").group(10, 0).group(20, 0).layer("Z");

    const CKvPicture picture = pictureOf(drawing.open());

    EXPECT_EQ(dashesOf(picture, "GAS"), (std::vector<double> { 12, 5, -6 }));
    EXPECT_EQ(dashesOf(picture, "ZIGZAG"), (std::vector<double> { 0.001, 2 }));
}
