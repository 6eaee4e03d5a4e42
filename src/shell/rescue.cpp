#include "shell/rescue.h"

#include <cstdlib>
#include <filesystem>

#include "common/code_page.h"
#include "common/paths.h"
#include "common/run_time_fault.h"
#include "common/utf8.h"

namespace kelvo {

namespace {

constexpr int kMostOfOneSecond = 100;

std::string bytesOf(const std::string& text) {
    std::string bytes = encodeCodePage(text);
    if (decodeCodePage(bytes) == text) return bytes;
    return std::string(kUtf8Mark) + text;
}

std::optional<std::string> newFileIn(Disk& disk, const std::string& folder,
                                     const std::string& stamp) {
    for (int number = 1; number <= kMostOfOneSecond; ++number) {
        std::string path = folder;
        path += kPathSeparator;
        path.append("rescue-")
            .append(stamp)
            .append("-")
            .append(std::to_string(number))
            .append(".txt");
        if (genSub::FileExists(disk, path) == genSub::kFileIsMissing) return path;
    }
    return std::nullopt;
}

}  // namespace

std::vector<std::string> rescueFolders(const std::string& applicationFolder,
                                       const std::string& pathOfText) {
    std::vector<std::string> folders{applicationFolder};
    const std::size_t separator = pathOfText.rfind(kPathSeparator);
    if (separator != std::string::npos) folders.push_back(pathOfText.substr(0, separator));
    for (const char* name : {"HOME", "USERPROFILE"}) {
        const char* const home = std::getenv(name);
        if (home != nullptr && *home != '\0') folders.emplace_back(home);
    }
    std::error_code error;
    const auto temporary = std::filesystem::temp_directory_path(error).u8string();
    if (!error) folders.emplace_back(temporary.begin(), temporary.end());
    return folders;
}

std::optional<std::string> rescueText(Disk& disk, const std::vector<std::string>& folders,
                                      const std::string& stamp, const std::string& text) {
    const std::string bytes = bytesOf(text);
    for (const std::string& folder : folders) {
        try {
            auto path = newFileIn(disk, folder, stamp);
            if (!path) continue;
            disk.replace(*path, bytes);
            return path;
        } catch (const RuntimeFault&) {
            // The next folder may lie on another disk.
        }
    }
    return std::nullopt;
}

}  // namespace kelvo
