// kelvo_engine FILE ROUNDS   converts the points of FILE (three numbers a point, as doubles: first
//                            all latitudes, then longitudes, then heights) ROUNDS times by the C++
//                            interface and prints the seconds that each round took.
//
// What bench/compare_python holds the Python module against: results in memory that is asked for
// within the time, as the module's are.
#include <kelvo/converter.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <span>
#include <vector>

namespace {

constexpr std::size_t kAtOnce = 1024;

std::vector<double> numbersIn(const char* path) {
    std::vector<double> numbers(std::filesystem::file_size(path) / sizeof(double));
    std::ifstream file(path, std::ios::binary);
    file.read(reinterpret_cast<char*>(numbers.data()),
              static_cast<std::streamsize>(numbers.size() * sizeof(double)));
    return numbers;
}

double secondsOfRound(const kelvo::Converter& converter, std::span<const double> numbers) {
    const std::size_t count = numbers.size() / 3;
    const auto start = std::chrono::steady_clock::now();
    // Not set to anything first, as NumPy's arrays aren't.
    const std::unique_ptr<kelvo::Point[]> points(new kelvo::Point[count]);
    std::array<kelvo::Given, kAtOnce> some;
    for (std::size_t first = 0; first < count; first += kAtOnce) {
        const std::size_t size = std::min(kAtOnce, count - first);
        for (std::size_t i = 0; i < size; ++i)
            some[i] = {.first = numbers[first + i],
                       .second = numbers[count + first + i],
                       .height = numbers[2 * count + first + i]};
        converter.convert(kelvo::System::Wgs, std::span(some).first(size),
                          {points.get() + first, size});
    }
    const std::chrono::duration<double> spent = std::chrono::steady_clock::now() - start;
    return spent.count();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fputs("usage: kelvo_engine FILE ROUNDS\n", stderr);
        return 2;
    }
    const std::vector<double> numbers = numbersIn(argv[1]);
    const kelvo::Converter converter{kelvo::Definition{}};
    for (int round = 0; round < std::atoi(argv[2]); ++round)
        std::printf("%.4f\n", secondsOfRound(converter, numbers));
}
