// A run of a data file on a disk in memory. Texts are UTF-8 with LF line ends going in; what the
// run wrote comes out line by line, every line end checked to be CR LF.
#pragma once

#include <string>
#include <vector>

#include "batch/run_batch.h"
#include "common/run_time_fault.h"
#include "support/memory_disk.h"
#include "support/recording_messages.h"

namespace kelvo::testing {

class RecordingView final : public RunView {
public:
    void runBegins() override { happened.push_back("begins"); }
    void showResult() override {
        happened.push_back("shows");
        if (fault != 0) raise(static_cast<Fault>(fault));
    }
    std::vector<std::string> happened;
    int fault = 0;
};

class BatchBench {
public:
    BatchBench() {
        disk.addFolder("/job");
        disk.addFolder("/app");
    }

    // Runs the text as /job/a.dat. A second run on one bench is a second run of one process.
    void run(const std::string& data) {
        disk.putText(places.dataFile, data);
        runFile();
    }

    void runFile() {
        fault = 0;
        faultText.clear();
        messages.shown.clear();
        try {
            RunBatch(state, places, view, disk, messages);
        } catch (const RuntimeFault& caught) {
            fault = caught.number();
            faultText = caught.text();
        }
    }

    void known(const std::string& text) { disk.putText(places.CorPath, text); }

    [[nodiscard]] std::vector<std::string> out() const { return lines("/job/a.out"); }
    [[nodiscard]] std::vector<std::string> det() const { return lines("/app/kelvo.det"); }

    // Rows of the point table in use.
    [[nodiscard]] int points() const { return state.points.PointCount; }
    [[nodiscard]] const PointRec& row(int index) const { return state.points.row(index); }

    // The lines of one of the five tables (1 to 5) of the result file, without its headings.
    [[nodiscard]] std::vector<std::string> table(int number) const;

    // How many lines of the result file are exactly this text, and how many hold it.
    [[nodiscard]] int countOut(const std::string& line) const;
    [[nodiscard]] bool outHolds(const std::string& text) const;

    MemoryDisk disk;
    RecordingMessages messages;
    RecordingView view;
    ConversionState state;
    RunPlaces places{"/job/a.dat", "/app/kelvo.det", "/app/kelvo.cor"};
    int fault = 0;
    std::string faultText;

private:
    [[nodiscard]] std::vector<std::string> lines(const std::string& path) const;
};

inline std::vector<std::string> BatchBench::lines(const std::string& path) const {
    const std::string text = disk.text(path);
    std::vector<std::string> result;
    std::size_t at = 0;
    while (at < text.size()) {
        const std::size_t end = text.find("\r\n", at);
        if (end == std::string::npos) {
            result.push_back("NO LINE END: " + text.substr(at));
            break;
        }
        result.push_back(text.substr(at, end - at));
        if (result.back().find_first_of("\r\n") != std::string::npos) {
            result.back() = "STRAY LINE END: " + result.back();
        }
        at = end + 2;
    }
    return result;
}

inline std::vector<std::string> BatchBench::table(int number) const {
    const std::string headings[] = {
        "WGS 타윈체 경위도 및 타원체고", "사용자 타윈체 경위도 및 표고",
        "사용자 타윈체 직교좌표 및 표고 (TM) (사용자 타원체 경위도 -> 사용자 타원체 TM)",
        "사용자 타윈체 직교좌표 및 표고 (UTM) (사용자 타원체 경위도 -> 사용자 타원체 UTM)",
        "WGS 타윈체 직교좌표 및 표고 (WGS 경위도 -> WGS 타원체 UTM)"};
    const auto all = out();
    std::vector<std::string> rows;
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (all[i] != headings[number - 1]) continue;
        for (std::size_t k = i + 2; k < all.size() && !all[k].empty(); ++k) rows.push_back(all[k]);
        break;
    }
    return rows;
}

inline int BatchBench::countOut(const std::string& line) const {
    int count = 0;
    for (const auto& each : out()) count += each == line ? 1 : 0;
    return count;
}

inline bool BatchBench::outHolds(const std::string& text) const {
    return disk.text("/job/a.out").find(text) != std::string::npos;
}

}  // namespace kelvo::testing
