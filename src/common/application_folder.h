// Where the program keeps its own files. Paths are UTF-8 without a trailing separator.
#pragma once

#include <optional>
#include <string>

namespace kelvo {

// The files that the programs keep there.
constexpr const char* kSettingsFile = "kelvo.cfg";
constexpr const char* kKnownPointsFile = "kelvo.cor";
constexpr const char* kDetailFile = "kelvo.det";  // of the correction

// What the choice of the folder rests on.
struct FolderChoice {
    std::string programFolder;            // where the program file stands
    bool dataStandsBeside = false;        // it holds a folder "data": a portable copy
    std::optional<std::string> dataHome;  // XDG_DATA_HOME, or APPDATA on Windows
    std::optional<std::string> home;      // the user's home folder
};

// The program's own folder for a portable copy; otherwise "Kelvo" in the folder that the
// platform keeps for the user's data (XDG Base Directory rules: an empty or relative
// XDG_DATA_HOME doesn't count, ~/.local/share stands in). Without any home, the program's folder.
[[nodiscard]] std::string chooseApplicationFolder(const FolderChoice& choice);

// The same for this machine and the running program.
[[nodiscard]] std::string findApplicationFolder();

// Makes the folder, with its folder "data", where it is missing. Fault 76 if it can't be made.
void makeApplicationFolder(const std::string& folder);

}  // namespace kelvo
