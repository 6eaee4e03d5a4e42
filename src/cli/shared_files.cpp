#include "cli/shared_files.h"

#include <map>

#include "batch/run_batch.h"
#include "common/paths.h"

namespace kelvo {

namespace {

// The place of a file, and the data file whose run reads or writes it.
using Uses = std::map<std::string, std::string>;

std::string overwritten(const std::string& read, const std::string& writer) {
    return "the run of " + writer + " would write over " + read;
}

std::string writtenTwice(const std::string& path, const std::string& one,
                         const std::string& other) {
    return one + " and " + other + " would both write " + path;
}

std::optional<std::string> complaintAbout(Disk& disk, const std::string& data, const Uses& read,
                                          Uses& written) {
    for (const std::string& path : {resultFileOf(data), detailBeside(data)}) {
        const std::string place = disk.placeOf(path);
        const auto reader = read.find(place);
        if (reader != read.end() && reader->second != data)
            return overwritten(reader->second, data);
        const auto [writer, fresh] = written.emplace(place, data);
        if (!fresh) return writtenTwice(path, writer->second, data);
    }
    return std::nullopt;
}

}  // namespace

std::string detailBeside(const std::string& dataFile) {
    return genSub::StripExtension(dataFile) + ".det";
}

std::optional<std::string> complaintAboutSharedFiles(Disk& disk,
                                                     const std::vector<std::string>& dataFiles,
                                                     const std::string& detail,
                                                     const std::string& known) {
    if (dataFiles.size() < 2) return std::nullopt;
    Uses read;
    Uses written;
    for (const std::string& data : dataFiles) read.emplace(disk.placeOf(data), data);
    for (const std::string& data : dataFiles) {
        if (auto complaint = complaintAbout(disk, data, read, written)) return complaint;
    }
    const std::string& last = dataFiles.back();
    const std::string place = disk.placeOf(detail);
    if (place == disk.placeOf(known)) return overwritten(known, last);
    if (const auto reader = read.find(place); reader != read.end())
        return overwritten(reader->second, last);
    if (const auto writer = written.find(place); writer != written.end() && writer->second != last)
        return writtenTwice(detail, writer->second, last);
    return std::nullopt;
}

std::optional<std::string> complaintAboutExports(Disk& disk, const std::string& dataFile,
                                                 const std::vector<std::string>& exports,
                                                 const std::string& detail,
                                                 const std::string& known) {
    Uses taken;
    for (const std::string& path : {dataFile, resultFileOf(dataFile), detail, known})
        taken.emplace(disk.placeOf(path), path);
    for (const std::string& path : exports) {
        const auto [other, fresh] = taken.emplace(disk.placeOf(path), path);
        if (!fresh) return "--export " + path + " would write over " + other->second;
    }
    return std::nullopt;
}

}  // namespace kelvo
