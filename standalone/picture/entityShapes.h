// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

class CKvShapeSink;
struct CKvEntitySource;

/// Turns one kind of entity into shapes.
using CKvEntityReader = void (*)(const CKvEntitySource &, CKvShapeSink &);

/// @param type the word behind group 0.
/// @return null for a kind that is not drawn, or that is drawn through a block.
CKvEntityReader entityReader(std::string_view type);

// Lines and curves.
void readLine(const CKvEntitySource &source, CKvShapeSink &sink);
void readRay(const CKvEntitySource &source, CKvShapeSink &sink);
void readPoint(const CKvEntitySource &source, CKvShapeSink &sink);
void readCircle(const CKvEntitySource &source, CKvShapeSink &sink);
void readEllipse(const CKvEntitySource &source, CKvShapeSink &sink);
void readSpline(const CKvEntitySource &source, CKvShapeSink &sink);

// Lines through vertices.
void readLwPolyline(const CKvEntitySource &source, CKvShapeSink &sink);
void readPolyline(const CKvEntitySource &source, CKvShapeSink &sink);
void readLeader(const CKvEntitySource &source, CKvShapeSink &sink);
void readMultiLeader(const CKvEntitySource &source, CKvShapeSink &sink);
void readMesh(const CKvEntitySource &source, CKvShapeSink &sink);
void readMultiLine(const CKvEntitySource &source, CKvShapeSink &sink);

// Texts.
void readText(const CKvEntitySource &source, CKvShapeSink &sink);
void readAttribute(const CKvEntitySource &source, CKvShapeSink &sink);
void readMultilineText(const CKvEntitySource &source, CKvShapeSink &sink);

// Areas.
void readSolid(const CKvEntitySource &source, CKvShapeSink &sink);
void readFace(const CKvEntitySource &source, CKvShapeSink &sink);
void readHatch(const CKvEntitySource &source, CKvShapeSink &sink);
void readImageFrame(const CKvEntitySource &source, CKvShapeSink &sink);
