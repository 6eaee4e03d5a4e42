// The run header and detail block on a disk in memory, under parameters that leave the known
// points where they are: no shift, and WGS84 as the user ellipsoid. So the miss of a known point
// is its user position minus its WGS position, but for the 3e-11 degrees of the iteration there.
#pragma once

#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

#include "batch/run_header.h"
#include "support/faults.h"
#include "support/memory_disk.h"
#include "support/recording_messages.h"

namespace kelvo::testing {

class ReportBench {
public:
    ReportBench() {
        para.a = 6378137.0;
        para.f = 298.257223563;
        para.Phi0 = 38;
        para.Lam0 = 127;
        para.X0 = 500000;
        para.Y0 = 200000;
        para.S0 = 1;
        para.AddFlag = Flag::On;
        para.CorrFlag = Flag::On;
    }

    // A known point at 35 degrees of latitude (in ddd.mmssss with ten decimals), its misses in
    // seconds of arc below 60, and heights as they stand.
    static std::string known(const std::string& name, int lamMinute, double missPhi, double missLam,
                             const std::string& WgsH, const std::string& UserH,
                             const std::string& weight) {
        char line[256];
        std::snprintf(line, sizeof line,
                      "%s 35.1030 127.%02d30 %s 35.10%08ld 127.%02d%08ld %s %s\n", name.c_str(),
                      lamMinute, WgsH.c_str(), microseconds(30 + missPhi), lamMinute,
                      microseconds(30 + missLam), UserH.c_str(), weight.c_str());
        return line;
    }

    int print(const std::string& knownPoints, int AngleOut = 1) {
        disk.putText("/kelvo.cor", knownPoints);
        TextWriter out(disk, "/out");
        TextWriter det(disk, "/det");
        const int fault = faultOf([&] {
            PrintRunHeader(state, {.out = out, .det = det, .CorPath = "/kelvo.cor"}, AngleForm::Dms,
                           AngleForm{AngleOut}, para, disk, messages);
        });
        out.close();
        det.close();
        return fault;
    }

    [[nodiscard]] std::vector<std::string> lines(const std::string& path) const {
        std::vector<std::string> result;
        std::string text = disk.text(path);
        for (std::size_t at = 0; at < text.size();) {
            const std::size_t end = text.find("\r\n", at);
            result.push_back(text.substr(at, end - at));
            at = end + 2;
        }
        return result;
    }

    // The first line of the detail that holds the label.
    [[nodiscard]] std::string detLine(const std::string& label) const {
        for (const auto& line : lines("/det")) {
            if (line.find(label) != std::string::npos) return line;
        }
        return {};
    }

    static long microseconds(double seconds) { return std::lround(seconds * 1e6); }

    MemoryDisk disk;
    RecordingMessages messages;
    ConversionState state;
    TransPara para;
};

}  // namespace kelvo::testing
