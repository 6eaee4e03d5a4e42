// The journal on the machine's disk: a folder "unsaved" beside the settings, and in it a folder for
// each program that has something to keep. The folder is there only as long as there is.
//
// A text stands in a file of UTF-8 that people can read: "파일: " and the name of its file,
// "시각: " and the time, an empty line, the text.
#pragma once

#include <filesystem>
#include <map>
#include <memory>

#include "common/disk.h"
#include "form/services.h"

namespace kelvo {

class JournalFolder final : public JournalStore {
public:
    // In UTF-8. Nothing is made before something is kept.
    explicit JournalFolder(const std::string& applicationFolder);
    ~JournalFolder() override;
    JournalFolder(const JournalFolder&) = delete;
    JournalFolder& operator=(const JournalFolder&) = delete;

    bool keep(Shelf shelf, const UnsavedText& text) override;
    void clear(Shelf shelf) override;
    std::vector<Left> left(Shelf shelf) override;
    void forget(Shelf shelf, const std::string& name) override;

private:
    [[nodiscard]] bool haveOwnFolder();
    void takeWhatWasLeft();
    void removeIfEmpty(const std::filesystem::path& folder);

    std::filesystem::path root_;
    std::filesystem::path own_;  // empty until something is kept
    std::unique_ptr<Turn> ownTurn_;
    // Folders of programs that ended, held so that no other one offers them, too.
    std::map<std::string, std::unique_ptr<Turn>> left_;
    bool looked_ = false;
    PlatformDisk disk_;
};

}  // namespace kelvo
