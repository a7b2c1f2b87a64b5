// SPDX-License-Identifier: MIT
#include "CKvDrawingBuilder.h"
#include "CKvDrawingFile.h"
#include "CKvRealDrawingTest.h"
#include "CKvTextStylePluginImpl.h"
#include "OdDbArcAlignedText.h"
#include "OdDbMText.h"
#include "OdDbTable.h"
#include "OdDbText.h"
#include "OdDbTextStyleTable.h"
#include "OdDbTextStyleTableRecord.h"
#include "RText.h"
#include "drawingText.h"
#include "realDrawings.h"

namespace
{

OdDbTextStyleTablePtr stylesOf(const OdDbDatabasePtr &drawing)
{
    return OdDbTextStyleTablePtr(drawing->getTextStyleTableId().openObject());
}

/// The text styles that a check visits.
QStringList ownNames(const OdDbDatabasePtr &drawing)
{
    QStringList names;
    for (OdDbSymbolTableIteratorPtr walk = stylesOf(drawing)->newIterator(); !walk->done();
         walk->step()) {
        const OdDbTextStyleTableRecordPtr record(walk->getRecord());
        if (!record->isDependent() && !record->isShapeFile() && !record->getName().isEmpty()) {
            names.append(record->getName().toQString());
        }
    }
    return names;
}

/// Empty for what shows no text. Of a table the style of its title.
QString textStyleOf(const OdDbEntityPtr &entity)
{
    OdDbObjectId id;
    if (const OdDbTextPtr line = OdDbText::cast(entity.get())) {
        id = line->textStyle();
    } else if (const OdDbMTextPtr lines = OdDbMText::cast(entity.get())) {
        id = lines->textStyle();
    } else if (const OdDbArcAlignedTextPtr arc = OdDbArcAlignedText::cast(entity.get())) {
        id = arc->textStyle();
    } else if (const RTextPtr remote = RText::cast(entity.get())) {
        id = remote->textStyleId();
    } else if (const OdDbTablePtr table = OdDbTable::cast(entity.get())) {
        id = table->textStyle(OdDb::kTitleRow);
    }
    return QString::fromStdString(nameOf(id));
}

/// How many texts of all blocks that are not external references have each text style.
QMap<QString, int> textsByStyle(const OdDbDatabasePtr &drawing)
{
    return entitiesBy(drawing, textStyleOf);
}

QStringList drawingsWithTextStyles()
{
    return drawingsFrom(
        "AC1009", [](const OdDbDatabasePtr &drawing) { return !ownNames(drawing).isEmpty(); });
}

class CKvTextStyleRepairOnRealDrawings : public CKvRealDrawings
{
protected:
    CKvTextStylePluginImpl plugin;
};

} // namespace

TEST_F(CKvTextStyleRepairOnRealDrawings, InPlaceOnlyTheStylesThemselvesChange)
{
    for (const QString &path : drawingsWithTextStyles()) {
        SCOPED_TRACE(path.toStdString());
        const QString standards = fileIn(path, QStringLiteral("standards"));
        CKvDrawingBuilder office("AC1032");
        for (const QString &name : ownNames(CKvDrawingFile::open(path))) {
            office.textStyle(name)
                .font("arialbd.ttf")
                .height(7.25)
                .width(0.5)
                .obliqueDegrees(15)
                .generation(4)
                .typeface("Arial", 0x02000022);
        }
        office.saveTo(standards);

        const OdDbDatabasePtr drawing =
            repairedBy(plugin, path, standards, [](const CKvStdsViolation &found) {
                return found.recommendedFix;
            });

        EXPECT_GT(m_repairs, 0);
        const OdDbDatabasePtr again = CKvDrawingFile::fromBytes(CKvDrawingFile::toBytes(*drawing));
        EXPECT_EQ(violationsText(audit(plugin, again, { standards })), "");
        // The application of the font's data may be new.
        const QByteArray before = withoutTable(contentOf(path), "STYLE");
        const QByteArray after = withoutTable(CKvDrawingFile::toBytes(*drawing), "STYLE");
        EXPECT_EQ(withoutTable(after, "APPID").toStdString(),
                  withoutTable(before, "APPID").toStdString());
        keepForAudit(path, drawing);
    }
    expectNoNewErrors();
}

TEST_F(CKvTextStyleRepairOnRealDrawings, AMergeMovesTheTexts)
{
    int merged = 0;
    int texts = 0;
    const QString standards = m_folder.filePath(QStringLiteral("standards.dxf"));
    CKvDrawingBuilder office("AC1032");
    office.textStyle("KV-NOTES").font("isocp.shx").height(2.5);
    office.saveTo(standards);
    for (const QString &path : drawingsWithTextStyles()) {
        SCOPED_TRACE(path.toStdString());
        const OdDbDatabasePtr untouched = CKvDrawingFile::open(path);
        const QMap<QString, int> before = textsByStyle(untouched);

        const OdDbDatabasePtr drawing =
            repairedBy(plugin, path, standards, [](const CKvStdsViolation &found) {
                return found.fixes.isEmpty() ? -1 : 0;
            });

        merged += m_repairs;
        const OdDbDatabasePtr again = CKvDrawingFile::fromBytes(CKvDrawingFile::toBytes(*drawing));
        const QMap<QString, int> after = textsByStyle(again);
        int moved = 0;
        for (const QString &name : ownNames(untouched)) {
            EXPECT_EQ(after.value(name.toLower()), 0) << name.toStdString();
            moved += before.value(name.toLower());
            // A drawing without a header has no place for the current style.
            EXPECT_TRUE(!contentOf(path).contains("HEADER")
                        || nameOf(again->getTEXTSTYLE()) != name.toStdString());
        }
        EXPECT_EQ(after.value(QStringLiteral("kv-notes")), moved);
        texts += moved;
        keepForAudit(path, drawing);
    }
    EXPECT_GT(merged, hasOtherPeoplesDrawings() ? 50 : 10);
    EXPECT_GT(texts, hasOtherPeoplesDrawings() ? 1000 : 50);
    expectNoNewErrors();
}
