// SPDX-License-Identifier: MIT
#include "CKvDrawingBuilder.h"
#include "CKvDrawingFile.h"
#include "OdDbDatabaseReactor.h"
#include "OdDbDictionary.h"
#include "OdDbLayerTable.h"
#include "OdDbLayerTableRecord.h"
#include "OdDbXrecord.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace
{

/// Writes down what it is told, with the colour that the layer has at that moment.
class CKvRecordingReactor : public OdDbDatabaseReactor
{
public:
    void objectAppended(const OdDbDatabase *, const OdDbObject *object) override
    {
        note("appended", object);
    }
    void objectOpenedForModify(const OdDbDatabase *, const OdDbObject *object) override
    {
        note("opened", object);
    }
    void objectModified(const OdDbDatabase *, const OdDbObject *object) override
    {
        note("modified", object);
    }
    void objectErased(const OdDbDatabase *, const OdDbObject *object, bool isErased) override
    {
        note(isErased ? "erased" : "brought back", object);
    }
    QStringList events;

private:
    void note(const char *event, const OdDbObject *object)
    {
        const OdDbLayerTableRecordPtr layer = OdDbLayerTableRecord::cast(object);
        const QString value = layer ? QString::number(layer->color().colorIndex())
                                    : object->isA()->dxfName().toQString();
        events.append(QString(QLatin1String(event) + QLatin1Char(' ') + value));
    }
};

struct CKvObjectLife : testing::Test {
    CKvObjectLife()
    {
        builder.withDefaults();
        builder.layer("WALLS").color(1);
        drawing = builder.open();
        drawing->addReactor(&reactor);
        walls =
            OdDbLayerTablePtr(drawing->getLayerTableId().openObject())->getAt(OdString("walls"));
    }
    OdDbLayerTableRecordPtr open(OdDb::OpenMode mode)
    {
        return OdDbLayerTableRecordPtr(walls.openObject(mode));
    }

    CKvDrawingBuilder builder;
    OdDbDatabasePtr drawing;
    OdDbObjectId walls;
    CKvRecordingReactor reactor;
};

} // namespace

TEST_F(CKvObjectLife, ASetterOnAnObjectOpenForReadingThrowsAndChangesNothing)
{
    const OdDbLayerTableRecordPtr layer = open(OdDb::kForRead);

    EXPECT_THROW(layer->setColor(OdCmColor::byIndex(3)), OdError_NotOpenForWrite);
    EXPECT_THROW(layer->setName(OdString("OTHER")), OdError_NotOpenForWrite);
    EXPECT_THROW(layer->erase(), OdError_NotOpenForWrite);
    EXPECT_EQ(CKvDrawingFile::toBytes(*drawing), builder.toBytes());
    EXPECT_TRUE(reactor.events.isEmpty());
}

TEST_F(CKvObjectLife, TheFirstChangeIsToldWithTheOldValueAndTheClosingWithTheNewOne)
{
    {
        const OdDbLayerTableRecordPtr layer = open(OdDb::kForWrite);
        layer->setColor(OdCmColor::byIndex(3));
        layer->setColor(OdCmColor::byIndex(4));
        EXPECT_EQ(reactor.events, QStringList { QStringLiteral("opened 1") });
    }

    EXPECT_EQ(reactor.events,
              (QStringList { QStringLiteral("opened 1"), QStringLiteral("modified 4") }));
}

TEST_F(CKvObjectLife, AnObjectClosesWhenTheLastOfSeveralWritersGoes)
{
    OdDbLayerTableRecordPtr first = open(OdDb::kForWrite);
    OdDbLayerTableRecordPtr second = open(OdDb::kForWrite);
    const OdDbLayerTableRecordPtr reader = open(OdDb::kForRead);
    first->setColor(OdCmColor::byIndex(3));

    first.release();
    EXPECT_EQ(reactor.events, QStringList { QStringLiteral("opened 1") });
    EXPECT_EQ(reader->color().colorIndex(), 3);
    second.release();

    EXPECT_EQ(reactor.events,
              (QStringList { QStringLiteral("opened 1"), QStringLiteral("modified 3") }));
}

TEST_F(CKvObjectLife, AnOpeningForWritingWithoutAChangeIsNotTold)
{
    open(OdDb::kForWrite).release();

    EXPECT_TRUE(reactor.events.isEmpty());
}

TEST_F(CKvObjectLife, ANewLayerIsAppendedAndStaysNewUntilItFirstCloses)
{
    OdDbLayerTableRecordPtr layer = OdDbLayerTableRecord::createObject();
    layer->setName(OdString("NEW"));
    OdDbLayerTablePtr table(drawing->getLayerTableId().openObject(OdDb::kForWrite));

    const OdDbObjectId id = table->add(layer);

    EXPECT_EQ(reactor.events.last(), QStringLiteral("appended 7"));
    EXPECT_TRUE(layer->isNewObject());
    layer.release();
    EXPECT_FALSE(OdDbObjectPtr(id.openObject())->isNewObject());
}

TEST_F(CKvObjectLife, AnErasedObjectKeepsItsIdAndOpensOnlyWhenAskedFor)
{
    OdDbObjectPtr layer = walls.openObject(OdDb::kForWrite);

    layer->erase();
    layer.release();

    EXPECT_TRUE(walls.isErased());
    EXPECT_TRUE(walls.openObject().isNull());
    EXPECT_FALSE(walls.openObject(OdDb::kForRead, true).isNull());
    EXPECT_THROW(walls.safeOpenObject(), OdError);
    EXPECT_EQ(reactor.events,
              (QStringList { QStringLiteral("opened 1"), QStringLiteral("erased 1") }));
}

TEST_F(CKvObjectLife, ErasingAndBringingBackGivesTheSameFile)
{
    walls.openObject(OdDb::kForWrite)->erase();
    EXPECT_NE(CKvDrawingFile::toBytes(*drawing), builder.toBytes());

    walls.openObject(OdDb::kForWrite, true)->erase(false);

    EXPECT_EQ(CKvDrawingFile::toBytes(*drawing), builder.toBytes());
}

TEST_F(CKvObjectLife, ACastToAWrongClassThrowsAndTheGentleCastGivesNull)
{
    const OdDbObjectPtr layer = walls.openObject();

    EXPECT_THROW(OdDbDictionaryPtr wrong(layer), OdError_NotThatKindOfClass);
    EXPECT_TRUE(OdDbDictionary::cast(layer.get()).isNull());
    EXPECT_EQ(layer->isA()->dxfName().toQString(), QStringLiteral("LAYER"));
}

TEST_F(CKvObjectLife, IdsAreOrderedByHandleAndNullComesFirst)
{
    const OdDbObjectId zero =
        OdDbLayerTablePtr(drawing->getLayerTableId().openObject())->getAt(OdString("0"));

    EXPECT_EQ(zero < walls, zero.handle() < walls.handle());
    EXPECT_NE(zero < walls, walls < zero);
    EXPECT_TRUE(OdDbObjectId() < zero);
    EXPECT_FALSE(zero < OdDbObjectId());
    EXPECT_FALSE(zero < zero);
}

TEST_F(CKvObjectLife, AnExtensionDictionaryIsMadeOnceAndErasedWithItsObject)
{
    OdDbObjectPtr layer = walls.openObject(OdDb::kForWrite);

    layer->createExtensionDictionary();
    const OdDbObjectId dictionary = layer->extensionDictionary();
    layer->createExtensionDictionary();
    OdDbDictionaryPtr(dictionary.openObject(OdDb::kForWrite))
        ->setAt(OdString("NOTE"), OdDbXrecord::createObject());
    const OdDbObjectId note = OdDbDictionaryPtr(dictionary.openObject())->getAt(OdString("note"));

    EXPECT_EQ(layer->extensionDictionary(), dictionary);
    EXPECT_FALSE(note.isNull());
    layer->erase();
    EXPECT_TRUE(dictionary.isErased());
    EXPECT_TRUE(note.isErased());
    EXPECT_NE(CKvDrawingFile::toBytes(*drawing).size(), 0);
}

TEST(ObjectLifeOfR12, AnExtensionDictionaryIsRefusedWithTheAdviceToSaveInANewerVersion)
{
    CKvDrawingBuilder builder("AC1009");
    builder.layer("WALLS");
    const OdDbDatabasePtr drawing = builder.open();
    const OdDbObjectId walls =
        OdDbLayerTablePtr(drawing->getLayerTableId().openObject())->getAt(OdString("WALLS"));

    try {
        walls.openObject(OdDb::kForWrite)->createExtensionDictionary();
        FAIL() << "nothing was thrown";
    } catch (const OdError &error) {
        EXPECT_STREQ(
            error.what(),
            "A drawing of R12 or older has no place for this. Save it as R2000 or newer first.");
    }
    EXPECT_TRUE(drawing->getNamedObjectsDictionaryId().isNull());
}

TEST(DamagedDictionaries, AnExtensionDictionaryThatIsNoneCountsForNothingAndIsReplaced)
{
    CKvDrawingBuilder builder;
    builder.withDefaults().layer("WALLS").handle("ABC");
    QByteArray bytes = builder.toBytes();
    bytes.replace("\nABC\n", "\nABC\n102\n{ACAD_XDICTIONARY\n360\nABC\n102\n}\n");
    const OdDbDatabasePtr drawing = CKvDrawingFile::fromBytes(bytes);
    const OdDbObjectId walls = drawing->getOdDbObjectId(OdDbHandle(0xABC));

    EXPECT_TRUE(walls.openObject()->extensionDictionary().isNull());
    walls.openObject(OdDb::kForWrite)->createExtensionDictionary();

    const OdDbObjectId dictionary = walls.openObject()->extensionDictionary();
    EXPECT_TRUE(OdDbDictionary::cast(dictionary.openObject().get()));
    EXPECT_FALSE(CKvDrawingFile::toBytes(*drawing).contains("360\nABC\n"));
}

TEST(DamagedDictionaries, TheNamedObjectsDictionaryIsTheFirstDictionaryWhateverStandsBeforeIt)
{
    const QByteArray begin = "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1015\n0\nENDSEC\n"
                             "0\nSECTION\n2\nOBJECTS\n0\nXRECORD\n5\nA\n";
    const QByteArray end = "0\nENDSEC\n0\nEOF\n";
    const OdDbDatabasePtr drawing =
        CKvDrawingFile::fromBytes(begin + "0\nDICTIONARY\n5\nB\n" + end);
    const OdDbDatabasePtr without = CKvDrawingFile::fromBytes(begin + end);

    EXPECT_EQ(drawing->getNamedObjectsDictionaryId().handle(), OdDbHandle(0xB));
    const OdDbDictionaryPtr root(
        without->getNamedObjectsDictionaryId().openObject(OdDb::kForWrite));
    root->setAt(OdString("NOTE"), OdDbXrecord::createObject());
    const OdDbDatabasePtr again = CKvDrawingFile::fromBytes(CKvDrawingFile::toBytes(*without));
    EXPECT_TRUE(OdDbDictionaryPtr(again->getNamedObjectsDictionaryId().openObject())
                    ->has(OdString("NOTE")));
}

TEST(DictionaryEntries, OfTwoKeysThatDifferInCaseTheFirstCountsAndTheWalkHasItsTwoOrders)
{
    CKvDrawingBuilder builder;
    builder.withDefaults();
    builder.namedObjects().xrecord("b").group(1, "first");
    builder.namedObjects().xrecord("B").group(1, "second");
    builder.namedObjects().xrecord("A").group(1, "third");
    const OdDbDatabasePtr drawing = builder.open();
    const OdDbDictionaryPtr root(drawing->getNamedObjectsDictionaryId().openObject());
    const auto keys = [&](OdDbDictionary::IteratorType type) {
        QStringList found;
        for (OdDbDictionaryIteratorPtr walk = root->newIterator(type); !walk->done();
             walk->next()) {
            found.append(walk->name().toQString());
        }
        return found.join(QLatin1Char(' '));
    };

    const OdDbXrecordPtr entry(root->getAt(OdString("B"), OdDb::kForRead));

    EXPECT_EQ(entry->rbChain()->getString().toQString(), QStringLiteral("first"));
    EXPECT_EQ(keys(OdDbDictionary::IteratorType::kStoredOrder), QStringLiteral("b B A"));
    EXPECT_EQ(keys(OdDbDictionary::IteratorType::kSortedByKey), QStringLiteral("A B b"));
}

TEST(XrecordData, ComesBackAsItWasSetInR14AndInNewerDrawings)
{
    for (const char *version : { "AC1014", "AC1015", "AC1032" }) {
        CKvDrawingBuilder builder(version);
        builder.withDefaults();
        const OdDbDatabasePtr drawing = builder.open();
        const OdDbDictionaryPtr root(
            drawing->getNamedObjectsDictionaryId().openObject(OdDb::kForWrite));
        OdDbXrecordPtr xrecord = OdDbXrecord::createObject();
        const OdResBufPtr chain = OdResBuf::newRb();
        const std::pair<int, const char *> values[] = {
            { 102, "}" }, { 1, "text" }, { 1001, "APP" }, { 280, "7" }
        };
        for (const auto &[code, text] : values) {
            const OdResBufPtr value = OdResBuf::newRb(code);
            if (code == 280) {
                value->setInt8(7);
            } else {
                value->setString(OdString(text));
            }
            chain->insert(value);
        }
        const OdResBufPtr handle = OdResBuf::newRb(330);
        handle->setHandle(OdDbHandle(0xAB));
        chain->last()->insert(handle);
        xrecord->setFromRbChain(chain.get());

        root->setAt(OdString("DATA"), xrecord);

        const OdDbDatabasePtr again = CKvDrawingFile::fromBytes(CKvDrawingFile::toBytes(*drawing));
        const OdDbDictionaryPtr rootAgain(again->getNamedObjectsDictionaryId().openObject());
        QStringList found;
        for (OdResBufPtr value =
                 OdDbXrecordPtr(rootAgain->getAt(OdString("DATA"), OdDb::kForRead))->rbChain();
             value;
             value = value->next()) {
            found.append(QString::number(value->restype()));
        }
        EXPECT_EQ(found.join(QLatin1Char(' ')), QStringLiteral("280 1001 1 102 330")) << version;
        EXPECT_EQ(OdDbXrecordPtr(rootAgain->getAt(OdString("DATA"), OdDb::kForRead))->ownerId(),
                  rootAgain->objectId())
            << version;
    }
}
