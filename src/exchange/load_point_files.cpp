#include "exchange/load_point_files.h"

#include <array>
#include <filesystem>
#include <string>
#include <system_error>

#ifndef _WIN32
#include <dlfcn.h>
#endif

namespace kelvo {

namespace {

constexpr const char* kMissing =
    "다른 프로그램의 파일을 다루는 꾸러미(kelvo-exchange)가 설치되어 있지 않습니다";

}  // namespace

#ifdef _WIN32

std::shared_ptr<const PointFiles> loadPointFiles() {
    throw ExchangeFault(kMissing);
}

#else

namespace {

namespace fs = std::filesystem;

fs::path folderOfProgram() {
    std::error_code ignored;
    return fs::read_symlink("/proc/self/exe", ignored).parent_path();
}

}  // namespace

std::shared_ptr<const PointFiles> loadPointFiles() {
    const fs::path program = folderOfProgram();
    const std::array<fs::path, 2> folders{program, program / KELVO_MODULES_FROM_PROGRAMS};
    std::error_code ignored;
    for (const fs::path& folder : folders) {
        const fs::path path = folder / KELVO_EXCHANGE_FILE;
        if (!fs::exists(path, ignored)) continue;
        // Never closed: what it gives may live as long as the program.
        void* const module = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
        if (module == nullptr) {
            const char* const reason = dlerror();
            throw ExchangeFault("다른 프로그램의 파일을 다루는 모듈을 쓸 수 없습니다 (" +
                                std::string(reason != nullptr ? reason : path.c_str()) + ")");
        }
        using Make = PointFiles* (*)();
        void* const entry = dlsym(module, KELVO_EXCHANGE_ENTRY);
        if (entry == nullptr)
            throw ExchangeFault("다른 프로그램의 파일을 다루는 모듈이 다른 판의 것입니다 (" +
                                path.string() + ")");
        return std::shared_ptr<const PointFiles>(reinterpret_cast<Make>(entry)());
    }
    throw ExchangeFault(kMissing);
}

#endif

}  // namespace kelvo
