// FormatNum step by step, on the platform's decimal formatter: what the fast one is
// held against. Slow on purpose; shares no line with src/.
#pragma once

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace kelvo::reference {

// The fifteen significant digits of |value| laid out as "iii.ddd", with `decimals` decimals,
// rounded half away from zero on that decimal text.
inline std::string roundedText(double value, int decimals) {
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.14e", std::fabs(value));
    const std::string scientific = buffer;  // d.dddddddddddddde+xx
    const std::string digits = scientific.substr(0, 1) + scientific.substr(2, 14);
    const int exponent = std::atoi(scientific.c_str() + scientific.find('e') + 1);

    std::string whole;
    std::string fraction;
    if (exponent < 0) {
        fraction = std::string(static_cast<std::size_t>(-exponent - 1), '0') + digits;
    } else if (exponent >= 14) {
        whole = digits + std::string(static_cast<std::size_t>(exponent - 14), '0');
    } else {
        whole = digits.substr(0, static_cast<std::size_t>(exponent) + 1);
        fraction = digits.substr(static_cast<std::size_t>(exponent) + 1);
    }
    const auto places = static_cast<std::size_t>(decimals);
    fraction.resize(fraction.size() > places ? fraction.size() : places, '0');
    const bool up = fraction.size() > places && fraction[places] >= '5';
    std::string all = whole + fraction.substr(0, places);
    if (up) {
        std::size_t at = all.size();
        while (at > 0 && all[at - 1] == '9') all[--at] = '0';
        if (at > 0) {
            ++all[at - 1];
        } else {
            all.insert(0, "1");
        }
    }
    std::string integer = all.substr(0, all.size() - places);
    while (!integer.empty() && integer.front() == '0') integer.erase(0, 1);
    std::string text = integer;
    if (decimals > 0) text += "." + all.substr(all.size() - places);
    return text;
}

inline std::string FormatNum(double value, int width, int decimals) {
    const auto mask = static_cast<std::size_t>(width);
    std::string text = roundedText(value, decimals);
    std::size_t integerPlaces = text.find('.');
    if (integerPlaces == std::string::npos) integerPlaces = text.size();
    if (integerPlaces < mask) text.insert(0, mask - integerPlaces, '0');
    if (value < 0) text.insert(0, "-");

    if (std::strtod(text.c_str(), nullptr) >= 0) {
        for (std::size_t i = 1; i + 1 <= mask; ++i) {
            if (text[i - 1] != '0') break;
            text[i - 1] = ' ';
        }
        return text;
    }
    text[0] = ' ';
    std::size_t i = 2;
    for (; i <= mask; ++i) {
        if (text[i - 1] != '0') break;
        text[i - 1] = ' ';
    }
    text[i - 2] = '-';
    return text.substr(1);
}

}  // namespace kelvo::reference
