// SPDX-License-Identifier: MIT
#include "CKvRealDrawingTest.h"

#include "CKvDrawingFile.h"
#include "CKvDxfError.h"
#include "OdDbBlockTable.h"
#include "OdDbBlockTableRecord.h"
#include "OdDbObjectIterator.h"
#include "realDrawings.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>

QMap<QByteArray, int> missingLines(const QByteArray &from, const QByteArray &in)
{
    QMap<QByteArray, int> counts;
    for (const QByteArray &line : from.split('\n')) {
        ++counts[line.trimmed()];
    }
    for (const QByteArray &line : in.split('\n')) {
        --counts[line.trimmed()];
    }
    for (auto count = counts.begin(); count != counts.end();) {
        count = count.value() > 0 ? std::next(count) : counts.erase(count);
    }
    return counts;
}

QStringList drawingsFrom(const char *version,
                         const std::function<bool(const OdDbDatabasePtr &)> &isWanted)
{
    QStringList paths;
    for (const QString &path : realDrawings()) {
        try {
            const OdDbDatabasePtr drawing = CKvDrawingFile::open(path);
            const bool isNewEnough = QLatin1String(version) <= QLatin1String("AC1009")
                || CKvDrawingFile::version(*drawing) >= QLatin1String(version);
            if (isNewEnough && isWanted(drawing)) {
                paths.append(path);
            }
        } catch (const CKvDxfError &) {
            continue;
        }
    }
    return paths;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

QByteArray withoutTable(const QByteArray &file, const QByteArray &table)
{
    if (file.contains('\0')) {
        return QByteArray();
    }
    const QList<QByteArray> lines = file.split('\n');
    QList<QByteArray> rest;
    bool isInTable = false;
    for (int i = 0; i < lines.size(); ++i) {
        const QByteArray line = lines[i].trimmed();
        if (line == "TABLE" && i + 2 < lines.size() && lines[i + 2].trimmed() == table) {
            isInTable = true;
            // The group code of the table's head.
            rest.removeLast();
        }
        const bool isSeed = i >= 2 && lines[i - 2].trimmed() == "$HANDSEED";
        if (!isInTable && !isSeed) {
            rest.append(lines[i]);
        }
        isInTable = isInTable && line != "ENDTAB";
    }
    return rest.join('\n');
}

QMap<QString, int> entitiesBy(const OdDbDatabasePtr &drawing,
                              const std::function<QString(const OdDbEntityPtr &)> &name)
{
    QMap<QString, int> counts;
    const OdDbBlockTablePtr blocks(drawing->getBlockTableId().openObject());
    for (OdDbSymbolTableIteratorPtr walk = blocks->newIterator(); !walk->done(); walk->step()) {
        const OdDbBlockTableRecordPtr block(walk->getRecord());
        if (block->isFromExternalReference()) {
            continue;
        }
        for (OdDbObjectIteratorPtr entities = block->newIterator(); !entities->done();
             entities->step()) {
            const QString counted = name(entities->entity());
            if (!counted.isEmpty()) {
                ++counts[counted.toLower()];
            }
        }
    }
    return counts;
}

QString CKvRealDrawings::fileIn(const QString &drawing, const QString &what)
{
    const QString name =
        QString::number(++m_files) + QLatin1Char('-') + QFileInfo(drawing).completeBaseName();
    return m_folder.filePath(QString(name + QLatin1Char('-') + what + QStringLiteral(".dxf")));
}

void CKvRealDrawings::keepForAudit(const QString &before, const OdDbDatabasePtr &drawing)
{
    const QString after = fileIn(before, QStringLiteral("after"));
    CKvDrawingFile::save(*drawing, after);
    m_pairs.append(QString(before + QLatin1Char('\t') + after));
}

void CKvRealDrawings::expectNoNewErrors()
{
    QProcess python;
    python.start(QStringLiteral(KV_PYTHON), { QStringLiteral(KV_COMPARE_AUDITS) });
    if (!python.waitForStarted()) {
        GTEST_SKIP() << "python3 is missing; the audits were not compared";
    }
    python.write(m_pairs.join(QLatin1Char('\n')).toUtf8());
    python.closeWriteChannel();
    ASSERT_TRUE(python.waitForFinished(280000));
    const QByteArray complaints = python.readAllStandardError();
    if (complaints.contains("No module named 'ezdxf'")) {
        GTEST_SKIP() << "python3-ezdxf is missing; the audits were not compared";
    }
    const QStringList lines =
        QString::fromUtf8(python.readAllStandardOutput()).trimmed().split(QLatin1Char('\n'));
    EXPECT_EQ(lines.size(), 1) << lines.join(QLatin1Char('\n')).toStdString()
                               << complaints.toStdString();
    EXPECT_FALSE(lines.last().startsWith(QLatin1String("0 compared")))
        << lines.last().toStdString();
    std::printf("%s\n", qPrintable(lines.last()));
}

OdDbDatabasePtr
CKvRealDrawings::repairedBy(CKvStdsPlugins &plugin,
                            const QString &path,
                            const QString &standards,
                            const std::function<int(const CKvStdsViolation &)> &choose)
{
    OdDbDatabasePtr drawing = CKvDrawingFile::open(path);
    m_repairs = 0;
    for (const CKvStdsViolation &violation : audit(plugin, drawing, { standards })) {
        const int choice = choose(violation);
        if (choice >= 0 && !violation.error->objectId().isErased()) {
            CKvString message;
            plugin.applyFix(violation.error, violation.fixes[unsigned(choice)], message);
            ++m_repairs;
        }
    }
    return drawing;
}
