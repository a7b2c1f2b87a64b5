// SPDX-License-Identifier: MIT
#include "CKvBenchFiles.h"
#include "CKvBenchHost.h"
#include "CKvDrawingFile.h"
#include "CKvLayerPluginImpl.h"
#include "OdDbBlockTable.h"
#include "processorTime.h"

#include <benchmark/benchmark.h>

namespace
{

CKvBenchFiles &files()
{
    return CKvBenchFiles::ofThisRun();
}

/// All layers of a drawing of 150,000 lines into one, and the walk that a merge would take if each
/// had to look at all lines.
void mergesOfManyLayers(benchmark::State &state)
{
    CKvBenchDrawing content;
    content.layers = int(state.range(0));
    content.entities = 150000;
    const QString path =
        files().drawing(QStringLiteral("merges-%1.dxf").arg(content.layers), content);
    const QString standards = files().standardsOf(0);
    double merges = 0;
    double index = 0;
    while (state.KeepRunning()) {
        CKvBenchHost<CKvLayerPluginImpl> host;
        const OdDbDatabasePtr drawing = CKvDrawingFile::open(path);
        index += secondsOf(
            [&] { OdDbBlockTablePtr(drawing->getBlockTableId().openObject())->newIterator(); });
        host.audit(drawing, standards);
        merges += secondsOf([&] { host.repairAll(); });
    }
    state.counters["merges_ms"] = 1000 * merges / double(state.iterations());
    state.counters["index_ms"] = 1000 * index / double(state.iterations());
    state.counters["x_index"] = merges / index;
}

BENCHMARK(mergesOfManyLayers)->Arg(100)->Arg(200)->Unit(benchmark::kMillisecond)->Iterations(3);

} // namespace
