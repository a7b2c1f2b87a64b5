// SPDX-License-Identifier: MIT
#pragma once

#include "CKvLineStylePluginImpl.h"
#include "CKvPluginTest.h"
#include "OdDbBlockTableRecord.h"
#include "OdDbEntity.h"
#include "OdDbLinetypeTableRecord.h"
#include "OdDbObjectIterator.h"
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
        const OdDbSymbolTablePtr blocks(m_database->getBlockTableId().openObject());
        std::string text;
        for (OdDbSymbolTableIteratorPtr walk = blocks->newIterator(); !walk->done(); walk->step()) {
            const OdDbBlockTableRecordPtr block(walk->getRecord());
            for (OdDbObjectIteratorPtr entities = block->newIterator(); !entities->done();
                 entities->step()) {
                const OdDbEntityPtr entity = entities->entity();
                text += block->getName().toQString().toStdString() + ' '
                    + entity->isA()->dxfName().toQString().toStdString() + ' '
                    + nameOf(entity->linetypeId()) + '\n';
            }
        }
        return text;
    }
    std::string layers() const { return layersText(*m_database); }
    std::string currentLineStyle() const { return nameOf(m_database->getCELTYPE()); }
};
