// The approximate geoid above Bessel, term by term. Shares no line with src/.
#pragma once

#include <cmath>

namespace kelvo::reference {

inline constexpr double kGeoidBessel[15][4] = {
    {34, 126, -50, 3}, {35, 126, -55, 2}, {36, 126, -60, 2}, {37, 126, -64, 2}, {38, 126, -65, 3},
    {34, 127, -46, 2}, {35, 127, -49, 1}, {36, 127, -56, 1}, {37, 127, -63, 1}, {38, 127, -65, 2},
    {34, 128, -43, 2}, {35, 128, -45, 1}, {36, 128, -52, 1}, {37, 128, -58, 1}, {38, 128, -62, 2},
};

inline double GeoidHeightBessel(double Phi, double Lam) {
    double sum1 = 0;
    double sum2 = 0;
    for (const auto& row : kGeoidBessel) {
        double d = std::sqrt(std::pow(Lam - row[1], 2) + std::pow(Phi - row[0], 2));
        if (d == 0) d = 1e-05;
        sum1 = sum1 + (row[2] * row[3]) / std::pow(d, 2);
        sum2 = sum2 + row[3] / std::pow(d, 2);
    }
    return sum1 / sum2;
}

}  // namespace kelvo::reference
