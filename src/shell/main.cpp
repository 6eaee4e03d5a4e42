#include "shell/main.h"

#include <algorithm>
#include <string>
#include <utility>

#include "common/paths.h"
#include "common/run_time_fault.h"
#include "shell/configuration.h"

namespace kelvo {

namespace {

std::string& entry(ProgramState& state, int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= state.RecentFiles.size())
        raise(Fault::Subscript, state.CfgPath + ": 최근 파일이 너무 많습니다");
    return state.RecentFiles[static_cast<std::size_t>(index)];
}

// Where the case of letters counts, the sample, which a first start writes in small letters, and
// the default entry would be two files: the entry takes the spelling of the one that is there.
std::string defaultDataFile(const ProgramState& state, Disk& disk) {
    const std::string folder = state.inApplicationFolder(std::string("data") + kPathSeparator);
    const bool sampleIsThere =
        genSub::FileExists(disk, folder + "test.DAT") == genSub::kFileIsMissing &&
        genSub::FileExists(disk, folder + "test.dat") == genSub::kFileIsThere;
    return folder + (sampleIsThere ? "test.dat" : "test.DAT");
}

}  // namespace

void Main(frmKelvo& window) {
    ProgramState& state = window.state();
    Disk& disk = window.services().disk;
    disk.tidy(state.applicationFolder);
    disk.tidy(state.inApplicationFolder("data"));
    state.RecentFiles[1] = defaultDataFile(state, disk);

    int count = readConfiguration(state, disk);
    // The list changes under the loop, and the entry handled last comes out on top: hence the
    // swap. The entry that the count leaves out stays in the list.
    if (count > 2) std::swap(entry(state, 1), entry(state, count - 1));
    count = std::max(count, 2);
    for (int i = 1; i <= count - 1; ++i) window.UpdateRecentFiles(std::string(entry(state, i)));

    window.Form_Load();
}

}  // namespace kelvo
