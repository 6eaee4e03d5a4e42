#include "exchange/gdal/checked_files.h"

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <span>
#include <string_view>

#include <cpl_string.h>
#include <cpl_vsi.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kelvo {

struct CheckedFiles::State {
    std::string folder;
    std::string prefix;
    int failure = 0;

    void note(int error) {
        if (failure == 0) failure = error != 0 ? error : EIO;
    }
    [[nodiscard]] std::string real(const char* path) const {
        std::string_view name = path;
        if (name.substr(0, prefix.size()) == prefix) name.remove_prefix(prefix.size());
        return folder + '/' + std::string(name);
    }
};

namespace {

using State = CheckedFiles::State;

enum class Last { Nothing, Read, Write };

struct OpenFile {
    State& state;
    std::FILE* file;
    Last last = Last::Nothing;
    bool ended = false;

    // Between reading and writing a stream wants to be positioned.
    void turnTo(Last next) {
        if (last != Last::Nothing && last != next && fseeko(file, 0, SEEK_CUR) != 0)
            state.note(errno);
        last = next;
    }
};

State& stateOf(void* data) {
    return *static_cast<State*>(data);
}

OpenFile& fileOf(void* file) {
    return *static_cast<OpenFile*>(file);
}

int statFile(void* data, const char* path, VSIStatBufL* found, int) {
    return stat64(stateOf(data).real(path).c_str(), found);
}

int unlinkFile(void* data, const char* path) {
    return unlink(stateOf(data).real(path).c_str());
}

int renameFile(void* data, const char* from, const char* to) {
    return std::rename(stateOf(data).real(from).c_str(), stateOf(data).real(to).c_str());
}

void* openFile(void* data, const char* path, const char* mode) {
    State& state = stateOf(data);
    std::FILE* const file = std::fopen(state.real(path).c_str(), mode);
    if (file == nullptr) {
        if (std::strchr(mode, 'r') == nullptr) state.note(errno);
        return nullptr;
    }
    return new OpenFile{.state = state, .file = file};
}

vsi_l_offset tell(void* file) {
    return static_cast<vsi_l_offset>(ftello(fileOf(file).file));
}

int seek(void* opened, vsi_l_offset offset, int whence) {
    OpenFile& of = fileOf(opened);
    of.ended = false;
    // A seek empties the buffer, so it isn't done where it leads nowhere.
    if (whence == SEEK_SET && of.last == Last::Write &&
        static_cast<vsi_l_offset>(ftello(of.file)) == offset)
        return 0;
    of.last = Last::Nothing;
    if (fseeko(of.file, static_cast<off_t>(offset), whence) == 0) return 0;
    of.state.note(errno);
    return -1;
}

// The DXF driver looks for a line end in what it read of its own drawing, and would look on over
// its stack where a full disk left less than that: what is missing are line ends.
std::size_t readBytes(void* opened, void* buffer, std::size_t size, std::size_t count) {
    OpenFile& of = fileOf(opened);
    of.turnTo(Last::Read);
    const std::size_t done = std::fread(buffer, size, count, of.file);
    of.ended = done < count;
    std::memset(static_cast<char*>(buffer) + done * size, '\n', (count - done) * size);
    return done;
}

int ended(void* opened) {
    return fileOf(opened).ended ? 1 : 0;
}

std::size_t writeBytes(void* opened, const void* buffer, std::size_t size, std::size_t count) {
    OpenFile& of = fileOf(opened);
    of.turnTo(Last::Write);
    const std::size_t done = std::fwrite(buffer, size, count, of.file);
    if (done < count) of.state.note(errno);
    return done;
}

int flushFile(void* opened) {
    OpenFile& of = fileOf(opened);
    if (std::fflush(of.file) == 0) return 0;
    of.state.note(errno);
    return -1;
}

int truncateFile(void* opened, vsi_l_offset size) {
    OpenFile& of = fileOf(opened);
    if (std::fflush(of.file) == 0 && ftruncate(fileno(of.file), static_cast<off_t>(size)) == 0)
        return 0;
    of.state.note(errno);
    return -1;
}

int closeFile(void* opened) {
    const std::unique_ptr<OpenFile> of(&fileOf(opened));
    if (std::fclose(of->file) == 0) return 0;
    of->state.note(errno);
    return -1;
}

}  // namespace

CheckedFiles::CheckedFiles(std::string folder) : state_(std::make_unique<State>()) {
    state_->folder = std::move(folder);
    // A handler can't be taken back, only replaced: the prefix is this object's as long as it
    // lives.
    state_->prefix =
        "/vsikelvo-" + std::to_string(reinterpret_cast<std::uintptr_t>(state_.get())) + "/";
    const std::unique_ptr<VSIFilesystemPluginCallbacksStruct,
                          decltype(&VSIFreeFilesystemPluginCallbacksStruct)>
        calls(VSIAllocFilesystemPluginCallbacksStruct(), &VSIFreeFilesystemPluginCallbacksStruct);
    calls->pUserData = state_.get();
    calls->stat = statFile;
    calls->unlink = unlinkFile;
    calls->rename = renameFile;
    calls->open = openFile;
    calls->tell = tell;
    calls->seek = seek;
    calls->read = readBytes;
    calls->eof = ended;
    calls->write = writeBytes;
    calls->flush = flushFile;
    calls->truncate = truncateFile;
    calls->close = closeFile;
    VSIInstallPluginHandler(state_->prefix.c_str(), calls.get());
}

CheckedFiles::~CheckedFiles() = default;

std::string CheckedFiles::pathOf(const std::string& name) const {
    return state_->prefix + name;
}

int CheckedFiles::failure() const {
    return state_->failure;
}

}  // namespace kelvo
