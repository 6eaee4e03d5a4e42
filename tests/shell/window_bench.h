// The whole window on a disk in memory, with recording services.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "shell/frm_kelvo.h"
#include "shell/main.h"
#include "support/faults.h"
#include "support/memory_disk.h"
#include "support/recording_services.h"

namespace kelvo::testing {

// A kelvo.cfg as the program writes it for the centre zone, without recent files.
inline const std::string kUsualCfg =
    "editor.exe\r\n"
    " 115.8        -474.99       -674.11 \r\n"
    " 1.16         -2.31         -1.63 \r\n"
    "-6.43 \r\n"
    " 2 \r\n"
    " 0             0             0 \r\n"
    " 6377397.155   299.1528128 \r\n"
    " 2 \r\n"
    " 38            127 \r\n"
    " 500000        200000 \r\n"
    " 1 \r\n"
    " 6377397.155   299.1528128 \r\n"
    " 2 \r\n"
    " 0             129 \r\n"
    " 0             500000 \r\n"
    " .9996 \r\n"
    " 1                           0 \r\n";

// One program on a disk; a second one on the same disk is the next start.
class Program {
public:
    explicit Program(Disk& disk) : services(disk), window("/app", services.services()) {}

    [[nodiscard]] Control& at(std::string_view name) {
        Control* control = window.form().find(name);
        if (control == nullptr) throw std::logic_error("no control " + std::string(name));
        return *control;
    }
    [[nodiscard]] const std::string& text(std::string_view name) { return at(name).text(); }
    [[nodiscard]] const std::string& caption(std::string_view name) { return at(name).caption(); }
    [[nodiscard]] bool visible(std::string_view name) { return at(name).visible(); }
    [[nodiscard]] bool on(std::string_view name) { return at(name).value(); }
    void type(std::string_view name, std::string_view words) { at(name).typeText(words); }
    void click(std::string_view name) { at(name).click(); }
    void file(int index) { at("mnuFileItem").clickEntry(index); }
    [[nodiscard]] std::string item(int index) {
        return at("mnuFileItem").entries().at(static_cast<std::size_t>(index)).caption;
    }
    [[nodiscard]] const std::string& recent(std::size_t index) {
        return window.state().RecentFiles.at(index);
    }
    [[nodiscard]] TransPara& cfg() { return window.state().Cfg; }
    [[nodiscard]] PlotCfg& plotCfg() { return window.state().plotCfg; }

    void queueDialog(const std::string& path) { services.dialogResults.emplace_back(path); }
    void queueAnswer(Answer answer) { services.answers.push_back(answer); }
    // What was shown and asked since the last call.
    [[nodiscard]] std::vector<std::string> told() { return std::exchange(services.lines, {}); }

    RecordingServices services;
    frmKelvo window;
};

class WindowBench : public ::testing::Test {
protected:
    WindowBench() {
        disk.addFolder("/app");
        disk.addFolder("/app/data");
    }

    // Puts down a configuration with the recent files, each of which is made.
    void putConfiguration(const std::vector<std::string>& recent) {
        std::string text = kUsualCfg;
        for (const std::string& path : recent) {
            disk.putText(path, "* " + path + "\r\n");
            text += path + "\r\n";
        }
        disk.putText("/app/kelvo.cfg", text);
    }

    Program& start() {
        program = std::make_unique<Program>(disk);
        Main(program->window);
        return *program;
    }

    MemoryDisk disk;
    std::unique_ptr<Program> program;
};

using Lines = std::vector<std::string>;

}  // namespace kelvo::testing
