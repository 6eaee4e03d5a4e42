// The last resort for a text that can't be saved where it belongs.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "common/disk.h"

namespace kelvo {

// Where there may be room, best first: the application folder, the folder of the text's file, the
// home folder, the temporary one. Those that nobody knows are left out.
[[nodiscard]] std::vector<std::string> rescueFolders(const std::string& applicationFolder,
                                                     const std::string& pathOfText);

// Writes the text into a new file "rescue-STAMP-N.txt" of the first folder that takes it, in the
// code page of all text files or, if it has letters that the code page lacks, in UTF-8 with its
// mark in front. The file's path, or nothing if no folder took it.
[[nodiscard]] std::optional<std::string> rescueText(Disk& disk,
                                                    const std::vector<std::string>& folders,
                                                    const std::string& stamp,
                                                    const std::string& text);

}  // namespace kelvo
