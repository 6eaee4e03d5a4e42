#include "trust/working_day.h"

#include <stdexcept>

#include "drivers/form_script.h"
#include "shell/main.h"
#include "support/recording_services.h"

namespace kelvo::testing {

namespace {

constexpr const char* kWork =
    "*\r\nCORRECTION\r\nWGS a 37.3 127 1\r\n   b 37.31 127.01 1\r\nDIST a b\r\nend\r\n\r\n";
constexpr const char* kKnown =
    "k1 37.30 127.00 10 37.2950 127.0007 20 1\r\nk2 37.40 127.10 12 37.3950 127.1007 22 1\r\n"
    "*\r\n*\r\n";

// A window of its own on a disk. The order of the members is that in which they rest on each
// other.
struct Session {
    explicit Session(MemoryDisk& under)
        : disk(under), services(disk), window("/app", services.services()) {}

    Told run(const Script& script) {
        Told told;
        try {
            FormScript form(window, services,
                            [this](const std::string& line) { services.lines.push_back(line); });
            for (const std::string& line : script) {
                if (line.starts_with("answer ") || line.starts_with("dialog ")) form.run(line);
            }
            for (const std::string& line : script) {
                if (!line.starts_with("answer ") && !line.starts_with("dialog ")) form.run(line);
            }
        } catch (const RuntimeFault& fault) {
            told.fault = fault.number();
            told.text = fault.text();
        }
        told.lines = services.lines;
        told.ended = services.ended;
        return told;
    }

    Told start() {
        Told told;
        try {
            Main(window);
        } catch (const RuntimeFault& fault) {
            told.fault = fault.number();
            told.text = fault.text();
        }
        told.lines = services.lines;
        return told;
    }

    FaultyDisk disk;
    RecordingServices services;
    frmKelvo window;
};

void mustWork(const Told& told, const std::string& what) {
    if (told.fault != 0) throw std::runtime_error(what + ": " + told.text);
    for (const std::string& line : told.lines) {
        if (line.starts_with("error|")) throw std::runtime_error(what + ": " + line);
    }
}

MemoryDisk theDayBefore() {
    MemoryDisk disk;
    for (const char* folder : {"/app", "/app/data", "/job"}) disk.addFolder(folder);
    disk.putText("/job/work.dat", kWork);
    disk.putText("/job/other.dat", kWork);
    disk.putText("/app/kelvo.cor", kKnown);
    disk.putText("/app/KelvoHelp.txt", "도움말\r\n");
    disk.setCurrentFolder("/app");
    Session session(disk);
    mustWork(session.start(), "the start");
    mustWork(
        session.run({"dialog /job/other.dat", "dialog /job/work.dat", "click mnuFileItem(2)",
                     "click mnuBatchGo", "click mnuFileItem(2)", "click mnuBatchGo",
                     "click mnuOneOpen", "type txtdPhi 0.25", "click mnuPrintBrief",
                     "type txtWdegPhi 37.5", "type txtWdegLam 127.25", "type txtXb 1234", "close"}),
        "the day before");
    // The file that the program once wrote as a sample is a user's own by now.
    disk.putText("/app/data/test.dat", "* 내 측점\r\nWGS p 37.4 127 1\r\nend\r\n");
    return disk;
}

}  // namespace

bool Told::shows(const std::string& wanted) const {
    for (const std::string& line : lines) {
        if (line.starts_with("message|") && line.find(wanted) != std::string::npos) return true;
    }
    return false;
}

const MemoryDisk& thatMorning() {
    static const MemoryDisk disk = theDayBefore();
    return disk;
}

Outcome carryOut(const Script& prepare, const Script& command, const Failure& failure, bool start) {
    MemoryDisk disk = thatMorning();
    Session session(disk);
    Outcome outcome;
    session.disk.shortReads = failure.shortReads;
    if (!start) {
        mustWork(session.start(), "the start");
        mustWork(session.run(prepare), "the preparation");
        session.services.lines.clear();
    }
    outcome.before = disk.files;
    session.disk.arm(failure.at, failure.fault, failure.how);
    outcome.told = start ? session.start() : session.run(command);
    session.disk.disarm();
    outcome.after = disk.files;
    outcome.done = session.disk.done;
    outcome.failed = session.disk.failed;
    return outcome;
}

}  // namespace kelvo::testing
