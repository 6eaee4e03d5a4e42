// Writes the table of CP949 as a C++ source, from the platform's iconv: which character each
// pair of bytes stands for. Run once at build time.
#include <iconv.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <fstream>

namespace {

constexpr unsigned kFirstLead = 0x81;
constexpr unsigned kLastLead = 0xFE;
constexpr unsigned kFirstTrail = 0x41;
constexpr unsigned kLastTrail = 0xFE;
// Rows of the user area, which iconv leaves out: 94 characters each, from U+E000.
constexpr unsigned kFirstUserLead = 0xC9;
constexpr unsigned kSecondUserLead = 0xFE;
constexpr unsigned kFirstUserTrail = 0xA1;
constexpr unsigned kUserRow = 94;

unsigned characterOf(iconv_t converter, unsigned lead, unsigned trail) {
    if (trail >= kFirstUserTrail && (lead == kFirstUserLead || lead == kSecondUserLead))
        return 0xE000 + (lead == kSecondUserLead ? kUserRow : 0) + (trail - kFirstUserTrail);
    std::array<char, 2> bytes{static_cast<char>(lead), static_cast<char>(trail)};
    std::array<unsigned char, 8> out{};
    char* from = bytes.data();
    auto* to = reinterpret_cast<char*>(out.data());
    std::size_t fromLeft = bytes.size();
    std::size_t toLeft = out.size();
    iconv(converter, nullptr, nullptr, nullptr, nullptr);
    if (iconv(converter, &from, &fromLeft, &to, &toLeft) == static_cast<std::size_t>(-1) ||
        fromLeft != 0 || out.size() - toLeft != 2)
        return 0;
    return static_cast<unsigned>(out[0] << 8U) | out[1];
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: make_code_page_table OUTPUT.cpp\n", stderr);
        return 2;
    }
    // Not the object representation of iconv_t's error value: it is specified as (iconv_t)-1.
    iconv_t converter = iconv_open("UTF-16BE", "CP949");
    if (reinterpret_cast<std::intptr_t>(converter) == -1) {
        std::fputs("make_code_page_table: this machine's iconv doesn't know CP949\n", stderr);
        return 1;
    }
    std::ofstream out(argv[1]);
    out << "// Made by make_code_page_table.\n"
           "#include \"common/code_page_table.h\"\n\n"
           "namespace kelvo {\n\n"
           "const std::array<std::array<char16_t, kTrailBytes>, kLeadBytes> kCodePageTable{{\n";
    for (unsigned lead = kFirstLead; lead <= kLastLead; ++lead) {
        out << "    {{";
        for (unsigned trail = kFirstTrail; trail <= kLastTrail; ++trail)
            out << characterOf(converter, lead, trail) << ',';
        out << "}},\n";
    }
    out << "}};\n\n}  // namespace kelvo\n";
    iconv_close(converter);
    return out.good() ? 0 : 1;
}
