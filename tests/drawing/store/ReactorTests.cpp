// SPDX-License-Identifier: MIT
#include "CKvDrawingBuilder.h"
#include "OdDbDatabaseReactor.h"
#include "OdDbLayerTable.h"
#include "OdDbLayerTableRecord.h"
#include "OdDbViewportTableRecord.h"

#include <gtest/gtest.h>

#include <memory>

namespace
{

class CKvCountingReactor : public OdDbDatabaseReactor
{
public:
    explicit CKvCountingReactor(int &count)
        : m_count(count)
    {
    }
    void objectModified(const OdDbDatabase *, const OdDbObject *) override { ++m_count; }

private:
    int &m_count;
};

/// Ends another reactor when it hears of a change.
class CKvEndingReactor : public OdDbDatabaseReactor
{
public:
    explicit CKvEndingReactor(std::unique_ptr<OdDbDatabaseReactor> &other)
        : m_other(other)
    {
    }
    void objectModified(const OdDbDatabase *, const OdDbObject *) override { m_other.reset(); }

private:
    std::unique_ptr<OdDbDatabaseReactor> &m_other;
};

void changeLayer(const OdDbDatabasePtr &drawing)
{
    const OdDbLayerTablePtr layers(drawing->getLayerTableId().openObject());
    const OdDbLayerTableRecordPtr layer(
        layers->getAt(OdString("WALLS")).openObject(OdDb::kForWrite));
    layer->setColor(OdCmColor::byIndex(6));
}

OdDbDatabasePtr drawingWithWalls()
{
    CKvDrawingBuilder builder;
    builder.layer("WALLS").color(1);
    return builder.open();
}

} // namespace

TEST(Reactors, OneThatGoesLeavesTheDrawingsItWasAttachedTo)
{
    const OdDbDatabasePtr first = drawingWithWalls();
    const OdDbDatabasePtr second = drawingWithWalls();
    int count = 0;
    auto reactor = std::make_unique<CKvCountingReactor>(count);
    first->addReactor(reactor.get());
    second->addReactor(reactor.get());

    changeLayer(first);
    reactor.reset();
    changeLayer(first);
    changeLayer(second);

    EXPECT_EQ(count, 1);
}

TEST(Reactors, OneThatAnotherEndsDoesNotHearTheSameEvent)
{
    const OdDbDatabasePtr drawing = drawingWithWalls();
    int count = 0;
    std::unique_ptr<OdDbDatabaseReactor> counting = std::make_unique<CKvCountingReactor>(count);
    CKvEndingReactor ending(counting);
    drawing->addReactor(&ending);
    drawing->addReactor(counting.get());

    changeLayer(drawing);

    EXPECT_EQ(count, 0);
}

TEST(Reactors, OneThatOutlivesADrawingStaysWithTheOthers)
{
    OdDbDatabasePtr first = drawingWithWalls();
    const OdDbDatabasePtr second = drawingWithWalls();
    int count = 0;
    CKvCountingReactor reactor(count);
    first->addReactor(&reactor);
    second->addReactor(&reactor);

    first.release();
    changeLayer(second);

    EXPECT_EQ(count, 1);
}

TEST(Reactors, AddedTwiceItHearsOnceAndOneRemovalEndsIt)
{
    const OdDbDatabasePtr drawing = drawingWithWalls();
    int count = 0;
    CKvCountingReactor reactor(count);
    drawing->addReactor(&reactor);
    drawing->addReactor(&reactor);

    changeLayer(drawing);
    drawing->removeReactor(&reactor);
    changeLayer(drawing);

    EXPECT_EQ(count, 1);
}

TEST(Reactors, ARecordOfTheTableOfViewportsIsToldAsSuch)
{
    CKvDrawingBuilder builder;
    builder.tableRecord("VPORT", "*ACTIVE").handle("AB");
    const OdDbDatabasePtr drawing = builder.open();

    const OdDbObjectPtr viewport =
        drawing->getOdDbObjectId(OdDbHandle(0xab)).openObject(OdDb::kForRead);

    ASSERT_TRUE(viewport);
    EXPECT_TRUE(viewport->isKindOf(OdDbViewportTableRecord::desc()));
}
