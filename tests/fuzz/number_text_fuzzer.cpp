// FormatNum, AngleText and the general text of a number against their plain transcriptions.
#include <cmath>
#include <cstring>

#include "common/fixed_width.h"
#include "common/number_text.h"
#include "common/run_time_fault.h"
#include "fuzz/fuzz_target.h"
#include "geodesy/angle_forms.h"
#include "reference/angle_forms.h"

namespace kelvo::fuzz {

std::span<const std::string_view> knownLines() {
    return {};
}

namespace {

// Takes the input apart: small numbers, and doubles in several disguises, so that the values
// that people write come up as often as bit patterns.
class Input {
public:
    Input(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}

    [[nodiscard]] bool atEnd() const { return size_ == 0; }

    unsigned byte() {
        if (size_ == 0) return 0;
        --size_;
        return *data_++;
    }
    std::uint64_t bits(int bytes) {
        std::uint64_t all = 0;
        for (int i = 0; i < bytes; ++i) all = all << 8U | byte();
        return all;
    }
    double number() {
        const unsigned way = byte();
        const double sign = (way & 1U) != 0 ? -1 : 1;
        const auto power = static_cast<double>(byte() % 40) - 20;
        switch (way / 2 % 5) {
            case 0: {
                const std::uint64_t pattern = bits(8);
                double value = 0;
                std::memcpy(&value, &pattern, sizeof value);
                return value;
            }
            case 1:  // a short decimal, and one behind a tie
                return sign * static_cast<double>(bits(4)) * std::pow(10.0, power);
            case 2:
                return sign * (static_cast<double>(bits(4)) * 10 + 5) * std::pow(10.0, power);
            case 3:  // next to one
                return std::nextafter(sign * static_cast<double>(bits(5)) * std::pow(10.0, power),
                                      (way & 64U) != 0 ? 1e300 : -1e300);
            default:  // degrees, minutes and seconds, a hair off
                return sign * (static_cast<double>(byte()) + static_cast<double>(byte() % 61) / 60 +
                               (static_cast<double>(byte() % 62) - power * 1e-9) / 3600);
        }
    }

private:
    const std::uint8_t* data_;
    std::size_t size_;
};

// The general text by its words: 15 digits, without exponent where it fits into 15.
std::string plainGeneralText(double value) {
    if (value == 0) return "0";
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.14e", std::fabs(value));
    const std::string scientific = buffer;
    std::string digits = scientific.substr(0, 1) + scientific.substr(2, 14);
    while (digits.back() == '0') digits.pop_back();
    const int exponent = std::atoi(scientific.c_str() + scientific.find('e') + 1);
    const auto count = static_cast<int>(digits.size());
    const std::string sign = value < 0 ? "-" : "";
    if (exponent >= 15 || count - 1 - exponent > 15) {
        std::snprintf(buffer, sizeof buffer, "E%c%02d", exponent < 0 ? '-' : '+',
                      std::abs(exponent));
        return sign + digits.substr(0, 1) + (count > 1 ? "." + digits.substr(1) : "") + buffer;
    }
    if (exponent < 0)
        return sign + "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + digits;
    if (count <= exponent + 1)
        return sign + digits + std::string(static_cast<std::size_t>(exponent + 1 - count), '0');
    digits.insert(static_cast<std::size_t>(exponent) + 1, ".");
    return sign + digits;
}

// Put into words only for a promise that was broken.
struct Place {
    double value;
    int first = 0;
    int second = 0;

    operator std::string() const {
        char buffer[96];
        std::snprintf(buffer, sizeof buffer, "%a (%.17g) in %d.%d", value, value, first, second);
        return buffer;
    }
};

void checkFormatNum(double value, int width, int decimals) {
    const std::string found = genSub::FormatNum(value, width, decimals);
    const std::string plain = reference::FormatNum(value, width, decimals);
    require(found == plain, "FormatNum of ", Place{value, width, decimals}, " is |", plain,
            "|, not |", found, "|");
}

void checkAngleText(double value, int form) {
    const double degrees = std::floor(std::fabs(value));
    try {
        const std::string found = KelvoSub::AngleText(value, AngleForm{form});
        require(degrees <= 32767, "degrees beyond 16 bits are a fault");
        require(found == reference::AngleText(value, form), "AngleText of ", Place{value, form},
                " is |", reference::AngleText(value, form), "|, not |", found, "|");
        require(KelvoSub::SplitDeg(std::fabs(value)).rebuilds,
                "the split of a magnitude rebuilds it: ", Place{value, form});
    } catch (const RuntimeFault& fault) {
        require(fault.fault() == Fault::Overflow && degrees >= 32767,
                "only degrees beyond 16 bits are a fault: ", Place{value, form});
    }
}

void checkAngleForms(double value) {
    try {
        require(KelvoSub::DmsToDeg(value).degrees == reference::DmsToDeg(value), "DmsToDeg of ",
                Place{value});
    } catch (const RuntimeFault& fault) {
        require(fault.fault() == Fault::Overflow, "an overflow is the only fault");
    }
}

}  // namespace
}  // namespace kelvo::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace kelvo;
    using namespace kelvo::fuzz;
    Input input(data, size);
    while (!input.atEnd()) {
        const int width = static_cast<int>(input.byte() % 24) + 1;
        const int decimals = static_cast<int>(input.byte() % 24);
        const int form = static_cast<int>(input.byte() % 6);
        const double value = input.number();
        if (!std::isfinite(value)) continue;
        checkFormatNum(value, width, decimals);
        checkAngleText(value, form);
        checkAngleForms(value);
        require(generalText(value) == plainGeneralText(value), "general text of ", Place{value},
                ": ", generalText(value));
        // Fifteen digits of the very largest doubles are rounded up beyond them.
        const double back = std::strtod(plainGeneralText(value).c_str(), nullptr);
        if (!std::isfinite(back)) continue;
        require(leadingNumber(generalText(value)) == back,
                "a general text is read back: ", Place{value});
    }
    return 0;
}
