// Files that are written out of sight and take their places when they are whole.
#pragma once

#include <filesystem>
#include <string>

namespace kelvo {

// A folder of its own beside the target, gone with the object. One whose program was ended on the
// way goes when the next one is made beside it.
class FilesInWaiting {
public:
    // ExchangeFault where the folder can't be made, or the target is something else than a file.
    // A link is followed.
    explicit FilesInWaiting(const std::string& target);
    ~FilesInWaiting();
    FilesInWaiting(const FilesInWaiting&) = delete;
    FilesInWaiting& operator=(const FilesInWaiting&) = delete;

    [[nodiscard]] std::string folder() const { return folder_.string(); }
    [[nodiscard]] std::string name() const { return target_.filename().string(); }
    [[nodiscard]] std::string stem() const { return target_.stem().string(); }

    // Hands the target, or all files of the folder, to the medium and renames them to their places,
    // the target last. The rights of a file that was there stay. Indexes of an old Shapefile, which
    // would lead into the new one, go.
    void takePlaces(bool all) const;

private:
    void makeFolder(const std::filesystem::path& parent);

    std::string given_;
    std::filesystem::path target_;
    std::filesystem::path folder_;
    int lock_ = -1;  // the folder, open and locked as long as it is in use
};

// The sentence for an errno, with the file's name.
[[nodiscard]] std::string sentenceOf(int error, const std::string& path);

}  // namespace kelvo
