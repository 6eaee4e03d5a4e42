// form_driver APP_FOLDER < script > transcript: the whole form, driven from a text script.
//
// Exit code 0 at the end of the script or of the program, 1 at a run-time fault that reaches the
// top, 2 on wrong usage.
#include <cstdio>
#include <iostream>
#include <new>
#include <string>
#include <vector>

#include "cli/command_line.h"
#include "common/run_time_fault.h"
#include "common/shown_line.h"
#include "common/standard_streams.h"
#include "drivers/form_script.h"
#include "shell/main.h"
#include "support/escape.h"

namespace {

using namespace kelvo;

void print(const std::string& line) {
    std::cout << line << '\n';
}

// The program changes its current folder as it goes, so a relative folder is made absolute first.
std::string absoluteFolder(const std::string& name, Disk& disk) {
    std::string folder = name;
    const bool absolute =
        !folder.empty() && (folder.front() == kPathSeparator || folder.find(':') == 1);
    if (!absolute) folder = disk.currentFolder() + kPathSeparator + folder;
    while (folder.size() > 1 && folder.back() == kPathSeparator) folder.pop_back();
    return folder;
}

void drive(const std::string& name) {
    PlatformDisk disk;
    const std::string folder = absoluteFolder(name, disk);
    testing::RecordingServices services(disk, print);
    frmKelvo window(folder, services.services());
    Main(window);
    testing::FormScript script(window, services, print);
    std::string line;
    while (!services.ended && std::getline(std::cin, line)) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        script.run(line);
    }
}

}  // namespace

int main(int argc, char** argv) {
    secureStandardStreams();
    try {
        const std::vector<std::string> arguments = argumentsOfProcess(argc, argv);
        if (arguments.size() != 1) {
            std::fputs("usage: form_driver APP_FOLDER < script > transcript\n", stderr);
            return 2;
        }
        std::ios::sync_with_stdio(false);
        drive(arguments.front());
    } catch (const RuntimeFault& fault) {
        print("fault|" + std::to_string(fault.number()) + "|" +
              testing::escaped(shownLine(fault.text())));
        return 1;
    } catch (const std::bad_alloc&) {
        // By the plainest way: what failed may have been the stream's own memory.
        std::cout.flush();
        std::fputs("fault|7|메모리가 모자랍니다\n", stdout);
        return 1;
    }
    return 0;
}
