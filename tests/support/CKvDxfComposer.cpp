// SPDX-License-Identifier: MIT
#include "CKvDxfComposer.h"

#include "dxfSubclasses.h"

#include <gtest/gtest.h>

CKvDxfComposer::CKvDxfComposer(const CKvDrawingBuilder &drawing)
    : m_drawing(drawing)
{
}

QByteArray CKvDxfComposer::compose()
{
    const auto collect = [this](const auto &records) {
        for (const auto &record : records) {
            collectHandles(record.content());
        }
    };
    collect(m_drawing.m_layers);
    collect(m_drawing.m_lineStyles);
    collect(m_drawing.m_textStyles);
    collect(m_drawing.m_dimStyles);
    collect(m_drawing.m_otherRecords);
    collect(m_drawing.m_blocks);
    for (const CKvBlockBuilder &block : m_drawing.m_blocks) {
        collect(block.entities());
    }
    collect(m_drawing.m_modelSpace.entities());
    collect(m_drawing.m_paperSpace.entities());
    collectHandles(m_drawing.m_namedObjects);

    composeTables();
    composeBlocks();
    composeEntities();
    if (hasOwners()) {
        composeObjects();
    }
    put(0, "EOF");
    const QByteArray body = encoded(m_tags);
    return composeHeader() + body;
}

void CKvDxfComposer::collectHandle(const QString &handle)
{
    if (!handle.isEmpty()) {
        m_chosenHandles.insert(handle.toUpper());
    }
}

void CKvDxfComposer::collectHandles(const CKvObjectContent &content)
{
    collectHandle(content.handle);
    if (content.extensionDictionary) {
        collectHandles(*content.extensionDictionary);
    }
}

void CKvDxfComposer::collectHandles(const CKvDictionaryBuilder &object)
{
    collectHandle(object.ownHandle());
    for (const CKvDictionaryBuilder &entry : object.entries()) {
        collectHandles(entry);
    }
}

QString CKvDxfComposer::takeHandle(const QString &wanted)
{
    if (!wanted.isEmpty()) {
        return wanted;
    }
    QString handle;
    do {
        handle = QString::number(m_nextHandle++, 16).toUpper();
    } while (m_chosenHandles.count(handle) != 0);
    return handle;
}

void CKvDxfComposer::composeBlocks()
{
    section(QStringLiteral("BLOCKS"));
    if (hasOwners()) {
        composeBlock(m_drawing.m_modelSpace, /*withEntities*/ false);
        composeBlock(m_drawing.m_paperSpace, /*withEntities*/ false);
    }
    for (const CKvBlockBuilder &block : m_drawing.m_blocks) {
        composeBlock(block, /*withEntities*/ true);
    }
    endSection();
}

void CKvDxfComposer::composeBlock(const CKvBlockBuilder &block, bool withEntities)
{
    composeBlockMark(block, QStringLiteral("BLOCK"), QStringLiteral("AcDbBlockBegin"));
    put(2, block.name());
    put(70, block.flagsOfBlock());
    put(10, 0.0);
    put(20, 0.0);
    put(30, 0.0);
    put(3, block.name());
    put(1, block.pathOfBlock());
    if (withEntities) {
        const QString owner = m_recordHandles[{ QStringLiteral("BLOCK_RECORD"), block.name() }];
        for (const CKvEntityBuilder &entity : block.entities()) {
            composeEntity(entity, owner, /*isInPaperSpace*/ false);
        }
    }
    composeBlockMark(block, QStringLiteral("ENDBLK"), QStringLiteral("AcDbBlockEnd"));
}

void CKvDxfComposer::composeBlockMark(const CKvBlockBuilder &block,
                                      const QString &type,
                                      const QString &subclass)
{
    CKvObjectContent mark;
    mark.type = type;
    putHead(mark,
            takeHandle(QString()),
            m_recordHandles[{ QStringLiteral("BLOCK_RECORD"), block.name() }]);
    putSubclass(QStringLiteral("AcDbEntity"));
    put(8, block.layerOfBlock());
    putSubclass(subclass);
}

void CKvDxfComposer::composeEntities()
{
    section(QStringLiteral("ENTITIES"));
    const auto compose = [this](const CKvBlockBuilder &space, bool isPaperSpace) {
        const QString owner = m_recordHandles[{ QStringLiteral("BLOCK_RECORD"), space.name() }];
        for (const CKvEntityBuilder &entity : space.entities()) {
            composeEntity(entity, owner, isPaperSpace);
        }
    };
    compose(m_drawing.m_modelSpace, false);
    compose(m_drawing.m_paperSpace, true);
    endSection();
}

void CKvDxfComposer::composeEntity(const CKvEntityBuilder &entity,
                                   const QString &owner,
                                   bool isInPaperSpace)
{
    const QString handle = takeHandle(entity.content().handle);
    putHead(entity.content(), handle, owner);
    putSubclass(QStringLiteral("AcDbEntity"));
    if (isInPaperSpace) {
        put(67, 1);
    }
    put(entity.commonTags());
    const CKvSubclass *subclass = subclassOf(entity.content().type);
    if (subclass) {
        putSubclass(QLatin1String(subclass->first));
        if (subclass->second) {
            putSubclass(QLatin1String(subclass->second));
        }
    }
    put(entity.content().tags);
    put(entity.content().extendedData);
    for (const CKvEntityBuilder &child : entity.children()) {
        composeEntity(child, handle, isInPaperSpace);
    }
    for (const CKvEntityBuilder &mark : entity.endMarks()) {
        composeEntity(mark, handle, isInPaperSpace);
    }
}

void CKvDxfComposer::composeObjects()
{
    section(QStringLiteral("OBJECTS"));
    composeObject({ &m_drawing.m_namedObjects,
                    takeHandle(m_drawing.m_namedObjects.ownHandle()),
                    QStringLiteral("0") });
    // Each object may add those that hang on it.
    for (std::size_t i = 0; i < m_pending.size(); ++i) {
        composeObject(PendingObject(m_pending[i]));
    }
    endSection();
}

void CKvDxfComposer::composeObject(const PendingObject &pending)
{
    const CKvDictionaryBuilder &object = *pending.object;
    put(0, object.type());
    put(5, pending.handle);
    put(330, pending.owner);
    if (object.type() == QLatin1String("DICTIONARY")) {
        putSubclass(QStringLiteral("AcDbDictionary"));
        for (const CKvDictionaryBuilder &entry : object.entries()) {
            const QString handle = takeHandle(entry.ownHandle());
            put(3, entry.key());
            put(350, handle);
            m_pending.push_back({ &entry, handle, pending.handle });
        }
    } else if (object.type() == QLatin1String("XRECORD")) {
        putSubclass(QStringLiteral("AcDbXrecord"));
        if (m_drawing.m_version >= QLatin1String("AC1015")) {
            put(280, 1);
        }
    }
    put(object.tags());
}

QByteArray CKvDxfComposer::composeHeader() const
{
    std::vector<CKvDxfTag> tags { { 0, QStringLiteral("SECTION"), {} },
                                  { 2, QStringLiteral("HEADER"), {} },
                                  { 9, QStringLiteral("$ACADVER"), {} },
                                  { 1, m_drawing.m_version, {} } };
    if (hasOwners()) {
        tags.push_back({ 9, QStringLiteral("$DWGCODEPAGE"), {} });
        tags.push_back({ 3, QStringLiteral("ANSI_1252"), {} });
    }
    for (const CKvDrawingBuilder::HeaderVariable &variable : m_drawing.m_header) {
        tags.push_back({ 9, QString(QLatin1Char('$') + variable.name), {} });
        tags.push_back({ variable.code, variable.value, {} });
    }
    if (m_drawing.m_hasHandles) {
        quint64 seed = m_nextHandle;
        for (const QString &handle : m_chosenHandles) {
            seed = std::max(seed, handle.toULongLong(nullptr, 16) + 1);
        }
        tags.push_back({ 9, QStringLiteral("$HANDSEED"), {} });
        tags.push_back({ 5, QString::number(seed, 16).toUpper(), {} });
    }
    tags.push_back({ 0, QStringLiteral("ENDSEC"), {} });
    return encoded(tags);
}

void CKvDxfComposer::section(const QString &name)
{
    put(0, "SECTION");
    put(2, name);
}

void CKvDxfComposer::putHead(const CKvObjectContent &content,
                             const QString &handle,
                             const QString &owner)
{
    put(0, content.type);
    if (m_drawing.m_hasHandles) {
        put(content.type == QLatin1String("DIMSTYLE") ? 105 : 5, handle);
    }
    if (!hasOwners()) {
        return;
    }
    if (content.extensionDictionary) {
        const QString extension = takeHandle(content.extensionDictionary->ownHandle());
        put(102, "{ACAD_XDICTIONARY");
        put(360, extension);
        put(102, "}");
        m_pending.push_back({ &*content.extensionDictionary, extension, handle });
    }
    put(330, owner);
}

void CKvDxfComposer::putSubclass(const QString &name)
{
    if (hasOwners()) {
        put(100, name);
    }
}

void CKvDxfComposer::put(const CKvDxfTags &tags)
{
    m_tags.insert(m_tags.end(), tags.begin(), tags.end());
}

QByteArray CKvDxfComposer::encoded(const std::vector<CKvDxfTag> &tags) const
{
    QByteArray bytes;
    for (const CKvDxfTag &tag : tags) {
        QString value = tag.value;
        if (!tag.handleOfRecordIn.isEmpty()) {
            const auto found = m_recordHandles.find({ tag.handleOfRecordIn, tag.value });
            if (found == m_recordHandles.end()) {
                ADD_FAILURE() << "the drawing has no " << tag.handleOfRecordIn.toStdString() << ' '
                              << tag.value.toStdString();
                continue;
            }
            value = found->second;
        }
        bytes += QByteArray::number(tag.code).rightJustified(3);
        bytes += '\n';
        bytes += encoded(value);
        bytes += '\n';
    }
    return bytes;
}

QByteArray CKvDxfComposer::encoded(const QString &text) const
{
    if (m_drawing.m_version >= QLatin1String("AC1021")) {
        return text.toUtf8();
    }
    QByteArray bytes;
    for (const QChar unit : text) {
        // From 0x80 to 0x9F the code page is not Latin-1.
        const bool isLatin1 = unit < QChar(0x80) || (unit >= QChar(0xA0) && unit <= QChar(0xFF));
        if (isLatin1) {
            bytes += unit.toLatin1();
        } else {
            bytes += QStringLiteral("\\U+%1")
                         .arg(uint(unit.unicode()), 4, 16, QLatin1Char('0'))
                         .toUpper()
                         .toLatin1();
        }
    }
    return bytes;
}
