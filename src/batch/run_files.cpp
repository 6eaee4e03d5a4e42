#include "batch/run_files.h"

#include <map>

#include "common/run_time_fault.h"

namespace kelvo {

void requireFilesOfTheirOwn(Disk& disk, std::span<const std::string> written,
                            std::span<const std::string> read) {
    std::map<std::string, std::string> taken;  // place and name
    for (const std::string& name : read) taken.emplace(disk.placeOf(name), name);
    for (const std::string& name : written) {
        const auto [other, isFree] = taken.emplace(disk.placeOf(name), name);
        if (isFree) continue;
        const std::string both = name == other->second ? name : name + " = " + other->second;
        raise(Fault::FileAlreadyOpen, "쓸 파일이 이미 쓰이고 있는 파일입니다 (" + both + ")");
    }
}

}  // namespace kelvo
