#include "common/file_sharing.h"

#include <set>

#include "common/run_time_fault.h"

namespace kelvo {

void refuseSharedFiles(Disk& disk, std::initializer_list<std::string> written,
                       std::initializer_list<std::string> read) {
    std::set<std::string> taken;
    for (const std::string& path : read) taken.insert(disk.placeOf(path));
    for (const std::string& path : written) {
        if (!taken.insert(disk.placeOf(path)).second)
            raise(Fault::FileAlreadyOpen,
                  std::string(faultSentence(Fault::FileAlreadyOpen)) + " (" + path + ")");
    }
}

}  // namespace kelvo
