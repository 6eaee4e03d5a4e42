#include "shell/recent_files.h"

#include <algorithm>
#include <vector>

#include "common/letter_case.h"
#include "common/number_text.h"
#include "common/paths.h"
#include "common/run_time_fault.h"
#include "common/text_constants.h"

namespace kelvo {

namespace {

constexpr std::size_t kMostRecent = 5;
constexpr int kFirstRecentItem = 7;
// "C:\": the top folder of a drive keeps its separator.
constexpr std::size_t kDriveRootLength = 3;

std::string nameForList(const std::string& name, Disk& disk) {
    std::string lowered = lowerCased(name);
    if (kFileNamesIgnoreCase || disk.sameFile(name, lowered)) return lowered;
    return name;
}

}  // namespace

std::array<std::string, 6> withNameOnTop(const std::array<std::string, 6>& list,
                                         const std::string& name, Disk& disk) {
    std::vector<std::string> next{nameForList(name, disk)};
    for (std::size_t i = 1; i <= kMostRecent && !list[i].empty(); ++i) {
        const bool known = std::any_of(next.begin(), next.end(), [&](const std::string& entry) {
            return sameIgnoringCase(entry, list[i]);
        });
        if (!known) next.push_back(list[i]);
    }
    next.resize(kMostRecent);
    std::array<std::string, 6> result;
    std::move(next.begin(), next.end(), result.begin() + 1);
    return result;
}

std::string folderToWorkIn(std::string_view path) {
    const std::size_t separator = path.rfind(kPathSeparator);
    if (separator == std::string_view::npos || separator == 0) return {};
    const std::string_view withSeparator = path.substr(0, separator + 1);
    if (withSeparator.size() == kDriveRootLength) return std::string(withSeparator);
    return std::string(path.substr(0, separator));
}

RecentFileList::RecentFileList(ProgramState& state, Control& window, const MenuControls& menus,
                               Disk& disk, MessageBoxes& messages)
    : state_(state),
      window_(window),
      mnuFileItem_(menus.mnuFileItem),
      disk_(disk),
      messages_(messages) {}

void RecentFileList::UpdateRecentFiles(const std::string& name) {
    if (name.empty()) return;
    const auto tell = [this](const RuntimeFault& fault) {
        messages_.tell("Error  " + generalText(fault.number()) + "  " + fault.text());
    };
    try {
        // Appending makes it just as well, and spares a file that merely wasn't ready.
        if (genSub::FileExists(disk_, name) == genSub::kFileIsMissing)
            disk_.openForAppending(name)->close();
    } catch (const RuntimeFault& fault) {
        tell(fault);
    }
    try {
        const std::string folder = folderToWorkIn(name);
        if (!folder.empty()) {
            disk_.tidy(folder);
            disk_.setCurrentFolder(folder);
        }
    } catch (const RuntimeFault& fault) {
        tell(fault);
    }
    state_.RecentFiles = withNameOnTop(state_.RecentFiles, name, disk_);
    rebuildMenu();
    showCaption();
}

void RecentFileList::rebuildMenu() {
    mnuFileItem_.unloadEntriesDownTo(kFirstRecentItem);
    for (std::size_t i = 1; i <= kMostRecent && !state_.RecentFiles[i].empty(); ++i)
        mnuFileItem_.loadEntry("&" + std::to_string(i) + " " + state_.RecentFiles[i]);
    mnuFileItem_.loadEntry("-");
    mnuFileItem_.loadEntry("종료");
}

void RecentFileList::showCaption() {
    std::string caption = "좌표변환프로그램 Kelvo ";
    caption.append(kOwnerLine).append(AppVersion).append(" - ").append(state_.RecentFiles[1]);
    window_.setCaption(caption);
}

}  // namespace kelvo
