// Many points by threads that share one converter.
#include <kelvo/converter.h>

#include <cstdio>
#include <span>
#include <thread>
#include <vector>

int main() {
    const kelvo::Converter converter({.parameters = "zone 2\nadd 1\n"});
    std::vector<kelvo::Given> given;
    for (int i = 0; i < 10000; ++i) given.push_back({37.0 + i * 1e-4, 127.0, 50.0});
    std::vector<kelvo::Point> points(given.size());

    const std::size_t half = given.size() / 2;
    const auto convert = [&](std::size_t first, std::size_t count) {
        converter.convert(kelvo::System::Wgs, std::span(given).subspan(first, count),
                          std::span(points).subspan(first, count));
    };
    std::thread other(convert, 0, half);
    convert(half, given.size() - half);
    other.join();
    std::printf("%.6f %.6f %.4f\n", points[5000].tm_x, points[5000].tm_y, points[5000].tm_h);
}
