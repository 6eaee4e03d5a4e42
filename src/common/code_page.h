// The Korean code page CP949, between its bytes and UTF-8.
//
// The table is made at build time from the platform's iconv, completed by the code page's user
// area (C9A1.., FEA1.. as U+E000 to U+E0BB) and the single bytes 80 (U+0080) and FF (U+F8F7).
// A byte that begins no valid pair is held as U+F700 + byte and becomes that byte again; a
// character that the code page lacks becomes "?".
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kelvo {

// Appends the decoded text to `text`.
void decodeCodePage(std::string_view bytes, std::string& text);
[[nodiscard]] std::string decodeCodePage(std::string_view bytes);

// Appends the bytes of the text to `bytes`. Ill-formed UTF-8 gives one "?" a byte.
void encodeCodePage(std::string_view text, std::string& bytes);
[[nodiscard]] std::string encodeCodePage(std::string_view text);

// The number of bytes that one character takes in the code page: 1 or 2.
[[nodiscard]] int codePageWidth(char32_t character);

}  // namespace kelvo
