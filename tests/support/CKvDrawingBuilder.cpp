// SPDX-License-Identifier: MIT
#include "CKvDrawingBuilder.h"

#include "CKvDrawingFile.h"
#include "CKvDxfComposer.h"
#include "keepDrawing.h"

#include <QFile>

#include <gtest/gtest.h>

CKvDrawingBuilder::CKvDrawingBuilder(const CKvDxfValue &version)
    : m_version(version.text)
    , m_hasHandles(version.text > QLatin1String("AC1009"))
    , m_modelSpace(QStringLiteral("*Model_Space"))
    , m_paperSpace(QStringLiteral("*Paper_Space"))
{
}

CKvDrawingBuilder &CKvDrawingBuilder::withReservedLineStyles()
{
    lineStyle("ByBlock");
    lineStyle("ByLayer");
    lineStyle("Continuous").description("Solid line");
    return *this;
}

CKvDrawingBuilder &CKvDrawingBuilder::withDefaults()
{
    withReservedLineStyles();
    layer("0");
    textStyle("Standard");
    dimStyle("Standard");
    return *this;
}

CKvDrawingBuilder &CKvDrawingBuilder::withHandles()
{
    m_hasHandles = true;
    return header("HANDLING", 70, 1);
}

CKvDrawingBuilder &
CKvDrawingBuilder::header(const CKvDxfValue &name, int code, const CKvDxfValue &value)
{
    m_header.push_back({ name.text, code, value.text });
    return *this;
}

CKvLayerBuilder &CKvDrawingBuilder::layer(const CKvDxfValue &name)
{
    m_layers.emplace_back(name.text);
    return m_layers.back();
}

CKvLineStyleBuilder &CKvDrawingBuilder::lineStyle(const CKvDxfValue &name)
{
    m_lineStyles.emplace_back(name.text);
    return m_lineStyles.back();
}

CKvTextStyleBuilder &CKvDrawingBuilder::textStyle(const CKvDxfValue &name)
{
    m_textStyles.emplace_back(name.text);
    return m_textStyles.back();
}

CKvDimStyleBuilder &CKvDrawingBuilder::dimStyle(const CKvDxfValue &name)
{
    m_dimStyles.emplace_back(name.text);
    return m_dimStyles.back();
}

CKvTableRecordBuilder &CKvDrawingBuilder::tableRecord(const CKvDxfValue &table,
                                                      const CKvDxfValue &name)
{
    m_otherRecords.emplace_back(table.text, name.text);
    return m_otherRecords.back();
}

CKvBlockBuilder &CKvDrawingBuilder::block(const CKvDxfValue &name)
{
    m_blocks.emplace_back(name.text);
    return m_blocks.back();
}

CKvBlockBuilder &CKvDrawingBuilder::externalReference(const CKvDxfValue &name)
{
    return block(name).blockFlags(4).path(QString(name.text + QStringLiteral(".dxf")));
}

CKvDrawingBuilder &CKvDrawingBuilder::standardsFiles(const QStringList &paths)
{
    int key = 0;
    for (const QString &path : paths) {
        m_namedObjects.dictionary("AcStStandard").xrecord(QString::number(key++)).group(1, path);
    }
    return *this;
}

QByteArray CKvDrawingBuilder::toBytes() const
{
    return CKvDxfComposer(*this).compose();
}

OdDbDatabasePtr CKvDrawingBuilder::open(const QString &name) const
{
    const QByteArray bytes = toBytes();
    keepDrawing(bytes);
    return CKvDrawingFile::fromBytes(bytes, name);
}

void CKvDrawingBuilder::saveTo(const QString &path) const
{
    const QByteArray bytes = toBytes();
    keepDrawing(bytes);
    QFile file(path);
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    EXPECT_TRUE(isWritten) << "can't write " << path.toStdString();
}
