// Running one of the built programs as a user would.
#pragma once

#include <string>
#include <vector>

namespace kelvo::testing {

struct ProgramRun {
    int exitCode = -1;  // -1 if it was ended by a signal
    std::string out;
    std::string err;
};

struct ProgramCall {
    std::vector<std::string> arguments;    // the program's path first
    std::string input;                     // standard input
    std::string folder;                    // current folder, if not empty
    std::vector<std::string> environment;  // NAME=VALUE added to the present ones
};

// Waits for the program; ended after a minute.
[[nodiscard]] ProgramRun runProgram(const ProgramCall& call);

}  // namespace kelvo::testing
