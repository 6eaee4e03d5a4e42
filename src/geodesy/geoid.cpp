#include "geodesy/geoid.h"

#include <cmath>

#include "common/checked_arithmetic.h"

namespace kelvo::KelvoSub {

namespace {

struct StoredRow {
    double latitude;
    double longitude;
    double besselHeight;
    double wgsHeight;
    double weight;
};

// Heights of the geoid above Bessel and above WGS84, metres, at the whole degrees of the
// mainland; the border of the grid has the greater weights.
constexpr std::array<StoredRow, 25> kStoredRows{{
    {34, 126, -50, 24.5, 3}, {35, 126, -55, 23.8, 2}, {36, 126, -60, 23.3, 2},
    {37, 126, -64, 22.7, 2}, {38, 126, -65, 22.9, 3}, {34, 127, -46, 26.2, 2},
    {35, 127, -49, 26.0, 1}, {36, 127, -56, 25.0, 1}, {37, 127, -63, 24.0, 1},
    {38, 127, -65, 23.8, 2}, {34, 128, -43, 27.8, 2}, {35, 128, -45, 28.5, 1},
    {36, 128, -52, 28.0, 1}, {37, 128, -58, 27.0, 1}, {38, 128, -62, 25.8, 2},
    {34, 129, -42, 28.8, 2}, {35, 129, -42, 29.3, 1}, {36, 129, -47, 29.7, 1},
    {37, 129, -52, 28.8, 1}, {38, 129, -60, 27.0, 2}, {34, 130, -42, 29.3, 3},
    {35, 130, -42, 29.4, 2}, {36, 130, -44, 29.4, 2}, {37, 130, -48, 28.9, 2},
    {38, 130, -53, 27.8, 3},
}};

// Only the rows of the meridians 126 to 128 are read; the two eastern ones are stored and have no
// influence: required.
constexpr std::size_t kRowsRead = 15;

struct WeightedSums {
    double heights = 0;
    double weights = 0;
};

// Inverse-square-distance sums, distances in plain degrees.
WeightedSums sumsAt(const GeoidTable& table, double Phi, double Lam) {
    WeightedSums sums;
    for (std::size_t i = 1; i <= kRowsRead; ++i) {
        const GeoidTable::Row& row = table.rows[i];
        const double east = Lam - row.longitude;
        const double north = Phi - row.latitude;
        double d = squareRoot(east * east + north * north);
        if (d == 0) d = 1e-05;
        const double d2 = d * d;
        sums.heights += quotient(row.height * row.weight, d2);
        sums.weights += quotient(row.weight, d2);
    }
    return sums;
}

}  // namespace

void fillGeoidTables(GeoidTables& tables) {
    for (std::size_t i = 0; i < kStoredRows.size(); ++i) {
        const StoredRow& stored = kStoredRows[i];
        tables.bessel.rows[i + 1] = {stored.latitude, stored.longitude, stored.besselHeight,
                                     stored.weight};
        tables.wgs.rows[i + 1] = {stored.latitude, stored.longitude, stored.wgsHeight,
                                  stored.weight};
    }
}

double GeoidHeight(const GeoidTables& tables, double Phi, double Lam) {
    const WeightedSums sums = sumsAt(tables.wgs, Phi, Lam);
    return quotient(sums.heights, sums.weights);
}

double GeoidHeightBessel(const GeoidTables& tables, double Phi, double Lam) {
    WeightedSums sums = sumsAt(tables.bessel, Phi, Lam);
    if (sums.weights == 0) sums.weights = 1;
    return quotient(sums.heights, sums.weights);
}

}  // namespace kelvo::KelvoSub
