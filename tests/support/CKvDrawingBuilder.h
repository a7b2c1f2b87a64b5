// SPDX-License-Identifier: MIT
#pragma once

#include "CKvBlockBuilder.h"
#include "CKvTableRecordBuilders.h"
#include "OdDbDatabase.h"

#include <QByteArray>
#include <QStringList>

#include <list>

/// A small drawing in a few words, in memory or as a file.
///
///     CKvDrawingBuilder drawing;
///     drawing.layer("WALLS").color(1).lineWeight(25).lineStyle("DASHED");
///     drawing.modelSpace().line("WALLS");
///     const OdDbDatabasePtr database = drawing.open();
///
/// The drawing holds what was told and nothing else: no layer 0, no line styles, no text style
/// unless withReservedLineStyles or withDefaults puts them there. It has the two spaces and, from
/// R13 on, handles, owners and the named objects dictionary. A builder is a value; copies are
/// independent.
///
/// With KV_TEST_KEEP=<folder> in the environment every drawing that was opened is written there
/// too, under the name of the running test.
class CKvDrawingBuilder
{
public:
    struct HeaderVariable {
        QString name;
        int code;
        QString value;
    };

    /// @param version value of $ACADVER: AC1009 is R12, AC1015 R2000, AC1021 R2007, AC1032 R2018.
    /// Up to R2004 texts are Latin-1 with \U+XXXX for the rest, from R2007 on UTF-8.
    explicit CKvDrawingBuilder(const CKvDxfValue &version = "AC1015");

    /// ByBlock, ByLayer and Continuous.
    CKvDrawingBuilder &withReservedLineStyles();
    /// What every program writes: the reserved line styles, layer 0, text and dimension style
    /// Standard.
    CKvDrawingBuilder &withDefaults();
    /// For R12: $HANDLING 1, and handles on all objects.
    CKvDrawingBuilder &withHandles();

    /// A header variable: header("CLAYER", 8, "WALLS"), without the dollar sign.
    CKvDrawingBuilder &header(const CKvDxfValue &name, int code, const CKvDxfValue &value);
    CKvDrawingBuilder &currentLayer(const CKvDxfValue &name) { return header("CLAYER", 8, name); }
    CKvDrawingBuilder &currentLineStyle(const CKvDxfValue &name)
    {
        return header("CELTYPE", 6, name);
    }
    CKvDrawingBuilder &currentTextStyle(const CKvDxfValue &name)
    {
        return header("TEXTSTYLE", 7, name);
    }
    CKvDrawingBuilder &currentDimStyle(const CKvDxfValue &name)
    {
        return header("DIMSTYLE", 2, name);
    }
    /// 0 inches, 1 metric.
    CKvDrawingBuilder &measurement(int value) { return header("MEASUREMENT", 70, value); }

    /// New records, also beside one of the same name. They stand in the file in this order.
    CKvLayerBuilder &layer(const CKvDxfValue &name);
    CKvLineStyleBuilder &lineStyle(const CKvDxfValue &name);
    CKvTextStyleBuilder &textStyle(const CKvDxfValue &name);
    CKvDimStyleBuilder &dimStyle(const CKvDxfValue &name);
    /// A record of APPID, VIEW, UCS or VPORT.
    CKvTableRecordBuilder &tableRecord(const CKvDxfValue &table, const CKvDxfValue &name);

    CKvBlockBuilder &block(const CKvDxfValue &name);
    /// A block from an external reference.
    CKvBlockBuilder &externalReference(const CKvDxfValue &name);
    /// Entities of the spaces stand in the ENTITIES section.
    CKvBlockBuilder &modelSpace() { return m_modelSpace; }
    CKvBlockBuilder &paperSpace() { return m_paperSpace; }

    CKvDictionaryBuilder &namedObjects() { return m_namedObjects; }
    /// Lists the standards files of the drawing, under the keys 0, 1 and so on.
    CKvDrawingBuilder &standardsFiles(const QStringList &paths);

    /// The drawing as a DXF file.
    QByteArray toBytes() const;
    /// Opens the drawing from memory.
    /// @param name its file name in messages.
    OdDbDatabasePtr open(const QString &name = QStringLiteral("drawing.dxf")) const;
    /// Writes the file; adds a failure to the running test when it can't.
    void saveTo(const QString &path) const;

private:
    friend class CKvDxfComposer;

    QString m_version;
    bool m_hasHandles;
    std::list<HeaderVariable> m_header;
    std::list<CKvLayerBuilder> m_layers;
    std::list<CKvLineStyleBuilder> m_lineStyles;
    std::list<CKvTextStyleBuilder> m_textStyles;
    std::list<CKvDimStyleBuilder> m_dimStyles;
    std::list<CKvTableRecordBuilder> m_otherRecords;
    std::list<CKvBlockBuilder> m_blocks;
    CKvBlockBuilder m_modelSpace;
    CKvBlockBuilder m_paperSpace;
    CKvDictionaryBuilder m_namedObjects;
};
