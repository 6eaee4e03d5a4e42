#include "shell/configuration.h"

#include <algorithm>
#include <string>

#include "batch/sample_data.h"
#include "common/code_page.h"
#include "common/paths.h"
#include "common/run_time_fault.h"
#include "common/text_constants.h"
#include "common/text_file.h"
#include "shell/configuration_merge.h"
#include "shell/configuration_text.h"

namespace kelvo {

namespace {

using RecentFiles = std::array<std::string, 6>;

std::string textOf(const Configuration& configuration, std::string_view flagGap) {
    std::string text = parameterLines(configuration.Cfg, flagGap);
    for (std::size_t i = 1; i <= kMostRecentFiles && !configuration.RecentFiles[i].empty(); ++i)
        text += pathLine(configuration.RecentFiles[i]);
    return text;
}

void readRecentFiles(TextReader& file, ProgramState& state, Disk& disk, int& count) {
    RecentFiles inFile;
    for (std::size_t place = 1; !file.atEnd(); ++place) {
        ++count;
        const std::string item = readPath(file);
        if (place < inFile.size()) inFile[place] = item;
        if (genSub::FileExists(disk, item) == genSub::kFileIsMissing) continue;
        if (count > static_cast<int>(kMostRecentFiles))
            raise(Fault::Subscript, "최근 파일이 다섯을 넘습니다");
        state.RecentFiles[static_cast<std::size_t>(count)] = item;
    }
    state.saved.recentInFile = inFile;
}

// What another program has saved, for a program that saves after it.
Configuration readTheirs(Disk& disk, const std::string& path) {
    Configuration theirs;
    FieldStore fields;
    TextReader file(disk, path);
    readParameters(file, theirs.Cfg, fields);
    for (std::size_t place = 1; place <= kMostRecentFiles && !file.atEnd(); ++place)
        theirs.RecentFiles[place] = readPath(file);
    return theirs;
}

// The sample never takes the place of something that a user has written.
void writeSample(Disk& disk, const std::string& path) {
    if (genSub::FileExists(disk, path) != genSub::kFileIsMissing) {
        std::string held;
        try {
            held = readWholeText(disk, path);
        } catch (const RuntimeFault&) {
            // Kept aside under another name, if nothing else.
        }
        if (held != sampleDataText()) keepAside(disk, path);
    }
    WriteSampleData(disk, path);
}

void writeFirstConfiguration(ProgramState& state, Disk& disk) {
    const std::string sample =
        state.inApplicationFolder(std::string("data") + kPathSeparator + "test.dat");
    writeSample(disk, sample);
    fillFirstStart(state.Cfg);
    std::string text = parameterLines(state.Cfg, "    ");
    disk.replace(state.CfgPath, encodeCodePage(text + pathLine(sample)));
}

// This program's configuration with that of another one that has saved meanwhile.
MergedConfiguration mergedWithFile(const ProgramState& state, Disk& disk) {
    const Configuration mine{state.Cfg, state.RecentFiles};
    const Configuration before{state.saved.cfgInFile, state.saved.recentInFile};
    try {
        MergedConfiguration merged = mergedConfiguration(mine, state.saved.cfgInPanels,
                                                         readTheirs(disk, state.CfgPath), before);
        if (!merged.conflicts.empty()) keepAside(disk, state.CfgPath);
        return merged;
    } catch (const RuntimeFault&) {
        // It can't be read, so it can't have been meant for this program.
        keepAside(disk, state.CfgPath);
        return {.configuration = mine, .conflicts = {}};
    }
}

void tellConflicts(const std::vector<std::string>& conflicts, MessageBoxes& messages) {
    if (conflicts.empty()) return;
    std::string text = "다른 Kelvo 창에서 저장한 설정과 이 창의 설정이 서로 다릅니다:";
    for (const std::string& words : conflicts) text.append(kLineEnd).append("  ").append(words);
    messages.tell(text.append(kLineEnd).append(
        "이 창의 값을 저장하였고, 다른 창에서 저장한 설정은 kelvo.cfg.old에 남겼습니다."));
}

}  // namespace

void fillFirstStart(TransPara& Cfg) {
    Cfg.Editor = kFileNamesIgnoreCase ? "Notepad.exe" : "xdg-open";
    setShift(Cfg, kRecommendedShift);
    Cfg.Kind = ShiftKind{0};  // required: what the panel shows as Bursa
    setUserEllipsoid(Cfg, kBesselOfParameters);
    Cfg.Zone = TmZone::Centre;
    setTmOrigin(Cfg, originOf(UtmZone::East));
    setUtmEllipsoid(Cfg, kBesselOfParameters);
    Cfg.UZone = UtmZone::East;
    Cfg.AddFlag = Flag::On;
    Cfg.CorrFlag = Flag::Off;
}

int readConfiguration(ProgramState& state, Disk& disk) {
    int count = 0;
    SettingsFile settings(disk, state.CfgPath, state.saved.cfgFile);
    settings.readOrReplace(
        [&] {
            TextReader file(disk, state.CfgPath);
            readParameters(file, state.Cfg, state.conversion.fields);
            readRecentFiles(file, state, disk, count);
        },
        [&](int recovery) {
            writeFirstConfiguration(state, disk);
            if (recovery == 2) count = 0;
        });
    state.saved.cfgInFile = state.saved.cfgInPanels = state.Cfg;
    return count;
}

void WriteCfgFile(ProgramState& state, Disk& disk, MessageBoxes& messages) {
    try {
        MergedConfiguration written{.configuration = {state.Cfg, state.RecentFiles},
                                    .conflicts = {}};
        SettingsFile settings(disk, state.CfgPath, state.saved.cfgFile);
        settings.write(encodeCodePage(textOf(written.configuration, "   ")), [&] {
            written = mergedWithFile(state, disk);
            return encodeCodePage(textOf(written.configuration, "   "));
        });
        state.saved.cfgInFile = written.configuration.Cfg;
        state.saved.recentInFile = written.configuration.RecentFiles;
        state.saved.cfgInPanels = state.Cfg;
        tellConflicts(written.conflicts, messages);
    } catch (const RuntimeFault&) {
        messages.tell("CFG파일 에러");
    }
}

}  // namespace kelvo
