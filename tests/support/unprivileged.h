// A piece of a test carried out as a user who may not do everything.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <exception>

#include <grp.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kelvo::testing {

inline constexpr uid_t kNobody = 65534;

// Runs `work` in a process of its own, as nobody if this one is root's; what it returns, or false
// if it doesn't come to its end.
template <class Work>
bool asUnprivileged(Work&& work) {
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        bool good = geteuid() != 0 ||
                    (setgroups(0, nullptr) == 0 && setresgid(kNobody, kNobody, kNobody) == 0 &&
                     setresuid(kNobody, kNobody, kNobody) == 0);
        try {
            good = good && work();
        } catch (const std::exception& failure) {
            std::fprintf(stderr, "%s\n", failure.what());
            good = false;
        }
        std::fflush(nullptr);
        _exit(good ? 0 : 1);
    }
    int status = 0;
    return child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status) &&
           WEXITSTATUS(status) == 0;
}

}  // namespace kelvo::testing
