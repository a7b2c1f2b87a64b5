// SPDX-License-Identifier: MIT
#include "CKvEntitySource.h"
#include "CKvObjectSlot.h"
#include "CKvShapeSink.h"
#include "curvePoints.h"
#include "entityShapes.h"

#include <algorithm>
#include <cmath>

namespace
{

struct Vertex {
    QPointF point;
    double bulge = 0;
    double startWidth = 0;
    double endWidth = 0;
};

/// Vertices, in the polyline's own plane, as a line of one width or as a strip of changing width.
void drawVertices(const std::vector<Vertex> &vertices,
                  bool isClosed,
                  const QTransform &plane,
                  CKvShapeSink &sink)
{
    if (vertices.empty()) {
        return;
    }
    const double width = vertices.front().startWidth;
    const std::size_t segments = isClosed ? vertices.size() : vertices.size() - 1;
    bool isEven = true;
    for (std::size_t i = 0; i < segments; ++i) {
        isEven = isEven && vertices[i].startWidth == width && vertices[i].endWidth == width;
    }
    std::vector<QPointF> points { vertices.front().point };
    for (std::size_t i = 0; i < segments; ++i) {
        const Vertex &from = vertices[i];
        const Vertex &to = vertices[(i + 1) % vertices.size()];
        appendBulge(points, from.point, to.point, from.bulge);
        const QPointF chord = to.point - from.point;
        const double length = std::hypot(chord.x(), chord.y());
        if (!isEven && length > 0) {
            const QPointF side = QPointF(-chord.y(), chord.x()) / length / 2;
            std::vector<QPointF> strip { from.point + side * from.startWidth,
                                         to.point + side * from.endWidth,
                                         to.point - side * from.endWidth,
                                         from.point - side * from.startWidth };
            mapPoints(strip, plane);
            sink.area({ strip });
        }
    }
    mapPoints(points, plane);
    sink.path(points, /*isClosed*/ false, isEven ? width : 0);
}

/// The points of a mesh of rows and columns, or of the faces that some vertices name.
void drawMesh(const CKvEntitySource &source, CKvShapeSink &sink)
{
    const auto rows = std::size_t(std::max(source.tags.integer(71), 0));
    const auto columns = std::size_t(std::max(source.tags.integer(72), 0));
    std::vector<QPointF> points;
    for (const CKvObjectSlot *slot : source.vertices) {
        points.push_back(CKvEntityTags(*slot).point(10));
    }
    if (rows == 0 || columns == 0 || points.size() / rows < columns) {
        return;
    }
    for (std::size_t row = 0; row < rows; ++row) {
        const auto begin = points.begin() + std::ptrdiff_t(row * columns);
        sink.path({ begin, begin + std::ptrdiff_t(columns) }, source.tags.hasFlag(70, 32));
    }
    for (std::size_t column = 0; column < columns; ++column) {
        std::vector<QPointF> line;
        for (std::size_t row = 0; row < rows; ++row) {
            line.push_back(points[row * columns + column]);
        }
        sink.path(line, source.tags.hasFlag(70, 1));
    }
}

void drawFaces(const CKvEntitySource &source, CKvShapeSink &sink)
{
    std::vector<QPointF> points;
    for (const CKvObjectSlot *slot : source.vertices) {
        const CKvEntityTags vertex(*slot);
        if (vertex.hasFlag(70, 64)) {
            points.push_back(vertex.point(10));
            continue;
        }
        std::vector<QPointF> face;
        for (const int code : { 71, 72, 73, 74 }) {
            const auto number = std::size_t(std::abs(vertex.integer(code)));
            if (number >= 1 && number <= points.size()) {
                face.push_back(points[number - 1]);
            }
        }
        sink.path(face, /*isClosed*/ true);
    }
}

} // namespace

void readLwPolyline(const CKvEntitySource &source, CKvShapeSink &sink)
{
    const double width = source.tags.real(43);
    std::vector<Vertex> vertices;
    for (const CKvTag &tag : source.tags.tags()) {
        const double number = CKvEntityTags::real(tag);
        if (tag.code == 10) {
            vertices.push_back({ { number, 0 }, 0, width, width });
        } else if (vertices.empty()) {
            continue;
        } else if (tag.code == 20) {
            vertices.back().point.setY(number);
        } else if (tag.code == 40) {
            vertices.back().startWidth = number;
        } else if (tag.code == 41) {
            vertices.back().endWidth = number;
        } else if (tag.code == 42) {
            vertices.back().bulge = number;
        }
    }
    drawVertices(vertices, source.tags.hasFlag(70, 1), source.tags.plane(), sink);
}

void readPolyline(const CKvEntitySource &source, CKvShapeSink &sink)
{
    if (source.tags.hasFlag(70, 16)) {
        drawMesh(source, sink);
        return;
    }
    if (source.tags.hasFlag(70, 64)) {
        drawFaces(source, sink);
        return;
    }
    const bool isFlat = !source.tags.hasFlag(70, 8);
    const double startWidth = source.tags.real(40);
    const double endWidth = source.tags.real(41);
    std::vector<Vertex> vertices;
    for (const CKvObjectSlot *slot : source.vertices) {
        const CKvEntityTags tags(*slot);
        // Control points of a curve that was fitted; its own points stand beside them.
        if (tags.hasFlag(70, 16)) {
            continue;
        }
        vertices.push_back({ tags.point(10),
                             isFlat ? tags.real(42) : 0,
                             tags.real(40, startWidth),
                             tags.real(41, endWidth) });
    }
    drawVertices(
        vertices, source.tags.hasFlag(70, 1), isFlat ? source.tags.plane() : QTransform(), sink);
}

void readMesh(const CKvEntitySource &source, CKvShapeSink &sink)
{
    // Behind 93 stands a list of 90: for each face the number of its corners, then which they are.
    const std::vector<QPointF> points = source.tags.points(10);
    bool isInList = false;
    std::int64_t cornersLeft = 0;
    std::vector<QPointF> face;
    for (const CKvTag &tag : source.tags.tags()) {
        if (tag.code != 90) {
            isInList = tag.code == 93;
            continue;
        }
        const std::int64_t number = tag.integer();
        if (isInList && cornersLeft <= 0) {
            cornersLeft = number;
            face.clear();
        } else if (isInList) {
            if (number >= 0 && std::size_t(number) < points.size()) {
                face.push_back(points[std::size_t(number)]);
            }
            if (--cornersLeft == 0) {
                sink.path(face, /*isClosed*/ true);
            }
        }
    }
}

void readMultiLine(const CKvEntitySource &source, CKvShapeSink &sink)
{
    // The lines run beside the vertices, each at its distances (41) along the mitre (13).
    std::vector<QPointF> vertices = source.tags.points(11);
    const std::vector<QPointF> mitres = source.tags.points(13);
    std::vector<std::vector<double>> distances;
    bool isElement = false;
    for (const CKvTag &tag : source.tags.tags()) {
        if (tag.code == 11) {
            distances.emplace_back();
        } else if (tag.code == 74) {
            isElement = true;
        } else if (tag.code == 41 && isElement && !distances.empty()) {
            distances.back().push_back(CKvEntityTags::real(tag));
            isElement = false;
        }
    }
    if (vertices.empty() || mitres.size() != vertices.size()
        || distances.size() != vertices.size()) {
        return;
    }
    for (std::size_t line = 0; line < distances.front().size(); ++line) {
        std::vector<QPointF> points;
        for (std::size_t i = 0; i < vertices.size() && line < distances[i].size(); ++i) {
            points.push_back(vertices[i] + mitres[i] * distances[i][line]);
        }
        sink.path(points, source.tags.hasFlag(71, 2));
    }
}
