#include "panels/settings_file.h"

#include "common/paths.h"
#include "common/run_time_fault.h"
#include "common/text_file.h"

namespace kelvo {

namespace {

constexpr int kMostRecoveries = 2;
constexpr int kMostTries = 5;
constexpr int kMostKept = 9;

bool isThere(Disk& disk, const std::string& path) {
    return genSub::FileExists(disk, path) != genSub::kFileIsMissing;
}

// What is kept under that name moves on.
void makeRoom(Disk& disk, const std::string& name) {
    if (!isThere(disk, name)) return;
    int number = 2;
    while (number < kMostKept && isThere(disk, name + std::to_string(number))) ++number;
    disk.rename(name, name + std::to_string(number));
}

std::optional<std::string> contentOf(Disk& disk, const std::string& path) {
    try {
        return readWholeFile(disk, path);
    } catch (const RuntimeFault&) {
        return std::nullopt;
    }
}

bool isMissing(const RuntimeFault& fault) {
    return fault.fault() == Fault::FileNotFound || fault.fault() == Fault::PathNotFound;
}

void copyAside(Disk& disk, const std::string& path, const std::string& old) {
    const std::string bytes = readWholeFile(disk, path);
    if (contentOf(disk, old) == bytes) return;
    makeRoom(disk, old);
    disk.replace(old, bytes);
}

void renameIfThere(Disk& disk, const std::string& from, const std::string& to) {
    try {
        disk.rename(from, to);
    } catch (const RuntimeFault& fault) {
        if (!isMissing(fault)) throw;
    }
}

std::string folderOf(const std::string& path) {
    return path.substr(0, path.rfind(kPathSeparator));
}

// A file that another program has open for the moment is tried again.
void readPatiently(const std::function<void()>& read) {
    for (int tries = 1;; ++tries) {
        try {
            read();
            return;
        } catch (const RuntimeFault& fault) {
            if (fault.fault() != Fault::FileAlreadyOpen || tries == kMostTries) throw;
        }
    }
}

}  // namespace

void keepAside(Disk& disk, const std::string& path) {
    const std::string old = path + ".old";
    try {
        copyAside(disk, path, old);
    } catch (const RuntimeFault& fault) {
        if (isMissing(fault)) return;
        // A name costs no room, and nothing has to be read.
        makeRoom(disk, old);
        renameIfThere(disk, path, old);
    }
}

std::optional<std::string> SettingsFile::held() {
    return contentOf(disk_, path_);
}

void SettingsFile::readOrReplace(const std::function<void()>& read,
                                 const std::function<void(int recovery)>& replace) {
    for (int recoveries = 0;;) {
        try {
            readPatiently(read);
            seen_.bytes = held();
            return;
        } catch (RuntimeFault& fault) {
            if (recoveries == kMostRecoveries) {
                fault.addPlace(path_);
                throw;
            }
        }
        if (recoveries == 0) keepAside(disk_, path_);
        replace(++recoveries);
    }
}

void SettingsFile::write(const std::string& bytes, const std::function<std::string()>& merged) {
    const auto turn = disk_.takeTurn(folderOf(path_));
    const auto now = held();
    if (seen_.bytes && now && *now != *seen_.bytes) seen_.isShared = true;
    const std::string next = seen_.isShared && now ? merged() : bytes;
    disk_.replace(path_, next);
    seen_.bytes = next;
}

}  // namespace kelvo
