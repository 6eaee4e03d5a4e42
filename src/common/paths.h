// genSub: taking paths apart, and the few file helpers that report by themselves.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "common/disk.h"
#include "common/ports.h"

namespace kelvo::genSub {

// What stands after the last point, empty if there is none. The last point of the whole path
// counts, also one in a folder's name.
[[nodiscard]] std::string FileExtensionOf(std::string_view path);

// What stands in front of the last point, or the whole path if there is none.
[[nodiscard]] std::string StripExtension(std::string_view path);

// Everything up to and including the last separator; the current folder if there is none.
[[nodiscard]] std::string FolderOf(Disk& disk, std::string_view path);

// The name between the last separator and the last point; "*" if there is no separator.
[[nodiscard]] std::string FileTitleOf(std::string_view path);

inline constexpr int kFileIsThere = 1;
inline constexpr int kFileIsMissing = 2;
inline constexpr int kFileIsOpen = 3;

// 1 for a file that is there (or that may not be read), 2 for a missing one, 3 for one that is
// open; no value for anything else, such as a folder.
[[nodiscard]] std::optional<int> FileExists(Disk& disk, const std::string& path);

// Starts a program without waiting for it; a failure is shown in a message box.
void RunProgram(ProgramStarter& programs, MessageBoxes& messages, const std::string& command);

// Copies a file on disk; a failure is shown in a message box.
void CopyFileGuard(Disk& disk, MessageBoxes& messages, const std::string& source,
                   const std::string& target);

}  // namespace kelvo::genSub
