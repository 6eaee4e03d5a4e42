// Closing the window: the panels into the set, the set into its file, then the plot settings.
#include "shell/window_bench.h"

namespace kelvo {
namespace {

using testing::faultOf;
using testing::Lines;
using testing::Program;
using testing::WindowBench;

class SaveOrder : public WindowBench {
protected:
    // The names of the files in the order of their replacement.
    void record() {
        disk.before = [this](const std::string& operation, const std::string& path) {
            if (operation != "replace") return;
            replaced.push_back(path);
            if (path == failing) raise(Fault::DiskFull);
        };
    }
    Lines replaced;
    std::string failing;
};

TEST_F(SaveOrder, OfClosingIsTheSetThenItsFileThenThePlotSettings) {
    putConfiguration({"/app/data/a.dat"});
    Program& kelvo = start();
    kelvo.type("txtdX", "77.5");
    record();
    kelvo.window.Form_Close();
    EXPECT_EQ(replaced, (Lines{"/app/kelvo.cfg", "/app/plot.cfg"}));
    EXPECT_NE(disk.text("/app/kelvo.cfg").find(" 77.5 "), std::string::npos);
}

TEST_F(SaveOrder, ABoxThatCannotBeReadLeavesBothFilesAsTheyWere) {
    putConfiguration({"/app/data/a.dat"});
    Program& kelvo = start();
    kelvo.type("txtdX", "77.5");
    kelvo.type("txtUf", "x");
    record();
    EXPECT_EQ(faultOf([&] { kelvo.window.Form_Close(); }), 13);
    EXPECT_TRUE(replaced.empty());
    EXPECT_EQ(kelvo.cfg().dX, 77.5) << "the set itself is changed up to the bad box";
    EXPECT_FALSE(kelvo.services.ended);
}

TEST_F(SaveOrder, AConfigurationThatCannotBeWrittenIsToldAndClosingGoesOn) {
    putConfiguration({"/app/data/a.dat"});
    Program& kelvo = start();
    failing = "/app/kelvo.cfg";
    record();
    kelvo.window.Form_Close();
    EXPECT_EQ(kelvo.told(), (Lines{"message||none|ok|CFG파일 에러", "end"}));
    EXPECT_EQ(replaced, (Lines{"/app/kelvo.cfg", "/app/plot.cfg"}));
    EXPECT_TRUE(kelvo.services.ended);
}

TEST_F(SaveOrder, ADatumArrowTellsOfTheConfigurationAndConvertsAllTheSame) {
    putConfiguration({"/app/data/a.dat"});
    Program& kelvo = start();
    failing = "/app/kelvo.cfg";
    record();
    kelvo.type("txtdX", "77.5");
    kelvo.click("cmdW2B");
    EXPECT_EQ(kelvo.told().front(), "message||none|ok|CFG파일 에러");
    EXPECT_EQ(kelvo.cfg().dX, 77.5);
    EXPECT_NE(disk.text("/app/data/a.out").find("     dx  =    77.500"), std::string::npos)
        << "the header comes after it";
    EXPECT_FALSE(kelvo.window.state().conversion.ParaDirty);
}

}  // namespace
}  // namespace kelvo
