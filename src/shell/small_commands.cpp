#include "shell/small_commands.h"

#include <string>

#include "common/application_folder.h"
#include "common/paths.h"
#include "common/text_constants.h"

namespace kelvo {

namespace {

// A paragraph each: what it is, by whom and for whom; that it is free and open; that it comes
// without warranty; what else there is; where suggestions go.
constexpr std::array<std::string_view, 5> kAbout{
    "측량 기술자를 위하여 Kelvo 개발자들이 만든 좌표변환 프로그램입니다.",
    "이 프로그램은 무료이며, 소스가 MIT 라이선스로 공개되어 있어 누구나 자유롭게 이용하고 고쳐 쓸 "
    "수 있습니다.",
    "사용에 따른 책임은 사용자에게 있으며, 제공자는 계산 결과에 대하여 아무런 보증도 하지 "
    "않습니다.",
    "함께 만든 프로그램으로, 창 없이 명령줄에서 데이터 파일을 변환하는 kelvo-batch가 있습니다.",
    "고칠 점이나 바라는 점이 있으면 Kelvo 개발자들에게 알려 주시기 바랍니다."};

}  // namespace

SmallCommands::SmallCommands(const MenuControls& menus, Control& frmeOne, Control& frmeFile,
                             ProgramState& state, ResultViewer& viewer, CommonDialog& cmd,
                             Disk& disk, MessageBoxes& messages)
    : menus_(menus),
      frmeOne_(frmeOne),
      frmeFile_(frmeFile),
      state_(state),
      viewer_(viewer),
      cmd_(cmd),
      disk_(disk),
      messages_(messages) {
    menus_.mnuBatchEdit.onClick = [this] { mnuBatchEdit_Click(); };
    menus_.mnuCorrEdit.onClick = [this] { mnuCorrEdit_Click(); };
    menus_.mnuCorrShow.onClick = [this] { mnuCorrShow_Click(); };
    menus_.mnuOneOpen.onClick = [this] { mnuOneOpen_Click(); };
    menus_.mnuEditorSelect.onClick = [this] { mnuEditorSelect_Click(); };
    menus_.mnuHelpFile.onClick = [this] { mnuHelpFile_Click(); };
    menus_.mnuAbout.onClick = [this] { mnuAbout_Click(); };
}

void SmallCommands::mnuBatchEdit_Click() {
    viewer_.OpenRichText(state_.RecentFiles[1]);
}

void SmallCommands::mnuCorrEdit_Click() {
    viewer_.OpenRichText(state_.CorPath);
}

void SmallCommands::mnuCorrShow_Click() {
    viewer_.OpenRichText(state_.inApplicationFolder(kDetailFile));
}

void SmallCommands::mnuOneOpen_Click() {
    frmeOne_.setVisible(true);
    frmeFile_.setVisible(false);
}

void SmallCommands::chooseEditor() {
    cmd_.properties.filter = "EXE files (*.exe)|*.exe|All Files (*.*)|*.*";
    cmd_.properties.filterIndex = 1;
    cmd_.properties.title = "Editor Program 설정";
    std::string& editor = state_.Cfg.Editor;
    while (true) {
        cmd_.properties.fileName = editor;
        editor = cmd_.showOpen();
        const std::optional<int> exists = genSub::FileExists(disk_, editor);
        if (exists == genSub::kFileIsThere) return;
        if (exists != genSub::kFileIsMissing) continue;
        const Answer answer = messages_.show({.text = "파일 " + editor + " 이 없습니다." +
                                                      std::string(kLineEnd) + "다시 설정하십시오",
                                              .icon = Icon::Warning,
                                              .buttons = Buttons::OkCancel,
                                              .title = {}});
        if (answer != Answer::Ok) return;
    }
}

void SmallCommands::mnuEditorSelect_Click() {
    try {
        chooseEditor();
    } catch (const RuntimeFault& fault) {
        if (fault.fault() != Fault::DialogCancelled) throw;
    }
    menus_.mnuEditorSelect.setCaption("Editor Program 설정(" + state_.Cfg.Editor + ")");
}

void SmallCommands::mnuHelpFile_Click() {
    try {
        viewer_.OpenRichText(state_.inApplicationFolder("KelvoHelp.txt"));
    } catch (const RuntimeFault&) {
        messages_.tell("도움말 File Kelvohelp.txt를 열수 없습니다.");
    }
}

void SmallCommands::mnuAbout_Click() {
    std::string text = "Kelvo " + std::string(AppVersion) + " - ";
    for (const std::string_view paragraph : kAbout) {
        if (paragraph != kAbout.front()) text += kLineEnd;
        text += paragraph;
    }
    messages_.tell(text);
}

}  // namespace kelvo
