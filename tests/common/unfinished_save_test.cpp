// What becomes of a file whose writing in place was interrupted, by the copy that stood by.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "common/file_replacement.h"
#include "support/temporary_folder.h"

namespace kelvo {
namespace {

using testing::TemporaryFolder;

std::string part(const std::string& bytes) {
    return std::to_string(bytes.size()) + "\n" + bytes + "\n";
}

class UnfinishedSave : public ::testing::Test {
protected:
    void finish(const std::string& held, const std::string& copy) {
        folder.put("target", held);
        folder.put("copy", copy);
        SystemFileCalls calls;
        finishInPlace(calls, folder.file("copy"), copy);
    }
    [[nodiscard]] std::string copyOf(const std::string& before, const std::string& after) const {
        return "kelvo copy 1\n" + part(folder.file("target")) + part(before) + part(after);
    }
    [[nodiscard]] bool copyIsThere() const { return std::filesystem::exists(folder.file("copy")); }

    const TemporaryFolder folder;
};

TEST_F(UnfinishedSave, WhateverWasWrittenOfItBecomesTheNewContent) {
    using std::string_literals::operator""s;
    for (const std::string& held :
         {"before"s, "new"s, "nefore"s, "newore"s, "ne"s, ""s, "b\0f"s, "new\0\0\0\0"s})
        for (const std::string after : {"new", ""}) {
            if (after.empty() && held.starts_with("n")) continue;
            finish(held, copyOf("before", after));
            EXPECT_EQ(folder.bytes("target"), after) << held;
            EXPECT_FALSE(copyIsThere()) << held;
        }
    finish("ol", copyOf("old", "newer content"));
    EXPECT_EQ(folder.bytes("target"), "newer content");
}

TEST_F(UnfinishedSave, WhatSomebodyHasWrittenSinceStaysAndTheCopyGoes) {
    for (const std::string held : {"xefore", "beforx", "before it", "newer"}) {
        finish(held, copyOf("before", "new"));
        EXPECT_EQ(folder.bytes("target"), held);
        EXPECT_FALSE(copyIsThere()) << held;
    }
}

TEST_F(UnfinishedSave, ACopyThatIsntWholeIsLeftAlone) {
    const std::string whole = copyOf("before", "new");
    for (std::size_t size = 0; size < whole.size(); ++size) {
        finish("nefore", whole.substr(0, size));
        EXPECT_EQ(folder.bytes("target"), "nefore") << size;
        EXPECT_TRUE(copyIsThere()) << size;
    }
    for (const std::string head : {"kelvo copy 2\n", "other"}) {
        finish("nefore", head + part(folder.file("target")) + part("before") + part("new"));
        EXPECT_EQ(folder.bytes("target"), "nefore") << head;
    }
}

TEST_F(UnfinishedSave, ACopyWhoseFileIsGoneStays) {
    const std::string copy = copyOf("before", "new");
    folder.put("copy", copy);
    SystemFileCalls calls;
    finishInPlace(calls, folder.file("copy"), copy);
    EXPECT_TRUE(copyIsThere());
    EXPECT_FALSE(std::filesystem::exists(folder.file("target")));
}

}  // namespace
}  // namespace kelvo
