#include <algorithm>
#include <string>
#include <utility>

#include "common/run_time_fault.h"
#include "shell/configuration.h"
#include "shell/frm_kelvo.h"

namespace kelvo {

namespace {

std::string& entry(ProgramState& state, int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= state.RecentFiles.size())
        raise(Fault::Subscript);
    return state.RecentFiles[static_cast<std::size_t>(index)];
}

}  // namespace

void Main(frmKelvo& window) {
    ProgramState& state = window.state();
    state.RecentFiles[1] =
        state.inApplicationFolder(std::string("data") + kPathSeparator + "test.DAT");

    int count = readConfiguration(state, window.services().disk);
    // The list changes under the loop, and the entry handled last comes out on top: hence the
    // swap. The entry that the count leaves out stays in the list.
    if (count > 2) std::swap(entry(state, 1), entry(state, count - 1));
    count = std::max(count, 2);
    for (int i = 1; i <= count - 1; ++i) window.UpdateRecentFiles(std::string(entry(state, i)));

    window.Form_Load();
}

}  // namespace kelvo
