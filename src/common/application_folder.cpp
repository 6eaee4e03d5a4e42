#include "common/application_folder.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "common/disk.h"
#include "common/run_time_fault.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace kelvo {

namespace {

namespace fs = std::filesystem;

std::string toUtf8(const fs::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

fs::path fromUtf8(const std::string& text) {
    return fs::path(std::u8string(text.begin(), text.end()));
}

std::string withoutTrailingSeparator(std::string path) {
    while (path.size() > 1 && path.back() == kPathSeparator) path.pop_back();
    return path;
}

#ifdef _WIN32
fs::path programFile() {
    std::wstring buffer(32768, L'\0');
    const DWORD length =
        GetModuleFileNameW(nullptr, buffer.data(), static_cast<DWORD>(buffer.size()));
    buffer.resize(length);
    return buffer;
}

std::optional<std::string> environment(const wchar_t* name) {
    const wchar_t* const value = _wgetenv(name);
    if (value == nullptr || *value == L'\0') return std::nullopt;
    return toUtf8(value);
}
#else
fs::path programFile() {
    std::error_code failure;
    return fs::read_symlink("/proc/self/exe", failure);
}

std::optional<std::string> environment(const char* name) {
    const char* const value = std::getenv(name);
    if (value == nullptr || *value == '\0') return std::nullopt;
    return std::string(value);
}
#endif

}  // namespace

std::string chooseApplicationFolder(const FolderChoice& choice) {
    if (choice.dataStandsBeside) return withoutTrailingSeparator(choice.programFolder);
    const std::string name = std::string(1, kPathSeparator) + "Kelvo";
    if (choice.dataHome && fromUtf8(*choice.dataHome).is_absolute())
        return withoutTrailingSeparator(*choice.dataHome) + name;
    if (choice.home && fromUtf8(*choice.home).is_absolute())
        return toUtf8(fromUtf8(*choice.home) / ".local" / "share") + name;
    return withoutTrailingSeparator(choice.programFolder);
}

std::string findApplicationFolder() {
    FolderChoice choice;
    const fs::path folder = programFile().parent_path();
    choice.programFolder = folder.empty() ? std::string(".") : toUtf8(folder);
    std::error_code failure;
    choice.dataStandsBeside = fs::is_directory(folder / "data", failure);
#ifdef _WIN32
    choice.dataHome = environment(L"APPDATA");
#else
    choice.dataHome = environment("XDG_DATA_HOME");
    choice.home = environment("HOME");
#endif
    return chooseApplicationFolder(choice);
}

void makeApplicationFolder(const std::string& folder) {
    std::error_code failure;
    fs::create_directories(fromUtf8(folder) / "data", failure);
    if (failure)
        raise(Fault::PathNotFound, folder + ": " + std::string(faultSentence(Fault::PathNotFound)));
}

}  // namespace kelvo
