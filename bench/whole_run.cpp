// What a whole run costs, on a disk in memory, and what the check of its data file does.
#include <benchmark/benchmark.h>

#include "batch/check_data_file.h"
#include "batch/run_batch.h"
#include "sample_points.h"
#include "support/memory_disk.h"
#include "support/recording_messages.h"

namespace {

using namespace kelvo;

void wholeRun(benchmark::State& state, int known) {
    const auto count = static_cast<std::size_t>(state.range(0));
    testing::MemoryDisk disk;
    testing::RecordingMessages messages;
    disk.putText("/a.dat", bench::dataFile(count, known > 0));
    disk.putText("/kelvo.cor", bench::knownPoints(known));
    ConversionState conversion;
    RunView noScreen;
    for ([[maybe_unused]] auto _ : state) {
        RunBatch(conversion, {"/a.dat", "/kelvo.det", "/kelvo.cor"}, noScreen, disk, messages);
    }
    state.SetComplexityN(state.range(0));
    state.counters["points/s"] = benchmark::Counter(static_cast<double>(count),
                                                    benchmark::Counter::kIsIterationInvariantRate);
}

void WholeRun(benchmark::State& state) {
    wholeRun(state, 0);
}
BENCHMARK(WholeRun)->Arg(100)->Arg(1000)->Arg(10000)->Complexity()->Unit(benchmark::kMillisecond);

void WholeRunCorrectedBy200(benchmark::State& state) {
    wholeRun(state, 200);
}
BENCHMARK(WholeRunCorrectedBy200)
    ->Arg(100)
    ->Arg(1000)
    ->Arg(10000)
    ->Complexity()
    ->Unit(benchmark::kMillisecond);

void check(benchmark::State& state, int known) {
    const auto count = static_cast<std::size_t>(state.range(0));
    const std::string data = bench::dataFile(count, known > 0);
    const KnownPointsFile file{.path = "kelvo.cor", .text = bench::knownPoints(known)};
    for ([[maybe_unused]] auto _ : state) benchmark::DoNotOptimize(checkDataFile(data, file));
    state.SetComplexityN(state.range(0));
    state.counters["points/s"] = benchmark::Counter(static_cast<double>(count),
                                                    benchmark::Counter::kIsIterationInvariantRate);
}

void Check(benchmark::State& state) {
    check(state, 0);
}
BENCHMARK(Check)->Arg(100)->Arg(1000)->Arg(10000)->Complexity()->Unit(benchmark::kMillisecond);

void CheckCorrectedBy200(benchmark::State& state) {
    check(state, 200);
}
BENCHMARK(CheckCorrectedBy200)
    ->Arg(100)
    ->Arg(1000)
    ->Arg(10000)
    ->Complexity()
    ->Unit(benchmark::kMillisecond);

}  // namespace
