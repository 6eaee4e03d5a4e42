// Ways that a day's work hardly ever takes: odd numbers, odd letters, odd files.
#include <gtest/gtest.h>

#include <filesystem>
#include <limits>

#include "common/disk.h"
#include "common/number_text.h"
#include "common/run_time_fault.h"
#include "common/utf8.h"
#include "support/faults.h"
#include "support/temporary_folder.h"

namespace kelvo {
namespace {

using testing::faultOf;
using testing::TemporaryFolder;

TEST(ReadNumber, AnAmpersandWithoutItsLetterIsNoNumber) {
    for (const char* text : {"&", "&X1F", "&1", "& H1F"}) {
        EXPECT_EQ(readNumber(text).value, 0) << text;
        EXPECT_FALSE(readNumber(text).tooLarge) << text;
    }
    EXPECT_EQ(readNumber("&H1F").value, 31);
}

TEST(ReadNumber, ANumberTooSmallForADoubleIsZeroAndNotTooLarge) {
    const std::string zeros(400, '0');
    for (const std::string& text :
         {"0." + zeros + "1", "." + zeros + "9", std::string("1e-400"), "0." + zeros + "1E10",
          std::string("-5D-999"), std::string("1e-99999999999999999999")}) {
        EXPECT_EQ(readNumber(text).value, 0) << text;
        EXPECT_FALSE(readNumber(text).tooLarge) << text;
    }
}

TEST(ReadNumber, ANumberTooLargeForADoubleSaysSo) {
    const std::string zeros(400, '0');
    for (const std::string& text :
         {"1" + zeros, "1" + zeros + ".5", "10" + zeros + "E-50", std::string("1e+400"),
          std::string("1e99999999999999999999"), "&H" + std::string(400, 'F')}) {
        EXPECT_EQ(readNumber(text).value, 0) << text;
        EXPECT_TRUE(readNumber(text).tooLarge) << text;
    }
}

TEST(StrictNumber, TheNeighboursOfTheDigitsAreNone) {
    for (const char* text : {"12:", "12/", ":", "1.5:", "1e5:", "&H1G", "&H1@", "&H1`", "&O18"}) {
        EXPECT_EQ(faultOf([&] { return strictNumber(text); }), 13) << text;
    }
    EXPECT_EQ(strictNumber("&HfFaA"), 0xFFAA);
}

TEST(Utf8, ACharacterBeyondSixteenBitsTakesFourBytes) {
    std::string text;
    appendUtf8(U'\U0001F600', text);
    EXPECT_EQ(text, "\xF0\x9F\x98\x80");
    EXPECT_EQ(firstCharacter(text).code, U'\U0001F600');
    EXPECT_EQ(firstCharacter(text).length, 4U);
    text.clear();
    appendUtf8(U'\U00050000', text);
    appendUtf8(U'\U0010FFFF', text);
    EXPECT_EQ(text, "\xF1\x90\x80\x80\xF4\x8F\xBF\xBF");
}

TEST(PlatformDisk, AFileUsedAsAFolderIsAPathNotFound) {
    const TemporaryFolder folder;
    PlatformDisk disk;
    folder.put("a", "x");
    EXPECT_EQ(faultOf([&] { disk.openForReading(folder.file("a/b")); }), 76);
    EXPECT_EQ(faultOf([&] { disk.openForReading(folder.file(std::string(300, 'n'))); }), 76);
}

TEST(PlatformDisk, ADeviceIsWrittenInPlaceAndStaysOne) {
    if (!std::filesystem::exists("/dev/null")) GTEST_SKIP() << "no /dev/null here";
    PlatformDisk disk;
    disk.replace("/dev/null", "bytes");
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));
}

TEST(PlatformDisk, ReplacingOnAFullDeviceIsFault61) {
    if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no /dev/full here";
    PlatformDisk disk;
    EXPECT_EQ(faultOf([&] { disk.replace("/dev/full", "bytes"); }), 61);
}

TEST(PlatformDisk, TheCurrentFolderIsTheOneThatWasSet) {
    const TemporaryFolder folder;
    PlatformDisk disk;
    const std::string before = disk.currentFolder();
    disk.setCurrentFolder(folder.path());
    EXPECT_EQ(disk.currentFolder(), std::filesystem::canonical(folder.path()).string());
    EXPECT_EQ(faultOf([&] { disk.setCurrentFolder(folder.file("none")); }), 76);
    disk.setCurrentFolder(before);
    EXPECT_EQ(disk.currentFolder(), before);
}

TEST(RuntimeFault, EveryNumberHasASentenceOfItsOwn) {
    std::string seen;
    for (const Fault fault :
         {Fault::InvalidCall, Fault::Overflow, Fault::Subscript, Fault::DivisionByZero,
          Fault::TypeMismatch, Fault::FileNotFound, Fault::FileAlreadyOpen, Fault::DiskFull,
          Fault::InputPastEnd, Fault::PermissionDenied, Fault::DiskNotReady, Fault::PathFileAccess,
          Fault::PathNotFound, Fault::DialogCancelled}) {
        const std::string sentence(faultSentence(fault));
        EXPECT_FALSE(sentence.empty());
        EXPECT_EQ(seen.find("|" + sentence + "|"), std::string::npos) << sentence;
        seen += "|" + sentence + "|";
    }
    EXPECT_FALSE(faultSentence(static_cast<Fault>(1000)).empty());
}

}  // namespace
}  // namespace kelvo
