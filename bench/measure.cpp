// kelvo_measure ROUNDS COMMAND ARG ...   times a command from its start to its end and prints the
//                                        median of its milliseconds, the median of those that the
//                                        processor worked for it, and its peak memory in KiB
// kelvo_measure --points N DATA          writes the sample points as a data file
// kelvo_measure --points-corrected N DATA
// kelvo_measure --known N FILE           writes known points
// kelvo_measure --plain N FILE           writes the sample points as "longitude latitude height"
//
// The command reads /dev/null, or the file named by KELVO_MEASURE_INPUT; its output goes nowhere.
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include "sample_points.h"

namespace {

struct Round {
    double milliseconds = 0;
    double processorMilliseconds = 0;
    long peakKilobytes = 0;
    bool ok = false;
};

double milliseconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
}

double medianOf(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

Round timeOnce(char** command) {
    const char* input = std::getenv("KELVO_MEASURE_INPUT");
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addopen(&files, STDIN_FILENO, input ? input : "/dev/null", O_RDONLY,
                                     0);
    posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    const auto start = std::chrono::steady_clock::now();
    pid_t child = 0;
    Round round;
    if (posix_spawnp(&child, command[0], &files, nullptr, command, environ) == 0) {
        int status = 0;
        rusage usage{};
        wait4(child, &status, 0, &usage);
        round.ok = WIFEXITED(status) && WEXITSTATUS(status) == 0;
        round.peakKilobytes = usage.ru_maxrss;
        round.processorMilliseconds = milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime);
    }
    const std::chrono::duration<double, std::milli> spent =
        std::chrono::steady_clock::now() - start;
    round.milliseconds = spent.count();
    posix_spawn_file_actions_destroy(&files);
    return round;
}

int measure(int rounds, char** command) {
    std::vector<double> times;
    std::vector<double> processorTimes;
    long peak = 0;
    for (int i = 0; i < rounds; ++i) {
        const Round round = timeOnce(command);
        if (!round.ok) {
            std::fprintf(stderr, "kelvo_measure: %s failed\n", command[0]);
            return 1;
        }
        times.push_back(round.milliseconds);
        processorTimes.push_back(round.processorMilliseconds);
        peak = std::max(peak, round.peakKilobytes);
    }
    std::printf("%.2f %.2f %ld\n", medianOf(times), medianOf(processorTimes), peak);
    return 0;
}

std::string plainPoints(std::size_t count) {
    std::string text;
    for (const auto& place : kelvo::bench::places(count)) {
        char line[96];
        std::snprintf(line, sizeof line, "%.10f %.10f %.4f\n", place.Lam, place.Phi, place.h);
        text += line;
    }
    return text;
}

int write(std::string_view what, int count, const char* path) {
    const auto many = static_cast<std::size_t>(count);
    std::string text;
    if (what == "--points") text = kelvo::bench::dataFile(many, false);
    if (what == "--points-corrected") text = kelvo::bench::dataFile(many, true);
    if (what == "--known") text = kelvo::bench::knownPoints(count);
    if (what == "--plain") text = plainPoints(many);
    std::ofstream out(path, std::ios::binary);
    out << text;
    out.close();
    return text.empty() || !out ? 1 : 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc == 4 && argv[1][0] == '-') return write(argv[1], std::atoi(argv[2]), argv[3]);
    const int rounds = argc > 2 ? std::atoi(argv[1]) : 0;
    if (rounds < 1) {
        std::fputs("usage: kelvo_measure ROUNDS COMMAND ARG ...\n", stderr);
        return 2;
    }
    return measure(rounds, argv + 2);
}
