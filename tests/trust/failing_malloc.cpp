// A library to be loaded before a program: of the calls for memory that the program makes from its
// main function on, number FAIL_AT fails. At the end the count goes to the file descriptor
// COUNT_TO.
#include <atomic>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <cstdlib>

#include <dlfcn.h>

extern "C" {

// What stands behind malloc in the C library.
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);

using MainFunction = int (*)(int, char**, char**);
using Hook = void (*)();
using StartFunction = int (*)(MainFunction, int, char**, Hook, Hook, Hook, void*);

namespace {

std::atomic<bool> isCounting{false};
std::atomic<long> calls{0};
long failAt = 0;
MainFunction mainOfProgram = nullptr;

bool failsNow() {
    if (!isCounting || ++calls != failAt) return false;
    errno = ENOMEM;
    return true;
}

long numberIn(const char* name) {
    const char* text = std::getenv(name);
    return text == nullptr ? 0 : std::atol(text);
}

int countedMain(int count, char** arguments, char** environment) {
    isCounting = true;
    return mainOfProgram(count, arguments, environment);
}

[[gnu::destructor]] void tell() {
    isCounting = false;
    const long to = numberIn("COUNT_TO");
    if (to > 0) dprintf(static_cast<int>(to), "%ld\n", calls.load());
}

}  // namespace

void* malloc(std::size_t size) {
    return failsNow() ? nullptr : __libc_malloc(size);
}

void* calloc(std::size_t count, std::size_t size) {
    return failsNow() ? nullptr : __libc_calloc(count, size);
}

void* realloc(void* block, std::size_t size) {
    return failsNow() ? nullptr : __libc_realloc(block, size);
}

int __libc_start_main(MainFunction main, int count, char** arguments, Hook start, Hook end,
                      Hook loader, void* stack) {
    mainOfProgram = main;
    failAt = numberIn("FAIL_AT");
    const auto next = reinterpret_cast<StartFunction>(dlsym(RTLD_NEXT, "__libc_start_main"));
    return next(countedMain, count, arguments, start, end, loader, stack);
}

}  // extern "C"
