// The whole form on a disk in memory, as a fuzzer starts and drives it.
#pragma once

#include <optional>
#include <string>

#include "common/run_time_fault.h"
#include "fuzz/fuzz_target.h"
#include "shell/frm_kelvo.h"
#include "shell/main.h"
#include "support/memory_disk.h"
#include "support/recording_services.h"

namespace kelvo::fuzz {

inline void addPlaces(testing::MemoryDisk& disk) {
    disk.addFolder("/app");
    disk.addFolder("/app/data");
    disk.putText("/app/data/test.DAT",
                 "zone 2\r\nWGS a 37.35332567 126.32293454 30.1756\r\n    b 36.1 128.3 80.5\r\n"
                 "UGS c 37.35332567 126.32293454 7.1756\r\nend\r\n\r\n");
    disk.putText("/app/kelvo.cor",
                 "k 37.35333267 126.32323448 30.1756 37.35230997 126.32395917 40.3717 1\r\n"
                 "m 37.3448 126.57 40.25 37.34381009 126.57075821 51.6997 1\r\n*\r\n*\r\n");
}

// A whole start takes longer than most of what an input does, so that one input in sixteen is given
// to one, and always the same; of stored inputs all are.
inline bool takesTheWholeForm(std::string_view input) {
    constexpr unsigned kOneIn = 16;
    unsigned sum = 0;
    for (const char c : input) sum = sum * 31 + static_cast<unsigned char>(c);
    return kReplaysStoredInputs || sum % kOneIn == 0;
}

// A started window; `startFault` is the fault that its start ended with, if one did.
struct WholeForm {
    explicit WholeForm(testing::MemoryDisk& disk)
        : services(disk, [this](const std::string& line) { told(line); }),
          window("/app", services.services()) {
        try {
            Main(window);
        } catch (const RuntimeFault& fault) {
            startFault = fault.fault();
        }
    }

    // One program is known to the form, the panel in which printers are turned; no text of a file
    // or a box becomes a command.
    void told(const std::string& line) {
        require(!line.starts_with("start|") || line == "start|control.exe",
                "only control.exe is started: ", line);
    }

    // The closing sequence; the fault that it ended with, if one did.
    std::optional<Fault> close() {
        try {
            window.Form_Close();
        } catch (const RuntimeFault& fault) {
            return fault.fault();
        }
        require(services.ended, "closing ends the program");
        return std::nullopt;
    }

    testing::RecordingServices services;
    frmKelvo window;
    std::optional<Fault> startFault;
};

}  // namespace kelvo::fuzz
