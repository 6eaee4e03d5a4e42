// Whole powers of a number, each rounded once.
#pragma once

#include <array>
#include <cmath>
#include <cstddef>

namespace kelvo {

// A number as the exact sum of two doubles.
struct DoublePair {
    double high = 0;
    double low = 0;
};

// The exact product of two doubles (Veltkamp's splitting, Dekker's product: T. J. Dekker, A
// floating-point technique for extending the available precision, 1971).
[[nodiscard]] inline DoublePair exactProduct(double x, double y) {
    constexpr double kSplit = 134217729.0;  // 2^27 + 1
    const double xTop = x * kSplit - (x * kSplit - x);
    const double yTop = y * kSplit - (y * kSplit - y);
    const double xRest = x - xTop;
    const double yRest = y - yTop;
    const double product = x * y;
    return {.high = product,
            .low = ((xTop * yTop - product) + xTop * yRest + xRest * yTop) + xRest * yRest};
}

// The powers of x up to `most`; p(k) is x to the power k. Each is carried in two doubles and
// rounded once at the end, so it is the double nearest to the true power on every machine, which
// the pow of a C library is not quite and not everywhere alike.
template <int most>
class Powers {
public:
    explicit Powers(double x) {
        powers_[0] = 1;
        powers_[1] = x;
        DoublePair power{.high = x, .low = 0};
        for (int k = 2; k <= most; ++k) {
            const DoublePair next = exactProduct(power.high, x);
            power = {.high = next.high, .low = next.low + power.low * x};
            powers_[static_cast<std::size_t>(k)] = power.high + power.low;
        }
        // The splitting overflows before the powers do.
        if (!std::isfinite(powers_[most]))
            for (int k = 2; k <= most; ++k) powers_[static_cast<std::size_t>(k)] = std::pow(x, k);
    }

    [[nodiscard]] double operator()(int k) const { return powers_[static_cast<std::size_t>(k)]; }

private:
    std::array<double, most + 1> powers_;
};

}  // namespace kelvo
