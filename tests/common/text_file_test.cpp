#include "common/text_file.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/case_count.h"
#include "support/faults.h"
#include "support/memory_disk.h"

namespace kelvo {
namespace {

using testing::faultOf;
using testing::MemoryDisk;

std::vector<std::string> linesOf(const std::string& bytes) {
    MemoryDisk disk;
    disk.putBytes("/a", bytes);
    TextReader reader(disk, "/a");
    std::vector<std::string> lines;
    while (!reader.atEnd()) {
        lines.emplace_back();
        reader.readLine(lines.back());
    }
    return lines;
}

using Lines = std::vector<std::string>;

TEST(TextReader, TakesCrLfLfAndCrAsLineEnds) {
    EXPECT_EQ(linesOf("a\r\nb\nc\rd\r\n"), (Lines{"a", "b", "c", "d"}));
}

TEST(TextReader, LfCrIsTwoLineEnds) {
    EXPECT_EQ(linesOf("a\n\rb"), (Lines{"a", "", "b"}));
}

TEST(TextReader, ATrailingLineEndMakesNoFurtherLine) {
    EXPECT_EQ(linesOf("a\r\n"), (Lines{"a"}));
    EXPECT_EQ(linesOf("a"), (Lines{"a"}));
    EXPECT_EQ(linesOf("a\r\n\r\n"), (Lines{"a", ""}));
    EXPECT_EQ(linesOf(""), (Lines{}));
}

TEST(TextReader, ALineReadAtTheEndIsInputPastEnd) {
    MemoryDisk disk;
    disk.putBytes("/a", "x");
    TextReader reader(disk, "/a");
    std::string line;
    reader.readLine(line);
    EXPECT_TRUE(reader.atEnd());
    EXPECT_EQ(faultOf([&] { reader.readLine(line); }), 62);
}

TEST(TextReader, AMissingFileIsFileNotFound) {
    MemoryDisk disk;
    EXPECT_EQ(faultOf([&] { const TextReader reader(disk, "/a"); }), 53);
}

TEST(TextReader, DecodesTheCodePage) {
    MemoryDisk disk;
    disk.putText("/a", "인천부두끝   37\r\n뷁");
    TextReader reader(disk, "/a");
    std::string line;
    reader.readLine(line);
    EXPECT_EQ(line, "인천부두끝   37");
    EXPECT_EQ(reader.lineInHand(), 1);
    reader.readLine(line);
    EXPECT_EQ(line, "뷁");
}

TEST(TextReader, PairsAndLineEndsAcrossAnyBufferBorderStayWhole) {
    // a CR LF, and the two bytes of a letter, at every offset around the size of the buffer
    for (std::size_t fill = 16380; fill <= 16388; ++fill) {
        const Lines expected{std::string(fill, 'x'), "가나다", "", "z"};
        MemoryDisk disk;
        disk.putText("/a", expected[0] + "\r\n가나다\r\n\r\nz");
        TextReader reader(disk, "/a");
        Lines lines;
        while (!reader.atEnd()) {
            lines.emplace_back();
            reader.readLine(lines.back());
        }
        ASSERT_EQ(lines, expected) << fill;
        disk.putText("/a", std::string(fill, 'x') + "가\r");
        TextReader again(disk, "/a");
        std::string line;
        again.readLine(line);
        ASSERT_EQ(line, std::string(fill, 'x') + "가");
        ASSERT_TRUE(again.atEnd()) << fill;
    }
}

TEST(TextReader, ALineBeyondTheLongestIsAnOverflow) {
    MemoryDisk disk;
    std::string text(kLongestLine, 'x');
    text += '\n';
    text.append(kLongestLine + 1, 'y');
    disk.putBytes("/a", text);
    TextReader reader(disk, "/a");
    std::string line;
    reader.readLine(line);
    EXPECT_EQ(line.size(), kLongestLine);
    EXPECT_EQ(faultOf([&] { reader.readLine(line); }), 6);
}

TEST(TextReader, ItemsEndAtCommasAndLineEnds) {
    MemoryDisk disk;
    disk.putText("/a", "  가 나 ,\"x, y\"\r\n12 ,-.5,1E3\r\nabc\r\n");
    TextReader reader(disk, "/a");
    std::string item;
    reader.readTextItem(item);
    EXPECT_EQ(item.substr(0, 7), "가 나");
    reader.readTextItem(item);
    EXPECT_EQ(item, "x, y");
    EXPECT_EQ(reader.readNumber(), 12);
    EXPECT_EQ(reader.readNumber(), -0.5);
    EXPECT_EQ(reader.readNumber(), 1000);
    EXPECT_EQ(faultOf([&] { return reader.readNumber(); }), 13);
}

TEST(TextReader, AnItemReadAtTheEndIsInputPastEnd) {
    MemoryDisk disk;
    disk.putText("/a", "1\r\n");
    TextReader reader(disk, "/a");
    EXPECT_EQ(reader.readNumber(), 1);
    EXPECT_EQ(faultOf([&] { return reader.readNumber(); }), 62);
}

TEST(TextWriter, EndsEveryLineWithCrLf) {
    MemoryDisk disk;
    disk.putBytes("/a", "old");
    {
        TextWriter writer(disk, "/a");
        writer.line("가");
        writer.line("");
        writer.line("z");
        writer.close();
    }
    EXPECT_EQ(disk.bytes("/a"), "\xB0\xA1\r\n\r\nz\r\n");
}

TEST(TextWriter, AppendsBehindWhatTheFileHeld) {
    MemoryDisk disk;
    disk.putBytes("/a", "old\r\n");
    TextWriter writer(disk, "/a", WriteMode::Append);
    writer.line("new");
    writer.close();
    EXPECT_EQ(disk.bytes("/a"), "old\r\nnew\r\n");
}

TEST(TextWriter, WhatWasWrittenStandsWhenAFaultUnwinds) {
    MemoryDisk disk;
    EXPECT_EQ(faultOf([&] {
                  TextWriter writer(disk, "/a");
                  writer.line("first");
                  raise(Fault::Overflow);
              }),
              6);
    EXPECT_EQ(disk.bytes("/a"), "first\r\n");
}

TEST(TextWriter, AFullDiskShowsAtTheLatestWhenItIsClosed) {
    MemoryDisk disk;
    disk.before = [](const std::string& operation, const std::string&) {
        if (operation == "write") raise(Fault::DiskFull);
    };
    EXPECT_EQ(faultOf([&] {
                  TextWriter writer(disk, "/a");
                  writer.line("first");
                  writer.close();
              }),
              61);
}

TEST(TextWriter, WhatArrivedBeforeTheDiskWasFullIsPutInPlace) {
    MemoryDisk disk;
    int writes = 0;
    bool closed = false;
    disk.before = [&](const std::string& operation, const std::string&) {
        if (operation == "write" && ++writes == 2) raise(Fault::DiskFull);
        if (operation == "close") closed = true;
    };
    TextWriter writer(disk, "/a");
    writer.line(std::string(40'000, 'a'));  // more than is held back
    writer.line("b");
    EXPECT_EQ(faultOf([&] { writer.close(); }), 61);
    EXPECT_TRUE(closed);
    EXPECT_EQ(disk.bytes("/a"), std::string(40'000, 'a') + "\r\n");
}

TEST(WholeText, GivesEveryLineEndAsCrLf) {
    MemoryDisk disk;
    disk.putBytes("/a", "a\nb\rc\r\n\xB0\xA1");
    EXPECT_EQ(readWholeText(disk, "/a"), "a\r\nb\r\nc\r\n가");
}

TEST(WholeText, OfAFileThatIsTooLargeIsFault6) {
    MemoryDisk disk;
    if (!testing::kSanitized) {  // takes half a minute there
        disk.putBytes("/a", std::string(kLargestText, '\n'));
        EXPECT_EQ(readWholeText(disk, "/a").size(), 2 * kLargestText);
    }
    disk.putBytes("/a", std::string(kLargestText + 1, '\n'));
    EXPECT_EQ(faultOf([&] { return readWholeText(disk, "/a"); }), 6);
}

TEST(WholeText, ReplacesAFileInTheCodePage) {
    MemoryDisk disk;
    replaceWholeText(disk, "/a", "가\r\nb");
    EXPECT_EQ(disk.bytes("/a"), "\xB0\xA1\r\nb");
}

}  // namespace
}  // namespace kelvo
