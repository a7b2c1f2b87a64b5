// SPDX-License-Identifier: MIT
#pragma once

#include "CKvPluginTest.h"
#include "CKvTextStylePluginImpl.h"
#include "OdDbArcAlignedText.h"
#include "OdDbMText.h"
#include "OdDbSymbolTable.h"
#include "OdDbTable.h"
#include "OdDbText.h"
#include "OdDbTextStyleTableRecord.h"
#include "RText.h"

/// The flags of a TrueType font in the extended data of a text style.
constexpr int kBoldFont = 0x02000000;
constexpr int kItalicFont = 0x01000000;

/// A drawing, the standards file "/office.dxf", and the text style plug-in.
class CKvTextStyleTest : public CKvPluginTest<CKvTextStylePluginImpl>
{
protected:
    OdDbObjectId styleId(const char *name) const
    {
        return recordId(m_database->getTextStyleTableId(), name);
    }
    std::string restricted(std::initializer_list<const char *> names)
    {
        return CKvPluginTest::restricted(m_database->getTextStyleTableId(), names);
    }
    std::string styles() const { return namesText(m_database->getTextStyleTableId()); }
    std::string currentStyle() const { return nameOf(m_database->getTEXTSTYLE()); }
    /// "Annotative=0 Backwards=0 ...": what a style is now, sorted by property.
    std::string values(const char *name) const
    {
        CKvStdsErrorPtr error = CKvStdsError::createObject();
        const OdDbSymbolTableRecordPtr style(styleId(name).openObject());
        for (const CKvStdsProperty &property : m_plugin.valuesOf(style)) {
            error->addProperty(property.name, property.value);
        }
        return propertiesText(error);
    }
    /// Block, type and text style of every text: "*Model_Space TEXT NOTES"; for a table the styles
    /// of title, header and data rows.
    std::string users() const { return entitiesText(*m_database, &styleOf); }

private:
    static std::string styleOf(const OdDbEntityPtr &entity)
    {
        if (const OdDbTextPtr line = OdDbText::cast(entity.get())) {
            return nameOf(line->textStyle());
        }
        if (const OdDbMTextPtr lines = OdDbMText::cast(entity.get())) {
            return nameOf(lines->textStyle());
        }
        if (const OdDbArcAlignedTextPtr arc = OdDbArcAlignedText::cast(entity.get())) {
            return nameOf(arc->textStyle());
        }
        if (const RTextPtr remote = RText::cast(entity.get())) {
            return nameOf(remote->textStyleId());
        }
        if (const OdDbTablePtr table = OdDbTable::cast(entity.get())) {
            return nameOf(table->textStyle(OdDb::kTitleRow)) + ' '
                + nameOf(table->textStyle(OdDb::kHeaderRow)) + ' '
                + nameOf(table->textStyle(OdDb::kDataRow));
        }
        return std::string();
    }
};
