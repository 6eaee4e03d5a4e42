#include "common/paths.h"

#include <array>

#include "common/number_text.h"
#include "common/run_time_fault.h"
#include "common/text_constants.h"

namespace kelvo::genSub {

namespace {

constexpr std::size_t kNone = std::string_view::npos;

std::size_t lastSeparator(std::string_view path) {
    return path.rfind(kPathSeparator);
}

}  // namespace

std::string FileExtensionOf(std::string_view path) {
    const std::size_t point = path.rfind('.');
    return point == kNone ? std::string() : std::string(path.substr(point + 1));
}

std::string StripExtension(std::string_view path) {
    return std::string(path.substr(0, path.rfind('.')));
}

std::string FolderOf(Disk& disk, std::string_view path) {
    const std::size_t separator = lastSeparator(path);
    if (separator == kNone) return disk.currentFolder();
    return std::string(path.substr(0, separator + 1));
}

std::string FileTitleOf(std::string_view path) {
    const std::size_t separator = lastSeparator(path);
    if (separator == kNone) return "*";
    const std::string_view name = path.substr(separator + 1);
    return std::string(name.substr(0, name.rfind('.')));
}

std::optional<int> FileExists(Disk& disk, const std::string& path) {
    try {
        disk.openForReading(path);
        return kFileIsThere;
    } catch (const RuntimeFault& fault) {
        switch (fault.fault()) {
            case Fault::FileNotFound:
            case Fault::DiskNotReady:
            case Fault::PathNotFound:
                return kFileIsMissing;
            case Fault::PermissionDenied:
                return kFileIsThere;
            case Fault::FileAlreadyOpen:
                return kFileIsOpen;
            default:
                return std::nullopt;
        }
    }
}

void RunProgram(ProgramStarter& programs, MessageBoxes& messages, const std::string& command) {
    try {
        programs.start(command);
    } catch (const RuntimeFault& fault) {
        messages.tell("Shell Program 실행에러" + std::string(kLineEnd) + command +
                      " Err = " + generalText(fault.number()) + "  " + fault.text());
    }
}

void CopyFileGuard(Disk& disk, MessageBoxes& messages, const std::string& source,
                   const std::string& target) {
    try {
        // Onto itself there is nothing to copy, and opening the target would empty the source.
        if (disk.sameFile(source, target)) raise(Fault::PermissionDenied);
        const auto from = disk.openForReading(source);
        std::string bytes;
        std::array<char, 65536> buffer{};
        while (const std::size_t count = from->read(buffer)) bytes.append(buffer.data(), count);
        // As a whole: a copy that fails leaves the file that was there.
        disk.replace(target, bytes);
    } catch (const RuntimeFault&) {
        messages.tell("파일 복사에 실패했습니다");
    }
}

}  // namespace kelvo::genSub
