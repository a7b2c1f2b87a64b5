// SPDX-License-Identifier: MIT
#include "CKvEntitySource.h"
#include "CKvShapeSink.h"
#include "curvePoints.h"
#include "entityShapes.h"
#include "hatchBoundary.h"

void readSolid(const CKvEntitySource &source, CKvShapeSink &sink)
{
    // The third and fourth corner stand in the order of a bow tie; a triangle repeats the third.
    const CKvEntityTags &tags = source.tags;
    std::vector<QPointF> ring { tags.point(10), tags.point(11) };
    if (tags.find(13)) {
        ring.push_back(tags.point(13));
    }
    ring.push_back(tags.point(12));
    mapPoints(ring, tags.plane());
    sink.area({ ring });
}

void readFace(const CKvEntitySource &source, CKvShapeSink &sink)
{
    const CKvEntityTags &tags = source.tags;
    const std::vector<QPointF> corners { tags.point(10),
                                         tags.point(11),
                                         tags.point(12),
                                         tags.find(13) ? tags.point(13) : tags.point(12) };
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const bool isHidden = tags.hasFlag(70, 1 << i);
        const QPointF &to = corners[(i + 1) % corners.size()];
        if (!isHidden && corners[i] != to) {
            sink.path({ corners[i], to });
        }
    }
}

void readHatch(const CKvEntitySource &source, CKvShapeSink &sink)
{
    CKvHatchBoundary hatch = readHatchBoundary(source.tags);
    const QTransform plane = source.tags.plane();
    const QPointF origin = plane.map(QPointF());
    for (std::vector<QPointF> &ring : hatch.rings) {
        mapPoints(ring, plane);
    }
    for (CKvHatchFamily &family : hatch.families) {
        family.base = plane.map(family.base);
        family.direction = plane.map(family.direction) - origin;
        family.step = plane.map(family.step) - origin;
    }
    const bool isSolid = source.tags.integer(70) == 1 || source.tags.integer(450) == 1;
    if (isSolid || !hatch.families.empty()) {
        sink.area(hatch.rings, isSolid ? std::vector<CKvHatchFamily>() : hatch.families);
    }
}

void readImageFrame(const CKvEntitySource &source, CKvShapeSink &sink)
{
    // The picture itself is a file elsewhere; its edge tells where it lies.
    const CKvEntityTags &tags = source.tags;
    const QPointF corner = tags.point(10);
    const QPointF right = tags.point(11) * tags.real(13);
    const QPointF up = tags.point(12) * tags.real(23);
    sink.path({ corner, corner + right, corner + right + up, corner + up }, /*isClosed*/ true);
}
