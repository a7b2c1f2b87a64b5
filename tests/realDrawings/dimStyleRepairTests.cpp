// SPDX-License-Identifier: MIT
#include "CKvDimStylePluginImpl.h"
#include "CKvDrawingBuilder.h"
#include "CKvDrawingFile.h"
#include "CKvRealDrawingTest.h"
#include "OdDbBlockTableRecord.h"
#include "OdDbDimStyleTable.h"
#include "OdDbDimension.h"
#include "OdDbLeader.h"
#include "OdDbObjectIterator.h"
#include "compareDimStyles.h"
#include "drawingText.h"
#include "realDrawings.h"

#include <QRegularExpression>

#include <algorithm>

namespace
{

OdDbDimStyleTablePtr stylesOf(const OdDbDatabasePtr &drawing)
{
    return OdDbDimStyleTablePtr(drawing->getDimStyleTableId().openObject());
}

/// The dimension styles that a check visits: none of external references, none that belongs to one
/// kind of dimension.
QStringList ownNames(const OdDbDatabasePtr &drawing)
{
    QStringList names;
    for (OdDbSymbolTableIteratorPtr walk = stylesOf(drawing)->newIterator(); !walk->done();
         walk->step()) {
        const OdDbSymbolTableRecordPtr record = walk->getRecord();
        const QString name = record->getName().toQString();
        const bool isOfOneKind = name.contains(QRegularExpression(QStringLiteral("\\$[02-467]$")));
        if (!record->isDependent() && !isOfOneKind && !names.contains(name, Qt::CaseInsensitive)) {
            names.append(name);
        }
    }
    return names;
}

/// How many dimensions and leaders of all blocks that are not external references have each style.
QMap<QString, int> usersByStyle(const OdDbDatabasePtr &drawing)
{
    return entitiesBy(drawing, [](const OdDbEntityPtr &entity) {
        const OdDbDimensionPtr dimension = OdDbDimension::cast(entity.get());
        const OdDbLeaderPtr leader = OdDbLeader::cast(entity.get());
        OdDbObjectId style;
        if (dimension) {
            style = dimension->dimensionStyle();
        } else if (leader) {
            style = leader->dimensionStyle();
        }
        return QString::fromStdString(nameOf(style));
    });
}

/// What differs from the standard of the same name, one style a line.
std::string differences(const OdDbDatabasePtr &drawing, const OdDbDatabasePtr &standards)
{
    std::string text;
    for (const QString &name : ownNames(drawing)) {
        const OdDbDimStyleTableRecordPtr style(
            stylesOf(drawing)->getAt(OdString(name), OdDb::kForRead));
        const OdDbDimStyleTableRecordPtr standard(
            stylesOf(standards)->getAt(OdString(name), OdDb::kForRead));
        for (const DimStylePropertyRow &row : compareDimStyles(style, standard, false)) {
            text += name.toStdString() + ' ' + row.key.toStdString() + ": "
                + row.firstValue.toStdString() + " -> " + row.secondValue.toStdString() + '\n';
        }
    }
    return text;
}

/// A file without its header, whose settings follow each repair.
QByteArray withoutHeader(const QByteArray &file)
{
    const int begin = file.indexOf("HEADER");
    const int end = file.indexOf("ENDSEC", begin);
    return begin < 0 || end < 0 ? file : file.left(begin) + file.mid(end);
}

QStringList drawingsWithStyles(const char *version)
{
    return drawingsFrom(
        version, [](const OdDbDatabasePtr &drawing) { return !ownNames(drawing).isEmpty(); });
}

/// A style with arrows, a text style and a line style that no other drawing has.
void addStyle(CKvDrawingBuilder &office, const QString &name)
{
    office.dimStyle(name)
        .group(3, "<> mm")
        .group(41, 3.25)
        .group(140, 2.75)
        .group(176, 3)
        .handleOf(340, "STYLE", "KV-NOTES")
        .handleOf(341, "BLOCK_RECORD", "KV-TICK")
        .handleOf(342, "BLOCK_RECORD", "KV-TICK")
        .handleOf(343, "BLOCK_RECORD", "KV-DOT");
}

CKvDrawingBuilder officeWith(const QStringList &names)
{
    CKvDrawingBuilder office("AC1032");
    office.withReservedLineStyles();
    office.layer("0");
    office.textStyle("KV-NOTES").font("romans.shx");
    office.block("KV-TICK").line();
    office.block("KV-DOT").insert("KV-TICK");
    for (const QString &name : names) {
        addStyle(office, name);
    }
    return office;
}

int recommended(const CKvStdsViolation &found)
{
    return found.recommendedFix;
}

class CKvDimStyleRepairOnRealDrawings : public CKvRealDrawings
{
protected:
    CKvDimStylePluginImpl plugin;
};

} // namespace

TEST_F(CKvDimStyleRepairOnRealDrawings, ValuesChangeTheStylesAndTheHeaderAndNothingElse)
{
    for (const QString &path : drawingsWithStyles("AC1009")) {
        SCOPED_TRACE(path.toStdString());
        const QString standards = fileIn(path, QStringLiteral("standards"));
        const OdDbDatabasePtr office = CKvDrawingFile::open(path);
        for (OdDbSymbolTableIteratorPtr walk = stylesOf(office)->newIterator(); !walk->done();
             walk->step()) {
            const OdDbDimStyleTableRecordPtr style(walk->getRecord(OdDb::kForWrite));
            style->setDimasz(7.125);
            style->setDimtad(3);
            style->setDimpost(OdString("<> kv"));
        }
        CKvDrawingFile::save(*office, standards);

        const OdDbDatabasePtr drawing = repairedBy(plugin, path, standards, recommended);

        EXPECT_GT(m_repairs, 0);
        const QByteArray after = CKvDrawingFile::toBytes(*drawing);
        EXPECT_EQ(differences(CKvDrawingFile::fromBytes(after), office), "");
        const QByteArray before = contentOf(path);
        if (!before.contains('\0')) {
            EXPECT_EQ(withoutHeader(withoutTable(after, "DIMSTYLE")).toStdString(),
                      withoutHeader(withoutTable(before, "DIMSTYLE")).toStdString());
        }
        keepForAudit(path, drawing);
    }
    expectNoNewErrors();
}

TEST_F(CKvDimStyleRepairOnRealDrawings, ArrowsTextAndLineStylesComeAlong)
{
    int repaired = 0;
    for (const QString &path : drawingsWithStyles("AC1009")) {
        SCOPED_TRACE(path.toStdString());
        const QString standards = fileIn(path, QStringLiteral("standards"));
        const OdDbDatabasePtr untouched = CKvDrawingFile::open(path);
        officeWith(ownNames(untouched)).saveTo(standards);

        const OdDbDatabasePtr drawing = repairedBy(plugin, path, standards, recommended);

        repaired += m_repairs;
        const OdDbDatabasePtr again = CKvDrawingFile::fromBytes(CKvDrawingFile::toBytes(*drawing));
        const bool hasPlaces = CKvDrawingFile::version(*again) >= QLatin1String("AC1015");
        if (hasPlaces) {
            EXPECT_EQ(differences(again, CKvDrawingFile::open(standards)), "");
        }
        for (const QString &name : ownNames(again)) {
            const OdDbDimStyleTableRecordPtr style(
                stylesOf(again)->getAt(OdString(name), OdDb::kForRead));
            EXPECT_EQ(style->dimasz(), 3.25);
            EXPECT_EQ(nameOf(style->dimblk()), "KV-TICK");
            EXPECT_EQ(nameOf(style->dimblk1()), "KV-DOT");
        }
        for (const char *name : { "KV-TICK", "KV-DOT" }) {
            const OdDbBlockTableRecordPtr block(
                recordId(again->getBlockTableId(), name).openObject());
            ASSERT_FALSE(block.isNull()) << name;
            EXPECT_FALSE(block->newIterator()->done()) << name;
        }
        EXPECT_EQ(usersByStyle(again), usersByStyle(untouched));
        keepForAudit(path, drawing);
    }
    EXPECT_GT(repaired, hasOtherPeoplesDrawings() ? 50 : 10);
    expectNoNewErrors();
}

TEST_F(CKvDimStyleRepairOnRealDrawings, AMergeMovesTheUsersAndRemovesTheOldStyles)
{
    int merged = 0;
    int gone = 0;
    const QString standards = m_folder.filePath(QStringLiteral("standards.dxf"));
    officeWith({ QStringLiteral("KV-OFFICE") }).saveTo(standards);
    for (const QString &path : drawingsWithStyles("AC1009")) {
        SCOPED_TRACE(path.toStdString());
        const OdDbDatabasePtr untouched = CKvDrawingFile::open(path);
        const QMap<QString, int> before = usersByStyle(untouched);

        const OdDbDatabasePtr drawing =
            repairedBy(plugin, path, standards, [](const CKvStdsViolation &found) {
                return found.fixes.isEmpty() ? -1 : 0;
            });

        merged += m_repairs;
        const OdDbDatabasePtr again = CKvDrawingFile::fromBytes(CKvDrawingFile::toBytes(*drawing));
        const QMap<QString, int> after = usersByStyle(again);
        int moved = 0;
        for (const QString &name : ownNames(untouched)) {
            EXPECT_EQ(after.value(name.toLower()), 0) << name.toStdString();
            moved += before.value(name.toLower());
            gone += stylesOf(again)->has(OdString(name)) ? 0 : 1;
        }
        EXPECT_EQ(after.value(QStringLiteral("kv-office")), moved);
        EXPECT_EQ(sum(after), sum(before));
        EXPECT_TRUE(stylesOf(again)->has(OdString("KV-OFFICE")));
        keepForAudit(path, drawing);
    }
    EXPECT_GT(merged, hasOtherPeoplesDrawings() ? 50 : 10);
    EXPECT_GT(gone, hasOtherPeoplesDrawings() ? 50 : 10);
    expectNoNewErrors();
}
