// routine_driver: calls the routines one by one, by name, from a script on standard input.
#include <iostream>
#include <memory>

#include "common/run_time_fault.h"
#include "common/standard_streams.h"
#include "drivers/routine_bench.h"
#include "support/escape.h"
#include "support/message_line.h"

namespace kelvo::testing {

namespace {

std::string answerTo(RoutineBench& bench, const std::string& line) {
    Call call = readCall(line);
    for (const Routines* routines : {&generalRoutines(), &geodesyRoutines()}) {
        const auto found = routines->find(call.name);
        if (found == routines->end()) continue;
        AnswerLine answer(call.name);
        found->second(bench, call.arguments, answer);
        call.arguments.requireEnd();
        return answer.line();
    }
    if (const auto answer = callPlot(bench.plot, call)) return answer->line();
    throw ScriptError("no routine of this name: " + call.name);
}

void obey(std::unique_ptr<RoutineBench>& bench, const std::string& line) {
    if (asksNothing(line)) return;
    if (line == "new") {
        bench = std::make_unique<RoutineBench>();
        std::cout << "new\n";
        return;
    }
    try {
        std::cout << answerTo(*bench, line) << '\n';
    } catch (const RuntimeFault& fault) {
        std::cout << "fault|" << fault.number() << '|' << escaped(fault.text()) << '\n';
    } catch (const ScriptError& error) {
        std::cout << "error|" << escaped(error.what()) << '\n';
    }
}

}  // namespace

Answer PrintedMessages::show(const Message& message) {
    std::cout << messageLine(message) << '\n';
    return message.buttons == Buttons::Ok ? Answer::Ok : Answer::Cancel;
}

void PrintedStarts::start(const std::string& command) {
    std::cout << "start|" << escaped(command) << '\n';
}

void printSurfaceLine(const std::string& line) {
    std::cout << line << '\n';
}

}  // namespace kelvo::testing

int main() {
    kelvo::secureStandardStreams();
    auto bench = std::make_unique<kelvo::testing::RoutineBench>();
    std::string line;
    while (std::getline(std::cin, line)) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        kelvo::testing::obey(bench, line);
    }
    return 0;
}
