// What DIST costs: as many pairs as there are points. The cost of a pair must not grow with the
// points, or the sum grows with their square.
#include <benchmark/benchmark.h>

#include "batch/run_batch.h"
#include "sample_points.h"
#include "support/memory_disk.h"
#include "support/recording_messages.h"

namespace {

using namespace kelvo;

// Each point to the one as far from the other end of the file, by the names of dataFile().
std::string withDistances(std::size_t count) {
    std::string text = bench::dataFile(count, false);
    text.resize(text.rfind("end"));
    const char* lead = "DIST";
    for (std::size_t i = 1; i <= count; ++i) {
        char line[48];
        std::snprintf(line, sizeof line, "%s   P%05zu   P%05zu\r\n", lead, i, count + 1 - i);
        text += line;
        lead = "    ";
    }
    return text + "end\r\n\r\n";
}

void Distances(benchmark::State& state) {
    const auto count = static_cast<std::size_t>(state.range(0));
    testing::MemoryDisk disk;
    testing::RecordingMessages messages;
    disk.putText("/a.dat", withDistances(count));
    ConversionState conversion;
    RunView noScreen;
    for ([[maybe_unused]] auto _ : state) {
        RunBatch(conversion, {"/a.dat", "/kelvo.det", "/kelvo.cor"}, noScreen, disk, messages);
    }
    state.SetComplexityN(state.range(0));
    state.counters["pairs/s"] = benchmark::Counter(static_cast<double>(count),
                                                   benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK(Distances)->Arg(1000)->Arg(3000)->Arg(10000)->Complexity()->Unit(benchmark::kMillisecond);

}  // namespace
