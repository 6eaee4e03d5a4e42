// Programs that work on one folder take turns.
#pragma once

#include <chrono>
#include <filesystem>
#include <memory>

#include "common/disk.h"

namespace kelvo {

// The folder for this program alone, as long as the object lives; it ends with the program,
// however that ends. Null if another one still has it after `patience`, or if it can't be had.
[[nodiscard]] std::unique_ptr<Turn> takeTurnAt(const std::filesystem::path& folder,
                                               std::chrono::milliseconds patience);

}  // namespace kelvo
