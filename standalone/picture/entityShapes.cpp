// SPDX-License-Identifier: MIT
#include "entityShapes.h"

namespace
{

struct KnownKind {
    std::string_view type;
    CKvEntityReader read;
};

// The most frequent ones first.
constexpr KnownKind kKinds[] = {
    { "LINE", &readLine },
    { "LWPOLYLINE", &readLwPolyline },
    { "TEXT", &readText },
    { "CIRCLE", &readCircle },
    { "ARC", &readCircle },
    { "POINT", &readPoint },
    { "POLYLINE", &readPolyline },
    { "MTEXT", &readMultilineText },
    { "ATTRIB", &readAttribute },
    { "HATCH", &readHatch },
    { "SOLID", &readSolid },
    { "TRACE", &readSolid },
    { "3DFACE", &readFace },
    { "ELLIPSE", &readEllipse },
    { "SPLINE", &readSpline },
    { "HELIX", &readSpline },
    { "ATTDEF", &readAttribute },
    { "LEADER", &readLeader },
    { "MULTILEADER", &readMultiLeader },
    { "MLINE", &readMultiLine },
    { "MESH", &readMesh },
    { "XLINE", &readRay },
    { "RAY", &readRay },
    { "IMAGE", &readImageFrame },
};

} // namespace

CKvEntityReader entityReader(std::string_view type)
{
    for (const KnownKind &kind : kKinds) {
        if (kind.type == type) {
            return kind.read;
        }
    }
    return nullptr;
}
