#include "shell/status_line.h"

#include "shell/window_bench.h"

namespace kelvo {
namespace {

using testing::Program;
using testing::WindowBench;

class StatusLineOfTheWindow : public WindowBench {
protected:
    StatusLineOfTheWindow() { putConfiguration({"/app/data/a.dat"}); }
    static const std::string& said(Program& kelvo) { return kelvo.window.status().sentence(); }
};

TEST_F(StatusLineOfTheWindow, SaysHowManyPointsARunConvertedAndWhereTheReportIs) {
    disk.putText("/app/data/a.dat",
                 "WGS A 37.3533 126.3229 30\r\n    B 37.3534 126.3230 31\r\n"
                 "end\r\n \r\n");
    Program& kelvo = start();
    kelvo.click("mnuBatchGo");
    EXPECT_EQ(said(kelvo), "2점 변환, 보고서 /app/data/a.out");
    EXPECT_TRUE(kelvo.window.status().messages().empty());
}

TEST_F(StatusLineOfTheWindow, CollectsTheMessagesOfARunWithTheLinesOfTheirPoints) {
    // Longitude 20 can't be projected on a grid of the east.
    disk.putText("/app/data/a.dat",
                 "* 머리\r\nUGS A 37.3533 127.0 30\r\n    B 89.5959 20.0 31\r\n"
                 "    C 37.3534 127.0 30\r\n    D 89.5959 20.0 31\r\nend\r\n \r\n");
    Program& kelvo = start();
    kelvo.click("mnuBatchGo");
    const auto& messages = kelvo.window.status().messages();
    ASSERT_FALSE(messages.empty());
    EXPECT_EQ(kelvo.window.status().dataFile(), "/app/data/a.dat");
    std::vector<long> lines;
    for (const RunMessage& message : messages) {
        if (lines.empty() || lines.back() != message.line) lines.push_back(message.line);
        EXPECT_NE(message.text.find("변환"), std::string::npos) << message.text;
    }
    EXPECT_EQ(lines, (std::vector<long>{3, 5}));
    EXPECT_NE(said(kelvo).find("알림 " + std::to_string(messages.size()) + "개"), std::string::npos)
        << said(kelvo);
    // The next run starts with none.
    disk.putText("/app/data/a.dat", "UGS A 37.3533 127.0 30\r\nend\r\n \r\n");
    kelvo.click("mnuBatchGo");
    EXPECT_TRUE(kelvo.window.status().messages().empty());
}

TEST_F(StatusLineOfTheWindow, SaysWhichTextWasSavedWhere) {
    Program& kelvo = start();
    kelvo.click("mnuBatchEdit");
    EXPECT_EQ(said(kelvo), "열었습니다: /app/data/a.dat");
    kelvo.click("cmdSave");
    EXPECT_EQ(said(kelvo), "저장했습니다: /app/data/a.dat");
}

// The menu's save puts whatever is on view into the data file (required).
TEST_F(StatusLineOfTheWindow, SaysThatAReportWentIntoTheDataFile) {
    disk.putText("/app/data/a.dat", "WGS A 37.3533 126.3229 30\r\nend\r\n \r\n");
    Program& kelvo = start();
    kelvo.click("mnuBatchGo");
    kelvo.file(4);
    EXPECT_EQ(said(kelvo),
              "화면에 있던 /app/data/a.out의 글을 데이터 파일에 저장했습니다: /app/data/a.dat");
}

TEST_F(StatusLineOfTheWindow, SaysWhenTheMenuCouldNotSave) {
    Program& kelvo = start();
    kelvo.click("mnuBatchEdit");
    disk.before = [](const std::string& operation, const std::string& path) {
        if (operation == "replace" && path == "/app/data/a.dat") raise(Fault::DiskFull);
    };
    kelvo.file(4);
    EXPECT_EQ(said(kelvo), "저장하지 못했습니다: /app/data/a.dat");
}

TEST_F(StatusLineOfTheWindow, SaysThatADatumArrowEmptiedTheReport) {
    Program& kelvo = start();
    kelvo.click("mnuOneOpen");
    for (const char* box : {"txtWdmsPhi", "txtWdmsLam", "txtWdmsTH"}) kelvo.type(box, "37");
    kelvo.click("cmdW2B");
    EXPECT_NE(said(kelvo).find("비워졌습니다: /app/data/a.out"), std::string::npos) << said(kelvo);
}

TEST_F(StatusLineOfTheWindow, SaysNothingWasDoneAfterACancel) {
    Program& kelvo = start();
    kelvo.click("mnuPrintClear");  // with nothing queued the box is cancelled
    EXPECT_EQ(said(kelvo), "취소했습니다");
}

TEST_F(StatusLineOfTheWindow, SavingOnViewLeavesTheScreenAsItIs) {
    Program& kelvo = start();
    kelvo.click("mnuBatchEdit");
    kelvo.type("Richtxt", "고친 글");
    kelvo.window.saveOnView();
    EXPECT_EQ(disk.text("/app/data/a.dat"), "고친 글");
    EXPECT_TRUE(kelvo.visible("frmeFile"));
    EXPECT_EQ(kelvo.window.fileOnView(), "/app/data/a.dat");
}

TEST(StatusLine, TellsItsViewOfEachChangeWhenItIsDone) {
    StatusLine line;
    line.add({3, "보는 이가 없습니다"});  // without a view nothing more happens
    std::vector<std::string> heard;
    line.onChange = [&] {
        heard.push_back(line.sentence() + '|' + line.dataFile() + '|' +
                        std::to_string(line.messages().size()));
    };
    line.say("열었습니다");
    line.runBegins("a.dat");
    line.add({2, "첫째"});
    line.add({1, "둘째"});
    line.say("끝났습니다");
    EXPECT_EQ(heard,
              (std::vector<std::string>{"열었습니다||1", "열었습니다|a.dat|0", "열었습니다|a.dat|1",
                                        "열었습니다|a.dat|2", "끝났습니다|a.dat|2"}));
    EXPECT_EQ(line.messages()[0].line, 2);
    EXPECT_EQ(line.messages()[1].text, "둘째");
}

}  // namespace
}  // namespace kelvo
