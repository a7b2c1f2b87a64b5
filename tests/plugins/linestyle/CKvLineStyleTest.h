// SPDX-License-Identifier: MIT
#pragma once

#include "CKvLineStylePluginImpl.h"
#include "CKvPluginTest.h"
#include "OdDbLinetypeTableRecord.h"
#include "OdDbSymbolTable.h"

/// A drawing, the standards file "/office.dxf", and the line style plug-in.
class CKvLineStyleTest : public CKvPluginTest<CKvLineStylePluginImpl>
{
protected:
    OdDbObjectId lineStyleId(const char *name) const
    {
        return recordId(m_database->getLinetypeTableId(), name);
    }
    std::string restricted(std::initializer_list<const char *> names)
    {
        return CKvPluginTest::restricted(m_database->getLinetypeTableId(), names);
    }
    /// "DASHED 2 0.7500", one a line, in the order of the table.
    std::string lineStyles() const
    {
        const OdDbSymbolTablePtr table(m_database->getLinetypeTableId().openObject());
        std::string text;
        for (OdDbSymbolTableIteratorPtr walk = table->newIterator(); !walk->done(); walk->step()) {
            const OdDbLinetypeTableRecordPtr record(walk->getRecord());
            text += record->getName().toQString().toStdString() + ' '
                + std::to_string(record->numDashes()) + ' '
                + QString::number(record->patternLength(), 'f', 4).toStdString() + '\n';
        }
        return text;
    }
    /// Block, type and line style of every entity: "*Model_Space LINE DASHED".
    std::string entityLineStyles() const
    {
        return entitiesText(
            *m_database, [](const OdDbEntityPtr &entity) { return nameOf(entity->linetypeId()); });
    }
    std::string layers() const { return layersText(*m_database); }
    std::string currentLineStyle() const { return nameOf(m_database->getCELTYPE()); }
};
