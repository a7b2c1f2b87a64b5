// SPDX-License-Identifier: MIT
#pragma once

#include "CKvDimStylePluginImpl.h"
#include "CKvPluginTest.h"
#include "compareDimStyles.h"
#include "drawingText.h"

/// A drawing, the standards file "/office.dxf", and the dimension style plug-in.
class CKvDimStyleTest : public CKvPluginTest<CKvDimStylePluginImpl>
{
protected:
    static OdDbDimStyleTableRecordPtr styleOf(const OdDbDatabasePtr &drawing, const char *name)
    {
        return OdDbDimStyleTableRecordPtr(
            recordId(drawing->getDimStyleTableId(), name).openObject());
    }
    static std::string rowsText(const std::vector<DimStylePropertyRow> &rows)
    {
        std::string text;
        for (const DimStylePropertyRow &row : rows) {
            text += row.key.toStdString() + ": " + row.firstValue.toStdString() + " -> "
                + row.secondValue.toStdString() + '\n';
        }
        return text;
    }
    /// What differs between the style of the drawing and that of the standards.
    std::string differences(const char *name, const char *standardName) const
    {
        return rowsText(compareDimStyles(styleOf(m_database, name),
                                         styleOf(m_services.lastRead("/office.dxf"), standardName),
                                         /*includeAll*/ false));
    }
    OdDbObjectId styleId(const char *name) const
    {
        return recordId(m_database->getDimStyleTableId(), name);
    }
    std::string styles() const { return namesText(m_database->getDimStyleTableId()); }
    std::string blocks() const { return namesText(m_database->getBlockTableId()); }
    std::string currentStyle() const { return nameOf(m_database->getDIMSTYLE()); }
};
