// SPDX-License-Identifier: MIT
#include "CKvManagerTest.h"
#include "OdDbDictionary.h"
#include "OdDbDimStyleTable.h"
#include "OdDbDimStyleTableRecord.h"
#include "OdDbLayerTable.h"
#include "OdDbLayerTableRecord.h"
#include "OdDbViewportTableRecord.h"
#include "OdDbXrecord.h"

#include <gmock/gmock.h>

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

struct DatabaseReactor : CKvManagerTest {
    DatabaseReactor()
    {
        CKvDrawingBuilder drawing;
        drawing.layer("WALLS").color(1);
        drawing.layer("DOORS").color(2);
        drawing.dimStyle("FINE").handle("F1").group(40, 1.0);
        drawing.dimStyle("COARSE").handle("F2").group(40, 2.0);
        drawing.tableRecord("VPORT", "*ACTIVE").handle("F3");
        drawing.namedObjects().xrecord("NOTE").handle("F4").group(1, "text");
        drawing.standardsFiles({ file("office.dws") });
        open(drawing);
        manager->loadDocumentStandards(&*document);
    }
    OdDbDatabase &database() const { return *document->GetKvDatabase(); }
    OdDbObjectId object(std::uint64_t handle) const
    {
        return database().getOdDbObjectId(OdDbHandle(handle));
    }
    /// Opens for writing and lets go, with a change in between that leaves all values alone.
    void renameToItself(OdDbObjectId id)
    {
        const OdDbSymbolTableRecordPtr record(id.openObject(OdDb::kForWrite));
        record->setName(record->getName());
    }
    void rename(OdDbObjectId id, const char *name)
    {
        const OdDbSymbolTableRecordPtr record(id.openObject(OdDb::kForWrite));
        record->setName(OdString(name));
    }
    const std::set<OdDbObjectId> &queue() const { return manager->changedObjects(); }
};

} // namespace

TEST_F(DatabaseReactor, AChangedObjectIsNotedOnceHoweverOftenItChanges)
{
    document->changeLayer("WALLS", 3);
    document->changeLayer("WALLS", 4);

    EXPECT_THAT(queue(), ElementsAre(document->layer("WALLS")));
    EXPECT_TRUE(manager->isTimerActive());
}

TEST_F(DatabaseReactor, TheQueueIsSorted)
{
    document->changeLayer("DOORS", 3);
    document->changeLayer("WALLS", 3);

    const bool isWallsFirst = document->layer("WALLS") < document->layer("DOORS");
    EXPECT_TRUE(isWallsFirst);
    EXPECT_THAT(queue(), ElementsAre(document->layer("WALLS"), document->layer("DOORS")));
}

TEST_F(DatabaseReactor, AnObjectThatIsOpenedAndNotChangedIsNotNoted)
{
    document->layer("WALLS").openObject(OdDb::kForWrite).release();

    EXPECT_THAT(queue(), IsEmpty());
    EXPECT_FALSE(manager->isTimerActive());
}

TEST_F(DatabaseReactor, ANewObjectIsNotedWhenItComesAndDoesNotStartTheTimer)
{
    const OdDbLayerTableRecordPtr record = OdDbLayerTableRecord::createObject();
    record->setName(OdString("NEW"));
    const OdDbLayerTablePtr layers(database().getLayerTableId().openObject(OdDb::kForWrite));

    const OdDbObjectId id = layers->add(record);

    EXPECT_EQ(queue().count(id), 1U);
    EXPECT_TRUE(record->isNewObject());
    EXPECT_FALSE(manager->isTimerActive());
}

TEST_F(DatabaseReactor, AChangeOfAnObjectThatIsStillNewIsNotNoted)
{
    OdDbLayerTablePtr layers(database().getLayerTableId().openObject(OdDb::kForWrite));
    const OdDbLayerTableRecordPtr record = OdDbLayerTableRecord::createObject();
    record->setName(OdString("NEW"));
    layers->add(record);
    layers.release();
    manager->clearChangedObjects();
    manager->stopTimer();
    CKvStandardDatabaseReactor reactor;

    reactor.objectModified(&database(), record.get());

    EXPECT_THAT(queue(), IsEmpty());
    EXPECT_FALSE(manager->isTimerActive());
}

TEST_F(DatabaseReactor, AnErasedObjectIsNotNoted)
{
    OdDbObjectPtr layer = document->layer("WALLS").openObject(OdDb::kForWrite);
    layer->erase();
    manager->clearChangedObjects();
    manager->stopTimer();
    CKvStandardDatabaseReactor reactor;

    reactor.objectModified(&database(), layer.get());

    EXPECT_THAT(queue(), IsEmpty());
    EXPECT_FALSE(manager->isTimerActive());
}

TEST_F(DatabaseReactor, AnXrecordIsNotNotedButRestartsTheTimer)
{
    OdDbXrecordPtr record(object(0xf4).openObject(OdDb::kForWrite));
    const OdResBufPtr value = OdResBuf::newRb(1);
    value->setString(OdString("other"));

    record->setFromRbChain(value.get());
    record.release();

    EXPECT_THAT(queue(), IsEmpty());
    EXPECT_TRUE(manager->isTimerActive());
}

TEST_F(DatabaseReactor, ADictionaryIsNotNotedButRestartsTheTimer)
{
    OdDbDictionaryPtr dictionary(
        database().getNamedObjectsDictionaryId().openObject(OdDb::kForWrite));

    dictionary->setAt(OdString("MORE"), OdDbDictionary::createObject());
    dictionary.release();

    EXPECT_THAT(queue(), IsEmpty());
    EXPECT_TRUE(manager->isTimerActive());
}

TEST_F(DatabaseReactor, AViewportTableRecordIsNeitherNotedNorDoesItRestartTheTimer)
{
    ASSERT_TRUE(object(0xf3).openObject()->isKindOf(OdDbViewportTableRecord::desc()));

    rename(object(0xf3), "OTHER");

    EXPECT_THAT(queue(), IsEmpty());
    EXPECT_FALSE(manager->isTimerActive());
}

TEST_F(DatabaseReactor, AStampOfAViolationIsNotNoted)
{
    OdDbObjectPtr layer = document->layer("WALLS").openObject(OdDb::kForWrite);
    layer->createExtensionDictionary();
    OdDbDictionaryPtr extension(layer->extensionDictionary().openObject(OdDb::kForWrite));
    layer.release();
    manager->clearChangedObjects();

    const OdDbDictionaryPtr stamp = OdDbDictionary::createObject();
    extension->setAt(OdString("AcStStandard"), stamp);
    stamp->setAt(OdString("AcStFlags"), OdDbXrecord::createObject());
    extension.release();

    EXPECT_THAT(queue(), IsEmpty());
}

TEST_F(DatabaseReactor, ADimensionStyleThatIsAsItWasIsNotNotedButRestartsTheTimer)
{
    renameToItself(object(0xf1));

    EXPECT_THAT(queue(), IsEmpty());
    EXPECT_TRUE(manager->isTimerActive());
}

TEST_F(DatabaseReactor, ADimensionStyleWhoseNameAloneChangesIsNotNoted)
{
    // The name is none of the compared properties.
    rename(object(0xf1), "OTHER");

    EXPECT_THAT(queue(), IsEmpty());
    EXPECT_TRUE(manager->isTimerActive());
}

TEST_F(DatabaseReactor, ADimensionStyleWithAChangedPropertyIsNoted)
{
    OdDbDimStyleTableRecordPtr style(object(0xf1).openObject(OdDb::kForWrite));
    style->setDimscale(7.0);
    style.release();

    EXPECT_THAT(queue(), ElementsAre(object(0xf1)));
}

TEST_F(DatabaseReactor, ADimensionStyleThatIsOpenBesideAnotherIsComparedWithTheOneOpenedLast)
{
    // Both are open for writing at once. The copy kept is that of COARSE, so FINE, which is as it
    // was, differs from it.
    OdDbSymbolTableRecordPtr fine(object(0xf1).openObject(OdDb::kForWrite));
    fine->setName(fine->getName());
    OdDbSymbolTableRecordPtr coarse(object(0xf2).openObject(OdDb::kForWrite));
    coarse->setName(coarse->getName());

    fine.release();
    coarse.release();

    EXPECT_THAT(queue(), ElementsAre(object(0xf1)));
}

TEST_F(DatabaseReactor, ANewDimensionStyleIsNoted)
{
    const OdDbDimStyleTableRecordPtr record = OdDbDimStyleTableRecord::createObject();
    record->setName(OdString("NEW"));
    const OdDbDimStyleTablePtr styles(database().getDimStyleTableId().openObject(OdDb::kForWrite));

    const OdDbObjectId id = styles->add(record);

    EXPECT_EQ(queue().count(id), 1U);
}

TEST_F(DatabaseReactor, WithoutAManagerNothingIsNoted)
{
    SetKvStandardManager(nullptr);

    document->changeLayer("WALLS", 3);
    renameToItself(object(0xf1));

    EXPECT_THAT(queue(), IsEmpty());
    EXPECT_FALSE(manager->isTimerActive());
    manager->noteChangedObject(document->layer("WALLS").openObject().get());
    EXPECT_THAT(queue(), IsEmpty());
}

TEST_F(DatabaseReactor, TheQueueTakesObjectsOfSeveralDrawings)
{
    CKvDrawingBuilder drawing;
    drawing.layer("ROOF");
    drawing.standardsFiles({ path("office.dws") });
    CKvSessionDocument second(drawing);
    manager->loadDocumentStandards(&second);

    document->changeLayer("WALLS", 3);
    second.changeLayer("ROOF", 3);

    EXPECT_EQ(queue(), (std::set<OdDbObjectId> { document->layer("WALLS"), second.layer("ROOF") }));
    manager->untrackDocument(&second);
}
