// A window on a disk in memory in the midst of a working day, and a command carried out on it
// while the disk fails.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "trust/faulty_disk.h"

namespace kelvo::testing {

using Files = std::map<std::string, std::string>;
using Script = std::vector<std::string>;

// What came of a command.
struct Told {
    int fault = 0;  // the fault that came out at the top, 0 if none did
    std::string text;
    std::vector<std::string> lines;  // messages and all else that was shown
    bool ended = false;              // the program ended by its closing sequence

    [[nodiscard]] bool shows(const std::string& text) const;
};

// How the disk fails: number `at` of the operations of the command, from 1. 0: not at all.
struct Failure {
    int at = 0;
    Fault fault = Fault::DiskFull;
    Failing how = Failing::Once;
    std::size_t shortReads = 0;
};

struct Outcome {
    Told told;
    Files before;
    Files after;
    std::vector<std::string> done;
    std::string failed;
};

// The disk as the day before left it: the application folder /app with its configuration, plot
// settings, known points, notes and help, the data files /job/work.dat, now current, and
// /job/other.dat, both with results, and /app/data/test.dat, once the sample and edited since.
[[nodiscard]] const MemoryDisk& thatMorning();

// Starts the program on it, prepares, and carries the command out while the disk fails. With
// `start` the start itself is the command.
[[nodiscard]] Outcome carryOut(const Script& prepare, const Script& command, const Failure& failure,
                               bool start = false);

}  // namespace kelvo::testing
