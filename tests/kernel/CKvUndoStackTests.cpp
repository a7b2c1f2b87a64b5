// SPDX-License-Identifier: MIT
#include "CKvUndoStack.h"

#include "CKvDatabaseReactor.h"
#include "CKvDrawingBuilder.h"
#include "CKvDrawingFile.h"
#include "CKvDrawingStore.h"
#include "OdDbBlockTable.h"
#include "OdDbBlockTableRecord.h"
#include "OdDbDictionary.h"
#include "OdDbEntity.h"
#include "OdDbLayerTable.h"
#include "OdDbLayerTableRecord.h"
#include "OdStaticRxObject.h"
#include "newEntity.h"

#include <gtest/gtest.h>

namespace
{

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

/// Writes down what it hears, with the names of records and the kinds of other objects.
class CKvChangeLog : public OdStaticRxObject<CKvDatabaseReactor>
{
public:
    QStringList events;

    void objectAppended(const OdDbDatabase *, const OdDbObject *object) override
    {
        note("appended", *object);
    }
    void objectUnAppended(const OdDbDatabase *, const OdDbObject *object) override
    {
        note("unappended", *object);
    }
    void objectReAppended(const OdDbDatabase *, const OdDbObject *object) override
    {
        note("reappended", *object);
    }
    void objectOpenedForModify(const OdDbDatabase *, const OdDbObject *object) override
    {
        note("opened", *object);
    }
    void objectModified(const OdDbDatabase *, const OdDbObject *object) override
    {
        note("modified", *object);
    }
    void objectErased(const OdDbDatabase *, const OdDbObject *object, bool isErased) override
    {
        note(isErased ? "erased" : "back", *object);
    }

private:
    void note(const char *event, const OdDbObject &object)
    {
        const OdDbSymbolTableRecordPtr record = OdDbSymbolTableRecord::cast(&object);
        events << QString(
            text(event) + QLatin1Char(' ')
            + (record ? record->getName().toQString() : object.isA()->dxfName().toQString()));
    }
};

class UndoStack : public testing::Test
{
protected:
    UndoStack()
    {
        CKvDrawingBuilder drawing;
        drawing.withDefaults();
        drawing.layer("WALLS").color(1);
        drawing.layer("DOORS").color(2);
        drawing.modelSpace().line("WALLS");
        drawing.modelSpace().line("WALLS");
        m_drawing = drawing.open();
        m_before = CKvDrawingFile::toBytes(*m_drawing);
        m_steps = std::make_unique<CKvUndoStack>(m_drawing->store());
    }
    OdDbLayerTablePtr layers(OdDb::OpenMode mode = OdDb::kForRead)
    {
        return OdDbLayerTablePtr(m_drawing->getLayerTableId().openObject(mode));
    }
    OdDbLayerTableRecordPtr layer(const char *name)
    {
        return OdDbLayerTableRecordPtr(layers()->getAt(OdString(name)).openObject(OdDb::kForWrite));
    }
    void addLayer(const char *name)
    {
        const OdDbLayerTableRecordPtr record = OdDbLayerTableRecord::createObject();
        record->setName(OdString(name));
        layers(OdDb::kForWrite)->add(record);
    }
    std::vector<OdDbObjectId> entities()
    {
        const OdDbBlockTablePtr blocks(m_drawing->getBlockTableId().openObject());
        const OdDbBlockTableRecordPtr space(blocks->getAt(OdString("*Model_Space")).openObject());
        std::vector<OdDbObjectId> ids;
        for (OdDbObjectIteratorPtr walk = space->newIterator(); !walk->done(); walk->step()) {
            ids.push_back(walk->objectId());
        }
        return ids;
    }
    QByteArray bytes() { return CKvDrawingFile::toBytes(*m_drawing); }

    OdDbDatabasePtr m_drawing;
    QByteArray m_before;
    std::unique_ptr<CKvUndoStack> m_steps;
};

} // namespace

TEST_F(UndoStack, AChangedObjectIsAsItWasByteForByte)
{
    layer("WALLS")->setColor(OdCmColor::byIndex(5));
    m_steps->endStep(text("LAYER"));
    const QByteArray changed = bytes();

    EXPECT_EQ(m_steps->undo(), text("LAYER"));
    EXPECT_EQ(bytes(), m_before);
    EXPECT_EQ(m_steps->redo(), text("LAYER"));
    EXPECT_EQ(bytes(), changed);
    m_steps->undo();

    EXPECT_EQ(bytes(), m_before);
    EXPECT_EQ(m_steps->undo(), QString());
}

TEST_F(UndoStack, ANewRecordGoesAndComesAgain)
{
    addLayer("NEW");
    m_steps->endStep(text("LAYER"));

    m_steps->undo();
    EXPECT_FALSE(layers()->has(OdString("NEW")));
    EXPECT_EQ(bytes(), m_before);
    m_steps->redo();

    EXPECT_TRUE(layers()->has(OdString("new")));
}

TEST_F(UndoStack, ARenameIsTakenBackEverywhere)
{
    layer("WALLS")->setName(OdString("A-WALL"));
    m_steps->endStep(text("RENAME"));
    EXPECT_TRUE(layers()->has(OdString("A-WALL")));

    m_steps->undo();

    EXPECT_FALSE(layers()->has(OdString("A-WALL")));
    EXPECT_TRUE(layers()->has(OdString("walls")));
    EXPECT_EQ(bytes(), m_before);
    m_steps->redo();
    EXPECT_EQ(OdDbEntityPtr(entities().front().openObject())->layer(), OdString("A-WALL"));
}

TEST_F(UndoStack, EntitiesThatChangedLayersGoBack)
{
    const OdDbObjectId doors = layers()->getAt(OdString("DOORS"));
    for (const OdDbObjectId id : entities()) {
        OdDbEntityPtr(id.openObject(OdDb::kForWrite))->setLayer(doors);
    }
    m_steps->endStep(text("MERGE"));
    const QByteArray changed = bytes();

    m_steps->undo();
    EXPECT_EQ(bytes(), m_before);
    EXPECT_EQ(OdDbEntityPtr(entities().front().openObject())->layer(), OdString("WALLS"));
    m_steps->redo();

    EXPECT_EQ(bytes(), changed);
    EXPECT_EQ(OdDbEntityPtr(entities().front().openObject())->layer(), OdString("DOORS"));
}

TEST_F(UndoStack, NewAndErasedEntitiesAreTakenBack)
{
    entities().front().openObject(OdDb::kForWrite)->erase();
    addToModelSpace(m_drawing->store(), { "POINT", "AcDbPoint", "WALLS", { { 10, "1.0" } } });
    m_steps->endStep(text("EDIT"));
    EXPECT_EQ(entities().size(), 2U);

    m_steps->undo();

    EXPECT_EQ(entities().size(), 2U);
    EXPECT_EQ(bytes(), m_before);
}

TEST_F(UndoStack, AStampIsTakenBackWithItsDictionaries)
{
    const OdDbLayerTableRecordPtr walls = layer("WALLS");
    walls->createExtensionDictionary();
    const OdDbDictionaryPtr extension(walls->extensionDictionary().openObject(OdDb::kForWrite));
    extension->setAt(OdString("AcStStandard"), OdDbDictionary::createObject());
    m_steps->endStep(text("VERIFYSTANDARDS"));
    EXPECT_NE(bytes(), m_before);

    m_steps->undo();

    EXPECT_EQ(bytes(), m_before);
    EXPECT_TRUE(walls->extensionDictionary().isNull() || walls->extensionDictionary().isErased());
}

TEST_F(UndoStack, SeveralStepsAreTakenBackOneByOne)
{
    layer("WALLS")->setColor(OdCmColor::byIndex(5));
    m_steps->endStep(text("FIRST"));
    addLayer("NEW");
    m_steps->endStep(text("SECOND"));
    layer("NEW")->setColor(OdCmColor::byIndex(3));
    m_steps->endStep(text("THIRD"));

    EXPECT_EQ(m_steps->undo(), text("THIRD"));
    EXPECT_EQ(layer("NEW")->color(), OdCmColor::byIndex(7));
    EXPECT_EQ(m_steps->undo(), text("SECOND"));
    EXPECT_EQ(m_steps->undo(), text("FIRST"));

    EXPECT_EQ(bytes(), m_before);
}

TEST_F(UndoStack, WhatWasTakenBackIsGoneOnceSomethingElseHappens)
{
    layer("WALLS")->setColor(OdCmColor::byIndex(5));
    m_steps->endStep(text("FIRST"));
    m_steps->undo();
    layer("DOORS")->setColor(OdCmColor::byIndex(6));
    m_steps->endStep(text("OTHER"));

    EXPECT_EQ(m_steps->redo(), QString());
    EXPECT_EQ(m_steps->undo(), text("OTHER"));
    EXPECT_EQ(bytes(), m_before);
}

TEST_F(UndoStack, AStepWithoutAChangeIsNone)
{
    layer("WALLS")->setColor(OdCmColor::byIndex(5));
    layer("WALLS")->setColor(OdCmColor::byIndex(1));
    m_steps->endStep(text("NOTHING"));

    EXPECT_FALSE(m_steps->canUndo());
    EXPECT_FALSE(m_steps->isModified());
}

TEST_F(UndoStack, ItKnowsWhetherTheDrawingIsAsItWasSaved)
{
    EXPECT_FALSE(m_steps->isModified());
    layer("WALLS")->setColor(OdCmColor::byIndex(5));
    EXPECT_TRUE(m_steps->isModified());
    m_steps->endStep(text("FIRST"));
    m_steps->noteSaved();
    EXPECT_FALSE(m_steps->isModified());

    m_steps->undo();
    EXPECT_TRUE(m_steps->isModified());
    m_steps->redo();
    EXPECT_FALSE(m_steps->isModified());
    m_steps->undo();
    layer("DOORS")->setColor(OdCmColor::byIndex(6));
    m_steps->endStep(text("OTHER"));
    m_steps->undo();

    // What was saved can't be reached any more.
    EXPECT_TRUE(m_steps->isModified());
}

TEST_F(UndoStack, ReactorsHearOfWhatIsTakenBack)
{
    layer("WALLS")->setColor(OdCmColor::byIndex(5));
    layer("DOORS")->erase();
    addLayer("NEW");
    m_steps->endStep(text("EDIT"));
    CKvChangeLog log;
    m_drawing->addReactor(&log);

    m_steps->undo();
    QStringList undone = log.events;
    log.events.clear();
    m_steps->redo();
    QStringList redone = log.events;
    m_drawing->removeReactor(&log);

    for (QStringList *events : { &undone, &redone }) {
        events->removeAll(text("opened TABLE"));
        events->removeAll(text("modified TABLE"));
    }
    EXPECT_EQ(undone,
              QStringList({ text("opened NEW"),
                            text("unappended NEW"),
                            text("back DOORS"),
                            text("opened WALLS"),
                            text("modified WALLS") }));
    EXPECT_EQ(redone,
              QStringList({ text("opened WALLS"),
                            text("modified WALLS"),
                            text("opened DOORS"),
                            text("erased DOORS"),
                            text("reappended NEW") }));
}
