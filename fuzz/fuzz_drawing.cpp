// SPDX-License-Identifier: MIT
#include "CKvDimStylePluginImpl.h"
#include "CKvDrawingFile.h"
#include "CKvLayerPluginImpl.h"
#include "CKvLineStylePluginImpl.h"
#include "CKvStandaloneServices.h"
#include "CKvStdsError.h"
#include "CKvStdsFix.h"
#include "CKvTextStylePluginImpl.h"
#include "CKvUndoStack.h"

#include <QFile>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <vector>

namespace
{

struct CKvContract {
    CKvContract()
    {
        CKvStdsError::rxInit();
        CKvStdsFix::rxInit();
    }
};

/// Gives the same standards whatever the path.
class CKvOneFile : public CKvStandaloneAppServices
{
public:
    QByteArray bytes;

    OdDbDatabasePtr readFile(const OdString & /*path*/,
                             bool /*allowCodePageConversion*/,
                             bool /*partialLoad*/,
                             int /*shareMode*/,
                             const OdString & /*password*/) override
    {
        try {
            return CKvDrawingFile::fromBytes(bytes);
        } catch (const OdError &) {
            return {};
        }
    }
};

class CKvServicesOfOneFile : public CKvStandaloneServices
{
public:
    explicit CKvServicesOfOneFile(const QByteArray &standards) { m_file.bytes = standards; }
    CKvOneFile *hostAppServices() override { return &m_file; }

private:
    CKvOneFile m_file;
};

/// What a run of check and repair does, on one drawing, in all categories.
class CKvRepairOfAll
{
public:
    explicit CKvRepairOfAll(OdDbDatabasePtr drawing)
        : m_drawing(std::move(drawing))
    {
    }
    void run()
    {
        const std::array<CKvStdsPlugins *, 4> plugins = {
            &m_dimStyles, &m_layers, &m_lineStyles, &m_textStyles
        };
        for (CKvStdsPlugins *plugin : plugins) {
            check(*plugin);
        }
    }

private:
    void check(CKvStdsPlugins &plugin)
    {
        const std::vector<CKvString> standards = { CKvString("standards.dxf") };
        plugin.setObjectsToCheck({}, /*scanAll*/ true);
        plugin.openStandards(m_drawing, CKvString(), standards, standards);
        std::vector<CKvStdsErrorPtr> errors;
        for (plugin.beginScan(nullptr); !plugin.isDone(); plugin.nextError()) {
            errors.push_back(plugin.currentError());
        }
        for (std::size_t i = 0; i < errors.size(); ++i) {
            repair(plugin, errors[i], i);
        }
        plugin.clear();
    }
    /// A violation after the other takes another one of its candidates.
    static void repair(CKvStdsPlugins &plugin, const CKvStdsErrorPtr &error, std::size_t number)
    {
        OdArray<CKvStdsFixPtr> fixes;
        std::int32_t recommended = -1;
        plugin.collectFixes(error, fixes, recommended);
        if (fixes.isEmpty()) {
            return;
        }
        const bool hasBest = recommended >= 0 && unsigned(recommended) < fixes.size();
        const CKvStdsFixPtr fix =
            fixes[hasBest ? unsigned(recommended) : unsigned(number % fixes.size())];
        std::vector<CKvString> names;
        std::vector<CKvString> units;
        OdArray<OdResBufPtr> values;
        OdArray<OdResBufPtr> standardValues;
        plugin.propertyDifferences(error, fix, names, values, standardValues, units);
        CKvString message;
        try {
            plugin.applyFix(error, fix, message);
        } catch (const OdError &) {
            // A name that can't be changed, entities that can't be read: the next one is next.
        }
    }

    OdDbDatabasePtr m_drawing;
    CKvDimStylePluginImpl m_dimStyles;
    CKvLayerPluginImpl m_layers;
    CKvLineStylePluginImpl m_lineStyles;
    CKvTextStylePluginImpl m_textStyles;
};

void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

/// Load, check, repair, save, load again, undo and redo.
void repairDrawing(const QByteArray &bytes, const QByteArray &standards)
{
    const CKvServicesOfOneFile services(standards);
    OdDbDatabasePtr drawing;
    try {
        drawing = CKvDrawingFile::fromBytes(bytes);
    } catch (const OdError &) {
        return;
    }
    require(!CKvDrawingFile::isChanged(*drawing) && CKvDrawingFile::toBytes(*drawing) == bytes);
    CKvUndoStack undo(drawing->store());
    QByteArray repaired;
    try {
        CKvRepairOfAll(drawing).run();
        undo.endStep(QStringLiteral("FIX"));
        repaired = CKvDrawingFile::toBytes(*drawing);
    } catch (const OdError &) {
        return;
    }
    // What was saved must load; anything that is thrown here is a finding.
    require(CKvDrawingFile::toBytes(*CKvDrawingFile::fromBytes(repaired)) == repaired);
    undo.undo();
    require(CKvDrawingFile::toBytes(*drawing) == bytes);
    undo.redo();
    require(CKvDrawingFile::toBytes(*drawing) == repaired);
}

QByteArray bytesOfFile(const QString &path)
{
    QFile file(path);
    require(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const CKvContract s_contract;
    static const QByteArray s_drawing = bytesOfFile(QStringLiteral(KV_DRAWING));
    static const QByteArray s_standards = bytesOfFile(QStringLiteral(KV_STANDARDS));
    // Packed input is the packer's matter, and would only hide what is in it from the fuzzer.
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    if (!bytes.startsWith("\x1f\x8b")) {
        repairDrawing(bytes, s_standards);
        repairDrawing(s_drawing, bytes);
    }
    return 0;
}
