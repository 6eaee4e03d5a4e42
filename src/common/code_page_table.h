// The double-byte part of CP949, made at build time (table/make_code_page_table.cpp).
#pragma once

#include <array>
#include <cstddef>

namespace kelvo {

inline constexpr unsigned kFirstLeadByte = 0x81;
inline constexpr unsigned kFirstTrailByte = 0x41;
inline constexpr std::size_t kLeadBytes = 0xFE - 0x81 + 1;
inline constexpr std::size_t kTrailBytes = 0xFE - 0x41 + 1;

// The character of each pair, 0 for a pair that stands for none.
extern const std::array<std::array<char16_t, kTrailBytes>, kLeadBytes> kCodePageTable;

}  // namespace kelvo
