#include "shell/viewer.h"

#include <algorithm>

#include "batch/run_batch.h"
#include "common/letter_case.h"
#include "common/paths.h"
#include "common/text_file.h"
#include "shell/point_pictures.h"

namespace kelvo {

namespace {

constexpr std::string_view kShowNumbers = "수치보기";
constexpr std::string_view kShowPicture = "그림보기";

void requireUsable(std::string_view text, const std::string& path) {
    std::size_t lines = 0;
    std::size_t longest = 0;
    for (std::size_t at = 0; at < text.size(); ++lines) {
        const std::size_t end = std::min(text.find("\r\n", at), text.size());
        longest = std::max(longest, end - at);
        at = end + 2;
    }
    if (lines > kMostLinesOnView || longest > kLongestLineOnView)
        raise(Fault::Overflow, "줄이 너무 많거나 너무 길어서 볼 수 없습니다 (" + path + ")");
}

}  // namespace

ResultViewer::ResultViewer(const ViewerControls& controls, const ScaleControls& scale,
                           ProgramState& state, PrintModePanel& printMode, PointPictures& pictures,
                           RecentFileList& recent, CommonDialog& cmd, const Services& services)
    : on_(controls),
      scale_(scale),
      state_(state),
      printMode_(printMode),
      pictures_(pictures),
      recent_(recent),
      cmd_(cmd),
      disk_(services.disk),
      journal_(services.journal, services.alarm, services.clock, [this] {
          return UnsavedText{.path = fileName_, .text = on_.Richtxt.text(), .since = {}};
      }) {
    on_.Richtxt.onChange = [this] {
        if (!loading_) journal_.changed();
    };
    on_.cmdShow.onClick = [this] { cmdShow_Click(); };
    on_.cmdSave.onClick = [this] { cmdSave_Click(); };
    on_.cmdSaveAs.onClick = [this] { cmdSaveAs_Click(); };
    on_.cmdClose.onClick = [this] { cmdClose_Click(); };
}

void ResultViewer::showTextPanel() {
    scale_.pctPlot.setVisible(false);
    scale_.frmePcfg.setVisible(false);
    on_.Richtxt.setVisible(true);
    on_.frmeFile.setVisible(true);
}

void ResultViewer::load(const std::string& path) {
    const std::string text = readWholeText(disk_, path, kLargestOnView);
    requireUsable(text, path);
    journal_.aboutToGo();
    fileName_ = path;
    showText(text);
    journal_.isInItsFile();
    if (onLoaded) onLoaded(path);
}

void ResultViewer::showText(const std::string& text) {
    loading_ = true;
    on_.Richtxt.setText(text);
    loading_ = false;
}

void ResultViewer::showUnsaved(const UnsavedText& text) {
    showTextPanel();
    on_.cmdShow.setEnabled(false);
    on_.frmeFile.setCaption(text.path);
    fileName_ = text.path;
    showText(text.text);
}

void ResultViewer::saveOnView() {
    if (!fileName_.empty()) saveUnder(fileName_);
}

void ResultViewer::OpenRichText(const std::string& Path) {
    showTextPanel();
    on_.cmdShow.setEnabled(false);
    on_.frmeFile.setCaption(Path);
    load(Path);
}

bool ResultViewer::numbersOnView() const {
    return on_.cmdShow.caption() == kShowPicture;
}

void ResultViewer::cmdShow_Click() {
    if (on_.cmdShow.caption() == kShowNumbers) {
        showTextPanel();
        const std::string path = resultFileOf(state_.RecentFiles[1]);
        on_.frmeFile.setCaption(path);
        load(path);
        on_.cmdShow.setCaption(kShowPicture);
        return;
    }
    on_.cmdShow.setCaption(kShowNumbers);
    on_.Richtxt.setVisible(false);
    scale_.pctPlot.setVisible(true);
    scale_.frmePcfg.setVisible(true);
    pictures_.drawOnScreen();
}

void ResultViewer::showRunResult() {
    on_.cmdShow.setEnabled(true);
    on_.cmdShow.setCaption(kShowNumbers);
    cmdShow_Click();
}

void ResultViewer::cmdSave_Click() {
    saveUnder(fileName_);
    on_.frmeFile.setVisible(false);
    printMode_.showWhatWasShown();
}

void ResultViewer::cmdSaveAs_Click() {
    std::string name;
    try {
        cmd_.properties.filter = kDataFileFilter;
        cmd_.properties.title = "다른 이름으로 저장";
        cmd_.properties.folder = genSub::FolderOf(disk_, state_.RecentFiles[1]);
        cmd_.properties.fileName = fileName_;
        cmd_.properties.filterIndex = 2;
        name = cmd_.showSave();
    } catch (const RuntimeFault& fault) {
        if (fault.fault() != Fault::DialogCancelled) throw;
        return;
    }
    saveUnder(name);
    OpenRichText(name);
    if (upperCased(genSub::FileExtensionOf(name)) == "DAT") recent_.UpdateRecentFiles(name);
}

void ResultViewer::saveUnder(const std::string& path) {
    saveCopy(path);
    journal_.isInItsFile();
    if (onSaved) onSaved(path);
}

void ResultViewer::cmdClose_Click() {
    journal_.aboutToGo();
    on_.frmeFile.setVisible(false);
}

void ResultViewer::saveAndHide(const std::string& name) {
    on_.Richtxt.setVisible(false);
    fileName_ = name;
    saveUnder(name);
}

void ResultViewer::saveCopy(const std::string& name) {
    replaceWholeText(disk_, name, on_.Richtxt.text());
}

}  // namespace kelvo
