// SPDX-License-Identifier: MIT
#include "CKvDrawingBuilder.h"
#include "pictureText.h"

#include <gtest/gtest.h>

namespace
{

/// A square and a triangle beside it, the edges that the file lists too left out.
CKvEntityBuilder &addMesh(CKvDrawingBuilder &drawing)
{
    CKvEntityBuilder &mesh = drawing.modelSpace().entity("MESH");
    mesh.group(100, "AcDbSubDMesh").group(71, 2).group(72, 0).group(91, 0).group(92, 5);
    mesh.group(10, 0).group(20, 0).group(30, 1).group(10, 4).group(20, 0).group(30, 1);
    mesh.group(10, 4).group(20, 4).group(30, 1).group(10, 0).group(20, 4).group(30, 1);
    mesh.group(10, 9).group(20, 2).group(30, 1);
    return mesh;
}

} // namespace

TEST(MeshShapes, EachFaceHasItsEdges)
{
    CKvDrawingBuilder drawing;
    CKvEntityBuilder &mesh = addMesh(drawing);
    mesh.group(93, 9).group(90, 4).group(90, 0).group(90, 1).group(90, 2).group(90, 3);
    mesh.group(90, 3).group(90, 1).group(90, 4).group(90, 2);
    mesh.group(94, 1).group(90, 0).group(90, 1).group(95, 1).group(140, 0);

    EXPECT_EQ(shown(drawing),
              (QStringList { QStringLiteral("path 0,0 4,0 4,4 0,4 closed on 0"),
                             QStringLiteral("path 4,0 9,2 4,4 closed on 0") }));
}

TEST(MeshShapes, CornersThatTheMeshLacksAreLeftOut)
{
    CKvDrawingBuilder drawing;
    addMesh(drawing).group(93, 8).group(90, 3).group(90, 0).group(90, -1).group(90, 77).group(90,
                                                                                              7);

    EXPECT_EQ(shown(drawing), QStringList { QStringLiteral("path 0,0 closed on 0") });
}
