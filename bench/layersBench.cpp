// SPDX-License-Identifier: MIT
#include "CKvBenchDrawing.h"
#include "CKvDrawingFile.h"
#include "CKvLayerPluginImpl.h"
#include "CKvStandaloneServices.h"
#include "CKvStdsError.h"
#include "CKvStdsFix.h"
#include "OdDbBlockTable.h"
#include "OdDbBlockTableRecord.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstring>
#include <ctime>
#include <map>

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

double processorSeconds()
{
    timespec now {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return double(now.tv_sec) + double(now.tv_nsec) * 1e-9;
}

template <class Action> double secondsOf(Action action)
{
    const double begin = processorSeconds();
    action();
    return processorSeconds() - begin;
}

/// Files of the run, made when a row first asks for them.
class CKvBenchFiles
{
public:
    QString path(const QString &name, const CKvBenchDrawing &drawing)
    {
        const QString path = m_folder.filePath(name);
        if (!QFile::exists(path) && !drawing.write(path)) {
            qFatal("can't write %s", qPrintable(path));
        }
        return path;
    }
    QString path(const QString &name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
};

CKvBenchFiles &files()
{
    static CKvBenchFiles s_files;
    return s_files;
}

QString drawingOf(int megabytes)
{
    CKvBenchDrawing drawing;
    drawing.entities = CKvBenchDrawing::entitiesForMegabytes(megabytes);
    return files().path(QStringLiteral("size-%1.dxf").arg(megabytes), drawing);
}

qint64 countLines(const QString &path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    const QByteArray bytes = file.readAll();
    qint64 lines = 0;
    const char *at = bytes.constData();
    const char *const end = at + bytes.size();
    while ((at = static_cast<const char *>(std::memchr(at, '\n', std::size_t(end - at))))) {
        ++lines;
        ++at;
    }
    return lines;
}

/// Reading the file and finding each line end with memchr: the shortest of five, once a run and
/// file.
double floorSeconds(const QString &path)
{
    static std::map<QString, double> s_known;
    double &known = s_known[path];
    if (known != 0) {
        return known;
    }
    for (int i = 0; i < 5; ++i) {
        const double seconds = secondsOf([&] { benchmark::DoNotOptimize(countLines(path)); });
        known = known == 0 ? seconds : std::min(known, seconds);
    }
    return known;
}

void report(benchmark::State &state, double seconds, const QString &path)
{
    const double mean = seconds / double(state.iterations());
    state.counters["floor_ms"] = 1000 * floorSeconds(path);
    state.counters["x_floor"] = mean / floorSeconds(path);
}

/// A plug-in with what it needs around it.
struct CKvBenchHost {
    CKvBenchHost()
    {
        CKvStdsError::rxInit();
        CKvStdsFix::rxInit();
    }
    ~CKvBenchHost()
    {
        CKvStdsError::rxUninit();
        CKvStdsFix::rxUninit();
    }
    CKvBenchHost(const CKvBenchHost &) = delete;
    CKvBenchHost &operator=(const CKvBenchHost &) = delete;

    int audit(const OdDbDatabasePtr &drawing, const QString &standards)
    {
        int found = 0;
        plugin.clear();
        plugin.setObjectsToCheck({}, /*scanAll*/ true);
        plugin.openStandards(drawing, CKvString(), {}, { CKvString(standards) });
        for (plugin.beginScan(nullptr); !plugin.isDone(); plugin.nextError()) {
            OdArray<CKvStdsFixPtr> fixes;
            std::int32_t recommended = -1;
            plugin.collectFixes(plugin.currentError(), fixes, recommended);
            errors.append(plugin.currentError());
            ++found;
        }
        return found;
    }
    CKvStandaloneServices services;
    CKvLayerPluginImpl plugin;
    OdArray<CKvStdsErrorPtr> errors;
};

QString standardsOf(int layers)
{
    CKvBenchDrawing standards;
    standards.layers = layers;
    standards.color = 3;
    return files().path(QStringLiteral("standards-%1.dxf").arg(layers), standards);
}

void floorOfAFile(benchmark::State &state)
{
    const QString path = drawingOf(int(state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(countLines(path));
    }
    state.counters["MB"] = double(QFile(path).size()) / 1e6;
}

void checkADrawing(benchmark::State &state)
{
    const QString path = drawingOf(int(state.range(0)));
    const QString standards = standardsOf(50);
    double seconds = 0;
    for (auto _ : state) {
        seconds += secondsOf([&] {
            CKvBenchHost host;
            host.audit(CKvDrawingFile::open(path, CKvFileImage::Holding::Mapped), standards);
        });
    }
    report(state, seconds, path);
}

void indexAllObjects(benchmark::State &state)
{
    const QString path = drawingOf(int(state.range(0)));
    double seconds = 0;
    for (auto _ : state) {
        seconds += secondsOf([&] {
            const OdDbDatabasePtr drawing =
                CKvDrawingFile::open(path, CKvFileImage::Holding::Mapped);
            const OdDbBlockTablePtr blocks(drawing->getBlockTableId().openObject());
            benchmark::DoNotOptimize(blocks->newIterator());
        });
    }
    report(state, seconds, path);
}

void mergeALayerAndSave(benchmark::State &state)
{
    CKvBenchDrawing kept;
    kept.layers = 1;
    kept.entities = int(state.range(0));
    kept.isOnOneLayer = true;
    const QString path = files().path(QStringLiteral("merge-%1.dxf").arg(kept.entities), kept);
    // The standard has layer 0 alone, so LAYER-1 is merged into it.
    const QString standards = standardsOf(0);
    double seconds = 0;
    for (auto _ : state) {
        seconds += secondsOf([&] {
            CKvBenchHost host;
            const OdDbDatabasePtr drawing =
                CKvDrawingFile::open(path, CKvFileImage::Holding::Mapped);
            host.audit(drawing, standards);
            CKvString message;
            for (const CKvStdsErrorPtr &error : host.errors) {
                OdArray<CKvStdsFixPtr> fixes;
                std::int32_t recommended = -1;
                host.plugin.collectFixes(error, fixes, recommended);
                host.plugin.applyFix(error, fixes.first(), message);
            }
            CKvDrawingFile::save(*drawing, files().path(QStringLiteral("merged.dxf")));
        });
    }
    report(state, seconds, path);
}

void auditOfWrongLayers(benchmark::State &state)
{
    CKvBenchDrawing drawing;
    drawing.layers = int(state.range(0));
    const QString path = files().path(QStringLiteral("layers-%1.dxf").arg(drawing.layers), drawing);
    const QString standards = standardsOf(drawing.layers);
    double seconds = 0;
    int found = 0;
    for (auto _ : state) {
        seconds += secondsOf([&] {
            CKvBenchHost host;
            found = host.audit(CKvDrawingFile::open(path), standards);
        });
    }
    state.counters["violations"] = found;
    state.counters["seconds"] = seconds / double(state.iterations());
}

/// What a process cost.
rusage runProcess(const std::string &program, std::vector<std::string> arguments)
{
    arguments.insert(arguments.begin(), program);
    std::vector<char *> words;
    for (std::string &argument : arguments) {
        words.push_back(argument.data());
    }
    words.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t child = 0;
    rusage usage {};
    if (posix_spawn(&child, program.c_str(), &actions, nullptr, words.data(), environ) == 0) {
        wait4(child, nullptr, 0, &usage);
    }
    posix_spawn_file_actions_destroy(&actions);
    return usage;
}

double secondsOf(const rusage &usage)
{
    const auto seconds = [](const timeval &time) {
        return double(time.tv_sec) + double(time.tv_usec) * 1e-6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

void startOfTheProgram(benchmark::State &state)
{
    CKvBenchDrawing small;
    small.entities = 10;
    const std::string path = files().path(QStringLiteral("small.dxf"), small).toStdString();
    const std::string standards = standardsOf(50).toStdString();
    double program = 0;
    double nothing = 0;
    for (auto _ : state) {
        program += secondsOf(runProcess(KV_PROGRAM, { "check", path, "-s", standards }));
        nothing += secondsOf(runProcess(KV_EMPTY_PROGRAM, {}));
    }
    state.counters["program_ms"] = 1000 * program / double(state.iterations());
    state.counters["empty_ms"] = 1000 * nothing / double(state.iterations());
    state.counters["x_empty"] = program / nothing;
}

/// Peak memory of a process in KiB; 0 when it can't be had.
long peakMemory(const std::string &arguments)
{
    const std::string command = std::string(KV_PEAK_MEMORY " " KV_PROGRAM " ") + arguments;
    FILE *const output = popen(command.c_str(), "r");
    if (output == nullptr) {
        return 0;
    }
    long peak = 0;
    if (std::fscanf(output, "%ld", &peak) != 1) {
        peak = 0;
    }
    pclose(output);
    return peak;
}

void memoryOfACheck(benchmark::State &state)
{
    const std::string path = drawingOf(int(state.range(0))).toStdString();
    const std::string standards = standardsOf(50).toStdString();
    long peak = 0;
    for (auto _ : state) {
        peak = peakMemory("check " + path + " -s " + standards);
    }
    state.counters["peak_MB"] = double(peak) / 1024;
}

BENCHMARK(floorOfAFile)->Arg(1)->Arg(10)->Arg(100)->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(checkADrawing)->Arg(1)->Arg(10)->Arg(100)->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(indexAllObjects)->Arg(1)->Arg(10)->Arg(100)->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(mergeALayerAndSave)
    ->Arg(10000)
    ->Arg(1000000)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(3);
BENCHMARK(auditOfWrongLayers)
    ->Arg(5000)
    ->Arg(10000)
    ->Arg(20000)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(3);
BENCHMARK(startOfTheProgram)->Unit(benchmark::kMillisecond)->Iterations(20);
BENCHMARK(memoryOfACheck)->Arg(1)->Arg(100)->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace
