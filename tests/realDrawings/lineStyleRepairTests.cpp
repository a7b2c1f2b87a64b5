// SPDX-License-Identifier: MIT
#include "CKvDrawingBuilder.h"
#include "CKvDrawingFile.h"
#include "CKvLineStylePluginImpl.h"
#include "CKvRealDrawingTest.h"
#include "OdDbLinetypeTable.h"
#include "OdDbLinetypeTableRecord.h"
#include "drawingText.h"
#include "realDrawings.h"

namespace
{

OdDbLinetypeTablePtr lineStylesOf(const OdDbDatabasePtr &drawing)
{
    return OdDbLinetypeTablePtr(drawing->getLinetypeTableId().openObject());
}

bool isReserved(const QString &name)
{
    return name.compare(QLatin1String("ByLayer"), Qt::CaseInsensitive) == 0
        || name.compare(QLatin1String("ByBlock"), Qt::CaseInsensitive) == 0
        || name.compare(QLatin1String("Continuous"), Qt::CaseInsensitive) == 0;
}

/// The line styles that a check visits.
QStringList ownNames(const OdDbDatabasePtr &drawing)
{
    QStringList names;
    for (OdDbSymbolTableIteratorPtr walk = lineStylesOf(drawing)->newIterator(); !walk->done();
         walk->step()) {
        const OdDbSymbolTableRecordPtr record = walk->getRecord();
        const QString name = record->getName().toQString();
        if (!record->isDependent() && !isReserved(name)) {
            names.append(name);
        }
    }
    return names;
}

/// How many entities of all blocks that are not external references have each line style.
QMap<QString, int> entitiesByLineStyle(const OdDbDatabasePtr &drawing)
{
    return entitiesBy(drawing, [](const OdDbEntityPtr &entity) {
        return QString::fromStdString(nameOf(entity->linetypeId()));
    });
}

QStringList drawingsWithLineStyles()
{
    return drawingsFrom(
        "AC1009", [](const OdDbDatabasePtr &drawing) { return !ownNames(drawing).isEmpty(); });
}

class CKvLineStyleRepairOnRealDrawings : public CKvRealDrawings
{
protected:
    CKvLineStylePluginImpl plugin;
};

} // namespace

TEST_F(CKvLineStyleRepairOnRealDrawings, InPlaceOnlyTheLineStylesThemselvesChange)
{
    for (const QString &path : drawingsWithLineStyles()) {
        SCOPED_TRACE(path.toStdString());
        const QString standards = fileIn(path, QStringLiteral("standards"));
        CKvDrawingBuilder office("AC1032");
        for (const QString &name : ownNames(CKvDrawingFile::open(path))) {
            office.lineStyle(name).dashes({ 7.25, -1.5, 0, -1.5 });
        }
        office.saveTo(standards);

        const OdDbDatabasePtr drawing =
            repairedBy(plugin, path, standards, [](const CKvStdsViolation &found) {
                return found.recommendedFix;
            });

        EXPECT_GT(m_repairs, 0);
        const OdDbDatabasePtr again = CKvDrawingFile::fromBytes(CKvDrawingFile::toBytes(*drawing));
        // A drawing can have a second Continuous, which is judged and has no standard here.
        for (const CKvStdsViolation &left : audit(plugin, again, { standards })) {
            EXPECT_TRUE(isReserved(left.error->objectName().toQString()))
                << violationsText({ left });
        }
        const OdDbDatabasePtr untouched = CKvDrawingFile::open(path);
        for (OdDbSymbolTableIteratorPtr walk = lineStylesOf(untouched)->newIterator();
             !walk->done();
             walk->step()) {
            const OdDbHandle handle = walk->getRecordId().handle();
            EXPECT_TRUE(handle.isNull() || !again->getOdDbObjectId(handle).isNull());
        }
        EXPECT_EQ(withoutTable(CKvDrawingFile::toBytes(*drawing), "LTYPE").toStdString(),
                  withoutTable(contentOf(path), "LTYPE").toStdString());
        keepForAudit(path, drawing);
    }
    expectNoNewErrors();
}

TEST_F(CKvLineStyleRepairOnRealDrawings, AMergeMovesTheUsersAndBringsTextsAndShapesAlong)
{
    int merged = 0;
    int gone = 0;
    const QString standards = m_folder.filePath(QStringLiteral("standards.dxf"));
    CKvDrawingBuilder office("AC1032");
    office.textStyle("KV-PIPES").font("isocp.shx");
    office.textStyle("").flags(1).font("kvshapes.shx").handle("ABC");
    office.lineStyle("KV-GAS")
        .dashes({})
        .patternLength(0.95)
        .without(73)
        .group(73, 2)
        .group(49, 0.5)
        .group(74, 2)
        .group(75, 0)
        .handleOf(340, "STYLE", "KV-PIPES")
        .group(46, 0.25)
        .group(50, 0.0)
        .group(44, -0.25)
        .group(45, -0.125)
        .group(9, "GAS")
        .group(49, -0.45)
        .group(74, 4)
        .group(75, 130)
        .group(340, "ABC")
        .group(46, 0.25)
        .group(50, 0.0)
        .group(44, 0.0)
        .group(45, 0.0);
    office.saveTo(standards);
    for (const QString &path : drawingsWithLineStyles()) {
        SCOPED_TRACE(path.toStdString());
        const OdDbDatabasePtr untouched = CKvDrawingFile::open(path);
        const QMap<QString, int> before = entitiesByLineStyle(untouched);

        const OdDbDatabasePtr drawing =
            repairedBy(plugin, path, standards, [](const CKvStdsViolation &found) {
                return found.fixes.isEmpty() ? -1 : 0;
            });

        merged += m_repairs;
        const OdDbDatabasePtr again = CKvDrawingFile::fromBytes(CKvDrawingFile::toBytes(*drawing));
        const QMap<QString, int> after = entitiesByLineStyle(again);
        int moved = 0;
        for (const QString &name : ownNames(untouched)) {
            EXPECT_EQ(after.value(name.toLower()), 0) << name.toStdString();
            moved += before.value(name.toLower());
            gone += lineStylesOf(again)->has(OdString(name)) ? 0 : 1;
            EXPECT_NE(nameOf(again->getCELTYPE()), name.toStdString());
        }
        EXPECT_EQ(sum(after), sum(before));
        EXPECT_EQ(after.value(QStringLiteral("kv-gas")), moved);
        const OdDbLinetypeTableRecordPtr gas(
            recordId(again->getLinetypeTableId(), "KV-GAS").openObject());
        ASSERT_FALSE(gas.isNull());
        EXPECT_EQ(gas->patternLength(), 0.95);
        if (CKvDrawingFile::version(*again) >= QLatin1String("AC1015")) {
            EXPECT_EQ(nameOf(gas->shapeStyleAt(0)), "KV-PIPES");
            EXPECT_FALSE(gas->shapeStyleAt(1).isNull());
        }
        keepForAudit(path, drawing);
    }
    EXPECT_GT(merged, hasOtherPeoplesDrawings() ? 50 : 10);
    EXPECT_GT(gone, hasOtherPeoplesDrawings() ? 50 : 10);
    expectNoNewErrors();
}
