// SPDX-License-Identifier: MIT
#include "CKvDxfComposer.h"

#include "dxfSubclasses.h"

void CKvDxfComposer::composeTables()
{
    section(QStringLiteral("TABLES"));
    for (const char *type : { "VPORT", "VIEW", "UCS" }) {
        const std::vector<const CKvObjectContent *> records = otherRecords(QLatin1String(type));
        if (!records.empty()) {
            composeTable(QLatin1String(type), records);
        }
    }
    composeTable(QStringLiteral("LTYPE"), m_drawing.m_lineStyles);
    composeTable(QStringLiteral("LAYER"), m_drawing.m_layers);
    composeTable(QStringLiteral("STYLE"), m_drawing.m_textStyles);
    composeApplications();
    composeTable(QStringLiteral("DIMSTYLE"), m_drawing.m_dimStyles);
    if (hasOwners()) {
        std::vector<const CKvObjectContent *> blocks { &m_drawing.m_modelSpace.content(),
                                                       &m_drawing.m_paperSpace.content() };
        for (const CKvBlockBuilder &block : m_drawing.m_blocks) {
            blocks.push_back(&block.content());
        }
        composeTable(QStringLiteral("BLOCK_RECORD"), blocks);
    }
    endSection();
}

std::vector<const CKvObjectContent *> CKvDxfComposer::otherRecords(const QString &type) const
{
    std::vector<const CKvObjectContent *> records;
    for (const CKvTableRecordBuilder &record : m_drawing.m_otherRecords) {
        if (record.content().type == type) {
            records.push_back(&record.content());
        }
    }
    return records;
}

void CKvDxfComposer::composeApplications()
{
    std::set<QString> names { QStringLiteral("ACAD") };
    const auto collect = [&names](const auto &records) {
        for (const auto &record : records) {
            for (const CKvDxfTag &tag : record.content().extendedData) {
                if (tag.code == 1001) {
                    names.insert(tag.value);
                }
            }
        }
    };
    collect(m_drawing.m_layers);
    collect(m_drawing.m_lineStyles);
    collect(m_drawing.m_textStyles);
    collect(m_drawing.m_dimStyles);
    collect(m_drawing.m_blocks);
    for (const CKvBlockBuilder &block : m_drawing.m_blocks) {
        collect(block.entities());
    }
    collect(m_drawing.m_modelSpace.entities());
    collect(m_drawing.m_paperSpace.entities());

    std::vector<const CKvObjectContent *> records = otherRecords(QStringLiteral("APPID"));
    for (const CKvObjectContent *record : records) {
        names.erase(record->name);
    }
    std::vector<CKvTableRecordBuilder> made;
    made.reserve(names.size());
    for (const QString &name : names) {
        made.emplace_back(QStringLiteral("APPID"), name);
        records.push_back(&made.back().content());
    }
    composeTable(QStringLiteral("APPID"), records);
}

template <class Records>
void CKvDxfComposer::composeTable(const QString &type, const Records &records)
{
    std::vector<const CKvObjectContent *> listed;
    for (const auto &record : records) {
        listed.push_back(&record.content());
    }
    composeTable(type, listed);
}

void CKvDxfComposer::composeTable(const QString &type,
                                  const std::vector<const CKvObjectContent *> &records)
{
    const QString handle = takeHandle(QString());
    put(0, "TABLE");
    put(2, type);
    if (hasOwners()) {
        put(5, handle);
        put(330, "0");
        putSubclass(QStringLiteral("AcDbSymbolTable"));
    }
    put(70, int(records.size()));
    if (hasOwners() && type == QLatin1String("DIMSTYLE")) {
        putSubclass(QStringLiteral("AcDbDimStyleTable"));
    }
    for (const CKvObjectContent *record : records) {
        composeRecord(*record, handle);
    }
    put(0, "ENDTAB");
}

void CKvDxfComposer::composeRecord(const CKvObjectContent &record, const QString &tableHandle)
{
    const QString handle = takeHandle(record.handle);
    // Of two records of one name the first is meant.
    m_recordHandles.insert({ { record.type, record.name }, handle });
    putHead(record, handle, tableHandle);
    putSubclass(QStringLiteral("AcDbSymbolTableRecord"));
    const CKvSubclass *subclass = subclassOf(record.type);
    if (subclass) {
        putSubclass(QLatin1String(subclass->first));
    }
    put(2, record.name);
    put(record.tags);
    put(record.extendedData);
}
