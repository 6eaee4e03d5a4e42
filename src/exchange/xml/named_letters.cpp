#include "exchange/xml/named_letters.h"

#include <array>
#include <cerrno>
#include <cstddef>

namespace kelvo {

namespace {

// What calls itself EUC-KR has the syllables of code page 949, too.
std::string nameForPlatform(std::string name) {
    for (char& letter : name) {
        if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
    }
    const bool korean = name == "euc-kr" || name.starts_with("ks_c_5601") || name == "ksc5601";
    return korean ? "CP949" : name;
}

int letterOf(iconv_t code, std::string_view bytes) {
    std::array<char, 2> given{};
    bytes.copy(given.data(), given.size());
    std::array<char, 4> letter{};
    char* from = given.data();
    char* to = letter.data();
    std::size_t left = bytes.size();
    std::size_t room = letter.size();
    iconv(code, nullptr, nullptr, nullptr, nullptr);
    if (iconv(code, &from, &left, &to, &room) == static_cast<std::size_t>(-1))
        return errno == EINVAL ? NamedLetters::kFirstOfTwo : NamedLetters::kNone;
    if (room != 0) return NamedLetters::kNone;
    int value = 0;
    for (const char byte : letter) value = value * 256 + static_cast<unsigned char>(byte);
    return value <= 0xFFFF ? value : NamedLetters::kNone;
}

}  // namespace

std::optional<NamedLetters> NamedLetters::find(const std::string& name) {
    const iconv_t code = iconv_open("UTF-32BE", nameForPlatform(name).c_str());
    // A platform says "none" by all bits.
    if (reinterpret_cast<std::ptrdiff_t>(code) == -1) return std::nullopt;
    return NamedLetters(Code(code));
}

int NamedLetters::ofByte(char byte) const {
    return letterOf(code_.get(), {&byte, 1});
}

int NamedLetters::ofPair(std::string_view pair) const {
    const int letter = letterOf(code_.get(), pair);
    return letter == kFirstOfTwo ? kNone : letter;
}

}  // namespace kelvo
