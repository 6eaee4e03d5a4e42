// A library to preload: switches a program to the locale of its environment before it starts, as a
// window does. Ends a program that doesn't get the locale KELVO_EXPECTED_LOCALE, so that no test
// passes for want of a locale.
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

[[gnu::constructor]] void takeLocaleOfEnvironment() {
    const char* const taken = std::setlocale(LC_ALL, "");
    const char* const expected = std::getenv("KELVO_EXPECTED_LOCALE");
    if (expected != nullptr && (taken == nullptr || std::strcmp(taken, expected) != 0)) {
        std::fprintf(stderr, "no locale %s\n", expected);
        std::_Exit(3);
    }
}

}  // namespace
