// The number rule, the strict conversion and the tokeniser against plain transcriptions. The
// input is a line of a data file in the code page.
#include <cmath>
#include <cstdlib>
#include <vector>

#include "common/code_page.h"
#include "common/fields.h"
#include "common/number_text.h"
#include "common/run_time_fault.h"
#include "common/text_file.h"
#include "fuzz/fuzz_target.h"
#include "support/memory_disk.h"

namespace kelvo::fuzz {

std::span<const std::string_view> knownLines() {
    return {};
}

namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

// One character after another, each asked whether the number can go on with it.
struct PlainNumber {
    double value = 0;
    bool tooLarge = false;
};

PlainNumber plainRadix(const std::string& text, std::size_t at, int base) {
    PlainNumber read;
    for (; at < text.size(); ++at) {
        const char digit[] = {text[at], '\0'};
        char* end = nullptr;
        const long value = std::strtol(digit, &end, base);
        if (end == digit || digit[0] == ' ' || digit[0] == '+' || digit[0] == '-') break;
        read.value = read.value * base + static_cast<double>(value);
    }
    if (std::isinf(read.value) || std::isnan(read.value)) return {.value = 0, .tooLarge = true};
    return read;
}

PlainNumber plainNumber(const std::string& text) {
    std::size_t at = 0;
    while (at < text.size() && text[at] == ' ') ++at;
    if (at + 1 < text.size() && text[at] == '&') {
        if (text[at + 1] == 'H' || text[at + 1] == 'h') return plainRadix(text, at + 2, 16);
        if (text[at + 1] == 'O' || text[at + 1] == 'o') return plainRadix(text, at + 2, 8);
    }
    std::string number;
    bool hasDigit = false;
    bool hasPoint = false;
    if (at < text.size() && (text[at] == '+' || text[at] == '-')) number += text[at++];
    for (; at < text.size(); ++at) {
        if (isDigit(text[at]))
            hasDigit = true;
        else if (text[at] == '.' && !hasPoint)
            hasPoint = true;
        else
            break;
        number += text[at];
    }
    if (!hasDigit) return {};
    if (at < text.size() && std::string_view("EeDd").find(text[at]) != std::string_view::npos) {
        std::string exponent = "e";
        std::size_t next = at + 1;
        if (next < text.size() && (text[next] == '+' || text[next] == '-'))
            exponent += text[next++];
        if (next < text.size() && isDigit(text[next])) {
            while (next < text.size() && isDigit(text[next])) exponent += text[next++];
            number += exponent;
        }
    }
    const double value = std::strtod(number.c_str(), nullptr);
    if (std::isinf(value)) return {.value = 0, .tooLarge = true};
    return {.value = value};
}

std::vector<std::string> plainFields(const std::string& line, std::size_t limit) {
    std::vector<std::string> fields;
    std::string field;
    for (const char c : line + " ") {
        if (c != ' ' && c != ',' && c != '\t' && c != '\0') {
            field += c;
        } else if (!field.empty()) {
            fields.push_back(field);
            field.clear();
        }
    }
    if (fields.size() > limit) fields.resize(limit);
    return fields;
}

void checkNumber(const std::string& text) {
    const NumberRead found = readNumber(text);
    const PlainNumber plain = plainNumber(text);
    require(found.value == plain.value && found.tooLarge == plain.tooLarge, "the number of ", text);
    require(std::isfinite(found.value), "a number is finite");
    try {
        require(strictNumber(text) == found.value, "a strict number is the number: ", text);
        require(!found.tooLarge, "a number too large isn't given back");
        require(std::isfinite(strictSingle(text)), "a single is finite");
        (void)strictInteger16(text);
    } catch (const RuntimeFault& fault) {
        require(fault.fault() == Fault::TypeMismatch || fault.fault() == Fault::Overflow,
                "a strict number has two faults: ", text);
    }
}

void checkFields(const std::string& line, int limit) {
    FieldStore store;
    store.LineBuf = "1 2 3 4 5 6 7 8 9";
    genSub::ParseFields(store, 100);
    store.LineBuf = line;
    genSub::ParseFields(store, limit);
    const auto plain = plainFields(line, static_cast<std::size_t>(limit));
    for (int n = 1; n <= FieldStore::kMostFields; ++n) {
        const auto i = static_cast<std::size_t>(n) - 1;
        const std::string expected = i < plain.size() ? plain[i] : std::string();
        require(store.FieldStr(n) == expected, "a field of ", line);
        const double number = plainNumber(expected).value;
        require(store.FieldNum(n) == number, "the number of a field of ", line);
        const auto single = static_cast<float>(number);
        require(store.FieldSng(n) == (std::isinf(single) ? 0.0F : single),
                "the single of a field of ", line);
        if (i < plain.size()) checkNumber(expected);
    }
    require(store.LineBuf == line, "the line stays as it is");
}

// The same bytes as a stream of numbers and texts of a configuration file.
void checkStream(const std::string& bytes) {
    testing::MemoryDisk disk;
    disk.putBytes("/f", bytes);
    std::string item;
    try {
        TextReader numbers(disk, "/f");
        for (std::size_t i = 0; i <= bytes.size(); ++i)
            require(std::isfinite(numbers.readNumber()), "a number of a stream is finite");
        require(false, "a stream of numbers has an end");
    } catch (const RuntimeFault&) {
        // the end, or a text that is no number
    }
    TextReader items(disk, "/f");
    std::size_t count = 0;
    for (; !items.atEnd(); ++count) items.readTextItem(item);
    require(count <= bytes.size(), "every item takes a byte");
}

}  // namespace
}  // namespace kelvo::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace kelvo::fuzz;
    const std::string bytes(textOf(data, size));
    const std::string line = kelvo::decodeCodePage(bytes);
    checkNumber(line);
    for (const int limit : {1, 2, 10, 100}) checkFields(line, limit);
    checkStream(bytes);
    return 0;
}
