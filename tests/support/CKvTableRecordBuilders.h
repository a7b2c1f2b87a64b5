// SPDX-License-Identifier: MIT
#pragma once

#include "CKvObjectBuilder.h"

/// A record of a table without words of its own: APPID, VIEW, UCS, VPORT.
class CKvTableRecordBuilder : public CKvObjectBuilder<CKvTableRecordBuilder>
{
public:
    CKvTableRecordBuilder(const QString &table, const QString &name);
};

/// A layer: white, Continuous, lineweight not written.
class CKvLayerBuilder : public CKvObjectBuilder<CKvLayerBuilder>
{
public:
    explicit CKvLayerBuilder(const QString &name);

    CKvLayerBuilder &color(int index) { return set(62, index); }
    /// Group 420 with the index that stands beside it.
    CKvLayerBuilder &trueColor(int red, int green, int blue, int index);
    CKvLayerBuilder &colorBook(const CKvDxfValue &name) { return set(430, name); }
    CKvLayerBuilder &lineWeight(int hundredthsOfMillimetre)
    {
        return set(370, hundredthsOfMillimetre);
    }
    CKvLayerBuilder &lineStyle(const CKvDxfValue &name) { return set(6, name); }
};

/// A line style: no dashes.
class CKvLineStyleBuilder : public CKvObjectBuilder<CKvLineStyleBuilder>
{
public:
    explicit CKvLineStyleBuilder(const QString &name);

    CKvLineStyleBuilder &description(const CKvDxfValue &text) { return set(3, text); }
    /// Plain dashes (above 0), gaps (below 0) and dots (0); number and length follow from them.
    CKvLineStyleBuilder &dashes(const std::vector<double> &lengths);
    /// Group 40, whatever the dashes add up to.
    CKvLineStyleBuilder &patternLength(double length) { return set(40, length); }
};

/// A text style: font file "txt", height 0, width 1.
class CKvTextStyleBuilder : public CKvObjectBuilder<CKvTextStyleBuilder>
{
public:
    explicit CKvTextStyleBuilder(const QString &name);

    CKvTextStyleBuilder &font(const CKvDxfValue &file) { return set(3, file); }
    CKvTextStyleBuilder &bigFont(const CKvDxfValue &file) { return set(4, file); }
    CKvTextStyleBuilder &height(double height) { return set(40, height); }
    CKvTextStyleBuilder &width(double factor) { return set(41, factor); }
    CKvTextStyleBuilder &obliqueDegrees(double degrees) { return set(50, degrees); }
    /// Group 71: 2 backwards, 4 upside down.
    CKvTextStyleBuilder &generation(int flags) { return set(71, flags); }
    /// Typeface and font flags (0x02000000 bold, 0x01000000 italic) in the extended data of ACAD.
    CKvTextStyleBuilder &typeface(const CKvDxfValue &name, int fontFlags);
    /// Marks the style as annotative, or as not.
    CKvTextStyleBuilder &annotative(int flag);
    CKvTextStyleBuilder &matchOrientation(int flag);
};

/// A dimension style with no settings of its own: group() gives them.
class CKvDimStyleBuilder : public CKvObjectBuilder<CKvDimStyleBuilder>
{
public:
    explicit CKvDimStyleBuilder(const QString &name);

    CKvDimStyleBuilder &annotative(int flag);
};
