// Scripts of routine_driver and their transcripts, replayed on the plot object.
#include <filesystem>
#include <fstream>
#include <memory>

#include "drivers/plot_calls.h"
#include "plot_fixture.h"
#include "support/recording_surface.h"

namespace kelvo::testing {
namespace {

Lines linesOf(const std::filesystem::path& path) {
    std::ifstream file(path);
    Lines lines;
    for (std::string line; std::getline(file, line);) lines.push_back(line);
    return lines;
}

std::vector<std::string> scriptNames() {
    return {"plot_lines", "plot_text_turned", "plot_symbols"};
}

class PlotScripts : public ::testing::TestWithParam<std::string> {};

TEST_P(PlotScripts, GivesItsTranscriptLineByLine) {
    const std::filesystem::path folder =
        std::filesystem::path(KELVO_SOURCE_DIR) / "tests/golden/routines";
    Lines transcript;
    RecordingMessages messages;
    RecordingStarts starts;
    const LineSink keep = [&](const std::string& line) { transcript.push_back(line); };
    RecordingSurface screen(RecordingSurface::Kind::Screen, keep);
    RecordingSurface printer(RecordingSurface::Kind::Printer, keep);
    PlotBench bench(messages, starts, screen, printer);
    for (const auto& line : linesOf(folder / (GetParam() + ".txt"))) {
        if (asksNothing(line)) continue;
        Call call = readCall(line);
        try {
            const auto answer = callPlot(bench, call);
            ASSERT_TRUE(answer.has_value()) << line;
            transcript.push_back(answer->line());
        } catch (const RuntimeFault& fault) {
            transcript.push_back("fault|" + std::to_string(fault.number()) + "|");
        }
    }
    const Lines expected = linesOf(folder / (GetParam() + ".transcript"));
    ASSERT_FALSE(expected.empty());
    ASSERT_EQ(transcript.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        // The wording of a fault is free, and its number too where it stands as "*".
        const bool fault = expected[i].starts_with("fault|");
        const std::string wanted = expected[i].starts_with("fault|*|") ? "fault|"
                                   : fault ? expected[i].substr(0, expected[i].find('|', 6) + 1)
                                           : expected[i];
        if (fault)
            EXPECT_TRUE(transcript[i].starts_with(wanted)) << "line " << i + 1 << transcript[i];
        else
            EXPECT_EQ(transcript[i], wanted) << "line " << i + 1;
    }
    EXPECT_TRUE(messages.shown.empty());
}

INSTANTIATE_TEST_SUITE_P(Examples, PlotScripts, ::testing::ValuesIn(scriptNames()),
                         [](const auto& example) { return example.param; });

TEST(RoutineScript, LineIsReadIntoNumbersTextsAndFlags) {
    Call call = readCall(R"(ptextR "a \"b\" \\ c" -1.5 2e3 true)");
    EXPECT_EQ(call.name, "ptextR");
    EXPECT_EQ(call.arguments.text(), R"(a "b" \ c)");
    EXPECT_EQ(call.arguments.number(), -1.5);
    EXPECT_EQ(call.arguments.integer(), 2000);
    EXPECT_TRUE(call.arguments.boolean());
    EXPECT_TRUE(call.arguments.atEnd());
}

TEST(RoutineScript, LineThatCannotBeReadIsAnError) {
    for (const char* line :
         {"cx abc", "cx 1e999", "ptext \"open", "ptext \"a\"b", "\"x\" 1", "cx 1x"})
        EXPECT_THROW(static_cast<void>(readCall(line)), ScriptError) << line;
}

TEST(RoutineScript, ArgumentOfTheWrongKindOrMissingIsAnError) {
    RecordingMessages messages;
    RecordingStarts starts;
    RecordingSurface surface(RecordingSurface::Kind::Screen, [](const std::string&) {});
    PlotBench bench(messages, starts, surface, surface);
    for (const char* line : {"cx", "cx \"1\"", "cx 1 2", "setBlackWhite 1", "ChangeFont 1"}) {
        Call call = readCall(line);
        EXPECT_THROW(static_cast<void>(callPlot(bench, call)), ScriptError) << line;
    }
}

TEST(RoutineScript, UnknownNameIsNoPlotCall) {
    RecordingMessages messages;
    RecordingStarts starts;
    RecordingSurface surface(RecordingSurface::Kind::Screen, [](const std::string&) {});
    PlotBench bench(messages, starts, surface, surface);
    Call call = readCall("SplitDeg 127.5");
    EXPECT_FALSE(callPlot(bench, call).has_value());
}

TEST(RoutineScript, AnswersHaveSeventeenDigitsAndQuotedTexts) {
    EXPECT_EQ(AnswerLine("A").line(), "A");
    EXPECT_EQ(AnswerLine("A").noValue().line(), "A =");
    EXPECT_EQ(AnswerLine("A").number(0.1).integer(-3).text("a\n\"b\"").line(),
              R"(A = 0.10000000000000001 -3 "a\n\"b\"")");
}

}  // namespace
}  // namespace kelvo::testing
