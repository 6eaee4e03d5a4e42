// What the panels and commands of one window share.
#pragma once

#include <array>
#include <string>

#include "batch/conversion_state.h"
#include "batch/trans_para.h"
#include "common/disk.h"
#include "panels/settings_file.h"
#include "plot/plot_cfg.h"

namespace kelvo {

// The settings as this program last had them in common with their files, so that its own changes
// can be told from those that another program saved.
struct SavedSettings {
    SeenFile cfgFile;
    TransPara cfgInFile;
    std::array<std::string, 6> recentInFile;
    TransPara cfgInPanels;  // as the panels give it back untouched

    SeenFile plotFile;
    PlotCfg plotInFile;
    PlotCfg plotInPanel;
};

struct ProgramState {
    std::string applicationFolder;  // without a trailing separator
    std::string CfgPath;
    std::string CorPath;

    // Entries 1 to 5; entry 1 is the current data file, empty entries stand after the others.
    std::array<std::string, 6> RecentFiles;

    TransPara Cfg;    // the stored parameters; the panels are their working copy
    PlotCfg plotCfg;  // the stored plot settings
    ConversionState conversion;
    SavedSettings saved;

    // A file of the application folder.
    [[nodiscard]] std::string inApplicationFolder(const std::string& name) const {
        return applicationFolder + kPathSeparator + name;
    }
};

}  // namespace kelvo
