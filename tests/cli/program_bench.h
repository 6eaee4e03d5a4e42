// kelvo-batch in a folder of its own, which is its application folder too.
#pragma once

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "support/program.h"
#include "support/temporary_folder.h"

namespace kelvo::testing {

class ProgramBench : public ::testing::Test {
protected:
    ProgramRun run(const std::string& data) const {
        return runProgram({.arguments = {kProgram, "--app-folder", folder.path(), data},
                           .input = {},
                           .folder = {},
                           .environment = {}});
    }

    static std::string lastLine(const std::string& text) {
        if (text.empty()) return {};
        const auto at = text.rfind('\n', text.size() - 2);
        return text.substr(at == std::string::npos ? 0 : at + 1);
    }

    // The run ended with the fault, said so in its last line and said why.
    static void expectFault(const ProgramRun& ended, int number) {
        EXPECT_EQ(ended.exitCode, 1);
        const std::string head = "run-time error " + std::to_string(number) + ": ";
        EXPECT_EQ(lastLine(ended.err).substr(0, head.size()), head) << ended.err.substr(0, 1000);
        EXPECT_GT(lastLine(ended.err).size(), head.size() + 1);
        EXPECT_EQ(ended.out, "");
    }

    // The names in a folder, sorted, a blank after each.
    static std::string namesIn(const std::string& path) {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(path))
            names.insert(entry.path().filename().string() + " ");
        std::string all;
        for (const auto& name : names) all += name;
        return all;
    }

    const std::string kProgram = KELVO_BINARY_DIR "/kelvo-batch";
    TemporaryFolder folder;
};

}  // namespace kelvo::testing
