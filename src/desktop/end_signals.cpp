#include "desktop/end_signals.h"

#ifndef _WIN32
#include <QSocketNotifier>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>
#endif

namespace kelvo::desktop {

#ifdef _WIN32

// There the session's end comes as an event of the toolkit.
EndSignals::EndSignals(QObject* parent) : QObject(parent) {}
EndSignals::~EndSignals() = default;

#else

namespace {

constexpr std::array kSignals{SIGTERM, SIGHUP, SIGINT};

// A handler is called with nothing but a number, and may do little more than write.
std::atomic<int> writingEnd{-1};

void wakeUp(int /*signal*/) {
    const int error = errno;
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = write(writingEnd, &byte, 1);
    errno = error;
}

void handleBy(void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int signal : kSignals) sigaction(signal, &action, nullptr);
}

}  // namespace

EndSignals::EndSignals(QObject* parent) : QObject(parent) {
    if (pipe2(wakeUp_, O_CLOEXEC | O_NONBLOCK) != 0) return;
    writingEnd = wakeUp_[1];
    auto* notifier = new QSocketNotifier(wakeUp_[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        std::array<char, 16> bytes{};
        while (read(wakeUp_[0], bytes.data(), bytes.size()) > 0) continue;
        emit endWanted();
    });
    handleBy(wakeUp);
}

EndSignals::~EndSignals() {
    if (writingEnd < 0) return;
    handleBy(SIG_DFL);
    writingEnd = -1;
    for (const int end : wakeUp_) close(end);
}

#endif

}  // namespace kelvo::desktop
