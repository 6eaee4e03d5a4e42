#include "support/program.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>

#include "support/temporary_folder.h"

namespace kelvo::testing {
namespace {

constexpr unsigned kLongestRunSeconds = 60;

void redirect(const std::string& path, int flags, int descriptor) {
    const int file = open(path.c_str(), flags, 0600);
    if (file >= 0) dup2(file, descriptor);
}

[[noreturn]] void become(const ProgramCall& call, const TemporaryFolder& pipes) {
    redirect(pipes.file("in"), O_RDONLY, STDIN_FILENO);
    redirect(pipes.file("out"), O_WRONLY | O_CREAT, STDOUT_FILENO);
    redirect(pipes.file("err"), O_WRONLY | O_CREAT, STDERR_FILENO);
    for (const auto& variable : call.environment) {
        const auto at = variable.find('=');
        setenv(variable.substr(0, at).c_str(), variable.substr(at + 1).c_str(), 1);
    }
    if (!call.folder.empty() && chdir(call.folder.c_str()) != 0) _exit(126);
    std::vector<char*> arguments;
    for (const auto& argument : call.arguments) arguments.push_back(strdup(argument.c_str()));
    arguments.push_back(nullptr);
    alarm(kLongestRunSeconds);
    execv(arguments[0], arguments.data());
    _exit(127);
}

}  // namespace

ProgramRun runProgram(const ProgramCall& call) {
    const TemporaryFolder pipes;
    pipes.put("in", call.input);
    const pid_t child = fork();
    if (child == 0) become(call, pipes);
    int status = 0;
    waitpid(child, &status, 0);
    return {.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1,
            .out = pipes.bytes("out"),
            .err = pipes.bytes("err")};
}

}  // namespace kelvo::testing
