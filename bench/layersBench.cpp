// SPDX-License-Identifier: MIT
#include "CKvBenchFiles.h"
#include "CKvBenchHost.h"
#include "CKvDrawingFile.h"
#include "CKvLayerPluginImpl.h"
#include "OdDbBlockTable.h"
#include "OdDbBlockTableRecord.h"
#include "OdDbObjectIterator.h"
#include "OdDbSymbolTableIterator.h"
#include "processorTime.h"

#include <QFile>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace
{

CKvBenchFiles &files()
{
    return CKvBenchFiles::ofThisRun();
}

/// How many times the floor of a file a row takes. The floor is measured anew beside each run, so
/// that what else the machine does meets both.
class CKvFloorComparison
{
public:
    explicit CKvFloorComparison(QString path)
        : m_path(std::move(path))
    {
    }
    template <class Action> void measure(Action action)
    {
        const double floor = secondsOf([&] { benchmark::DoNotOptimize(countLines(m_path)); });
        const double seconds = secondsOf(action);
        m_milliseconds.push_back(1000 * seconds);
        m_ratios.push_back(seconds / floor);
    }
    /// Tells the median, and of the ratios the least and the most too.
    void report(benchmark::State &state)
    {
        std::sort(m_milliseconds.begin(), m_milliseconds.end());
        std::sort(m_ratios.begin(), m_ratios.end());
        state.counters["ms"] = m_milliseconds[m_milliseconds.size() / 2];
        state.counters["x_floor"] = m_ratios[m_ratios.size() / 2];
        state.counters["x_least"] = m_ratios.front();
        state.counters["x_most"] = m_ratios.back();
    }

private:
    QString m_path;
    std::vector<double> m_milliseconds;
    std::vector<double> m_ratios;
};

using CKvLayerHost = CKvBenchHost<CKvLayerPluginImpl>;

void floorOfAFile(benchmark::State &state)
{
    const QString path = files().drawingOf(int(state.range(0)));
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(countLines(path));
    }
    state.counters["MB"] = double(QFile(path).size()) / 1e6;
}

void checkADrawing(benchmark::State &state)
{
    const QString path = files().drawingOf(int(state.range(0)));
    const QString standards = files().standardsOf(50);
    CKvFloorComparison row(path);
    while (state.KeepRunning()) {
        row.measure([&] {
            CKvLayerHost host;
            host.audit(CKvDrawingFile::open(path, CKvFileImage::Holding::Mapped), standards);
        });
    }
    row.report(state);
}

int countEntities(const OdDbBlockTablePtr &blocks)
{
    int count = 0;
    for (auto walk = blocks->newIterator(); !walk->done(); walk->step()) {
        const OdDbBlockTableRecordPtr block(walk->getRecord());
        for (auto entities = block->newIterator(); !entities->done(); entities->step()) {
            ++count;
        }
    }
    return count;
}

void indexAllObjects(benchmark::State &state)
{
    const QString path = files().drawingOf(int(state.range(0)));
    CKvFloorComparison row(path);
    int entities = 0;
    while (state.KeepRunning()) {
        row.measure([&] {
            const OdDbDatabasePtr drawing =
                CKvDrawingFile::open(path, CKvFileImage::Holding::Mapped);
            entities = countEntities(OdDbBlockTablePtr(drawing->getBlockTableId().openObject()));
        });
    }
    row.report(state);
    state.counters["entities"] = entities;
}

void mergeALayerAndSave(benchmark::State &state)
{
    CKvBenchDrawing kept;
    kept.layers = 1;
    kept.entities = int(state.range(0));
    kept.isOnOneLayer = true;
    const QString path = files().drawing(QStringLiteral("merge-%1.dxf").arg(kept.entities), kept);
    // The standard has layer 0 alone, so LAYER-1 is merged into it.
    const QString standards = files().standardsOf(0);
    CKvFloorComparison row(path);
    while (state.KeepRunning()) {
        row.measure([&] {
            CKvLayerHost host;
            const OdDbDatabasePtr drawing =
                CKvDrawingFile::open(path, CKvFileImage::Holding::Mapped);
            host.audit(drawing, standards);
            host.repairAll();
            CKvDrawingFile::save(*drawing, files().path(QStringLiteral("merged.dxf")));
        });
    }
    row.report(state);
}

/// @param found receives the number of violations.
double secondsOfAnAudit(int layers, int &found)
{
    CKvBenchDrawing content;
    content.layers = layers;
    const QString path = files().drawing(QStringLiteral("layers-%1.dxf").arg(layers), content);
    const QString standards = files().standardsOf(layers);
    return secondsOf([&] {
        CKvLayerHost host;
        found = host.audit(CKvDrawingFile::open(path), standards);
    });
}

void auditOfWrongLayers(benchmark::State &state)
{
    const int layers = int(state.range(0));
    double seconds = 0;
    double half = 0;
    int found = 0;
    while (state.KeepRunning()) {
        half += secondsOfAnAudit(layers / 2, found);
        seconds += secondsOfAnAudit(layers, found);
    }
    state.counters["violations"] = found;
    state.counters["seconds"] = seconds / double(state.iterations());
    state.counters["x_half"] = seconds / half;
}

void startOfTheProgram(benchmark::State &state)
{
    CKvBenchDrawing small;
    small.entities = 10;
    const std::string path = files().drawing(QStringLiteral("small.dxf"), small).toStdString();
    const std::string standards = files().standardsOf(50).toStdString();
    double program = 0;
    double nothing = 0;
    while (state.KeepRunning()) {
        program += processSeconds(KV_PROGRAM, { "check", path, "-s", standards });
        nothing += processSeconds(KV_EMPTY_PROGRAM, {});
    }
    state.counters["program_ms"] = 1000 * program / double(state.iterations());
    state.counters["empty_ms"] = 1000 * nothing / double(state.iterations());
    state.counters["x_empty"] = program / nothing;
}

void memoryOfACheck(benchmark::State &state)
{
    const std::string path = files().drawingOf(int(state.range(0))).toStdString();
    const std::string standards = files().standardsOf(50).toStdString();
    double peak = 0;
    while (state.KeepRunning()) {
        std::string arguments = "check ";
        arguments.append(path).append(" -s ").append(standards);
        peak = peakMemoryOfProgram(arguments);
    }
    state.counters["peak_MB"] = peak;
}

BENCHMARK(floorOfAFile)->Arg(1)->Arg(10)->Arg(100)->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(checkADrawing)->Arg(1)->Arg(10)->Arg(100)->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(indexAllObjects)->Arg(1)->Arg(10)->Arg(100)->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(mergeALayerAndSave)
    ->Arg(10000)
    ->Arg(1000000)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(5);
BENCHMARK(auditOfWrongLayers)->Arg(10000)->Arg(20000)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(startOfTheProgram)->Unit(benchmark::kMillisecond)->Iterations(20);
BENCHMARK(memoryOfACheck)->Arg(1)->Arg(10)->Arg(100)->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace
