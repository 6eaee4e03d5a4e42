#include "batch/run_files.h"

#include "common/run_time_fault.h"

namespace kelvo {

void requireFilesOfTheirOwn(Disk& disk, std::span<const std::string> written,
                            std::span<const std::string> read) {
    for (std::size_t i = 0; i < written.size(); ++i) {
        const auto refuse = [&](const std::string& other) {
            if (!disk.sameFile(written[i], other)) return;
            const std::string both = written[i] == other ? other : written[i] + " = " + other;
            raise(Fault::FileAlreadyOpen, "쓸 파일이 이미 쓰이고 있는 파일입니다 (" + both + ")");
        };
        for (const std::string& name : read) refuse(name);
        for (const std::string& name : written.subspan(i + 1)) refuse(name);
    }
}

}  // namespace kelvo
