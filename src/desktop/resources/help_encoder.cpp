// help_encoder SOURCE TARGET: turns a UTF-8 text into CP949 with CR LF line ends.
#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>

#include "common/code_page.h"

int main(int argc, char** argv) {
    if (argc != 3) return 2;
    std::ifstream source(argv[1], std::ios::binary);
    std::ofstream target(argv[2], std::ios::binary);
    int number = 0;
    for (std::string line; std::getline(source, line);) {
        ++number;
        const std::string bytes = kelvo::encodeCodePage(line);
        if (kelvo::decodeCodePage(bytes) != line) {
            std::fprintf(stderr, "%s:%d: a letter that CP949 lacks\n", argv[1], number);
            return 1;
        }
        target << bytes << "\r\n";
    }
    return target.good() ? 0 : 1;
}
