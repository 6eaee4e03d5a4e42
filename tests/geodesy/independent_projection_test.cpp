// The series against a transverse Mercator of another kind: the exact one after Poder and
// Engsager, as the program `proj` of the PROJ package computes it. Skipped where that is missing.
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "geodesy/transverse_mercator.h"
#include "support/guarded.h"
#include "support/program.h"

namespace kelvo {
namespace {

using testing::good;

std::string projProgram() {
    const char* path = std::getenv("PATH");
    std::istringstream folders(path == nullptr ? "" : path);
    for (std::string folder; std::getline(folders, folder, ':');)
        if (access((folder + "/proj").c_str(), X_OK) == 0) return folder + "/proj";
    return {};
}

constexpr const char* kMissing =
    "the program `proj` isn't installed (Debian: proj-bin); nothing was compared";

struct Grid {
    Ellipsoid ellipsoid;
    Projection projection;
};

const Grid kGrids[] = {{kBessel, {500000, 200000, 38, 127, 1}},
                       {kBessel, {500000, 200000, 38, 129 + 10.405 / 3600, 1}},
                       {{6377397.155, 299.1528128}, {550000, 200000, 38, 127, 1}},
                       {{6378137.0, 298.257223563}, {0, 500000, 0, 129, 0.9996}}};

// Pairs of numbers through proj; forward takes longitude and latitude and gives easting and
// northing, the other way the reverse.
using Pairs = std::vector<std::pair<double, double>>;

Pairs throughProj(const Grid& grid, const Pairs& input, bool inverse) {
    double f = grid.ellipsoid.f;
    KelvoSub::NormFlat(f);
    const auto option = [](const char* name, double value) {
        char text[64];
        std::snprintf(text, sizeof text, "+%s=%.17g", name, value);
        return std::string(text);
    };
    const Projection& p = grid.projection;
    testing::ProgramCall call;
    call.arguments = {projProgram(), "-f", "%.13f"};
    if (inverse) call.arguments.insert(call.arguments.begin() + 1, "-I");
    for (const std::string& each :
         {std::string("+proj=tmerc"), std::string("+algo=poder_engsager"),
          option("a", grid.ellipsoid.a), option("f", f), option("lat_0", p.Phi0),
          option("lon_0", p.Lam0), option("k_0", p.S0), option("x_0", p.Y0), option("y_0", p.X0)})
        call.arguments.push_back(each);
    for (const auto& [first, second] : input) {
        char line[80];
        std::snprintf(line, sizeof line, "%.17g %.17g\n", first, second);
        call.input += line;
    }
    call.environment = {"LC_ALL=C"};
    const testing::ProgramRun run = testing::runProgram(call);
    EXPECT_EQ(run.exitCode, 0) << run.err;
    Pairs result;
    std::istringstream lines(run.out);
    for (double first = 0, second = 0; lines >> first >> second;)
        result.emplace_back(first, second);
    return result;
}

struct Sample {
    Pairs lonLat;
    std::vector<GridPoint> found;
};

Sample sampleOf(const Grid& grid, double south, double north, double mostAway, int count) {
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> latitude(south, north);
    std::uniform_real_distribution<double> away(-mostAway, mostAway);
    Sample sample;
    for (int i = 0; i < count; ++i) {
        const double Phi = latitude(random);
        const double Lam = grid.projection.Lam0 + away(random);
        sample.lonLat.emplace_back(Lam, Phi);
        sample.found.push_back(good(KelvoSub::GeoToTM(Phi, Lam, grid.ellipsoid, grid.projection)));
    }
    return sample;
}

TEST(IndependentProjection, GeoToTMAgreesToItsNamedErrorWithinItsNamedWidth) {
    if (projProgram().empty()) GTEST_SKIP() << kMissing;
    double most = 0;
    for (const Grid& grid : kGrids) {
        const Sample sample = sampleOf(grid, 0, 80, kSeriesWidth, 10000);
        const Pairs exact = throughProj(grid, sample.lonLat, false);
        ASSERT_EQ(exact.size(), sample.found.size());
        for (std::size_t i = 0; i < exact.size(); ++i) {
            const double off =
                std::hypot(sample.found[i].X - exact[i].second, sample.found[i].Y - exact[i].first);
            ASSERT_LE(off, kSeriesError)
                << sample.lonLat[i].second << ' ' << sample.lonLat[i].first;
            most = std::max(most, off);
        }
    }
    std::printf("GeoToTM within 3 degrees, latitudes 0 to 80: at most %.5f mm off\n", most * 1e3);
}

TEST(IndependentProjection, TMToGeoAgreesToItsNamedErrorWithinItsNamedWidth) {
    if (projProgram().empty()) GTEST_SKIP() << kMissing;
    double most = 0;
    for (const Grid& grid : kGrids) {
        const Sample sample = sampleOf(grid, 0, 80, kSeriesWidth, 10000);
        Pairs eastNorth;
        for (const GridPoint& point : sample.found) eastNorth.emplace_back(point.Y, point.X);
        const Pairs exact = throughProj(grid, eastNorth, true);
        ASSERT_EQ(exact.size(), sample.found.size());
        for (std::size_t i = 0; i < exact.size(); ++i) {
            const Position back = good(KelvoSub::TMToGeo(sample.found[i].X, sample.found[i].Y,
                                                         grid.ellipsoid, grid.projection));
            const double parallel = std::cos(back.Phi * KelvoSub::degreeToRadian());
            const double off =
                std::hypot(back.Phi - exact[i].second, (back.Lam - exact[i].first) * parallel) *
                111700;
            ASSERT_LE(off, kSeriesError)
                << sample.lonLat[i].second << ' ' << sample.lonLat[i].first;
            most = std::max(most, off);
        }
    }
    std::printf("TMToGeo within 3 degrees, latitudes 0 to 80: at most %.5f mm off\n", most * 1e3);
}

// Beyond its three degrees the series is not wrong, it ends; the table shows where that matters.
TEST(IndependentProjection, BeyondThreeDegreesTheSeriesStaysWithinAMillimetreUpToSix) {
    if (projProgram().empty()) GTEST_SKIP() << kMissing;
    const Grid& grid = kGrids[0];
    std::printf("GeoToTM off by, in mm; longitude from the meridian in degrees\n");
    std::printf("latitude        3        4        6        8       10       15\n");
    for (const double Phi : {0.0, 20.0, 33.0, 37.0, 43.0, 60.0, 75.0, 85.0}) {
        Pairs lonLat;
        std::vector<GridPoint> found;
        for (const double away : {3.0, 4.0, 6.0, 8.0, 10.0, 15.0}) {
            const double Lam = grid.projection.Lam0 + away;
            lonLat.emplace_back(Lam, Phi);
            found.push_back(good(KelvoSub::GeoToTM(Phi, Lam, grid.ellipsoid, grid.projection)));
        }
        const Pairs exact = throughProj(grid, lonLat, false);
        ASSERT_EQ(exact.size(), found.size());
        std::printf("%8.0f", Phi);
        for (std::size_t i = 0; i < exact.size(); ++i) {
            const double off =
                std::hypot(found[i].X - exact[i].second, found[i].Y - exact[i].first);
            std::printf(" %8.3f", off * 1e3);
            // Six degrees reach across a neighbouring zone.
            if (Phi >= 33 && i <= 2) {
                EXPECT_LE(off, 1e-3) << Phi << ' ' << lonLat[i].first;
            }
        }
        std::printf("\n");
    }
}

}  // namespace
}  // namespace kelvo
