#include "shell/saved_results.h"

#include "shell/window_bench.h"

namespace kelvo {
namespace {

using testing::faultOf;
using testing::Lines;
using testing::Program;
using testing::WindowBench;

constexpr const char* kNotes = "/app/Kelvo.out";
constexpr const char* kDetailQuestion =
    "message||none|okcancel|타원체 제원, 매개변수, 투영원점을 포함한 상세한 계산 결과를 "
    "/app/Kelvo.out에 추가합니다";

class SavedNotes : public WindowBench {
protected:
    SavedNotes() {
        putConfiguration({"/app/data/a.dat"});
        start();
    }
    [[nodiscard]] std::string notes() { return disk.text(kNotes); }
};

TEST_F(SavedNotes, BriefNoteOfAnUntouchedPanelIsAllZero) {
    program->click("mnuPrintBrief");
    EXPECT_EQ(notes(),
              "\r\n"
              "WGS 위도 =    0- 0- 0.0000   사용자 위도 =    0- 0- 0.0000"
              "   사용자 X =         0.00000\r\n"
              "    경도 =    0- 0- 0.0000          경도 =    0- 0- 0.0000"
              "          Y =         0.00000\r\n"
              " 타원체고 =     0.0000          타원체고  =     0.0000"
              "          타원체고  =     0.00000\r\n"
              "지오이드고=     0.0000         지오이드고 =     0.0000"
              "         지오이드고 =     0.00000\r\n"
              "  정표고  =     0.0000              표 고 =     0.0000"
              "              표 고 =     0.0000\r\n");
    EXPECT_TRUE(program->told().empty());
}

TEST_F(SavedNotes, AngleReadsWithBlanksInsideAndNotZeros) {
    program->type("txtWdegPhi", "37.08375");  // 37 degrees 5 minutes 1.5 seconds
    program->click("mnuPrintBrief");
    EXPECT_NE(notes().find("WGS 위도 =   37- 5- 1.5000   사용자"), std::string::npos);
}

TEST_F(SavedNotes, NegativeAngleHasItsMinusInTheDegreesOnly) {
    // The split of a negative angle comes out as it falls, sign on the degrees.
    program->type("txtBdegLam", "-37.25");
    program->click("mnuPrintBrief");
    const std::string text = notes();
    const std::size_t at = text.find("          경도 = ");
    ASSERT_NE(at, std::string::npos);
    const std::string angle = text.substr(at + std::string("          경도 = ").size(), 15);
    EXPECT_EQ(angle.substr(5).find("--"), std::string::npos) << angle;
}

TEST_F(SavedNotes, OnlyTheDecimalBoxesCount) {
    program->click("optWdms");
    program->type("txtWdmsPhi", "37.3");
    program->click("mnuPrintBrief");
    EXPECT_NE(notes().find("WGS 위도 =    0- 0- 0.0000"), std::string::npos);
}

TEST_F(SavedNotes, EachNoteGoesBehindTheLastOne) {
    program->click("mnuPrintBrief");
    const std::string once = notes();
    program->click("mnuPrintBrief");
    EXPECT_EQ(notes(), once + once);
}

TEST_F(SavedNotes, DetailedNoteAsksAndHoldsTheParameters) {
    program->click("optUser");
    program->type("txta", "  6378137 m");
    program->type("txtf", "298.26");
    program->type("txtLam0", "127");
    program->queueAnswer(Answer::Ok);
    program->click("mnuPrintDetail");
    EXPECT_EQ(program->told(), Lines{kDetailQuestion});
    const std::string text = notes();
    const std::string head =
        "\r\n"
        "매개변수\r\n"
        "   이동    dx, dy, dz =     115.800  -474.990  -674.110\r\n"
        "   회전(초) ω φ  κ =       1.160    -2.310    -1.630\r\n"
        "   축소확대        ds =      -6.430 x E-6\r\n"
        "타원체 장반경 =   6378137 m   편평도(1/f) = 298.26\r\n"
        "투영원점\r\n"
        "   위도    =    38.000000000   경도=   127.002890278\r\n"
        "   Xo(North)   =  500000.000  Yo(East) =  200000.000\r\n"
        "   축척계수 So =  1.00000\r\n"
        "\r\n"
        "WGS 위도 = ";
    EXPECT_EQ(text.substr(0, head.size()), head);
}

TEST_F(SavedNotes, LongitudeOfTheOriginGoesWithoutTheSecondsWhenTheyAreOff) {
    program->click("optNotAdd");
    program->queueAnswer(Answer::Ok);
    program->click("mnuPrintDetail");
    EXPECT_NE(notes().find("   경도=   127.000000000\r\n"), std::string::npos);
}

TEST_F(SavedNotes, CancelledDetailWritesNothing) {
    program->click("mnuPrintDetail");
    EXPECT_FALSE(disk.has(kNotes));
}

TEST_F(SavedNotes, ClearAsksOnceAndEmptiesTheFile) {
    program->click("mnuPrintBrief");
    const std::string before = notes();
    const std::string question =
        "message||none|okcancel|/app/Kelvo.out에 있는 기존의 계산 결과를 삭제 합니다";
    program->click("mnuPrintClear");
    EXPECT_EQ(program->told(), Lines{question});
    EXPECT_EQ(notes(), before);
    program->queueAnswer(Answer::Ok);
    program->click("mnuPrintClear");
    EXPECT_EQ(program->told(), Lines{question});
    EXPECT_TRUE(disk.has(kNotes));
    EXPECT_EQ(notes(), "");
}

TEST_F(SavedNotes, AreShownInTheViewer) {
    program->click("mnuPrintBrief");
    program->click("mnuPrintShow");
    EXPECT_EQ(program->caption("frmeFile"), kNotes);
    EXPECT_EQ(program->text("Richtxt"), notes());
}

TEST_F(SavedNotes, ThatDoNotExistCannotBeShown) {
    EXPECT_EQ(faultOf([&] { program->click("mnuPrintShow"); }), 53);
}

TEST_F(SavedNotes, DecimalBoxThatIsNoNumberIsAFaultBehindTheEmptyLine) {
    for (const char* name : {"txtWdegPhi", "txtWdegLam", "txtBdegPhi", "txtBdegLam"}) {
        disk.files.erase(kNotes);
        program->type(name, "12abc");
        EXPECT_EQ(faultOf([&] { program->click("mnuPrintBrief"); }), 13) << name;
        EXPECT_EQ(notes().substr(0, 2), "\r\n") << name;
        program->queueAnswer(Answer::Ok);
        EXPECT_EQ(faultOf([&] { program->click("mnuPrintDetail"); }), 13) << name;
        program->type(name, "0");
    }
}

TEST_F(SavedNotes, OtherBoxesAreReadFromTheLeft) {
    program->type("txtX", "12.5 m");
    program->type("txtH", "none");
    program->click("mnuPrintBrief");
    EXPECT_NE(notes().find("   사용자 X =        12.50000\r\n"), std::string::npos);
}

TEST_F(SavedNotes, FullDiskIsAFault) {
    disk.before = [](const std::string& operation, const std::string& path) {
        if (operation == "write" && path == kNotes) raise(Fault::DiskFull);
    };
    EXPECT_EQ(faultOf([&] { program->click("mnuPrintBrief"); }), 61);
}

TEST_F(SavedNotes, OfTwoBadBoxesInALineTheLeftOneIsTold) {
    // Degrees beyond 16 bits in the first column, no number in the second.
    program->type("txtWdegPhi", "99999");
    program->type("txtBdegPhi", "abc");
    EXPECT_EQ(faultOf([&] { program->click("mnuPrintBrief"); }), 6);
    program->type("txtWdegPhi", "0");
    program->type("txtBdegPhi", "0");
    program->type("txtWdegLam", "99999");
    program->type("txtBdegLam", "abc");
    EXPECT_EQ(faultOf([&] { program->click("mnuPrintBrief"); }), 6);
}

}  // namespace
}  // namespace kelvo
