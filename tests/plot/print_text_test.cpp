#include "plot/print_text.h"

#include "plot_fixture.h"
#include "support/memory_disk.h"

namespace kelvo::testing {
namespace {

class RecordingRawPrinter final : public RawPrinter {
public:
    void print(const std::string& path) override { paths.push_back(path); }
    Lines paths;
};

class RecordingPointer final : public BusyPointer {
public:
    void setBusy(bool on) override { states.push_back(on); }
    std::vector<bool> states;
};

class PrintText : public PlotTest {
protected:
    PrintText() {
        disk.addFolder("/work");
        disk.addFolder("/app");
        disk.setCurrentFolder("/work");
    }

    void print(const std::string& name) {
        PrintServices services{disk,    messages, starts, rawPrinter,
                               pointer, printer,  "/app", LineBuf};
        PrintFile(name, mode, services);
    }

    static std::string numberedLines(int count) {
        std::string text;
        for (int i = 1; i <= count; ++i) text += "line " + std::to_string(i) + "\r\n";
        return text;
    }

    MemoryDisk disk;
    RecordingRawPrinter rawPrinter;
    RecordingPointer pointer;
    std::string LineBuf;
    PrintMode mode;
};

class FastPrint : public PrintText {
protected:
    FastPrint() { mode.fast = true; }
};

TEST_F(FastPrint, AMissingFileIsToldWhateverTheMarginAndNothingIsPrinted) {
    for (const std::int16_t margin : {std::int16_t{0}, std::int16_t{4}}) {
        for (const char* name : {"gone.out", "gone.dat"}) {
            mode.LeftMargin = margin;
            messages.shown.clear();
            print(name);
            EXPECT_EQ(messages.texts(), Lines{"먼저 실행을 하십시오"}) << name << margin;
            EXPECT_TRUE(rawPrinter.paths.empty()) << name << margin;
            EXPECT_FALSE(disk.has("/app/code.bat"));
            EXPECT_FALSE(disk.has("/work/temp"));
        }
    }
}

TEST_F(FastPrint, OutFileWithoutMarginGoesToThePrinterAsItStands) {
    disk.putText("/work/a.out", "one\r\n");
    print("a.out");
    EXPECT_EQ(rawPrinter.paths, Lines{"a.out"});
    EXPECT_FALSE(disk.has("/work/temp"));
    EXPECT_EQ(disk.text("/app/code.bat"), "copy a.out Lpt1\r\n");
    EXPECT_EQ(disk.text("/work/a.out"), "one\r\n");
}

TEST_F(FastPrint, MarginStandsInFrontOfEachLineAndAFormFeedAtTheEnd) {
    mode.LeftMargin = 3;
    disk.putText("/work/a.out", "가나\r\n\r\nlast");
    print("a.out");
    EXPECT_EQ(disk.text("/work/temp"), "   가나\r\n   \r\n   last\r\n\f\r\n");
    EXPECT_EQ(disk.text("/app/code.bat"), "copy temp Lpt1\r\n");
    EXPECT_EQ(rawPrinter.paths, Lines{"temp"});
    EXPECT_EQ(pointer.states, (std::vector<bool>{true, false}));
}

TEST_F(FastPrint, DatFileOf57LinesFillsOnePageAndStartsAnother) {
    disk.putText("/work/a.dat", numberedLines(57));
    print("a.dat");
    EXPECT_EQ(disk.text("/work/temp"),
              "\r\n\r\n\r\n\r\n" + numberedLines(57) + "\f\r\n\r\n\r\n\r\n\r\n\f\r\n");
}

TEST_F(FastPrint, DatFileOf56LinesIsOnePage) {
    disk.putText("/work/a.dat", numberedLines(56));
    print("a.dat");
    EXPECT_EQ(disk.text("/work/temp"), "\r\n\r\n\r\n\r\n" + numberedLines(56) + "\f\r\n");
}

TEST_F(FastPrint, DatFileIsPagedWithoutMarginAndInAnyCase) {
    disk.putText("/work/a.Dat", "one\r\n");
    print("a.Dat");
    EXPECT_EQ(disk.text("/work/temp"), "\r\n\r\n\r\n\r\none\r\n\f\r\n");
}

TEST_F(FastPrint, DatFileWithMarginHasItOnItsLinesOnly) {
    mode.LeftMargin = 2;
    disk.putText("/work/a.dat", "one\r\n");
    print("a.dat");
    EXPECT_EQ(disk.text("/work/temp"), "\r\n\r\n\r\n\r\n  one\r\n\f\r\n");
}

TEST_F(FastPrint, NegativeMarginCountsAsNone) {
    mode.LeftMargin = -3;
    disk.putText("/work/a.out", "one\r\n");
    print("a.out");
    EXPECT_EQ(rawPrinter.paths, Lines{"a.out"});
}

TEST_F(FastPrint, MissingFileIsToldAndNothingIsPrinted) {
    mode.LeftMargin = 3;
    print("a.out");
    EXPECT_EQ(messages.texts(), Lines{"먼저 실행을 하십시오"});
    EXPECT_TRUE(rawPrinter.paths.empty());
    EXPECT_TRUE(pointer.states.empty());
    EXPECT_FALSE(disk.has("/app/code.bat"));
}

TEST_F(FastPrint, NameOfFewerThanThreeCharactersIsAFault) {
    disk.putText("/work/ab", "one\r\n");
    EXPECT_EQ(faultOf([&] { print("ab"); }), 5);
    EXPECT_EQ(faultOf([&] { print("가나"); }), 5);
}

TEST_F(FastPrint, NameOfThreeCharactersIsItsOwnEnding) {
    disk.putText("/work/dat", numberedLines(1));
    print("dat");
    // Four empty lines at the top: it counts as a data file.
    EXPECT_EQ(disk.text("/work/temp"), "\r\n\r\n\r\n\r\nline 1\r\n\f\r\n");
}

TEST_F(FastPrint, TheScratchFileItselfIsAlreadyOpen) {
    mode.LeftMargin = 3;
    disk.putText("/work/temp", "one\r\n");
    EXPECT_EQ(faultOf([&] { print("temp"); }), 55);
    EXPECT_EQ(disk.text("/work/temp"), "one\r\n");
}

TEST_F(FastPrint, FullDiskIsAFaultAndThePointerIsFreed) {
    mode.LeftMargin = 3;
    disk.putText("/work/a.out", "one\r\n");
    disk.before = [](const std::string& operation, const std::string&) {
        if (operation == "write") raise(Fault::DiskFull);
    };
    EXPECT_EQ(faultOf([&] { print("a.out"); }), 61);
    EXPECT_EQ(pointer.states, (std::vector<bool>{true, false}));
    EXPECT_TRUE(rawPrinter.paths.empty());
}

class UserPrint : public PrintText {
protected:
    // The texts printed, with the sheet they stand on and their place in millimetres.
    struct Placed {
        int sheet;
        double x, y;
        std::string text;
    };
    std::vector<Placed> placed() {
        std::vector<Placed> result;
        Placed now{1, 0, 0, {}};
        double size = 0;
        for (const auto& line : drawn()) {
            double v = 0;
            if (line == "EndDoc") ++now.sheet;
            if (std::sscanf(line.c_str(), "fontsize = %lf", &v) == 1) size = v;
            if (std::sscanf(line.c_str(), "CurrentX = %lf", &v) == 1) now.x = v / 56.7;
            if (std::sscanf(line.c_str(), "CurrentY = %lf", &v) == 1)
                now.y = (v + 16 * size) / 56.7;
            if (line.starts_with("print ")) {
                now.text = line.substr(6);
                result.push_back(now);
            }
        }
        return result;
    }

    static constexpr const char* kDashes = "---------------------------------------";
};

TEST_F(UserPrint, LinesStandFrom30To274Millimetres62ToTheSheet) {
    disk.putText("/work/a.out", numberedLines(63));
    print("a.out");
    const auto texts = placed();
    ASSERT_EQ(texts.size(), 63U);
    for (int i = 0; i < 62; ++i) {
        const auto& text = texts[static_cast<std::size_t>(i)];
        EXPECT_EQ(text.sheet, 1);
        EXPECT_NEAR(text.x, 30, 1e-4);
        EXPECT_NEAR(text.y, 30 + 4 * i, 1e-4);
    }
    EXPECT_EQ(texts[62].sheet, 2);
    EXPECT_NEAR(texts[62].y, 30, 1e-4);
}

TEST_F(UserPrint, EachSheetIsAJobOfItsOwnAndSetUpAnew) {
    mode.font = "바탕";
    disk.putText("/work/a.txt", numberedLines(63));
    print("a.txt");
    const Lines lines = drawn();
    const Lines setUp{"ScaleMode = 1",  "Font = 굴림체",      "Font = 바탕",      "FontBold = 0",
                      "FontItalic = 0", "FontStrikethru = 0", "FontUnderline = 0"};
    ASSERT_GT(lines.size(), setUp.size());
    EXPECT_EQ(Lines(lines.begin(), lines.begin() + 7), setUp);
    const auto job = std::find(lines.begin(), lines.end(), "EndDoc");
    ASSERT_GT(lines.end() - job, 8);
    EXPECT_EQ(Lines(job + 1, job + 8), setUp);
    EXPECT_EQ(countOf(lines, "EndDoc"), 2);
    EXPECT_EQ(lines.back(), "EndDoc");
    EXPECT_EQ(countOf(lines, "NewPage"), 0);
}

TEST_F(UserPrint, EndSwitchesTheStylesOff) {
    mode.style = 2;
    disk.putText("/work/a.txt", "x\r\n");
    print("a.txt");
    const Lines lines = drawn();
    EXPECT_EQ(Lines(lines.end() - 5, lines.end()),
              (Lines{"FontBold = 0", "FontItalic = 0", "FontStrikethru = 0", "FontUnderline = 0",
                     "EndDoc"}));
}

TEST_F(UserPrint, LeftEdgeGoesByTheSize) {
    disk.putText("/work/a.txt", "x\r\n");
    const std::pair<const char*, double> edges[] = {{"7", 36},  {"8", 34},  {"9", 32},
                                                    {"10", 30}, {"11", 28}, {"12", 25}};
    for (const auto& [size, edge] : edges) {
        mode.size = size;
        print("a.txt");
        const auto texts = placed();
        ASSERT_EQ(texts.size(), 1U);
        EXPECT_NEAR(texts[0].x, edge, 1e-4) << size;
    }
}

TEST_F(UserPrint, StylesAreSetByTheirIndexAndTheChecks) {
    disk.putText("/work/a.txt", "");
    const auto setUp = [&] {
        print("a.txt");
        Lines lines = drawn();
        lines.resize(lines.size() - 5);
        lines.erase(lines.begin(), lines.begin() + 2);
        return lines;
    };
    mode.style = 1;
    EXPECT_EQ(setUp(), Lines{"FontItalic = 1"});
    mode.style = 2;
    EXPECT_EQ(setUp(), Lines{"FontBold = 1"});
    mode.style = 3;
    EXPECT_EQ(setUp(), (Lines{"FontBold = 1", "FontItalic = 1"}));
    mode.strikethru = true;
    mode.underline = true;
    EXPECT_EQ(setUp(),
              (Lines{"FontBold = 1", "FontItalic = 1", "FontStrikethru = 1", "FontUnderline = 1"}));
}

TEST_F(UserPrint, DashLineOfAnOutFileStartsANewSheet) {
    disk.putText("/work/a.OUT", "one\r\n  " + std::string(kDashes) + " \r\nthree\r\n");
    print("a.OUT");
    const auto texts = placed();
    ASSERT_EQ(texts.size(), 3U);
    EXPECT_EQ(texts[0].sheet, 1);
    EXPECT_EQ(texts[1].sheet, 2);
    EXPECT_NEAR(texts[1].y, 30, 1e-4);
    EXPECT_EQ(texts[2].sheet, 2);
    EXPECT_NEAR(texts[2].y, 34, 1e-4);
}

TEST_F(UserPrint, NameEndingInOutInAnyCaseCounts) {
    for (const char* name : {"a.out", "a.OUT", "a.Out", "about"}) {
        disk.putText(std::string("/work/") + name, std::string(kDashes) + "\r\n");
        print(name);
        EXPECT_EQ(placed()[0].sheet, 2) << name;
    }
}

TEST_F(UserPrint, DashLineOfAnotherFileStartsNone) {
    disk.putText("/work/kelvo.tmp", std::string(kDashes) + "\r\n");
    print("kelvo.tmp");
    EXPECT_EQ(placed()[0].sheet, 1);
}

TEST_F(UserPrint, LineOf38Or40DashesStartsNone) {
    disk.putText("/work/a.out", std::string(38, '-') + "\r\n" + std::string(40, '-') + "\r\n");
    print("a.out");
    EXPECT_EQ(placed()[1].sheet, 1);
}

TEST_F(UserPrint, FormFeedTakesThreeLinesAlong) {
    disk.putText("/work/a.txt", "one\r\n \f \r\ntwo\r\nthree\r\nfour\r\nfive\r\n");
    print("a.txt");
    const auto texts = placed();
    ASSERT_EQ(texts.size(), 3U);
    EXPECT_EQ(texts[0].text, "one");
    EXPECT_EQ(texts[1].text, "four");
    EXPECT_EQ(texts[2].text, "five");
    EXPECT_EQ(texts[2].sheet, 1);
}

TEST_F(UserPrint, FormFeedAsTheLastLineEndsThePrinting) {
    disk.putText("/work/a.txt", "one\r\n\f\r\n");
    print("a.txt");
    EXPECT_EQ(placed().size(), 1U);
}

TEST_F(UserPrint, FormFeedWithTwoLinesBehindItReadsPastTheEnd) {
    disk.putText("/work/a.txt", "one\r\n\f\r\ntwo\r\nthree\r\n");
    EXPECT_EQ(faultOf([&] { print("a.txt"); }), 62);
}

TEST_F(UserPrint, MissingFileIsToldAndNothingIsDrawn) {
    print("kelvo.tmp");
    EXPECT_EQ(messages.texts(), Lines{"먼저 실행을 하십시오"});
    EXPECT_EQ(drawn(), Lines{});
}

TEST_F(UserPrint, LastLineReadStaysInTheSharedLine) {
    disk.putText("/work/a.txt", "one\r\ntwo\r\n");
    print("a.txt");
    EXPECT_EQ(LineBuf, "two");
}

}  // namespace
}  // namespace kelvo::testing
