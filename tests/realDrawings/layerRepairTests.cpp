// SPDX-License-Identifier: MIT
#include "CKvDrawingFile.h"
#include "CKvLayerPluginImpl.h"
#include "CKvRealDrawingTest.h"
#include "OdDbLayerTable.h"
#include "OdDbLayerTableRecord.h"
#include "OdDbLinetypeTable.h"
#include "realDrawings.h"

#include <QSet>

#include <algorithm>

namespace
{

OdDbLayerTablePtr layersOf(const OdDbDatabasePtr &drawing)
{
    return OdDbLayerTablePtr(drawing->getLayerTableId().openObject());
}

/// Drawings of R2000 and newer with layers.
QStringList newerDrawings()
{
    return drawingsFrom("AC1015", [](const OdDbDatabasePtr &drawing) {
        return !layersOf(drawing)->newIterator()->done();
    });
}

/// The drawing itself as a standard, after a change.
void writeStandards(const QString &drawing,
                    const QString &path,
                    const std::function<void(OdDbLayerTableRecordPtr)> &change)
{
    const OdDbDatabasePtr standards = CKvDrawingFile::open(drawing);
    const OdDbLayerTablePtr layers = layersOf(standards);
    for (OdDbSymbolTableIteratorPtr walk = layers->newIterator(); !walk->done(); walk->step()) {
        const OdDbLayerTableRecordPtr layer(walk->getRecord(OdDb::kForWrite));
        if (!layer->isDependent()) {
            change(layer);
        }
    }
    CKvDrawingFile::save(*standards, path);
}

/// How many entities of all blocks that are not external references stand on each layer.
QMap<QString, int> entitiesByLayer(const OdDbDatabasePtr &drawing)
{
    return entitiesBy(drawing,
                      [](const OdDbEntityPtr &entity) { return entity->layer().toQString(); });
}

class CKvLayerRepairOnRealDrawings : public CKvRealDrawings
{
protected:
    OdDbDatabasePtr repaired(const QString &path,
                             const QString &standards,
                             const std::function<int(const CKvStdsViolation &)> &choose)
    {
        return repairedBy(plugin, path, standards, choose);
    }

    CKvLayerPluginImpl plugin;
};

} // namespace

TEST_F(CKvLayerRepairOnRealDrawings, InPlaceOnlyTheValuesOfTheLayersChange)
{
    for (const QString &path : newerDrawings()) {
        SCOPED_TRACE(path.toStdString());
        const QString standards = fileIn(path, QStringLiteral("standards"));
        writeStandards(path, standards, [](const OdDbLayerTableRecordPtr &layer) {
            layer->setColor(OdCmColor::byIndex(layer->color().colorIndex() == 3 ? 5 : 3));
            layer->setLineWeight(OdDb::LineWeight(70));
        });

        const OdDbDatabasePtr drawing = repaired(
            path, standards, [](const CKvStdsViolation &found) { return found.recommendedFix; });

        EXPECT_TRUE(audit(plugin, drawing, { standards }).empty());
        const QByteArray before = contentOf(path);
        keepForAudit(path, drawing);
        if (before.contains('\0')) {
            // A binary drawing has no lines to compare.
            continue;
        }
        const QByteArray after = CKvDrawingFile::toBytes(*drawing);
        // A colour and a lineweight a repair, and where there was none their group codes.
        const QSet<QByteArray> allowed { "3", "5", "-3", "-5", "70", "370" };
        for (const QByteArray &line : missingLines(after, before).keys()) {
            EXPECT_TRUE(allowed.contains(line)) << line.toStdString();
        }
        EXPECT_LE(sum(missingLines(before, after)), 4 * m_repairs);
    }
    expectNoNewErrors();
}

TEST_F(CKvLayerRepairOnRealDrawings, ARenameKeepsTheIdTheEntitiesAndTheCurrentLayer)
{
    for (const QString &path : newerDrawings()) {
        SCOPED_TRACE(path.toStdString());
        const QString standards = fileIn(path, QStringLiteral("standards"));
        int number = 0;
        writeStandards(path, standards, [&](const OdDbLayerTableRecordPtr &layer) {
            const QString name = layer->getName().toQString();
            if (name != QLatin1String("0")
                && name.compare(QLatin1String("Defpoints"), Qt::CaseInsensitive) != 0) {
                layer->setName(OdString(QStringLiteral("NEW-%1").arg(++number)));
            }
        });
        const OdDbDatabasePtr untouched = CKvDrawingFile::open(path);
        QList<int> countsBefore = entitiesByLayer(untouched).values();
        QSet<QString> taken;

        const OdDbDatabasePtr drawing =
            repaired(path, standards, [&](const CKvStdsViolation &found) {
                if (found.error->objectName().toQString() == QLatin1String("0")) {
                    return -1;
                }
                for (unsigned i = 0; i < found.fixes.size(); ++i) {
                    const QString name = found.fixes[i]->name().toQString();
                    if (name.startsWith(QLatin1String("NEW-")) && !taken.contains(name)) {
                        taken.insert(name);
                        return int(i);
                    }
                }
                return -1;
            });

        const OdDbDatabasePtr again = CKvDrawingFile::fromBytes(CKvDrawingFile::toBytes(*drawing));
        QList<int> countsAfter = entitiesByLayer(again).values();
        std::sort(countsBefore.begin(), countsBefore.end());
        std::sort(countsAfter.begin(), countsAfter.end());
        EXPECT_EQ(countsAfter, countsBefore);
        EXPECT_EQ(again->getCLAYER().handle(), untouched->getCLAYER().handle());
        for (OdDbSymbolTableIteratorPtr walk = layersOf(untouched)->newIterator(); !walk->done();
             walk->step()) {
            const OdDbHandle handle = walk->getRecordId().handle();
            EXPECT_TRUE(handle.isNull() || !again->getOdDbObjectId(handle).isNull());
        }
        keepForAudit(path, drawing);
    }
    expectNoNewErrors();
}

TEST_F(CKvLayerRepairOnRealDrawings,
       AMergeMovesTheEntitiesSwitchesTheCurrentLayerAndRemovesTheOldOnes)
{
    int merged = 0;
    for (const QString &path : newerDrawings()) {
        SCOPED_TRACE(path.toStdString());
        const QString standards = fileIn(path, QStringLiteral("standards"));
        writeStandards(path, standards, [](const OdDbLayerTableRecordPtr &layer) {
            if (layer->getName().toQString() != QLatin1String("0")) {
                layer->erase();
            }
        });
        const OdDbDatabasePtr untouched = CKvDrawingFile::open(path);
        const int total = sum(entitiesByLayer(untouched));
        QStringList gone;

        const OdDbDatabasePtr drawing =
            repaired(path, standards, [&](const CKvStdsViolation &found) {
                const bool isOther = !found.fixes.isEmpty() && found.recommendedFix < 0
                    && found.fixes[0]->name().toQString() == QLatin1String("0");
                if (isOther) {
                    gone.append(found.error->objectName().toQString());
                }
                return isOther ? 0 : -1;
            });

        merged += gone.size();
        const OdDbDatabasePtr again = CKvDrawingFile::fromBytes(CKvDrawingFile::toBytes(*drawing));
        const QMap<QString, int> counts = entitiesByLayer(again);
        EXPECT_EQ(sum(counts), total);
        for (const QString &name : gone) {
            EXPECT_EQ(counts.value(name.toLower()), 0) << name.toStdString();
            const OdDbSymbolTableRecordPtr current(again->getCLAYER().openObject());
            EXPECT_NE(current->getName().toQString().toLower(), name.toLower());
        }
        keepForAudit(path, drawing);
    }
    EXPECT_GT(merged, 10);
    expectNoNewErrors();
}

TEST(RealDrawings, AreThere)
{
    EXPECT_FALSE(realDrawings().isEmpty());
    if (!hasOtherPeoplesDrawings()) {
        GTEST_SKIP()
            << "the folder with other people's drawings is missing; only samples/ were tried";
    }
}
