// Where the links of a path lead.
#pragma once

#include <filesystem>

namespace kelvo {

// The path behind its symbolic links, also if nothing is there yet. Links in a circle are followed
// for a while and then left as they are.
[[nodiscard]] std::filesystem::path endOfLinks(std::filesystem::path path);

}  // namespace kelvo
