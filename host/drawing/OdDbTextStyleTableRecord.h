// SPDX-License-Identifier: MIT
#pragma once

#include "OdDbSymbolTableRecord.h"

class OdDbTextStyleTableRecord;
using OdDbTextStyleTableRecordPtr = OdSmartPtr<OdDbTextStyleTableRecord>;

/// A text style, or the shape file of a complex line style.
class KV_HOST_API OdDbTextStyleTableRecord : public OdDbSymbolTableRecord
{
public:
    static OdRxClass *desc();
    static OdDbTextStyleTableRecordPtr cast(const OdRxObject *object);
    static OdDbTextStyleTableRecordPtr createObject();

    /// Flag 1 of group 70.
    bool isShapeFile() const;
    /// Flag 4 of group 70.
    bool isVertical() const;
    void setIsVertical(bool isVertical);

    /// Group 3.
    OdString fileName() const;
    /// Another file that is no TrueType font takes the place of the typeface too.
    void setFileName(const OdString &name);
    /// Group 4.
    OdString bigFontFileName() const;
    void setBigFontFileName(const OdString &name);

    /// Group 40, in drawing units; 0 for a height that each text has for itself.
    double textSize() const;
    void setTextSize(double size);
    /// Group 41; 1 when the file has none.
    double xScale() const;
    void setXScale(double factor);
    /// In radians; group 50 has degrees.
    double obliquingAngle() const;
    void setObliquingAngle(double radians);

    /// Flags 2 and 4 of group 71.
    bool isBackwards() const;
    void setIsBackwards(bool isBackwards);
    bool isUpsideDown() const;
    void setIsUpsideDown(bool isUpsideDown);

    /// The TrueType font, from the extended data of ACAD; an empty typeface and no flags where the
    /// style has none.
    void
    font(OdString &typeface, bool &isBold, bool &isItalic, int &charset, int &pitchAndFamily) const;
    /// @param charset, pitchAndFamily 0 to 255.
    void
    setFont(const OdString &typeface, bool isBold, bool isItalic, int charset, int pitchAndFamily);
};
