// SPDX-License-Identifier: MIT
#include "CKvContractClasses.h"
#include "CKvDimStylePluginImpl.h"
#include "CKvDrawingFile.h"
#include "CKvLayerPluginImpl.h"
#include "CKvLineStylePluginImpl.h"
#include "CKvStandaloneServices.h"
#include "CKvTextStylePluginImpl.h"
#include "CKvUndoStack.h"
#include "OdDbLayerTableRecord.h"
#include "OdDbSymbolTable.h"
#include "OdDbSymbolTableIterator.h"
#include "anyDrawing.h"
#include "auditText.h"
#include "gzip.h"
#include "inBinary.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
// Behind GoogleTest, on which it rests without including it.
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <array>
#include <string>

namespace
{

/// The plug-ins of all categories with a standards file at hand.
class CKvWholeCheck
{
public:
    CKvWholeCheck()
    {
        const QString path = m_folder.filePath(QStringLiteral("office.dxf"));
        QFile file(path);
        file.open(QIODevice::WriteOnly);
        file.write(standardsOfAnyDrawing());
        file.close();
        m_standards = QStringList(path);
    }
    std::string report(const OdDbDatabasePtr &drawing)
    {
        std::string text;
        for (CKvStdsPlugins *plugin : m_plugins) {
            text += violationsText(audit(*plugin, drawing, m_standards));
        }
        return text;
    }
    /// Takes the recommended candidate of each violation, the first one where none is.
    void repair(const OdDbDatabasePtr &drawing)
    {
        for (CKvStdsPlugins *plugin : m_plugins) {
            for (const CKvStdsViolation &violation : audit(*plugin, drawing, m_standards)) {
                repair(*plugin, violation);
            }
        }
    }
    QByteArray repaired(const QByteArray &bytes)
    {
        const OdDbDatabasePtr drawing = CKvDrawingFile::fromBytes(bytes);
        repair(drawing);
        return CKvDrawingFile::toBytes(*drawing);
    }

private:
    static void repair(CKvStdsPlugins &plugin, const CKvStdsViolation &violation)
    {
        if (violation.error->objectId().isErased() || violation.fixes.isEmpty()) {
            return;
        }
        const int wanted = std::max(violation.recommendedFix, 0);
        CKvString message;
        try {
            plugin.applyFix(violation.error, violation.fixes.at(unsigned(wanted)), message);
        } catch (const OdError &) {
            // Layer 0 can't be renamed.
        }
    }

    CKvContractClasses m_classes;
    CKvStandaloneServices m_services;
    QTemporaryDir m_folder;
    QStringList m_standards;
    CKvDimStylePluginImpl m_dimStyles;
    CKvLayerPluginImpl m_layers;
    CKvLineStylePluginImpl m_lineStyles;
    CKvTextStylePluginImpl m_textStyles;
    /// In the order of all checks.
    std::array<CKvStdsPlugins *, 4> m_plugins = {
        &m_dimStyles, &m_layers, &m_lineStyles, &m_textStyles
    };
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
    CKvWholeCheck check;
    CKvAnyDrawing mendable = drawing;
    for (CKvAnyDrawing::Style &style : mendable.textStyles) {
        // A text style keeps its letters, and dimension styles compare them with regard to case.
        style.name = style.name == "notes" ? "NOTES" : style.name;
    }
    if (drawing.version == "AC1009") {
        // There a dimension style can't name a text style: the violation stays, and each repair
        // writes the current settings of the drawing.
        mendable.dimStyles.clear();
    }

    const QByteArray once = check.repaired(mendable.toBytes());
    const QByteArray twice = check.repaired(once);

    RC_ASSERT(once.toStdString() == twice.toStdString());
}

RC_GTEST_PROP(AnyDrawing, TheCheckSaysTheSameAfterLoadSaveAndLoad, (const CKvAnyDrawing &drawing))
{
    CKvWholeCheck check;
    const OdDbDatabasePtr loaded = CKvDrawingFile::fromBytes(drawing.toBytes());
    const std::string before = check.report(loaded);
    const OdDbDatabasePtr again = CKvDrawingFile::fromBytes(CKvDrawingFile::toBytes(*loaded));
    RC_ASSERT(check.report(again) == before);

    check.repair(loaded);

    const OdDbDatabasePtr repaired = CKvDrawingFile::fromBytes(CKvDrawingFile::toBytes(*loaded));
    RC_ASSERT(check.report(repaired) == check.report(loaded));
}

RC_GTEST_PROP(AnyDrawing,
              ARepairThatIsUndoneIsTheIdentityAndRedoneTheRepair,
              (const CKvAnyDrawing &drawing))
{
    CKvWholeCheck check;
    const QByteArray bytes = drawing.toBytes();
    const OdDbDatabasePtr loaded = CKvDrawingFile::fromBytes(bytes);
    CKvUndoStack undo(loaded->store());

    check.repair(loaded);
    undo.endStep(QStringLiteral("FIX"));
    const QByteArray repaired = CKvDrawingFile::toBytes(*loaded);
    const bool isChanged = CKvDrawingFile::isChanged(*loaded);

    RC_ASSERT(repaired.toStdString() == check.repaired(bytes).toStdString());
    RC_ASSERT(undo.canUndo() == isChanged);
    undo.undo();
    RC_ASSERT(CKvDrawingFile::toBytes(*loaded).toStdString() == bytes.toStdString());
    RC_ASSERT(check.report(loaded) == check.report(CKvDrawingFile::fromBytes(bytes)));
    undo.redo();
    RC_ASSERT(CKvDrawingFile::toBytes(*loaded).toStdString() == repaired.toStdString());
}

RC_GTEST_PROP(AnyDrawing,
              ARepairOfTheBinaryFormIsTheBinaryFormOfTheRepair,
              (const CKvAnyDrawing &drawing))
{
    CKvWholeCheck check;
    const CKvTagForm form =
        drawing.version == "AC1009" ? CKvTagForm::BinaryShortCodes : CKvTagForm::Binary;
    const QByteArray bytes = drawing.toBytes();

    const QByteArray binary = check.repaired(inBinary(bytes, form));

    const QByteArray expected = inBinary(check.repaired(bytes), form);
    RC_ASSERT(inLines(binary, form).toStdString() == inLines(expected, form).toStdString());
    RC_ASSERT(binary == expected);
}

RC_GTEST_PROP(AnyDrawing, ARepairedOneLoadsWithoutNewWarnings, (const CKvAnyDrawing &drawing))
{
    CKvWholeCheck check;
    const QByteArray bytes = drawing.toBytes();
    const int before = CKvDrawingFile::warnings(*CKvDrawingFile::fromBytes(bytes)).size();

    const OdDbDatabasePtr repaired = CKvDrawingFile::fromBytes(check.repaired(bytes));

    RC_ASSERT(CKvDrawingFile::warnings(*repaired).size() <= before);
}

} // namespace
