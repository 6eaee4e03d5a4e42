#include "shell/file_menu.h"

#include <utility>

#include "batch/sample_data.h"
#include "common/letter_case.h"
#include "common/paths.h"
#include "common/text_constants.h"
#include "common/utf8.h"
#include "shell/configuration.h"

namespace kelvo {

namespace {

constexpr int kNew = 0;
constexpr int kOpen = 2;
constexpr int kSave = 4;
constexpr int kSaveAs = 5;
constexpr int kFirstRecent = 7;
// "&", digit, blank in front of a recent file's name.
constexpr std::size_t kCaptionPrefix = 3;

// The last three characters, in capitals.
std::string endingOf(const std::string& name) {
    const std::size_t count = characterCount(name);
    return upperCased(middleOf(name, count < 3 ? 1 : count - 2, 3));
}

}  // namespace

FileMenu::FileMenu(const MenuControls& menus, Control& frmeOne, ProgramState& state,
                   ResultViewer& viewer, RecentFileList& recent, CommonDialog& cmd,
                   const Services& services, std::function<void()> closeWindow)
    : menus_(menus),
      frmeOne_(frmeOne),
      state_(state),
      viewer_(viewer),
      recent_(recent),
      cmd_(cmd),
      services_(services),
      closeWindow_(std::move(closeWindow)) {
    menus_.mnuFileItem.onEntryClick = [this](int Index) { mnuFileItem_Click(Index); };
}

void FileMenu::mnuFileItem_Click(int Index) {
    cmd_.properties.filter = kDataFileFilter;
    cmd_.properties.filterIndex = 1;
    cmd_.properties.folder = genSub::FolderOf(services_.disk, state_.RecentFiles[1]);
    const int highest = menus_.mnuFileItem.highestIndex();
    frmeOne_.setVisible(false);
    try {
        if (!dispatch(Index, highest)) return;
    } catch (const RuntimeFault&) {
        return;
    }
    WriteCfgFile(state_, services_.disk, services_.messages);
}

bool FileMenu::dispatch(int Index, int highest) {
    if (Index == kNew) {
        newFile();
    } else if (Index == kOpen) {
        openFile();
    } else if (Index == kSave) {
        viewer_.saveAndHide(state_.RecentFiles[1]);
    } else if (Index == kSaveAs) {
        saveFileAs();
    } else if (Index >= kFirstRecent && Index <= highest - 2) {
        recentFile(Index);
    } else if (Index >= kFirstRecent && Index == highest) {
        closeWindow_();
        return false;
    }
    return true;
}

void FileMenu::tellAlreadyOpen() {
    services_.messages.show({.text = "파일이 이미 열려 있습니다.",
                             .icon = Icon::Information,
                             .buttons = Buttons::Ok,
                             .title = "Kelvo Program"});
}

bool FileMenu::passesExtensionTest(const std::string& name) {
    if (endingOf(name) == "DAT") return true;
    services_.messages.tell("확장자가 'dat'인 파일을 선택 하십시오");
    return false;
}

Answer FileMenu::ask(const std::string& name, std::string_view state, std::string_view question,
                     Icon icon, Buttons buttons) {
    std::string text = "파일 " + name;
    text.append(state).append(kLineEnd).append(question);
    return services_.messages.show(
        {.text = std::move(text), .icon = icon, .buttons = buttons, .title = {}});
}

void FileMenu::newFile() {
    cmd_.properties.title = "새 파일";
    std::string name;
    while (true) {
        cmd_.properties.fileName = ".dat";
        name = cmd_.showOpen();
        if (sameIgnoringCase(name, state_.RecentFiles[1])) {
            services_.beeper.beep();
            tellAlreadyOpen();
            raise(Fault::DialogCancelled);
        }
        if (!passesExtensionTest(name)) continue;
        const std::optional<int> exists = genSub::FileExists(services_.disk, name);
        if (exists == genSub::kFileIsMissing) break;
        if (exists != genSub::kFileIsThere) continue;
        const Answer answer = ask(name, " 이 이미 있습니다.", "새로 만들겠습니까 ? ",
                                  Icon::Question, Buttons::YesNoCancel);
        if (answer == Answer::Yes) break;
        if (answer != Answer::No) raise(Fault::DialogCancelled);
    }
    recent_.UpdateRecentFiles(name);
    WriteSampleData(services_.disk, name);
    menus_.mnuFileItem.setEntryEnabled(kSave, true);
    menus_.mnuFileItem.setEntryEnabled(kSaveAs, true);
    viewer_.OpenRichText(name);
}

void FileMenu::openFile() {
    cmd_.properties.title = "열기";
    std::string name;
    while (true) {
        cmd_.properties.fileName = "*.dat";
        name = cmd_.showOpen();
        // No exit, unlike a new file, and the case of letters counts (required).
        if (name == state_.RecentFiles[1]) tellAlreadyOpen();
        if (!passesExtensionTest(name)) continue;
        const std::optional<int> exists = genSub::FileExists(services_.disk, name);
        if (exists == genSub::kFileIsThere) break;
        if (exists != genSub::kFileIsMissing) continue;
        const Answer answer =
            ask(name, " 이 없습니다.", "새로 선택하십시오 ", Icon::Warning, Buttons::OkCancel);
        if (answer != Answer::Ok) raise(Fault::DialogCancelled);
    }
    menus_.mnuFileItem.setEntryEnabled(kSave, true);
    menus_.mnuFileItem.setEntryEnabled(kSaveAs, true);
    recent_.UpdateRecentFiles(name);
    viewer_.OpenRichText(name);
}

void FileMenu::saveFileAs() {
    cmd_.properties.title = "다른 이름으로 저장";
    std::string name;
    while (true) {
        cmd_.properties.fileName = genSub::FileTitleOf(state_.RecentFiles[1]) + ".dat";
        cmd_.properties.filterIndex = 1;
        name = cmd_.showSave();
        if (!passesExtensionTest(name)) continue;
        const std::optional<int> exists = genSub::FileExists(services_.disk, name);
        if (exists == genSub::kFileIsMissing) break;
        if (exists != genSub::kFileIsThere) continue;
        const Answer answer = ask(name, " 이 있습니다.", "덧 씌워서 저장하시겠습니까 ? ",
                                  Icon::None, Buttons::YesNoCancel);
        if (answer == Answer::Yes) break;
        if (answer != Answer::No) raise(Fault::DialogCancelled);
    }
    // The file on disk is copied; what was typed and not saved doesn't go with it (required).
    genSub::CopyFileGuard(services_.disk, services_.messages, state_.RecentFiles[1], name);
    viewer_.OpenRichText(name);
    recent_.UpdateRecentFiles(name);
}

void FileMenu::recentFile(int Index) {
    const std::string& caption =
        menus_.mnuFileItem.entries()[static_cast<std::size_t>(Index)].caption;
    const std::string name = caption.substr(kCaptionPrefix);
    while (true) {
        const std::optional<int> exists = genSub::FileExists(services_.disk, name);
        if (exists == genSub::kFileIsThere) break;
        // Neither there nor missing, a folder say: asking again would go round for ever.
        if (exists != genSub::kFileIsMissing) raise(Fault::DialogCancelled);
        const Answer answer =
            ask(name, " 이 없습니다.", "새로 만들겠습니까 ? ", Icon::None, Buttons::YesNoCancel);
        if (answer == Answer::Yes) break;
        if (answer != Answer::No) raise(Fault::DialogCancelled);
    }
    recent_.UpdateRecentFiles(name);
    viewer_.OpenRichText(name);
}

}  // namespace kelvo
