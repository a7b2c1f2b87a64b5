// SPDX-License-Identifier: MIT
#include "CKvDrawingFile.h"
#include "CKvLayerPluginImpl.h"
#include "CKvStandaloneServices.h"
#include "CKvStdsError.h"
#include "CKvStdsFix.h"

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

/// What a run of check and repair does, on one drawing.
class CKvRepairOfAll
{
public:
    explicit CKvRepairOfAll(OdDbDatabasePtr drawing)
        : m_drawing(std::move(drawing))
    {
    }
    void run()
    {
        m_plugin.clear();
        m_plugin.setObjectsToCheck({}, /*scanAll*/ true);
        m_plugin.openStandards(
            m_drawing, CKvString(), {}, { CKvString(QStringLiteral(KV_STANDARDS)) });
        std::vector<CKvStdsErrorPtr> errors;
        for (m_plugin.beginScan(nullptr); !m_plugin.isDone(); m_plugin.nextError()) {
            errors.push_back(m_plugin.currentError());
        }
        for (std::size_t i = 0; i < errors.size(); ++i) {
            repair(errors[i], i);
        }
    }

private:
    /// A violation after the other takes another one of its candidates.
    void repair(const CKvStdsErrorPtr &error, std::size_t number)
    {
        OdArray<CKvStdsFixPtr> fixes;
        std::int32_t recommended = -1;
        m_plugin.collectFixes(error, fixes, recommended);
        if (fixes.isEmpty()) {
            return;
        }
        const bool hasBest = recommended >= 0 && unsigned(recommended) < fixes.size();
        const CKvStdsFixPtr fix =
            fixes[hasBest ? unsigned(recommended) : unsigned(number % fixes.size())];
        CKvString message;
        try {
            m_plugin.applyFix(error, fix, message);
        } catch (const OdError &) {
            // A name that can't be changed, entities that can't be read: the next one is next.
        }
    }

    OdDbDatabasePtr m_drawing;
    CKvLayerPluginImpl m_plugin;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const CKvContract s_contract;
    const CKvStandaloneServices services;
    // Packed input is the packer's matter, and would only hide what is in it from the fuzzer.
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    if (bytes.startsWith("\x1f\x8b")) {
        return 0;
    }
    OdDbDatabasePtr drawing;
    try {
        drawing = CKvDrawingFile::fromBytes(bytes);
    } catch (const OdError &) {
        return 0;
    }
    if (CKvDrawingFile::isChanged(*drawing) || CKvDrawingFile::toBytes(*drawing) != bytes) {
        std::abort();
    }
    QByteArray repaired;
    try {
        CKvRepairOfAll(drawing).run();
        repaired = CKvDrawingFile::toBytes(*drawing);
    } catch (const OdError &) {
        return 0;
    }
    // What was saved must load; anything that is thrown here is a finding.
    const OdDbDatabasePtr again = CKvDrawingFile::fromBytes(repaired);
    if (CKvDrawingFile::toBytes(*again) != repaired) {
        std::abort();
    }
    return 0;
}
