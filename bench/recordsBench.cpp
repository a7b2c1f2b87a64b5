// SPDX-License-Identifier: MIT
#include "CKvBenchRecords.h"
#include "CKvDimStylePluginImpl.h"
#include "CKvDrawingFile.h"
#include "CKvLayerPluginImpl.h"
#include "CKvLineStylePluginImpl.h"
#include "CKvStandaloneServices.h"
#include "CKvStdsError.h"
#include "CKvStdsFix.h"
#include "CKvTextStylePluginImpl.h"
#include "processorTime.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace
{

QString drawingOf(int count, int variant)
{
    static const QTemporaryDir s_folder;
    QString path = s_folder.filePath(QStringLiteral("records-%1-%2.dxf").arg(count).arg(variant));
    if (!QFile::exists(path) && !CKvBenchRecords { count, variant }.write(path)) {
        qFatal("can't write %s", qPrintable(path));
    }
    return path;
}

/// Opens, checks and collects the candidates, and asks for the preview of the recommended one.
/// @param found receives the number of violations.
template <class Plugin> double secondsOfAnAudit(int count, int &found)
{
    const QString path = drawingOf(count, 1);
    const QString standards = drawingOf(count, 2);
    CKvStdsError::rxInit();
    CKvStdsFix::rxInit();
    const double seconds = secondsOf([&] {
        CKvStandaloneServices services;
        Plugin plugin;
        found = 0;
        plugin.clear();
        plugin.setObjectsToCheck({}, /*scanAll*/ true);
        plugin.openStandards(CKvDrawingFile::open(path), CKvString(), {}, { CKvString(standards) });
        for (plugin.beginScan(nullptr); !plugin.isDone(); plugin.nextError()) {
            OdArray<CKvStdsFixPtr> fixes;
            std::int32_t recommended = -1;
            plugin.collectFixes(plugin.currentError(), fixes, recommended);
            std::vector<CKvString> names;
            std::vector<CKvString> units;
            OdArray<OdResBufPtr> current;
            OdArray<OdResBufPtr> standard;
            plugin.propertyDifferences(plugin.currentError(),
                                       fixes.at(unsigned(recommended)),
                                       names,
                                       current,
                                       standard,
                                       units);
            ++found;
        }
    });
    CKvStdsFix::rxUninit();
    CKvStdsError::rxUninit();
    return seconds;
}

template <class Plugin> void auditOfWrongRecords(benchmark::State &state)
{
    const int count = int(state.range(0));
    double seconds = 0;
    double half = 0;
    int found = 0;
    while (state.KeepRunning()) {
        half += secondsOfAnAudit<Plugin>(count / 2, found);
        seconds += secondsOfAnAudit<Plugin>(count, found);
    }
    state.counters["violations"] = found;
    state.counters["seconds"] = seconds / double(state.iterations());
    state.counters["x_half"] = seconds / half;
}

BENCHMARK_TEMPLATE(auditOfWrongRecords, CKvDimStylePluginImpl)
    ->Arg(1000)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(3);
BENCHMARK_TEMPLATE(auditOfWrongRecords, CKvLayerPluginImpl)
    ->Arg(1000)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(3);
BENCHMARK_TEMPLATE(auditOfWrongRecords, CKvLineStylePluginImpl)
    ->Arg(1000)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(3);
BENCHMARK_TEMPLATE(auditOfWrongRecords, CKvTextStylePluginImpl)
    ->Arg(1000)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(3);

} // namespace
