// What an error of the system is as a run-time fault.
#pragma once

#include <filesystem>

#include "common/run_time_fault.h"

namespace kelvo {

// `error` is one of errno; the path tells a missing folder from a missing file.
[[nodiscard]] Fault faultOf(int error, const std::filesystem::path& path);

// Raises it, the file named in the text, or what the user calls it.
[[noreturn]] void raiseError(int error, const std::filesystem::path& path);
[[noreturn]] void raiseError(int error, const std::filesystem::path& path, const std::string& name);

// Paths are UTF-8 where texts are, and bytes of any kind where the system takes them.
[[nodiscard]] std::filesystem::path pathOf(std::string_view text);
[[nodiscard]] std::string textOf(const std::filesystem::path& path);

}  // namespace kelvo
