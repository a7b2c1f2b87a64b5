// SPDX-License-Identifier: MIT
#include "CKvContractClasses.h"
#include "CKvDrawingFile.h"
#include "CKvLayerPluginImpl.h"
#include "CKvStandaloneServices.h"
#include "OdDbLayerTableRecord.h"
#include "OdDbSymbolTable.h"
#include "OdDbSymbolTableIterator.h"
#include "anyDrawing.h"
#include "auditText.h"
#include "gzip.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
// Behind GoogleTest, on which it rests without including it.
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <string>

namespace
{

/// The layers' plug-in with a standards file at hand.
class CKvLayerCheck
{
public:
    CKvLayerCheck()
    {
        const QString path = m_folder.filePath(QStringLiteral("office.dxf"));
        QFile file(path);
        file.open(QIODevice::WriteOnly);
        file.write(standardsOfAnyDrawing());
        file.close();
        m_standards = QStringList(path);
    }
    std::vector<CKvStdsViolation> violations(const OdDbDatabasePtr &drawing)
    {
        return audit(m_plugin, drawing, m_standards);
    }
    std::string report(const QByteArray &bytes)
    {
        return violationsText(violations(CKvDrawingFile::fromBytes(bytes)));
    }
    /// Takes the recommended candidate of each violation, the first one where none is.
    QByteArray repaired(const QByteArray &bytes)
    {
        const OdDbDatabasePtr drawing = CKvDrawingFile::fromBytes(bytes);
        for (const CKvStdsViolation &violation : violations(drawing)) {
            const int wanted = std::max(violation.recommendedFix, 0);
            CKvString message;
            try {
                m_plugin.applyFix(violation.error, violation.fixes.at(unsigned(wanted)), message);
            } catch (const OdError &) {
                // Layer 0 can't be renamed.
            }
        }
        return CKvDrawingFile::toBytes(*drawing);
    }

private:
    CKvContractClasses m_classes;
    CKvStandaloneServices m_services;
    QTemporaryDir m_folder;
    QStringList m_standards;
    CKvLayerPluginImpl m_plugin;
};

std::vector<OdDbLayerTableRecordPtr> openedLayers(const OdDbDatabase &drawing)
{
    std::vector<OdDbLayerTableRecordPtr> layers;
    const OdDbSymbolTablePtr table(drawing.getLayerTableId().openObject());
    for (auto walk = table->newIterator(); !walk->done(); walk->step()) {
        layers.emplace_back(walk->getRecord(OdDb::kForWrite));
    }
    return layers;
}

QByteArray packedBytes(const QByteArray &bytes)
{
    QByteArray packed;
    CKvGzipPacker packer(
        [&](std::string_view piece) { packed.append(piece.data(), int(piece.size())); });
    packer.add({ bytes.constData(), std::size_t(bytes.size()) });
    packer.finish();
    return packed;
}

RC_GTEST_PROP(AnyDrawing, LoadAndSaveIsTheIdentity, (const CKvAnyDrawing &drawing))
{
    const QByteArray bytes = drawing.toBytes();
    const OdDbDatabasePtr loaded = CKvDrawingFile::fromBytes(bytes);

    RC_ASSERT(!CKvDrawingFile::isChanged(*loaded));
    RC_ASSERT(CKvDrawingFile::toBytes(*loaded) == bytes);
}

RC_GTEST_PROP(AnyDrawing, PackedItIsTheSameDrawing, (const CKvAnyDrawing &drawing))
{
    const QByteArray bytes = drawing.toBytes();

    RC_ASSERT(CKvDrawingFile::toBytes(*CKvDrawingFile::fromBytes(packedBytes(bytes))) == bytes);
}

RC_GTEST_PROP(AnyDrawing,
              ARepairThatIsTakenBackValueByValueIsTheIdentity,
              (const CKvAnyDrawing &drawing))
{
    CKvAnyDrawing spelledAlike = drawing;
    for (CKvAnyDrawing::Layer &layer : spelledAlike.layers) {
        // A line style is given back in the letters of its record.
        layer.lineStyle = layer.lineStyle == "dashed" ? "DASHED" : layer.lineStyle;
    }
    const QByteArray bytes = spelledAlike.toBytes();
    const OdDbDatabasePtr loaded = CKvDrawingFile::fromBytes(bytes);
    for (const OdDbLayerTableRecordPtr &layer : openedLayers(*loaded)) {
        const OdCmColor color = layer->color();
        const OdDb::LineWeight weight = layer->lineWeight();
        const OdDbObjectId lineStyle = layer->linetypeObjectId();

        layer->setColor(OdCmColor::byColor(1, 2, 3, 4));
        layer->setLineWeight(OdDb::LineWeight(100));
        layer->setLinetypeObjectId(openedLayers(*loaded).front()->linetypeObjectId());
        layer->setLinetypeObjectId(lineStyle);
        layer->setLineWeight(weight);
        layer->setColor(color);
    }

    RC_ASSERT(!CKvDrawingFile::isChanged(*loaded));
    RC_ASSERT(CKvDrawingFile::toBytes(*loaded) == bytes);
}

RC_GTEST_PROP(AnyDrawing, FixedTwiceItIsWhatItIsFixedOnce, (const CKvAnyDrawing &drawing))
{
    CKvLayerCheck check;

    const QByteArray once = check.repaired(drawing.toBytes());
    const QByteArray twice = check.repaired(once);

    RC_ASSERT(once.toStdString() == twice.toStdString());
}

RC_GTEST_PROP(AnyDrawing, TheCheckSaysTheSameAfterLoadSaveAndLoad, (const CKvAnyDrawing &drawing))
{
    CKvLayerCheck check;
    const QByteArray bytes = drawing.toBytes();
    const std::string before = check.report(bytes);

    const QByteArray saved = CKvDrawingFile::toBytes(*CKvDrawingFile::fromBytes(bytes));

    RC_ASSERT(check.report(saved) == before);
}

RC_GTEST_PROP(AnyDrawing, ARepairedOneLoadsWithoutNewWarnings, (const CKvAnyDrawing &drawing))
{
    CKvLayerCheck check;
    const QByteArray bytes = drawing.toBytes();
    const int before = CKvDrawingFile::warnings(*CKvDrawingFile::fromBytes(bytes)).size();

    const OdDbDatabasePtr repaired = CKvDrawingFile::fromBytes(check.repaired(bytes));

    RC_ASSERT(CKvDrawingFile::warnings(*repaired).size() <= before);
}

} // namespace
