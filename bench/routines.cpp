// What one call costs.
#include <benchmark/benchmark.h>

#include "common/fixed_width.h"
#include "correction/corr_points.h"
#include "correction/run_report.h"
#include "geodesy/angle_forms.h"
#include "geodesy/datum_shift.h"
#include "geodesy/transverse_mercator.h"
#include "sample_points.h"
#include "support/memory_disk.h"
#include "support/recording_messages.h"

namespace {

using namespace kelvo;
using testing::MemoryDisk;
using testing::RecordingMessages;

constexpr Ellipsoid kUserBessel{6377397.155, 299.1528128};
constexpr Projection kCentre{500000, 200000, 38, 127, 1};
constexpr std::size_t kPlaces = 1024;

// Runs `call` with one of the places after the other.
template <class Call>
void forEachPlace(benchmark::State& state, Call call) {
    const auto all = bench::places(kPlaces);
    std::size_t i = 0;
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(call(all[i]));
        i = (i + 1) % kPlaces;
    }
}

void GeoToTM(benchmark::State& state) {
    RecordingMessages messages;
    forEachPlace(state, [&](const bench::Place& p) {
        return KelvoSub::GeoToTM(p.Phi, p.Lam, kUserBessel, kCentre, messages);
    });
}
BENCHMARK(GeoToTM);

void TMToGeo(benchmark::State& state) {
    RecordingMessages messages;
    forEachPlace(state, [&](const bench::Place& p) {
        return KelvoSub::TMToGeo((p.Phi - 33) * 111000, (p.Lam - 125) * 88000, kUserBessel, kCentre,
                                 messages);
    });
}
BENCHMARK(TMToGeo);

void XYZToGeo(benchmark::State& state) {
    RecordingMessages messages;
    std::vector<Geocentric> points;
    for (const auto& p : bench::places(kPlaces)) {
        points.push_back(KelvoSub::GeoToXYZ(p.Phi, p.Lam, p.h, kWgs84));
    }
    std::size_t i = 0;
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(KelvoSub::XYZToGeo(points[i], kUserBessel, messages));
        i = (i + 1) % kPlaces;
    }
}
BENCHMARK(XYZToGeo);

void FormatNum(benchmark::State& state) {
    std::string line;
    forEachPlace(state, [&](const bench::Place& p) {
        line.clear();
        genSub::appendFormatNum(line, p.h * 1000, 12, 6);
        return line.data();
    });
}
BENCHMARK(FormatNum);

void AngleText(benchmark::State& state) {
    RecordingMessages messages;
    std::string line;
    const int form = static_cast<int>(state.range(0));
    forEachPlace(state, [&](const bench::Place& p) {
        line.clear();
        KelvoSub::appendAngleText(line, p.Lam, form, messages);
        return line.data();
    });
}
BENCHMARK(AngleText)->ArgName("form")->DenseRange(1, 4);

void findCorr(benchmark::State& state) {
    RecordingMessages messages;
    MemoryDisk disk;
    disk.putText("/kelvo.cor", bench::knownPoints(static_cast<int>(state.range(0))));
    ConversionState conversion;
    TransPara para;
    para.a = kUserBessel.a;
    para.f = kUserBessel.f;
    para.CorrFlag = 1;
    TextWriter out(disk, "/out");
    TextWriter det(disk, "/det");
    PrintRunHeader(conversion, {.out = out, .det = det, .CorPath = "/kelvo.cor"}, 1, 3, para, disk,
                   messages);
    forEachPlace(state, [&](const bench::Place& p) {
        return kelvo::findCorr(conversion, det, p.Phi, p.Lam, 3, 1, 1, messages);
    });
}
BENCHMARK(findCorr)->ArgName("known")->Arg(10)->Arg(200);

}  // namespace
