// A settings file of the application folder: how it is read when it can't be, and how it is
// written when another program has saved it meanwhile.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "common/disk.h"

namespace kelvo {

// The content of a file also under its name with ".old" after it; what had that name before goes
// on to ".old2" and so on. A file that can't be read or copied is given the name itself. Nothing
// for a file that isn't there. Faults of a disk that allows neither come out.
void keepAside(Disk& disk, const std::string& path);

// What one program knows of a settings file.
struct SeenFile {
    std::optional<std::string> bytes;  // what it held when this program last read or wrote it
    bool isShared = false;             // another program has saved it since this one started
};

class SettingsFile {
public:
    // `seen` outlives this object.
    SettingsFile(Disk& disk, std::string path, SeenFile& seen)
        : disk_(disk), path_(std::move(path)), seen_(seen) {}

    // Reads the file by `read`. If that fails the file is kept aside, `replace` writes one that
    // can be read, and it is read again; `replace` learns how often it was called, from 1. The
    // third failure comes out as the fault that it is. A file that another program has open
    // (fault 55) is tried again first, a few times.
    void readOrReplace(const std::function<void()>& read,
                       const std::function<void(int recovery)>& replace);

    // Writes the bytes. Once another program has saved the file, `merged` says what to write in
    // their place, here and ever after; it reads the file. Faults as Disk::replace.
    void write(const std::string& bytes, const std::function<std::string()>& merged);

private:
    [[nodiscard]] std::optional<std::string> held();

    Disk& disk_;
    std::string path_;
    SeenFile& seen_;
};

}  // namespace kelvo
