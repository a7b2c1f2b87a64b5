// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbSymbolTableRecord.h"

class OdDbLinetypeTableRecord;
using OdDbLinetypeTableRecordPtr = OdSmartPtr<OdDbLinetypeTableRecord>;

/// A line style. Elements count from 0; asked for one that it does not have, it throws
/// OdError_InvalidIndex.
class KV_HOST_API OdDbLinetypeTableRecord : public OdDbSymbolTableRecord
{
public:
    static OdRxClass *desc();
    static OdDbLinetypeTableRecordPtr cast(const OdRxObject *object);
    static OdDbLinetypeTableRecordPtr createObject();

    /// Group 73; 0 when the file has none.
    int numDashes() const;
    /// Group 40, in drawing units.
    double patternLength() const;

    /// Group 49, in drawing units: a dash above 0, a gap below 0, a dot 0.
    double dashLengthAt(int index) const;
    /// The text style that the text or shape behind an element is drawn with; null for a plain
    /// element, and where the file names none.
    OdDbObjectId shapeStyleAt(int index) const;
    /// The number of a shape in its shape file; 0 for a plain element or a text.
    int shapeNumberAt(int index) const;
    /// The text behind an element; empty for a plain element or a shape.
    OdString textAt(int index) const;
};
