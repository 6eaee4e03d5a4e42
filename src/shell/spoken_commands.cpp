#include "shell/spoken_commands.h"

#include <utility>

#include "batch/run_batch.h"

namespace kelvo {

namespace {

constexpr int kNew = 0;
constexpr int kSave = 4;
constexpr int kSaveAs = 5;

}  // namespace

SpokenCommands::SpokenCommands(Form& form, const ProgramState& state, ResultViewer& viewer,
                               const HeardMessages& messages, StatusLine& status)
    : form_(form), state_(state), viewer_(viewer), messages_(messages), status_(status) {
    speakOfText();
    speakOfFileMenu();
    speakOfOnePoint();
}

void SpokenCommands::after(const char* control, Sentence sentence) {
    Control& spokenOf = *form_.find(control);
    spokenOf.onClick = [this, handler = std::move(spokenOf.onClick),
                        sentence = std::move(sentence)] {
        handler();
        std::string said = sentence();
        if (!said.empty()) status_.say(std::move(said));
    };
}

void SpokenCommands::speakOfText() {
    viewer_.onLoaded = [this](const std::string& path) {
        loaded_ = path;
        status_.say("열었습니다: " + path);
    };
    viewer_.onSaved = [this](const std::string& path) {
        saved_ = path;
        status_.say("저장했습니다: " + path);
    };
    after("cmdClose", [] { return std::string("닫았습니다"); });
    after("cmdModeSave", [] { return std::string("인쇄 방법을 정했습니다"); });
    after("cmdPlot", [this] {
        return "그림: 점 " + std::to_string(state_.conversion.points.PointCount) + "개";
    });
}

void SpokenCommands::speakOfFileMenu() {
    Control& items = *form_.find("mnuFileItem");
    items.onEntryClick = [this, handler = std::move(items.onEntryClick)](int index) {
        const std::string shownBefore = form_.find("frmeFile")->caption();
        loaded_.clear();
        saved_.clear();
        handler(index);
        std::string said = sentenceOfFileItem(index, shownBefore);
        if (!said.empty()) status_.say(std::move(said));
    };
}

std::string SpokenCommands::sentenceOfFileItem(int index, const std::string& shownBefore) {
    if (index == kSave) {
        if (saved_.empty()) return "저장하지 못했습니다: " + state_.RecentFiles[1];
        // It always goes into the data file, whatever the text is.
        return shownBefore == saved_
                   ? "저장했습니다: " + saved_
                   : "화면에 있던 " + shownBefore + "의 글을 데이터 파일에 저장했습니다: " + saved_;
    }
    if (loaded_.empty()) return {};
    if (index == kNew) return "새 데이터 파일을 만들었습니다: " + loaded_;
    if (index == kSaveAs) {
        return "디스크에 있던 데이터 파일을 복사하여 열었습니다: " + loaded_;
    }
    return {};
}

std::string SpokenCommands::saidIfAgreed(const std::string& sentence) const {
    return messages_.last() == Answer::Ok ? sentence : "취소했습니다";
}

void SpokenCommands::speakOfOnePoint() {
    const std::string results = state_.inApplicationFolder("Kelvo.out");
    after("mnuPrintBrief", [results] { return "결과를 덧붙였습니다: " + results; });
    after("mnuPrintDetail", [this, results] {
        return saidIfAgreed("결과를 매개변수와 함께 덧붙였습니다: " + results);
    });
    after("mnuPrintClear",
          [this, results] { return saidIfAgreed("저장된 결과를 모두 지웠습니다: " + results); });
    after("cmdOneClose", [] { return std::string("매개변수를 저장했습니다"); });
    // Required: both empty the report of the last run.
    for (const char* arrow : {"cmdW2B", "cmdB2W"}) {
        after(arrow, [this] {
            return "변환했습니다. 앞서 한 일괄변환의 보고서는 비워졌습니다: " +
                   resultFileOf(state_.RecentFiles[1]);
        });
    }
    for (const char* arrow : {"cmdGP2TM", "cmdTM2GP", "cmdTM2UTM", "cmdUTM2TM"}) {
        after(arrow, [] { return std::string("변환했습니다"); });
    }
}

void SpokenCommands::sayRun() {
    const std::size_t messages = status_.messages().size();
    std::string said = std::to_string(state_.conversion.points.PointCount) + "점 변환, 보고서 " +
                       resultFileOf(state_.RecentFiles[1]);
    if (messages > 0) said += ", 알림 " + std::to_string(messages) + "개";
    status_.say(std::move(said));
}

}  // namespace kelvo
