// The journal on the disk, and what another program finds there.
#include "shell/journal_folder.h"

#include <gtest/gtest.h>

#include "support/temporary_folder.h"
#include "support/unprivileged.h"

#include <sys/stat.h>

namespace kelvo {
namespace {

namespace fs = std::filesystem;
using testing::TemporaryFolder;
using Shelf = JournalStore::Shelf;

const UnsavedText kText{.path = "/작업/a.dat",
                        .text = "첫 줄\r\n\r\n둘째 \xEF\x9F\xBF é\r\n",
                        .since = "2004-06-07 09:30:00"};

// A program that ends without a word, having done this with its journal.
template <class Work>
void endedProgram(Work&& work) {
    EXPECT_TRUE(testing::asUnprivileged([&] {
        work();
        std::_Exit(0);
        return true;
    }));
}

class OnDisk : public ::testing::Test {
protected:
    OnDisk() { fs::permissions(folder.path(), fs::perms::all); }
    [[nodiscard]] bool isEmpty() const { return fs::is_empty(folder.path()); }
    // What stands in all files of the journal while it keeps a text of this path.
    [[nodiscard]] std::string heldWith(const std::string& path) const {
        UnsavedText text = kText;
        text.path = path;
        JournalFolder running(folder.path());
        EXPECT_TRUE(running.keep(Shelf::OnView, text));
        std::string bytes;
        for (const auto& entry : fs::recursive_directory_iterator(folder.path()))
            if (entry.is_regular_file()) bytes += TemporaryFolder::readBytes(entry.path());
        return bytes;
    }

    const TemporaryFolder folder;
};

TEST_F(OnDisk, WhatAProgramKeptIsFoundByTheNext) {
    endedProgram([&] { JournalFolder(folder.path()).keep(Shelf::OnView, kText); });
    JournalFolder next(folder.path());
    const auto left = next.left(Shelf::OnView);
    ASSERT_EQ(left.size(), 1U);
    EXPECT_EQ(left.front().text.path, kText.path);
    EXPECT_EQ(left.front().text.text, kText.text);
    EXPECT_EQ(left.front().text.since, kText.since);
    EXPECT_TRUE(next.left(Shelf::Discarded).empty());
    next.forget(Shelf::OnView, left.front().name);
    EXPECT_TRUE(next.left(Shelf::OnView).empty());
    EXPECT_TRUE(isEmpty());
}

TEST_F(OnDisk, NamesOfAnyBytesComeBack) {
    for (const std::string path :
         {"/a/\xff\xfe.dat", "/a/two\r\nlines", "file:///x", "/a/100%41"}) {
        UnsavedText text = kText;
        text.path = path;
        endedProgram([&] { JournalFolder(folder.path()).keep(Shelf::OnView, text); });
        JournalFolder next(folder.path());
        const auto left = next.left(Shelf::OnView);
        ASSERT_EQ(left.size(), 1U);
        EXPECT_EQ(left.front().text.path, path);
        next.forget(Shelf::OnView, left.front().name);
    }
}

TEST_F(OnDisk, ANameThatIsATextStandsAsItIs) {
    const std::string held = heldWith("/작업/한 점.dat");
    EXPECT_NE(held.find(": /작업/한 점.dat\r\n"), std::string::npos) << held;
}

TEST_F(OnDisk, OfANameThatIsNoTextOnlyWhatSteersIsWrittenInDigits) {
    const std::string held = heldWith("/a/!~ ,\"%\x7F\n\xFF");
    EXPECT_NE(held.find("file:///a/!~%20%2C%22%25%7F%0A%FF\r\n"), std::string::npos) << held;
}

TEST_F(OnDisk, ATextOfARunningProgramIsNotGivenAway) {
    JournalFolder running(folder.path());
    ASSERT_TRUE(running.keep(Shelf::OnView, kText));
    JournalFolder other(folder.path());
    EXPECT_TRUE(other.left(Shelf::OnView).empty());
}

TEST_F(OnDisk, WhatOneOffersNoOtherOffers) {
    endedProgram([&] { JournalFolder(folder.path()).keep(Shelf::OnView, kText); });
    JournalFolder one(folder.path());
    EXPECT_EQ(one.left(Shelf::OnView).size(), 1U);
    JournalFolder other(folder.path());
    EXPECT_TRUE(other.left(Shelf::OnView).empty());
}

TEST_F(OnDisk, AnOfferThatIsNotAnsweredIsMadeAgain) {
    endedProgram([&] { JournalFolder(folder.path()).keep(Shelf::OnView, kText); });
    for (int start = 0; start < 2; ++start) {
        JournalFolder one(folder.path());
        EXPECT_EQ(one.left(Shelf::OnView).size(), 1U);
    }
}

TEST_F(OnDisk, TheNewestComesFirst) {
    for (const char* words : {"old", "new"}) {
        UnsavedText text = kText;
        text.text = words;
        endedProgram([&] { JournalFolder(folder.path()).keep(Shelf::OnView, text); });
    }
    for (const auto& entry : fs::recursive_directory_iterator(folder.path())) {
        if (!entry.is_regular_file()) continue;
        const bool old = TemporaryFolder::readBytes(entry.path()).ends_with("old");
        fs::last_write_time(entry.path(),
                            fs::file_time_type::clock::now() - std::chrono::hours(old ? 2 : 1));
    }
    JournalFolder next(folder.path());
    const auto left = next.left(Shelf::OnView);
    ASSERT_EQ(left.size(), 2U);
    EXPECT_EQ(left.front().text.text, "new");
}

TEST_F(OnDisk, IsGoneWhenNothingIsKept) {
    {
        JournalFolder journal(folder.path());
        EXPECT_TRUE(isEmpty());
        journal.keep(Shelf::OnView, kText);
        journal.keep(Shelf::Discarded, kText);
        EXPECT_FALSE(isEmpty());
        journal.clear(Shelf::OnView);
        journal.clear(Shelf::Discarded);
        EXPECT_TRUE(isEmpty());
        journal.keep(Shelf::OnView, kText);
    }
    EXPECT_FALSE(isEmpty()) << "it is for the next start";
}

TEST_F(OnDisk, NobodyElseMayLookIntoIt) {
    JournalFolder journal(folder.path());
    journal.keep(Shelf::OnView, kText);
    struct stat status {};
    ASSERT_EQ(stat(folder.file("unsaved").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0700U);
}

TEST_F(OnDisk, WithoutRoomItSaysSo) {
    folder.put("unsaved", "a file where the folder should be");
    JournalFolder journal(folder.path());
    EXPECT_FALSE(journal.keep(Shelf::OnView, kText));
    EXPECT_TRUE(journal.left(Shelf::OnView).empty());
}

TEST_F(OnDisk, WhatIsNoJournalIsLeftAlone) {
    fs::create_directories(folder.file("unsaved/0123456789abcdef"));
    folder.put("unsaved/0123456789abcdef/viewer.txt", "no head\r\n");
    folder.put("unsaved/notes.txt", "mine");
    JournalFolder journal(folder.path());
    EXPECT_TRUE(journal.left(Shelf::OnView).empty());
    EXPECT_EQ(folder.bytes("unsaved/0123456789abcdef/viewer.txt"), "no head\r\n");
    EXPECT_EQ(folder.bytes("unsaved/notes.txt"), "mine");
}

TEST_F(OnDisk, AnEntryCountsOnlyWithItsPathItsTimeAndAnEmptyLine) {
    fs::create_directories(folder.file("unsaved/0123456789abcdef"));
    const std::string head = "파일: /a.dat\r\n시각: 2004-06-07 09:30:00\r\n";
    const auto offered = [&](const std::string& bytes) {
        folder.put("unsaved/0123456789abcdef/viewer.txt", bytes);
        const auto left = JournalFolder(folder.path()).left(Shelf::OnView);
        return left.size() == 1 ? left.front().text.text : std::string("none");
    };
    EXPECT_EQ(offered(head + "\r\n글\r\n"), "글\r\n");
    EXPECT_EQ(offered(head + "\r\n"), "");
    for (const std::string& damaged :
         {head, head + "글\r\n", head + "\n글", std::string("파일: /a.dat\r\n\r\n글"),
          std::string("시각: 2004-06-07 09:30:00\r\n\r\n글"),
          std::string("파일: /a.dat\r\n시각: 2004\n\n글"), std::string()})
        EXPECT_EQ(offered(damaged), "none") << damaged;
}

}  // namespace
}  // namespace kelvo
