// SPDX-License-Identifier: MIT
#include "walkDrawing.h"

#include "OdDbBlockTable.h"
#include "OdDbBlockTableRecord.h"
#include "OdDbDictionary.h"
#include "OdDbDimStyleTableRecord.h"
#include "OdDbLayerTableRecord.h"
#include "OdDbLinetypeTableRecord.h"
#include "OdDbTextStyleTableRecord.h"
#include "OdDbXrecord.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <vector>

namespace
{

using Ids = std::vector<OdDbObjectId>;

constexpr std::size_t kMostLookups = 100;

/// One walk; keeps what it has met, since dictionaries may hold each other.
class CKvDrawingWalker
{
public:
    explicit CKvDrawingWalker(OdDbDatabase &drawing)
        : m_drawing(drawing)
    {
    }

    CKvWalkResult walk()
    {
        walkTable(m_drawing.getLayerTableId(), OdDbLayerTableRecord::desc());
        walkTable(m_drawing.getLinetypeTableId(), OdDbLinetypeTableRecord::desc());
        walkTable(m_drawing.getTextStyleTableId(), OdDbTextStyleTableRecord::desc());
        walkTable(m_drawing.getDimStyleTableId(), OdDbDimStyleTableRecord::desc());
        walkTable(m_drawing.getBlockTableId(), OdDbBlockTableRecord::desc());
        expectOfSound(m_drawing.getMEASUREMENT() == 0 || m_drawing.getMEASUREMENT() == 1,
                      QStringLiteral("MEASUREMENT is neither 0 nor 1"));
        expect(!m_drawing.getCLAYER().isNull(), QStringLiteral("there is no current layer"));
        walkDictionary(m_drawing.getNamedObjectsDictionaryId());
        return m_result;
    }

private:
    void expect(bool holds, const QString &fault)
    {
        if (!holds) {
            m_result.faults.append(fault);
        }
    }
    void expectOfSound(bool holds, const QString &oddity)
    {
        if (!holds) {
            m_result.oddities.append(oddity);
        }
    }

    void walkTable(OdDbObjectId tableId, const OdRxClass *recordClass)
    {
        const OdDbSymbolTablePtr table(tableId.safeOpenObject());
        const QString tableName = table->isA()->name().toQString();
        Ids forward;
        for (OdDbSymbolTableIteratorPtr i = table->newIterator(); !i->done(); i->step()) {
            forward.push_back(i->getRecordId());
        }
        Ids backward;
        for (OdDbSymbolTableIteratorPtr i = table->newIterator(/*fromBeginning*/ false); !i->done();
             i->step(/*forward*/ false)) {
            backward.push_back(i->getRecordId());
        }
        std::reverse(backward.begin(), backward.end());
        expect(forward == backward, tableName + QStringLiteral(" gives others backwards"));
        for (const OdDbObjectId id : forward) {
            walkRecord(*table, id, recordClass);
        }
    }

    void walkRecord(const OdDbSymbolTable &table, OdDbObjectId id, const OdRxClass *recordClass)
    {
        ++m_result.records;
        const OdDbSymbolTableRecordPtr record(id.safeOpenObject());
        const OdString name = record->getName();
        const QString place = table.isA()->name().toQString() + QLatin1Char(' ') + name.toQString();
        expect(record->isKindOf(recordClass), place + QStringLiteral(" is of another class"));
        expect(record->ownerId() == table.objectId(), place + QStringLiteral(" has another owner"));
        const OdDbSymbolTableRecordPtr found = table.getAt(name, OdDb::kForRead);
        // A shape file among the text styles has no name.
        expect(name.isEmpty() || (found && found->getName().iCompare(name) == 0),
               place + QStringLiteral(" is not found by its name"));
        walkObject(*record, place);
        readLayer(OdDbLayerTableRecord::cast(record.get()), place);
        readLineStyle(OdDbLinetypeTableRecord::cast(record.get()), place);
        if (const OdDbBlockTableRecordPtr block = OdDbBlockTableRecord::cast(record.get())) {
            walkBlock(*block, place);
        }
    }

    void readLayer(const OdDbLayerTableRecordPtr &layer, const QString &place)
    {
        if (!layer) {
            return;
        }
        expect(!layer->linetypeObjectId().isNull(), place + QStringLiteral(" has no line style"));
        expect(!layer->color().colorNameForDisplay().isEmpty(),
               place + QStringLiteral(" has a colour without a name"));
        expectOfSound(layer->lineWeight() >= -32768 && layer->lineWeight() <= 32767,
                      place + QStringLiteral(" has a lineweight that no file can hold"));
        const bool hasStar = layer->getName().toQString().startsWith(QLatin1Char('*'));
        expect(layer->isHidden() == hasStar, place + QStringLiteral(" is hidden or not"));
    }

    void readLineStyle(const OdDbLinetypeTableRecordPtr &lineStyle, const QString &place)
    {
        if (lineStyle) {
            expectOfSound(lineStyle->numDashes() >= 0,
                          place + QStringLiteral(" has less than no dash"));
            expectOfSound(std::isfinite(lineStyle->patternLength()),
                          place + QStringLiteral(" has a length that is no number"));
        }
    }

    void walkBlock(const OdDbBlockTableRecord &block, const QString &place)
    {
        expect(!block.isFromExternalReference() || !block.getName().isEmpty(),
               place + QStringLiteral(" comes from elsewhere without a name"));
        Ids forward;
        for (OdDbObjectIteratorPtr i = block.newIterator(); !i->done(); i->step()) {
            forward.push_back(i->objectId());
            readEntity(*i->entity(), block.objectId(), place);
        }
        Ids backward;
        for (OdDbObjectIteratorPtr i = block.newIterator(/*fromBeginning*/ false); !i->done();
             i->step(/*forward*/ false)) {
            backward.push_back(i->objectId());
        }
        std::reverse(backward.begin(), backward.end());
        expect(forward == backward, place + QStringLiteral(" gives others backwards"));
    }

    void readEntity(const OdDbEntity &entity, OdDbObjectId blockId, const QString &block)
    {
        ++m_result.entities;
        const QString place = QStringLiteral("%1: %2 %3")
                                  .arg(block,
                                       entity.isA()->name().toQString(),
                                       entity.getDbHandle().ascii().toQString());
        expect(entity.ownerId() == blockId, place + QStringLiteral(" has another owner"));
        const OdDbObjectId layerId = entity.layerId();
        expect(!layerId.isNull(), place + QStringLiteral(" is on no layer"));
        const OdDbSymbolTableRecordPtr layer(layerId.safeOpenObject());
        expect(layer->getName().iCompare(entity.layer()) == 0,
               place + QStringLiteral(" is on another layer than it says"));
        walkObject(entity, place);
    }

    void walkObject(const OdDbObject &object, const QString &place)
    {
        readObject(object, place);
        walkDictionary(object.extensionDictionary());
    }

    void readObject(const OdDbObject &object, const QString &place)
    {
        const OdDbObjectId id = object.objectId();
        expect(id.database() == &m_drawing, place + QStringLiteral(" is of another drawing"));
        expect(!object.isErased() && !id.isErased(), place + QStringLiteral(" is erased"));
        expect(!object.isNewObject() && !object.isModified() && !object.isWriteEnabled(),
               place + QStringLiteral(" is not as it was read"));
        const OdDbHandle handle = object.getDbHandle();
        if (!handle.isNull()) {
            const OdDbObjectId found = m_drawing.getOdDbObjectId(handle);
            expect(found.handle() == handle, place + QStringLiteral(" is not found by its handle"));
        }
        // Made here and let go: what a check does with the violating objects.
        expect(object.clone() || object.isKindOf(OdDbSymbolTable::desc()),
               place + QStringLiteral(" can't be copied"));
    }

    // With a list of what is left, since dictionaries may be nested deeper than the stack allows.
    void walkDictionary(OdDbObjectId first)
    {
        Ids left = { first };
        while (!left.empty()) {
            const OdDbObjectPtr object = left.back().openObject();
            left.pop_back();
            readXrecord(OdDbXrecord::cast(object.get()));
            const OdDbDictionaryPtr dictionary = OdDbDictionary::cast(object.get());
            if (!dictionary || !m_seen.insert(dictionary->objectId()).second) {
                continue;
            }
            ++m_result.dictionaries;
            readObject(*dictionary, QStringLiteral("dictionary"));
            left.push_back(dictionary->extensionDictionary());
            Ids inOrder = entriesOf(*dictionary, OdDbDictionary::IteratorType::kStoredOrder);
            Ids byKey = entriesOf(*dictionary, OdDbDictionary::IteratorType::kSortedByKey);
            left.insert(left.end(), inOrder.begin(), inOrder.end());
            std::sort(inOrder.begin(), inOrder.end());
            std::sort(byKey.begin(), byKey.end());
            expect(inOrder == byKey, QStringLiteral("a dictionary gives others in another order"));
        }
    }

    Ids entriesOf(const OdDbDictionary &dictionary, OdDbDictionary::IteratorType type)
    {
        Ids ids;
        for (OdDbDictionaryIteratorPtr i = dictionary.newIterator(type); !i->done(); i->next()) {
            ids.push_back(i->objectId());
            // A lookup goes through the whole dictionary.
            expectOfSound(ids.size() > kMostLookups || dictionary.has(i->name()),
                          QStringLiteral("dictionary: the entry %1 is not found by its key")
                              .arg(i->name().toQString()));
        }
        return ids;
    }

    void readXrecord(const OdDbXrecordPtr &xrecord)
    {
        if (!xrecord || !m_seen.insert(xrecord->objectId()).second) {
            return;
        }
        ++m_result.xrecords;
        for (OdResBufPtr value = xrecord->rbChain(); value; value = value->next()) {
            expectOfSound(
                value->restype() >= 1 && value->restype() < 1072,
                QStringLiteral("an xrecord holds a value of type %1").arg(value->restype()));
        }
    }

    OdDbDatabase &m_drawing;
    CKvWalkResult m_result;
    std::set<OdDbObjectId> m_seen;
};

} // namespace

CKvWalkResult walkDrawing(OdDbDatabase &drawing)
{
    return CKvDrawingWalker(drawing).walk();
}
