#include "common/standard_streams.h"

#ifndef _WIN32
#include <cerrno>
#include <csignal>
#include <initializer_list>

#include <fcntl.h>
#include <unistd.h>
#endif

namespace kelvo {

#ifdef _WIN32

// Windows hands out no such numbers and knows no such signals.
void secureStandardStreams() {}

#else

namespace {

// A signal that is caught, unlike one that is ignored, is what it was in a program started later.
void doNothing(int /*signal*/) {}

}  // namespace

void secureStandardStreams() {
    for (const int number : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        // The lowest free number is the one that was found closed.
        if (fcntl(number, F_GETFD) < 0 && errno == EBADF)
            open("/dev/null", number == STDIN_FILENO ? O_RDONLY : O_WRONLY);
    }
    struct sigaction action {};
    action.sa_handler = doNothing;
    action.sa_flags = SA_RESTART;
    for (const int signal : {SIGPIPE, SIGXFSZ}) sigaction(signal, &action, nullptr);
}

#endif

}  // namespace kelvo
