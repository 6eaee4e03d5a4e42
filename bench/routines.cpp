// What one call costs.
#include <benchmark/benchmark.h>

#include <random>
#include <vector>

#include "common/fixed_width.h"
#include "conversion/converter.h"
#include "correction/find_corr.h"
#include "geodesy/angle_forms.h"
#include "geodesy/datum_shift.h"
#include "geodesy/side_by_side.h"
#include "geodesy/transverse_mercator.h"
#include "sample_points.h"

namespace {

using namespace kelvo;

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
    forEachPlace(state, [&](const bench::Place& p) {
        return KelvoSub::GeoToTM(p.Phi, p.Lam, kUserBessel, kCentre).value;
    });
}
BENCHMARK(GeoToTM);

void TMToGeo(benchmark::State& state) {
    forEachPlace(state, [&](const bench::Place& p) {
        return KelvoSub::TMToGeo((p.Phi - 33) * 111000, (p.Lam - 125) * 88000, kUserBessel, kCentre)
            .value;
    });
}
BENCHMARK(TMToGeo);

void XYZToGeo(benchmark::State& state) {
    std::vector<Geocentric> points;
    for (const auto& p : bench::places(kPlaces)) {
        points.push_back(KelvoSub::GeoToXYZ(p.Phi, p.Lam, p.h, kWgs84));
    }
    std::size_t i = 0;
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(KelvoSub::XYZToGeo(points[i], kUserBessel).value);
        i = (i + 1) % kPlaces;
    }
}
BENCHMARK(XYZToGeo);

void XYZToGeoSideBySide(benchmark::State& state) {
    std::vector<Geocentric> points;
    for (const auto& p : bench::places(64))
        points.push_back(KelvoSub::GeoToXYZ(p.Phi, p.Lam, p.h, kWgs84));
    std::vector<Guarded<Geographic>> results(points.size());
    for ([[maybe_unused]] auto _ : state) {
        KelvoSub::XYZToGeo(points, kUserBessel, results);
        benchmark::DoNotOptimize(results.data());
    }
    state.SetItemsProcessed(state.iterations() * 64);
}
BENCHMARK(XYZToGeoSideBySide);

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
    std::string line;
    const auto form = AngleForm{static_cast<int>(state.range(0))};
    forEachPlace(state, [&](const bench::Place& p) {
        line.clear();
        KelvoSub::appendAngleText(line, p.Lam, form);
        return line.data();
    });
}
BENCHMARK(AngleText)->ArgName("form")->DenseRange(1, 4);

// With 64 positions at once, as a run asks for them.
void findCorrections(benchmark::State& state) {
    std::vector<CorrPoint> known;
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> off(-1e-4, 1e-4);
    for (const bench::Place& p : bench::places(static_cast<std::size_t>(state.range(0)))) {
        CorrPoint& point = known.emplace_back();
        point.WgsPhi = p.Phi + 0.01;
        point.WgsLam = p.Lam;
        point.Weight = 1;
        point.DPhi = point.DLam = point.DH = off(random);
    }
    std::vector<Position> positions;
    for (const bench::Place& p : bench::places(64)) positions.push_back({p.Phi, p.Lam});
    std::vector<FoundCorrection> found(positions.size());
    for ([[maybe_unused]] auto _ : state) {
        findCorr(known, positions, found);
        benchmark::DoNotOptimize(found.data());
    }
    state.SetItemsProcessed(state.iterations() * 64);
}
BENCHMARK(findCorrections)->ArgName("known")->Arg(10)->Arg(200);

// The whole way, 64 points at once.
void convert(benchmark::State& state) {
    Definition definition;
    definition.local.user = kUserBessel;
    KelvoSub::SetDatumPara(definition.local.datum, kRecommendedShift, ShiftKind::Molodensky);
    definition.tm = originOf(TmZone::Centre);
    definition.Zone = TmZone::Centre;
    definition.utm = {kUserBessel, originOf(UtmZone::East)};
    const Converter converter(definition);
    std::vector<GivenPoint> given;
    for (const bench::Place& p : bench::places(64)) given.push_back({p.Phi, p.Lam, p.h});
    std::vector<ConvertedPoint> points(given.size());
    Outcomes outcomes;
    for ([[maybe_unused]] auto _ : state) {
        converter.convert(System::Wgs, AngleForm::Degrees, given, points, outcomes);
        benchmark::DoNotOptimize(points.data());
    }
    state.SetItemsProcessed(state.iterations() * 64);
}
BENCHMARK(convert);

}  // namespace
