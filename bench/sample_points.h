// The points of all measurements: spread over the country, the same in every run.
#pragma once

#include <cstdio>
#include <random>
#include <string>
#include <vector>

namespace kelvo::bench {

struct Place {
    double Phi = 0;
    double Lam = 0;
    double h = 0;
};

inline std::vector<Place> places(std::size_t count) {
    std::mt19937_64 random(20040607);
    std::uniform_real_distribution<double> latitude(33.5, 38.5);
    std::uniform_real_distribution<double> longitude(124.7, 131.8);
    std::uniform_real_distribution<double> height(5, 1500);
    std::vector<Place> result(count);
    for (Place& place : result) place = {latitude(random), longitude(random), height(random)};
    return result;
}

// A data file with one WGS block of that many points.
inline std::string dataFile(std::size_t count, bool corrected) {
    std::string text = corrected ? "CORRECTION\r\nINPUT deg\r\n" : "INPUT deg\r\n";
    const char* lead = "WGS";
    std::size_t number = 0;
    for (const Place& place : places(count)) {
        char line[96];
        std::snprintf(line, sizeof line, "%s    P%05zu  %.10f  %.10f  %.4f\r\n", lead, ++number,
                      place.Phi, place.Lam, place.h);
        text += line;
        lead = "   ";
    }
    return text + "end\r\n\r\n";
}

// A file of known points on a lattice that no point of places() falls on.
inline std::string knownPoints(int count) {
    std::string text;
    for (int i = 0; i < count; ++i) {
        char line[128];
        const int minute = i % 20 * 3;
        const int degree = 124 + i / 20 % 8;
        const int latitude = 33 + i % 6;
        std::snprintf(
            line, sizeof line,
            "K%03d  %d.%02d1500  %d.%02d2000  50.25  %d.%02d0512  %d.%02d2765  62.5  1\r\n", i,
            latitude, minute, degree, minute, latitude, minute, degree, minute);
        text += line;
    }
    return text + "*\r\n*\r\n";
}

}  // namespace kelvo::bench
