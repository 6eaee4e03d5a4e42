#include "common/code_page.h"

#include <array>
#include <cstdint>
#include <memory>

#include "common/code_page_table.h"
#include "common/utf8.h"

namespace kelvo {

namespace {

// Single bytes 80 and FF have characters of their own; an undecodable byte is held up here.
constexpr char32_t kByte80 = 0x0080;
constexpr char32_t kByteFF = 0xF8F7;
constexpr char32_t kHeldByte = 0xF700;

char32_t characterOfPair(unsigned lead, unsigned trail) {
    if (lead < kFirstLeadByte || lead - kFirstLeadByte >= kLeadBytes || trail < kFirstTrailByte ||
        trail - kFirstTrailByte >= kTrailBytes)
        return 0;
    return kCodePageTable[lead - kFirstLeadByte][trail - kFirstTrailByte];
}

// The way back: for each 16-bit character its bytes, one or two, 0 for none.
class ByteTable {
public:
    ByteTable() : bytes_(std::make_unique<std::array<std::uint16_t, 0x10000>>()) {
        for (unsigned lead = 0; lead < kLeadBytes; ++lead)
            for (unsigned trail = 0; trail < kTrailBytes; ++trail) {
                const char16_t character = kCodePageTable[lead][trail];
                if (character != 0)
                    (*bytes_)[character] = static_cast<std::uint16_t>(
                        ((lead + kFirstLeadByte) << 8U) | (trail + kFirstTrailByte));
            }
        for (char32_t byte = 0x81; byte <= 0xFE; ++byte)
            (*bytes_)[kHeldByte + byte] = static_cast<std::uint16_t>(byte);
        (*bytes_)[kByte80] = 0x80;
        (*bytes_)[kByteFF] = 0xFF;
    }

    [[nodiscard]] unsigned bytesOf(char32_t character) const {
        return character < 0x10000 ? (*bytes_)[character] : 0;
    }

private:
    std::unique_ptr<std::array<std::uint16_t, 0x10000>> bytes_;
};

unsigned bytesOf(char32_t character) {
    static const ByteTable table;
    return table.bytesOf(character);
}

}  // namespace

void decodeCodePage(std::string_view bytes, std::string& text) {
    for (std::size_t i = 0; i < bytes.size();) {
        if (const std::size_t run = asciiLength(bytes.substr(i)); run > 0) {
            text.append(bytes.substr(i, run));
            i += run;
            continue;
        }
        const auto byte = static_cast<unsigned char>(bytes[i]);
        const unsigned trail = i + 1 < bytes.size() ? static_cast<unsigned char>(bytes[i + 1]) : 0U;
        if (const char32_t character = characterOfPair(byte, trail); character != 0) {
            appendUtf8(character, text);
            i += 2;
            continue;
        }
        appendUtf8(byte == 0x80 ? kByte80 : byte == 0xFF ? kByteFF : kHeldByte + byte, text);
        ++i;
    }
}

std::string decodeCodePage(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    decodeCodePage(bytes, text);
    return text;
}

void encodeCodePage(std::string_view text, std::string& bytes) {
    while (!text.empty()) {
        if (const std::size_t run = asciiLength(text); run > 0) {
            bytes.append(text.substr(0, run));
            text.remove_prefix(run);
            continue;
        }
        const Utf8Character character = firstCharacter(text);
        text.remove_prefix(character.length);
        const unsigned found = bytesOf(character.code);
        if (found == 0) {
            bytes.push_back('?');
            continue;
        }
        if (found > 0xFF) bytes.push_back(static_cast<char>(found >> 8U));
        bytes.push_back(static_cast<char>(found & 0xFFU));
    }
}

std::string encodeCodePage(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    encodeCodePage(text, bytes);
    return bytes;
}

int codePageWidth(char32_t character) {
    return character >= 0x80 && bytesOf(character) > 0xFF ? 2 : 1;
}

}  // namespace kelvo
